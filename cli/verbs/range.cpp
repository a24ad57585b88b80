// range, day and now: labels one after the other, and that of the time of day.

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <ctime>
#include <memory>
#include <stdexcept>

#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/label_io.h"
#include "cli/records.h"
#include "cli/text.h"
#include "labelcheck/sums.h"
#include "labelsbase/counts/timecode_count.h"
#include "labelsbase/labelcvt/label_facts.h"

namespace cli {
namespace {

struct arguments {
  label_arguments kind;
  reading_arguments reading;
  writing_arguments writing;
  std::string from, to;
  std::string step = "1";
  std::string format;
  bool perfs = false;
  bool utc = false;
};

constexpr field fields[] = {
    {"label", value_type::text, "The label", "label"},
    {"sample", value_type::integer, "Frames from zero; perforations for key numbers, ink numbers and feet"},
};

// Writes a label a row.
class label_rows {
 public:
  label_rows(arguments const& given, label_kind const& kind, console& io)
      : labels_{kind, find_label_style(given.writing)},
        io_{io},
        rows_{find_format(given.format), fields, io.results, text_layout::lines} {}

  [[nodiscard]] problem write(int sample) {
    std::string_view label;
    if (auto wrong = labels_.write(sample, label)) return "sample " + std::to_string(sample) + " " + *wrong;
    if (rows_.is_text())
      io_.results.line(label);
    else
      rows_.write({label, sample});
    return std::nullopt;
  }

