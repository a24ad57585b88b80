// add and diff: labels and distances in frames or perforations.

#include <cstdint>
#include <limits>
#include <memory>

#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/film.h"
#include "cli/input.h"
#include "cli/label_io.h"
#include "cli/text.h"

namespace cli {
namespace {

struct arguments {
  label_arguments kind;
  std::string label;
  std::vector<std::string> operands;
  bool perfs = false;
};

constexpr bool is_sample(std::int64_t value) noexcept {
  return value >= std::numeric_limits<std::int32_t>::min() && value <= std::numeric_limits<std::int32_t>::max();
}

// Returns the samples of a frame, or 1 where the user counts perforations.
int unit_of(arguments const& given, labelsbase::label_facts const& facts) noexcept {
  return given.perfs ? 1 : facts.samples_per_frame();
}

// Whether the sum wrapped by whole runs of the count, if at all. Key numbers at 3 perforations a frame wrap as if
// every key had 22 frames, which no film has. So a wrapped sum is not the frame that comes next on the film.
bool wraps_by_whole_runs(labelsbase::label_facts const& facts, int sum, std::int64_t unwrapped) noexcept {
  if (facts.film.prefix_length == 0 || sum == unwrapped) return true;
  return (sum - unwrapped) % perfs_per_run(facts) == 0;
}

exit_status add(arguments const& given, label_kind const& kind, LabelPoint const& start, console& io) {
  label_writer labels{{kind.type, start.prefix}};
  auto const& facts = labelsbase::facts_of(kind.type);
  int const unit = unit_of(given, facts);

  return for_each_item(given.operands, io, [&](std::string_view text) -> problem {
    auto const amount = signed_number(text);
    if (!amount) return std::string{"expected a whole number of "} + (given.perfs ? "perforations" : "frames");
    auto const samples = std::int64_t{*amount} * unit;
    if (!is_sample(samples) || !is_sample(start.sample + samples))
      return "leads beyond the range of samples, -2147483648 to 2147483647";

    LabelPoint distance{kind.type, 0};
    distance.sample = static_cast<int>(samples);
    int const sum = (start + distance).sample;
    if (!wraps_by_whole_runs(facts, sum, start.sample + samples))
      return "leads beyond the first or last key, where the labels do not go on";

    std::string_view label;
    if (auto wrong = labels.write(sum, label))
      return "leads to sample " + std::to_string(sum) + ", which " + *wrong;
    io.results.line(label);
    return std::nullopt;
  });
}

exit_status diff(arguments const& given, label_kind const& kind, LabelPoint const& a, console& io) {
  label_reader labels{kind};
  int const unit = unit_of(given, labelsbase::facts_of(kind.type));
  LabelPoint b{kind.type, 0};

  return for_each_item(given.operands, io, [&](std::string_view text) -> problem {
    label_parts label;
    if (auto wrong = labels.read(text, label)) return wrong;
    if (label.prefix != a.prefix)
      return std::string{"the prefix is "}.append(label.prefix) + ", from another roll than " + a.prefix;
    if (!is_sample(std::int64_t{a.sample} - label.sample))
      return "the difference is beyond the range of samples, -2147483648 to 2147483647";

    b.sample = label.sample;
    set_prefix(b, label.prefix);
    int const samples = (a - b).sample;
    if (samples % unit != 0)
      return "the difference of " + std::to_string(samples) +
             " perforations is not a whole number of frames; use --perfs to show it";
    io.results.line(samples / unit);
    return std::nullopt;
  });
}

using operation = exit_status (*)(arguments const&, label_kind const&, LabelPoint const&, console&);

// `name` is that of the label in the help.
exit_status run(arguments const& given, char const* name, operation what, console& io) {
  auto const kind = find_label_kind(given.kind);
  auto const& facts = labelsbase::facts_of(kind.type);
  if (given.perfs && !counts_perforations(facts))
    refuse("TYPE", given.kind.type, std::string{facts.name} + " does not count perforations; leave out --perfs");

  label_reader labels{kind};
  label_parts label;
  if (auto const wrong = labels.read(given.label, label)) {
    io.say(refusal(name, given.label, *wrong));
    return some_refused;
  }
  LabelPoint point{kind.type, label.sample};
  set_prefix(point, label.prefix);
  return what(given, kind, point, io);
}

}  // namespace

command_run commands::declare_add(CLI::App& command) {
  auto const given = std::make_shared<arguments>();
  add_label_kind(command, given->kind);
  add_required(command, "LABEL", given->label, "The label to start from");
  add_operands(command, "N",
               "Frames to add, negative to go back. Timecode wraps at the end of the day, key numbers and ink"
               " numbers at the end of their count",
               given->operands);
  add_flag(command, "--perfs", given->perfs, "N counts perforations instead of frames");
  add_examples(command, {"add F35 KJ1234560123+07 100", "add 30f-drop '00:00:59;29' 1",
                         "add F353 KJ1234560000+00.1 21 --perfs"});
  return [given](console& io) { return run(*given, "LABEL", add, io); };
}

command_run commands::declare_diff(CLI::App& command) {
  auto const given = std::make_shared<arguments>();
  add_label_kind(command, given->kind);
  add_required(command, "A", given->label, "The label to subtract from");
  add_operands(command, "B",
               "Labels to subtract. A - B is never negative for timecode, key numbers and ink numbers: it wraps"
               " within the day or the count. At 3 perforations a frame, key numbers wrap at 22 frames a key",
               given->operands);
  add_flag(command, "--perfs", given->perfs, "Show differences in perforations instead of frames");
  add_examples(command, {"diff 25f 01:00:10:00 01:00:00:00", "diff F35 KJ1234560123+07 KJ1234560000+00"});
  return [given](console& io) { return run(*given, "A", diff, io); };
}

}  // namespace cli
