#include "lists/record_order.h"

#include <algorithm>

#include "lists/words.h"

namespace lists {

track_names::track_names(std::string_view word) noexcept {
  for (;;) {
    auto const slash = word.find('/');
    auto const part = word.substr(0, slash);
    bool const is_both = same_letters(part, "B");
    bool const is_pair = same_letters(part, "AA");
    bool const has_first = is_both || is_pair || same_letters(part, "A");
    if (has_first) add("A1");
    if (is_pair) add("A2");
    if (is_both) add("V");
    if (!has_first && !same_letters(part, "NONE")) add(part);
    if (slash == std::string_view::npos) return;
    word.remove_prefix(slash + 1);
  }
}

void track_names::add(std::string_view name) noexcept {
  if (size_ < static_cast<std::ptrdiff_t>(names_.size())) names_[static_cast<std::size_t>(size_++)] = name;
}

record_order::overlap record_order::add(std::string_view track, piece const& filled) {
  if (filled.out <= filled.in) return {};
  auto found = tracks_.find(track);
  if (found == tracks_.end()) found = tracks_.emplace(track, runs_by_in{}).first;
  auto& runs = found->second;

  auto next = runs.upper_bound(filled.in);
  if (next != runs.begin() && std::prev(next)->second.out >= filled.in) --next;

  overlap over{};
  std::int64_t in = filled.in;
  run merged{filled.out, filled.line, filled.column, filled.in, filled.line};
  while (next != runs.end() && next->first <= filled.out) {
    auto const& [other_in, other] = *next;
    auto const common = std::min(filled.out, other.out) - std::max(filled.in, other_in);
    if (common > 0 && over.frames == 0)
      over = {common, filled.in >= other.last_in ? other.last_line : other.first_line, other.last_line};
    if (other_in < in) {
      in = other_in;
      merged.first_line = other.first_line;
      merged.first_column = other.first_column;
    }
    merged.out = std::max(merged.out, other.out);
    if (other.last_in > merged.last_in) {
      merged.last_in = other.last_in;
      merged.last_line = other.last_line;
    }
    next = runs.erase(next);
  }
  runs.emplace_hint(next, in, merged);
  return over;
}

void record_order::for_each_gap(std::function<void(gap const&)> const& take) const {
  for (auto const& [track, runs] : tracks_) {
    run const* before = nullptr;
    for (auto const& [in, each] : runs) {
      if (before) take({track, in - before->out, before->last_line, each.first_line, each.first_column});
      before = &each;
    }
  }
}

}  // namespace lists