 private:
  label_writer labels_;
  console& io_;
  record_writer rows_;
};

LabelPoint read_point(label_kind const& kind, label_reader& labels, char const* name, std::string const& text) {
  label_parts label;
  if (auto const wrong = labels.read(text, label)) refuse(name, text, *wrong);
  LabelPoint point{kind.type, 0};
  point.sample = label.sample;
  set_prefix(point, label.prefix);
  return point;
}

// Returns the samples from one label to the other in the direction of the step: timecode goes on past midnight,
// and key numbers and ink numbers past the end of their count.
std::int64_t distance(LabelPoint const& from, LabelPoint const& to, bool is_back) {
  return is_back ? -std::int64_t{(from - to).sample} : (to - from).sample;
}

exit_status range(arguments const& given, console& io) {
  auto kind = find_label_kind(given.kind);
  label_reader labels{kind, given.reading, io};
  auto const from = read_point(kind, labels, "FROM", given.from);
  auto const to = read_point(kind, labels, "TO", given.to);
  if (std::string_view{from.prefix} != to.prefix)
    refuse("TO", given.to, std::string{"the prefix is "} + to.prefix + ", from another roll than " + from.prefix);

  auto const step = signed_number(given.step);
  if (!step || *step == 0)
    refuse("--step", given.step, "expected frames, a whole number that is not 0; negative to go back");
  auto const samples = std::int64_t{*step} * samples_per_count(kind, given.perfs);
  auto const whole = distance(from, to, samples < 0);
  if (whole != 0 && (whole < 0) != (samples < 0))
    refuse("TO", given.to,
           std::string{"comes "} + (samples < 0 ? "after" : "before") + " FROM; turn the sign of --step");
  if (auto const* const wrong = labelcheck::add_samples(from, whole).problem) refuse("TO", given.to, wrong);

  kind.prefix = from.prefix;
  label_rows rows{given, kind, io};
  for (std::int64_t i = 0; i <= whole / samples && io.results.error() == 0; ++i) {
    auto const [sample, unsummed] = labelcheck::add_samples(from, i * samples);
    auto const wrong = unsummed ? problem{unsummed} : rows.write(sample);
    if (!wrong) continue;
    io.say("FROM " + in_quotes(given.from) + ", " + std::to_string(i) + " steps on: " + *wrong);
    return some_refused;
  }
  return all_well;
}

// The count of a timecode type, after the host's setting.
struct day_count {
  labelsbase::timecode_count count;
  int samples_per_frame;  // 2 where two samples make a frame
};

day_count find_day_count(arguments const& given, label_kind const& kind) {
  auto const& facts = labelsbase::facts_of(kind.type);
  if (!facts.is_timecode())
    refuse(given.kind.type_argument, given.kind.type,
           "film has no time of day; expected timecode, such as 25 or 29.97df");
  auto const& converter = *get_static_label_cvt(kind.type);
  return {labelsbase::timecode_count{converter.get_modulus(), facts.timecode.drop_frame},
          converter.isSpecialSlowTC() ? 2 : 1};
}

exit_status day(arguments const& given, console& io) {
  auto const kind = find_label_kind(given.kind);
  auto const [count, samples_per_frame] = find_day_count(given, kind);
  label_rows rows{given, kind, io};
  int const samples = count.labels_per_day() * samples_per_frame;
  for (int sample = 0; sample < samples && io.results.error() == 0; ++sample)
    if (auto const wrong = rows.write(sample)) throw std::logic_error{*wrong};
  return all_well;
}

// The clock's hours, minutes and seconds, and its second cut into the frames that labels count.
labelsbase::timecode_fields time_of_day(bool is_utc, labelsbase::timecode_count const& count) {
  using namespace std::chrono;
  auto const now = system_clock::now();
  auto const second = floor<seconds>(now);
  std::time_t const since_epoch = system_clock::to_time_t(second);
  std::tm clock{};
  if (is_utc)
    gmtime_r(&since_epoch, &clock);
  else
    localtime_r(&since_epoch, &clock);
  auto const part = duration_cast<nanoseconds>(now - second).count();
  auto const frame = static_cast<int>(part * count.frames_per_second() / 1'000'000'000);
  return {clock.tm_hour, clock.tm_min, std::min(clock.tm_sec, 59), frame};
}

exit_status now(arguments const& given, console& io) {
  auto const kind = find_label_kind(given.kind);
  auto const [count, samples_per_frame] = find_day_count(given, kind);
  auto fields_of_now = time_of_day(given.utc, count);
  if (count.leaves_out(fields_of_now)) fields_of_now.frames = 2;
  label_rows rows{given, kind, io};
  if (auto const wrong = rows.write(count.join(fields_of_now) * samples_per_frame)) throw std::logic_error{*wrong};
  return all_well;
}

}  // namespace

command_run commands::declare_range(CLI::App& command) {
  auto const given = std::make_shared<arguments>();
  add_perfs(command, given->perfs);
  add_label_kind(command, given->kind);
  add_required(command, "FROM", given->from, "The first label");
  add_required(command, "TO", given->to, "The last label, if a step reaches it");
  add_option(command, "--step", "N [1]", given->step, "Frames from one label to the next, negative to go back");
  add_reading(command, given->reading);
  add_writing(command, given->writing);
  add_format(command, given->format, fields);
  add_examples(
      command,
      {{"range 29.97df '00:00:59;28' '00:01:00;03'", "00:00:59;28\n00:00:59;29\n00:01:00;02\n00:01:00;03"},
       {"range 25 01:00:00:00 01:00:30:00 --step 250", "01:00:00.00\n01:00:10.00\n01:00:20.00\n01:00:30.00"},
       {"range feet35 0100+00 0099+00 --step -4", "0100+00\n0099+12\n0099+08\n0099+04\n0099+00"}});
  return [given](console& io) { return range(*given, io); };
}

command_run commands::declare_day(CLI::App& command) {
  auto const given = std::make_shared<arguments>();
  add_type(command, given->kind.type);
  add_writing(command, given->writing);
  add_format(command, given->format, fields);
  add_examples(command, {{"day 29.97df | sed -n '1800,1801p;1801q'", "00:00:59;29\n00:01:00;02"},
                         {"day 25 --style exchange | wc -l", "2160000"}});
  return [given](console& io) { return day(*given, io); };
}

command_run commands::declare_now(CLI::App& command) {
  auto const given = std::make_shared<arguments>();
  add_type(command, given->kind.type);
  add_flag(command, "--utc", given->utc, "Take the time of day in UTC instead of the local one");
  add_writing(command, given->writing);
  add_format(command, given->format, fields);
  add_examples(command, {"now 25", "now 29.97df --utc"});
  return [given](console& io) { return now(*given, io); };
}

}  // namespace cli
