#include "cli/conversion.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iterator>
#include <span>

#include "cli/arguments.h"
#include "cli/counting.h"
#include "cli/text.h"
#include "labelsbase/labelcvt/label_facts.h"

namespace cli {
namespace {

using labelconvert::rounding;
using labelconvert::shared;

template <typename Value>
struct word {
  char const* text;
  Value value;
};

constexpr word<shared> shares[] = {{"time", shared::time}, {"frame", shared::frame}};
constexpr word<rounding> roundings[] = {{"down", rounding::down}, {"near", rounding::near}, {"up", rounding::up}};

template <typename Value>
Value find_word(char const* option, std::string const& text, std::span<word<Value> const> words) {
  auto const found = std::ranges::find_if(words, [&](auto const& each) { return text == each.text; });
  if (found != words.end()) return found->value;
  std::string expected{"expected "};
  for (auto const& each : words)
    expected.append(&each == words.data() ? "" : &each == &words.back() ? " or " : ", ").append(each.text);
  refuse(option, text, expected);
}

// Reads one side of --sync. The label's prefix becomes that of the kind.
int read_sync_label(label_kind& kind, std::string const& sync, std::string_view label) {
  label_reader reader{kind};
  label_parts parts;
  std::string const terminated{label};
  if (auto const wrong = reader.read(terminated, parts)) refuse("--sync", sync, in_quotes(label) + ": " + *wrong);
  kind.prefix = parts.prefix;
  return parts.sample;
}

pulldown chosen_pulldown(conversion_arguments const& given) {
  bool const has_letters = given.transfer == "2:3";
  auto phase = given.phase.value_or(has_letters ? "A" : "0");
  if (has_letters && phase.size() == 1 && !is_digit(phase.front())) {
    auto const found = labelconvert::frames_by_phase.find(phase);
    if (found == std::string_view::npos)
      refuse("--phase", phase, "expected A, B, C or D, or a number from 0 to 4 as 'labels cadence' takes it");
    phase = std::to_string(found);
  }
  return find_pulldown({given.transfer, phase});
}

}  // namespace

void add_conversion(CLI::App& command, conversion_arguments& given) {
  add_option(command, "--from", "TYPE", given.from, "Type of the labels to read, for example 25 or 29.97df")
      ->required();
  add_option(command, "--to", "TYPE", given.to, "Type of the labels to write, for example feet35")->required();
  auto* const by = add_option(
      command, "--by", "time|frame", given.by,
      "What both labels share: the instant, or the number of frames since the sync point. Without it, two kinds of"
      " timecode share the time, two kinds of film labels the frame, film and timecode of 24 or 25 frames the "
      "frame."
      " Film and other timecode need --by or --transfer. By time, film runs at 24 frames a second");
  add_option(command, "--sync", "LABEL=LABEL", given.sync,
             "One instant in both: a label to read and the label to write for it, as 01:00:00:00=KJ1234560123+07."
             " Without it, both start at zero");
  add_option(command, "--prefix", "PREFIX", given.prefix,
             "Prefix of the key numbers or ink numbers to write, if --sync does not name it");
  add_option(command, "--transfer", "none|2:3|24:25 [none]", given.transfer,
             "Go through a pulldown between film (or 24 frame timecode) and video: 2:3 to 30 frames, 24:25 to 25")
      ->excludes(by);
  add_option(
      command, "--phase", "PHASE", given.phase,
      "Where the pulldown stands at the sync point. For 2:3 the film frame of the cadence, A, B, C or D [A]; or a"
      " number as 'labels cadence' takes it [0 for 24:25]");
  add_option(command, "--round", "down|near|up [near]", given.round,
             "Which label to write for an instant between two; halfway, near is up");
  add_flag(command, "--exact", given.exact, "Refuse labels that fall between two");
  add_reading(command, given.reading);
  add_writing(command, given.writing);
}

label_converter::tracks label_converter::find_tracks(conversion_arguments const& given) {
  tracks both{.from = find_label_kind({.type = given.from, .type_argument = "--from"}),
              .to = find_label_kind({.type = given.to, .prefix = given.prefix, .type_argument = "--to"}),
              .sync = {}};
  if (given.sync) {
    auto const equals = given.sync->find('=');
    if (equals == std::string::npos)
      refuse("--sync", *given.sync, "expected LABEL=LABEL, for example 01:00:00:00=0000+00");
    auto const text = std::string_view{*given.sync};
    both.sync.from = read_sync_label(both.from, *given.sync, text.substr(0, equals));
    both.sync.to = read_sync_label(both.to, *given.sync, text.substr(equals + 1));
  }
  if (labelsbase::facts_of(both.to.type).film.prefix_length > 0 && both.to.prefix.empty())
    refuse("--to", given.to, "its labels begin with a prefix; give --prefix, or --sync with a whole label");
  return both;
}

labelconvert::conversion label_converter::plan(conversion_arguments const& given, tracks const& both) {
  auto const pulldown = chosen_pulldown(given);
  labelconvert::request const asked{
      .from = {both.from.type, both.from.rate},
      .to = {both.to.type, both.to.rate},
      .by = given.by ? std::optional{find_word<shared>("--by", *given.by, shares)} : std::nullopt,
      .sync = both.sync,
      .round = find_word<rounding>("--round", given.round, roundings),
      .transfer = pulldown.transfer,
      .phase = pulldown.phase};
  switch (auto const found = find_obstacle(asked)) {
    case labelconvert::obstacle::none:
      return labelconvert::conversion{asked};
    case labelconvert::obstacle::no_usual_share:
      refuse("--to", given.to,
             "film and timecode of this rate run together in several ways; choose --by time, --by frame or"
             " --transfer");
    case labelconvert::obstacle::transfer_needs_film:
    case labelconvert::obstacle::transfer_needs_30:
    case labelconvert::obstacle::transfer_needs_25:
      refuse("--transfer", given.transfer, explain(found));
    default:
      refuse("--to", given.to, explain(found));
  }
}

label_converter::label_converter(conversion_arguments const& given, console& io)
    : tracks_{find_tracks(given)},
      conversion_{plan(given, tracks_)},
      lengths_{plan(given, {tracks_.from, tracks_.to, {}})},
      reader_{tracks_.from, given.reading, io},
      writer_{tracks_.to, find_label_style(given.writing)},
      exact_only_{given.exact} {}

problem label_converter::convert(std::string_view text, std::string_view& label) {
  return convert(conversion_, text, label);
}

problem label_converter::convert_length(std::string_view text, std::string_view& label) {
  return convert(lengths_, text, label);
}

std::optional<int> label_converter::length(int samples) const noexcept {
  auto const found = lengths_.of(samples);
  return found ? std::optional{found->sample} : std::nullopt;
}

problem label_converter::convert(labelconvert::conversion const& how, std::string_view text,
                                 std::string_view& label) {
  label_parts parts;
  if (auto wrong = reader_.read(text, parts)) return wrong;
  auto const found = how.of(parts.sample);
  if (!found) return std::string{"leads beyond the labels of "} + labelsbase::facts_of(tracks_.to.type).name;
  if (exact_only_ && !found->is_exact()) return falls_between(*found);
  is_exact_ = found->is_exact();
  if (auto wrong = writer_.write(found->sample, label))
    return "leads to sample " + std::to_string(found->sample) + ", which " + *wrong;
  return std::nullopt;
}

problem label_converter::falls_between(labelconvert::answer const& found) {
  auto const written = [&](int sample) {
    std::string_view label;
    return writer_.write(sample, label) ? "sample " + std::to_string(sample) : std::string{label};
  };
  auto const before = written(found.before);
  return "falls between " + before + " and " + written(found.after);
}

}  // namespace cli
