// The names that a mistyped one may have meant.

#include <algorithm>
#include <array>

#include "labelnames/comparison.h"
#include "labelnames/name_rows.h"
#include "labelnames/names.h"
#include "labelsbase/labelcvt/label_facts.h"

namespace labelnames {
namespace {

// Returns how many characters must be put in, taken out, replaced or swapped with the next to make `b` of `a`.
int distance(std::string_view a, std::string_view b) noexcept {
  std::array<std::array<int, plain_name::longest + 1>, plain_name::longest + 1> to{};
  for (std::size_t i = 0; i <= a.size(); ++i) {
    for (std::size_t j = 0; j <= b.size(); ++j) {
      if (i == 0 || j == 0) {
        to[i][j] = static_cast<int>(i + j);
        continue;
      }
      to[i][j] = std::min({to[i - 1][j] + 1, to[i][j - 1] + 1, to[i - 1][j - 1] + (a[i - 1] != b[j - 1])});
      bool const is_swap = i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1];
      if (is_swap) to[i][j] = std::min(to[i][j], to[i - 2][j - 2] + 1);
    }
  }
  return to[a.size()][b.size()];
}

struct candidate {
  std::string_view name;
  void const* row;  // of its table
  int far;
};

}  // namespace

std::vector<std::string> nearest(std::string_view text) {
  plain_name const typed{text};
  std::vector<candidate> found;
  auto const consider = [&](std::string_view name, void const* row) {
    plain_name const plain{name};
    // A name that goes on where the typed one ends is near: "feet" may mean "feet35".
    bool const begins_it = typed.text().size() > 2 && plain.text().starts_with(typed.text());
    int const far = begins_it ? 1 : distance(typed.text(), plain.text());
    bool const is_near = far <= 2 && far * 2 < static_cast<int>(typed.text().size());
    if (begins_it || is_near) found.push_back({name, row, far});
  };
  for (auto const& row : rows) {
    std::string_view names = row.names;
    for (auto name = take_name(names); !name.empty(); name = take_name(names)) consider(name, &row);
  }
  for (auto const& facts : labelsbase::all_label_facts) {
    if (!facts.has_labels()) continue;
    consider(facts.name, &facts);
    if (facts.exchange.written) consider(facts.exchange.written, &facts);
  }

  std::ranges::stable_sort(found, {}, &candidate::far);
  std::vector<std::string> names;
  for (auto each = found.begin(); each != found.end() && names.size() < 3; ++each)
    if (std::ranges::find(found.begin(), each, each->row, &candidate::row) == each) names.emplace_back(each->name);
  return names;
}

}  // namespace labelnames
