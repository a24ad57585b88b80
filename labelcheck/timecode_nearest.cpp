#include <algorithm>
#include <array>
#include <cstdint>

#include "labelcheck/text.h"
#include "labelcheck/timecode.h"

using labelsbase::is_blank;

namespace labelcheck {
namespace {

// What people write between the numbers.
constexpr bool is_mark(char c) noexcept { return std::string_view{":;.,+-"}.find(c) != std::string_view::npos; }

void skip(std::string_view& text, auto unwanted) {
  text.remove_prefix(static_cast<std::size_t>(std::ranges::find_if_not(text, unwanted) - text.begin()));
}

std::string written(timecode_form const& form, bool negative, labelsbase::timecode_fields at, char separator) {
  if (negative && form.facts.drop_frame) at = {0, 0, 0, 0};
  if (form.count().leaves_out(at)) at.frames = 2;

  std::string text{negative && !form.facts.drop_frame ? "-" : ""};
  append_number(text, at.hours, 2);
  append_number(text += ':', at.minutes, 2);
  append_number(text += ':', at.seconds, 2);
  append_number(text += separator, at.frames, form.facts.frame_digits());
  return text;
}

// Returns packed digits with marks between the fields: "01000000" as "01:00:00:00". Returns an empty text for any
// other text.
std::string unpacked(timecode_form const& form, std::string_view text) {
  while (!text.empty() && is_blank(text.back())) text.remove_suffix(1);
  auto const frame_digits = static_cast<std::size_t>(form.facts.frame_digits());
  auto const size = digits_of(text).size();
  if (size != text.size() || size + 1 < 6 + frame_digits || size > 6 + frame_digits) return "";
  std::string marked(6 + frame_digits - size, '0');
  marked += text;
  for (std::size_t const place : {6U, 4U, 2U}) marked.insert(place, ":");
  return marked;
}

}  // namespace

std::string nearest_timecode(timecode_form const& form, bool is_slow, std::string_view text) {
  skip(text, is_blank);
  bool const negative = text.starts_with('-');
  if (negative || text.starts_with('+')) text.remove_prefix(1);

  skip(text, is_blank);
  auto const marked = unpacked(form, text);
  if (!marked.empty()) text = marked;

  constexpr std::size_t frames = 3;
  std::array const last{23, 59, 59, form.last_frame()};
  std::array numbers{0, 0, 0, 0};
  char separator = form.facts.separator;
  bool legible = false;
  for (std::size_t part = 0; part <= frames; ++part) {
    skip(text, is_blank);
    auto const digits = digits_of(text);
    if (part == 0 && digits.empty() && !text.empty() && !is_mark(text.front())) return "";
    legible = legible || !digits.empty();
    numbers[part] = static_cast<int>(std::min<std::int64_t>(value_of(digits), last[part]));

    skip(text, [](char c) { return !is_mark(c) && !is_blank(c); });
    if (text.empty() || part == frames) break;
    if (is_blank(text.front())) {  // more than a label: blanks may only end it
      if (std::ranges::all_of(text, is_blank)) break;
      return "";
    }
    if (part + 1 == frames && is_slow && text.front() == ':') separator = ':';
    text.remove_prefix(1);
  }
  if (!legible) return "";
  return written(form, negative, {numbers[0], numbers[1], numbers[2], numbers[3]}, separator);
}

}  // namespace labelcheck
