#include <CLI/CLI.hpp>
#include <memory>

#include "cli/arguments.h"
#include "cli/items.h"
#include "cli/label_io.h"
#include "cli/label_type.h"
#include "cli/verbs.h"

namespace cli {
namespace {

// The library reads up to a terminator, and would not see what follows.
problem terminator_problem(std::string_view label) {
  auto const terminator = label.find('\0');
  if (terminator == std::string_view::npos) return std::nullopt;
  return "a label has no NUL byte (column " + std::to_string(terminator + 1) + ")";
}

problem read_leniently(label_cvt& converter, std::string_view label, int& sample) {
  if (auto wrong = terminator_problem(label)) return wrong;
  sample = converter.get_abs_sample(label.data());
  bool const is_unreadable_negative =
      sample == labelsbase::unreadable_negative_sample && converter.UserType() == User_timecode;
  if (sample == labelsbase::invalid_sample || is_unreadable_negative)
    return std::string{"cannot be read as "} + converter.type_str();
  return std::nullopt;
}

struct arguments {
  std::string type;
  std::optional<std::string> prefix;
  std::vector<std::string> labels;
  bool lenient = false;
};

exit_status read(label_t type, arguments const& given, console& io) {
  label_reader strict{type, given.prefix.value_or("")};
  LabelPoint point{type, 0};

  return for_each_item(given.labels, io, [&](std::string_view label) -> problem {
    if (auto wrong = given.lenient ? read_leniently(*point.cvt(), label, point.sample) : strict.read(label, point))
      return wrong;
    io.results.line(point.sample);
    return std::nullopt;
  });
}

}  // namespace

verb_run declare_read(CLI::App& verb) {
  auto const given = std::make_shared<arguments>();
  add_type(verb, given->type);
  add_operands(verb, "LABEL", "Labels, for example 01:00:00:00", given->labels);
  add_prefix(verb, given->prefix);
  verb.add_flag("--lenient", given->lenient, "Read whatever the library can make something of")
      ->excludes("--prefix");
  return [given](console& io) {
    auto const type = find_label_type(given->type, io.errors);
    if (!type || !accept_prefix(*type, given->prefix, io.errors)) return failed;
    return read(*type, *given, io);
  };
}

}  // namespace cli
