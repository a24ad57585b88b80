// show and read: samples to labels and back.

#include <CLI/CLI.hpp>
#include <memory>

#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/input.h"
#include "cli/label_io.h"
#include "cli/text.h"

namespace cli {
namespace {

struct arguments {
  label_arguments kind;
  std::vector<std::string> items;
  bool lenient = false;
};

exit_status show(arguments const& given, console& io) {
  label_writer labels{find_label_kind(given.kind)};

  return for_each_item(given.items, io, [&](std::string_view text) -> problem {
    auto const sample = signed_number(text);
    if (!sample) return "expected a sample, a whole number from -2147483648 to 2147483647";
    std::string_view label;
    if (auto wrong = labels.write(*sample, label)) return wrong;
    io.results.line(label);
    return std::nullopt;
  });
}

exit_status read(arguments const& given, console& io) {
  label_reader labels{find_label_kind(given.kind)};

  return for_each_item(given.items, io, [&](std::string_view text) -> problem {
    label_parts label;
    if (auto wrong = labels.read(text, label)) return wrong;
    io.results.line(label.sample);
    return std::nullopt;
  });
}

problem read_leniently(label_cvt& converter, std::string_view text, int& sample) {
  auto const terminator = text.find('\0');  // the library would stop there
  if (terminator != std::string_view::npos)
    return "contains a NUL byte (column " + std::to_string(terminator + 1) + "); expected text";
  sample = converter.get_abs_sample(text.data());
  bool const is_unreadable_negative =
      sample == labelsbase::unreadable_negative_sample && converter.UserType() == User_timecode;
  if (sample == labelsbase::invalid_sample || is_unreadable_negative)
    return std::string{"cannot be read as "} + converter.type_str();
  return std::nullopt;
}

exit_status read_leniently(arguments const& given, console& io) {
  auto& converter = *get_static_label_cvt(find_label_kind(given.kind).type);

  return for_each_item(given.items, io, [&](std::string_view text) -> problem {
    int sample = 0;
    if (auto wrong = read_leniently(converter, text, sample)) return wrong;
    io.results.line(sample);
    return std::nullopt;
  });
}

}  // namespace

command_run commands::declare_show(CLI::App& command) {
  auto const given = std::make_shared<arguments>();
  add_label_kind(command, given->kind);
  add_operands(command, "SAMPLE", "Samples, whole numbers: 1800 or -25", given->items);
  add_examples(command,
               {"show 30f-drop 0 1799 1800 17982", "show 25f -- -25 90000", "show F353 --prefix KJ123456 0 3 62"});
  return [given](console& io) { return show(*given, io); };
}

command_run commands::declare_read(CLI::App& command) {
  auto const given = std::make_shared<arguments>();
  add_label_kind(command, given->kind);
  add_operands(command, "LABEL", "Labels, for example 01:00:00:00", given->items);
  add_flag(command, "--lenient", given->lenient, "Accept anything the library can parse, for example 99:99:99:99")
      ->excludes("--prefix");
  add_examples(command, {"read 24f 00:59:54:18 01:00:07+00", "read F35 KJ1234560123+07",
                         "read F35 --prefix KJ123456 0123+07 0123+08"});
  return [given](console& io) { return given->lenient ? read_leniently(*given, io) : read(*given, io); };
}

}  // namespace cli
