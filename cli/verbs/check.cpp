// check: what is wrong in decision lists, logs and sheets.

#include <array>
#include <cmath>
#include <memory>
#include <span>

#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/input_file.h"
#include "cli/names.h"
#include "cli/records.h"
#include "cli/text.h"
#include "labelsbase/labelcvt/label_facts.h"
#include "labelsbase/labelcvt/rate_facts.h"
#include "lists/check.h"
#include "lists/list_label.h"

namespace cli {
namespace {

struct arguments {
  std::vector<std::string> files;
  std::optional<std::string> rate;
  std::string ignored;
  std::string format;
  bool durations = false;
};

// Findings have a message; durations and totals have a length.
constexpr field check_fields[] = {
    {"file", value_type::text, "File, or - for standard input"},
    {"line", value_type::integer, "Line, from 1", nullptr, may_be_missing},
    {"column", value_type::integer, "Column in characters, from 1", nullptr, may_be_missing},
    {"kind", value_type::text, "form, rate, label, length, backwards, overlap or gap; duration or total"},
    {"message", value_type::text, "What is wrong", nullptr, may_be_missing},
    {"event", value_type::text, "Number or name of the event", nullptr, may_be_missing},
    {"reel", value_type::text, "Reel of the event", nullptr, may_be_missing},
    {"tracks", value_type::text, "Tracks of the event, or track of the total", nullptr, may_be_missing},
    {"length_label", value_type::text, "Length as a label of the list", nullptr, may_be_missing},
    {"length_frames", value_type::integer, "Length in frames", nullptr, may_be_missing},
    {"length_seconds", value_type::number, "Length in seconds", nullptr, may_be_missing},
};

value text_or_missing(std::string const& text) { return text.empty() ? missing : value{std::string_view{text}}; }

// The kinds of findings that are left out.
using kinds = std::array<bool, lists::finding_kinds>;

std::string all_kind_names() {
  std::string names;
  for (int kind = 0; kind < lists::finding_kinds; ++kind)
    names.append(kind == 0 ? "" : ", ").append(kind_name(static_cast<lists::finding_kind>(kind)));
  return names;
}

kinds find_kinds(std::string_view list) {
  kinds chosen{};
  while (!list.empty()) {
    auto const name = list.substr(0, list.find(','));
    list.remove_prefix(std::min(name.size() + 1, list.size()));
    bool is_known = false;
    for (int kind = 0; kind < lists::finding_kinds; ++kind) {
      if (name != kind_name(static_cast<lists::finding_kind>(kind))) continue;
      chosen[static_cast<std::size_t>(kind)] = is_known = true;
    }
    if (!is_known) refuse("--ignore", name, "expected kinds of findings: " + all_kind_names());
  }
  return chosen;
}

std::optional<lists::named_type> find_rate(std::optional<std::string> const& name) {
  if (!name) return std::nullopt;
  auto const rate = find_named_type("--rate", *name);
  if (!labelsbase::facts_of(rate.type).is_timecode())
    refuse("--rate", *name, "expected a rate, such as 25 or 29.97df");
  return rate;
}

double seconds_of(std::int64_t frames, lists::named_type const& rate) {
  return static_cast<double>(frames) / labelsbase::facts_of(rate.rate).frames_per_second();
}

class checking {
 public:
  checking(arguments const& given, console& io)
      : io_{io},
        rate_{find_rate(given.rate)},
        ignored_{find_kinds(given.ignored)},
        shows_durations_{given.durations},
        records_{find_format(given.format), check_fields, io.results, text_layout::lines} {}

  exit_status check(std::string const& name) {
    input_file const file{name};
    lists::line_reader lines{file.fd(), [&] {
                               io_.flush();
                               io_.show_progress(file.fd());
                             }};
    if (auto const why = lists::why_unreadable(lines.beginning())) return fail(name, *why);

    std::int64_t found = 0;
    lists::check_handlers handlers;
    handlers.found = [&](lists::finding const& what) {
      if (ignored_[static_cast<std::size_t>(what.kind)]) return;
      ++found;
      write(name, what);
    };
    if (shows_durations_) handlers.measured = [&](lists::event_length const& length) { write(name, length); };

    auto const result = lists::check_list(lines, {rate_}, handlers);
    if (lines.error() != 0) return fail(name, std::generic_category().message(lines.error()));
    if (result.format == lists::list_format::other)
      return fail(
          name, "not a list: expected a decision list, a log that begins with \"Heading\", or CSV with a heading");
    if (!result.rate && result.events > 0) return fail(name, missing_rate(result));
    if (shows_durations_) write_totals(name, result);
    io_.say(name + ": " + summary(result, found));
    return found == 0 ? all_well : some_refused;
  }

 private:
  exit_status fail(std::string const& name, std::string const& why) {
    io_.say(name + ": " + why);
    return failed;
  }

