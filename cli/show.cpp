#include "cli/items.h"
#include "cli/verbs.h"
#include "refhost/whole_number.h"

namespace cli {
namespace {

// As whole_number, and "+5".
std::optional<int> sample_of(std::string_view text) noexcept {
  if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
  return refhost::whole_number(text);
}

}  // namespace

exit_status show(label_t type, std::vector<std::string> const& samples, console& io) {
  LabelPoint negative{type, 0};
  LabelPoint positive{type, 0};
  positive.removePadding();

  return for_each_item(samples, io, [&](std::string_view text) -> problem {
    auto const sample = sample_of(text);
    if (!sample) return "expected a sample, a whole number from -2147483648 to 2147483647";
    auto& point = *sample < 0 ? negative : positive;
    point.sample = *sample;
    io.results.line(point.get_string());
    return std::nullopt;
  });
}

}  // namespace cli
