#include "cli/items.h"
#include "cli/verbs.h"
#include "labelcheck/label_check.h"

namespace cli {
namespace {

// Columns count from 1 for people.
problem described(labelcheck::refusal const& refused) {
  if (refused.nearest.empty()) return refused.rule;
  return refused.rule + " (column " + std::to_string(refused.position + 1) + "); nearest is " + refused.nearest;
}

problem strict_problem(label_t type, std::string_view label) {
  if (auto const refused = labelcheck::check(type, label)) return described(*refused);
  return std::nullopt;
}

// The library reads up to a terminator, and would not see what follows.
problem terminator_problem(std::string_view label) {
  auto const terminator = label.find('\0');
  if (terminator == std::string_view::npos) return std::nullopt;
  return "a label has no NUL byte (column " + std::to_string(terminator + 1) + ")";
}

}  // namespace

exit_status read(label_t type, std::vector<std::string> const& labels, bool lenient, console& io) {
  auto& converter = *get_static_label_cvt(type);

  return for_each_item(labels, io, [&](std::string_view label) -> problem {
    if (auto wrong = lenient ? terminator_problem(label) : strict_problem(type, label)) return wrong;
    int const sample = converter.get_abs_sample(label.data());
    if (sample == labelsbase::invalid_sample || sample == labelsbase::unreadable_negative_sample)
      return std::string{"cannot be read as "} + converter.type_str();
    io.results.line(sample);
    return std::nullopt;
  });
}

}  // namespace cli