  static std::string missing_rate(lists::check_result const& result) {
    std::string text{"the list does not say its rate"};
    for (auto const& rate : result.possible)
      text.append(&rate == result.possible.data() ? "; its lengths agree at " : " and ")
          .append(lists::rate_name(rate));
    return text + "; give it with --rate";
  }

  static std::string summary(lists::check_result const& result, std::int64_t found) {
    std::string text = format_name(result.format);
    text += ", " + std::to_string(result.events) + (result.events == 1 ? " event" : " events");
    if (result.rate) text += " at " + lists::rate_name(*result.rate);
    if (result.origin == lists::rate_origin::deduced) text += " (the rate at which most lengths agree)";
    if (found == 0) return text + ": nothing wrong";
    return text + ": " + std::to_string(found) + (found == 1 ? " finding" : " findings");
  }

  void write(std::string const& file, lists::finding const& what) {
    if (!records_.is_text()) {
      records_.write({file, what.line, static_cast<std::int64_t>(what.column), kind_name(what.kind), what.text,
                      text_or_missing(what.event), missing, missing, missing, missing, missing});
      return;
    }
    auto const place = file + ':' + std::to_string(what.line) + ':' + std::to_string(what.column);
    io_.results.line(place + ": " + kind_name(what.kind) + ": " + what.text);
  }

  void write(std::string const& file, lists::event_length const& length) {
    auto const& [event, frames, rate] = length;
    write_length(file, event.name.line, event.name.text, event.reel, event.tracks, frames, rate);
  }

  void write_totals(std::string const& file, lists::check_result const& result) {
    for (auto const& [track, frames] : result.frames_by_track)
      write_length(file, std::nullopt, "total", {}, track, frames, *result.rate);
  }

  // A total has no line.
  void write_length(std::string const& file, std::optional<std::int64_t> line, std::string const& event,
                    std::string const& reel, std::string const& tracks, std::int64_t frames,
                    lists::named_type const& rate) {
    auto const label = lists::list_label(rate.type, frames);
    auto const seconds = seconds_of(frames, rate);
    if (!records_.is_text()) {
      records_.write({file, line ? value{*line} : missing, missing, line ? "duration" : "total", missing,
                      line ? text_or_missing(event) : missing, text_or_missing(reel), text_or_missing(tracks),
                      label, frames, seconds});
      return;
    }
    auto const places = std::to_string(std::llround(seconds * 1000));
    std::string const fill(places.size() < 4 ? 4 - places.size() : 0, '0');
    auto const thousandths = fill + places;
    auto const point = thousandths.size() - 3;
    io_.results.line(padded(event, 12) + "  " + padded(reel, 10) + "  " + padded(tracks, 6) + "  " + label + "  " +
                     std::to_string(frames) + " frames  " + thousandths.substr(0, point) + '.' +
                     thousandths.substr(point) + " s");
  }

  console& io_;
  std::optional<lists::named_type> rate_;
  kinds ignored_;
  bool shows_durations_;
  record_writer records_;
};

exit_status check(arguments const& given, console& io) {
  checking all{given, io};
  auto worst = all_well;
  for (auto const& file : given.files.empty() ? std::vector<std::string>{"-"} : given.files)
    worst = std::max(worst, all.check(file));
  return worst;
}

}  // namespace

command_run commands::declare_check(CLI::App& command) {
  auto const given = std::make_shared<arguments>();
  add_operands(command, "FILE", "Lists to check; - or none for standard input", given->files);
  add_option(
      command, "--rate", "RATE", given->rate,
      "Rate of the labels, for example 25 or 29.97df. Without it, the list's rate lines say it, or it is the"
      " only one at which the lengths of the events agree");
  add_flag(command, "--durations", given->durations, "List the length of each event, and of each track in all");
  add_option(command, "--ignore", "KIND,...", given->ignored,
             "Kinds of findings to leave out: form, rate, label, length, backwards, overlap, gap");
  add_format(command, given->format, check_fields);
  add_examples(
      command,
      {{"echo '001 A001 V C 01:00:00:00 01:00:02:00 10:00:00:00 10:00:01:00' | labels check --rate 25",
        "-:1:14: length: source has 50 frames, record 25\nlabels: -: decision list, 1 event at 25: 1 finding"},
       {"echo '001 A001 V C 01:00:00:00 01:00:01:12 10:00:00:00 10:00:01:12' | labels check --rate 25 --durations",
        "001           A001        V       00:00:01:12  37 frames  1.480 s\n"
        "total                     V       00:00:01:12  37 frames  1.480 s\n"
        "labels: -: decision list, 1 event at 25: nothing wrong"},
       "check --rate 29.97df --ignore gap --format json cut.edl log.ale"});
  return [given](console& io) { return check(*given, io); };
}

}  // namespace cli
