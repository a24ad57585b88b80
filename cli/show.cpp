#include <CLI/CLI.hpp>
#include <memory>

#include "cli/arguments.h"
#include "cli/items.h"
#include "cli/label_io.h"
#include "cli/label_type.h"
#include "cli/verbs.h"
#include "refhost/whole_number.h"

namespace cli {
namespace {

// As whole_number, and "+5".
std::optional<int> sample_of(std::string_view text) noexcept {
  if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
  return refhost::whole_number(text);
}

exit_status show(label_t type, std::string_view prefix, std::vector<std::string> const& samples, console& io) {
  label_writer labels{type, prefix};

  return for_each_item(samples, io, [&](std::string_view text) -> problem {
    auto const sample = sample_of(text);
    if (!sample) return "expected a sample, a whole number from -2147483648 to 2147483647";
    std::string_view label;
    if (auto wrong = labels.write(*sample, label)) return wrong;
    io.results.line(label);
    return std::nullopt;
  });
}

struct arguments {
  std::string type;
  std::optional<std::string> prefix;
  std::vector<std::string> samples;
};

}  // namespace

verb_run declare_show(CLI::App& verb) {
  auto const given = std::make_shared<arguments>();
  add_type(verb, given->type);
  add_operands(verb, "SAMPLE", "Whole numbers, for example 1800", given->samples);
  add_prefix(verb, given->prefix);
  return [given](console& io) {
    auto const type = find_label_type(given->type, io.errors);
    if (!type || !accept_prefix(*type, given->prefix, io.errors)) return failed;
    return show(*type, given->prefix.value_or(""), given->samples, io);
  };
}

}  // namespace cli
