// show and read: frames to labels and back.

#include <cstdint>
#include <memory>

#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/item_records.h"
#include "cli/label_io.h"
#include "cli/text.h"
#include "labelcheck/sums.h"
#include "labelsbase/counts/reciprocal.h"

namespace cli {
namespace {

struct arguments {
  label_arguments kind;
  reading_arguments reading;
  writing_arguments writing;
  item_arguments items;
  std::string format;
  bool perfs = false;
};

constexpr field show_fields[] = {
    input_field,
    {"label", value_type::text, "The label", "label", may_be_missing},
    problem_field,
};

constexpr field read_fields[] = {
    input_field,
    {"count", value_type::integer, "Frames from zero; with --perfs, perforations", "count", may_be_missing},
    problem_field,
};

exit_status show(arguments const& given, console& io) {
  auto const kind = find_label_kind(given.kind);
  int const unit = samples_per_count(kind, given.perfs);
  label_writer labels{kind, find_label_style(given.writing)};

  return for_each_item(given.items, find_format(given.format), show_fields, io,
                       [&](std::string_view text, std::span<value> found) -> problem {
                         auto const count = signed_number(text);
                         if (!count)
                           return std::string{"expected "} + (given.perfs ? "perforations" : "frames") +
                                  ", a whole number from -2147483648 to 2147483647";
                         auto const sample = std::int64_t{*count} * unit;
                         if (!labelcheck::is_sample(sample))
                           return "has no label: it is beyond the range of samples, -2147483648 to 2147483647";
                         std::string_view label;
                         if (auto wrong = labels.write(static_cast<int>(sample), label)) return wrong;
                         found[0] = label;
                         return std::nullopt;
                       });
}

exit_status read(arguments const& given, console& io) {
  auto const kind = find_label_kind(given.kind);
  labelsbase::reciprocal const unit{samples_per_count(kind, given.perfs)};
  label_reader labels{kind, given.reading, io};

  return for_each_item(given.items, find_format(given.format), read_fields, io,
                       [&](std::string_view text, std::span<value> found) -> problem {
                         label_parts label;
                         if (auto wrong = labels.read(text, label)) return wrong;
                         int const count = unit.quotient(label.sample);
                         if (count * unit.divisor() != label.sample)
                           return "lies within a frame, at perforation " + std::to_string(label.sample) +
                                  "; use --perfs to count perforations";
                         found[0] = count;
                         return std::nullopt;
                       });
}

}  // namespace

command_run commands::declare_show(CLI::App& command) {
  auto const given = std::make_shared<arguments>();
  add_perfs(command, given->perfs);
  add_label_kind(command, given->kind);
  add_items(command, "N", "Frames from zero, whole numbers: 1800 or -25", given->items);
  add_writing(command, given->writing);
  add_format(command, given->format, show_fields);
  add_examples(command, {{"show 29.97df 0 1799 1800 17982", "00:00:00;00\n00:00:59;29\n00:01:00;02\n00:10:00;00"},
                         {"show 25 --style exchange -- -25 90000", "-00:00:01:00\n01:00:00:00"},
                         {"show 35mm-3p --prefix KJ123456 --perfs 0 3 62",
                          "KJ1234560000+00.1\nKJ1234560000+01.1\nKJ1234560001+00.3"},
                         {"show 25 --format jsonl 25 x",
                          "{\"input\":\"25\",\"label\":\"00:00:01.00\",\"problem\":null}\nlabels: argument 2: "
                          "\"x\": expected frames, a whole number from -2147483648 to "
                          "2147483647\n{\"input\":\"x\",\"label\":null,\"problem\":\"expected frames, a whole "
                          "number from -2147483648 to 2147483647\"}"}});
  return [given](console& io) { return show(*given, io); };
}

command_run commands::declare_read(CLI::App& command) {
  auto const given = std::make_shared<arguments>();
  add_perfs(command, given->perfs);
  add_label_kind(command, given->kind);
  add_items(command, "LABEL", "Labels, for example 01:00:00:00", given->items);
  add_reading(command, given->reading);
  add_format(command, given->format, read_fields);
  add_examples(command,
               {{"read 24 00:59:54:18 01:00:07+00", "86274\n86568"},
                {"read 35mm KJ1234560123+07", "1975"},
                {"read 29.97df '00:00:59;29' '00:01:00;00'",
                 "1799\n?\nlabels: argument 2: \"00:01:00;00\": drop-frame leaves out frames 00 and 01 of every "
                 "minute that is not a tenth (column 10); nearest is 00:01:00;02"},
                {"read 35mm --prefix KJ123456 0123+07 0123+08", "1975\n1976"},
                {"read 25 --illegal nearest 00:00:00:25", "24"},
                {"read 25 --entry short --at 01:00:00:00 1:00:00 10. +15 -1:00", "1500\n250\n90015\n89975"}});
  return [given](console& io) { return read(*given, io); };
}

}  // namespace cli
