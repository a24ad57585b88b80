// add and diff: labels and their distances.

#include <cstdint>
#include <memory>

#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/item_records.h"
#include "cli/label_io.h"
#include "cli/text.h"
#include "labelcheck/sums.h"

namespace cli {
namespace {

struct arguments {
  label_arguments kind;
  reading_arguments reading;
  writing_arguments writing;
  std::string label;
  item_arguments operands;
  std::string format;
  bool perfs = false;
  bool origin = false;
};

constexpr field add_fields[] = {
    input_field,
    {"label", value_type::text, "The sum", "label", may_be_missing},
    problem_field,
};

constexpr field diff_fields[] = {
    input_field,
    {"count", value_type::integer, "The difference in frames; with --perfs, in perforations", "count",
     may_be_missing},
    problem_field,
};

exit_status add(arguments const& given, label_kind const& kind, LabelPoint const& start, console& io) {
  label_writer labels{{kind.type, kind.rate, start.prefix}, find_label_style(given.writing)};
  int const unit = samples_per_count(kind, given.perfs);

  return for_each_item(given.operands, find_format(given.format), add_fields, io,
                       [&](std::string_view text, std::span<value> found) -> problem {
                         auto const amount = signed_number(text);
                         if (!amount)
                           return std::string{"expected a whole number of "} +
                                  (given.perfs ? "perforations" : "frames");
                         auto const [sum, unsummed] = labelcheck::add_samples(start, std::int64_t{*amount} * unit);
                         if (unsummed) return unsummed;

                         std::string_view label;
                         if (auto wrong = labels.write(sum, label))
                           return "leads to sample " + std::to_string(sum) + ", which " + *wrong;
                         found[0] = label;
                         return std::nullopt;
                       });
}

exit_status diff(arguments const& given, label_kind const& kind, LabelPoint const& a, console& io) {
  label_reader labels{kind, given.reading, io};
  int const unit = samples_per_count(kind, given.perfs);
  LabelPoint b{kind.type, 0};

  return for_each_item(given.operands, find_format(given.format), diff_fields, io,
                       [&](std::string_view text, std::span<value> found) -> problem {
                         label_parts label;
                         if (auto wrong = labels.read(text, label)) return wrong;
                         if (label.prefix != a.prefix)
                           return std::string{"the prefix is "}.append(label.prefix) +
                                  ", from another roll than " + a.prefix;
                         if (!labelcheck::is_sample(std::int64_t{a.sample} - label.sample) ||
                             !labelcheck::is_sample(std::int64_t{label.sample} - a.sample))
                           return "the difference is beyond the range of samples, -2147483648 to 2147483647";

                         b.sample = label.sample;
                         set_prefix(b, label.prefix);
                         int const samples = (given.origin ? b - a : a - b).sample;
                         if (samples % unit != 0)
                           return "the difference of " + std::to_string(samples) +
                                  " perforations is not a whole number of frames; use --perfs to show it";
                         found[0] = samples / unit;
                         return std::nullopt;
                       });
}

using operation = exit_status (*)(arguments const&, label_kind const&, LabelPoint const&, console&);

// `name` is that of the label in the help.
exit_status run(arguments const& given, char const* name, operation what, console& io) {
  auto const kind = find_label_kind(given.kind);
  label_reader labels{kind, given.reading, io};
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
  add_perfs(command, given->perfs);
  add_label_kind(command, given->kind);
  add_required(command, "LABEL", given->label, "The label to start from");
  add_items(command, "N",
            "Frames to add, negative to go back. Timecode wraps at the end of the day, key numbers and ink"
            " numbers at the end of their count",
            given->operands);
  add_reading(command, given->reading);
  add_writing(command, given->writing);
  add_format(command, given->format, add_fields);
  add_examples(command, {{"add 35mm KJ1234560123+07 100", "KJ1234560129+11"},
                         {"add 29.97df '00:00:59;29' 1", "00:01:00;02"},
                         {"add 35mm-3p --perfs KJ1234560000+00.1 21", "KJ1234560000+07.1"}});
  return [given](console& io) { return run(*given, "LABEL", add, io); };
}

command_run commands::declare_diff(CLI::App& command) {
  auto const given = std::make_shared<arguments>();
  add_perfs(command, given->perfs);
  add_label_kind(command, given->kind);
  add_required(command, "A", given->label, "The label to subtract from; with --origin, the label to subtract");
  add_items(command, "B",
            "Labels to subtract; with --origin, to subtract from. The difference is never negative for timecode, "
            "key numbers and ink numbers: it wraps"
            " within the day or the count. At 3 perforations a frame, key numbers wrap at 22 frames a key",
            given->operands);
  add_flag(command, "--origin", given->origin, "A is the origin of all: show B - A");
  add_reading(command, given->reading);
  add_format(command, given->format, diff_fields);
  add_examples(command, {{"diff 25 01:00:10:00 01:00:00:00", "250"},
                         {"diff 25 --origin 01:00:00:00 01:00:10:00 01:02:00:00", "250\n3000"},
                         {"diff 35mm KJ1234560123+07 KJ1234560000+00", "1975"}});
  return [given](console& io) { return run(*given, "A", diff, io); };
}

}  // namespace cli
