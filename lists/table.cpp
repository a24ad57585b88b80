#include "lists/table.h"

#include <algorithm>

#include "lists/words.h"

namespace lists {

std::string_view cell::value() const noexcept {
  auto inside = trimmed(text);
  if (!is_quoted) return inside;
  if (begins && inside.starts_with('"')) inside.remove_prefix(1);
  if (ends && inside.ends_with('"')) inside.remove_suffix(1);
  return trimmed(inside);
}

namespace {

// Returns the size of the cell that the text begins with. `is_open` says whether quotes are open before it and
// then behind it; a doubled quote closes and opens them again.
std::size_t cell_size(std::string_view text, char delimiter, bool is_quoted, bool& is_open) noexcept {
  if (!is_quoted) return std::min(text.find(delimiter), text.size());
  std::size_t size = 0;
  for (; size < text.size() && (is_open || text[size] != delimiter); ++size)
    if (text[size] == '"') is_open = !is_open;
  return size;
}

}  // namespace

void row_splitter::start(line const& next) noexcept {
  if (!in_cell_) index_ = 0;
  rest_ = next.text;
  line_goes_on_ = next.goes_on;
  is_done_ = false;
}

bool row_splitter::take(cell& out) noexcept {
  if (is_done_) return false;
  bool const begins = !in_cell_;
  if (begins) {
    is_quoted_ = has_quotes_ && rest_.starts_with('"');
    is_open_ = false;
  }
  auto const size = cell_size(rest_, delimiter_, is_quoted_, is_open_);
  is_done_ = size == rest_.size();
  in_cell_ = is_done_ && (is_open_ || line_goes_on_);
  out = {rest_.substr(0, size), index_, is_quoted_, begins, !in_cell_};
  if (!is_done_) {
    rest_.remove_prefix(size + 1);
    ++index_;
  }
  return true;
}

char delimiter_of(std::string_view heading) noexcept {
  constexpr std::string_view delimiters = "\t;,";
  std::ptrdiff_t counts[delimiters.size()] = {};
  bool is_open = false;
  for (char const c : heading) {
    if (c == '"') is_open = !is_open;
    auto const at = delimiters.find(c);
    if (!is_open && at != std::string_view::npos) ++counts[at];
  }
  auto const* const most = std::ranges::max_element(counts);
  return *most == 0 ? '\0' : delimiters[static_cast<std::size_t>(most - counts)];
}

}  // namespace lists
