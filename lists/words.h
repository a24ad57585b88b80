// Words of a line.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "labelsbase/characters.h"

namespace lists {

// Blanks, and the control-Z and NUL bytes with which old disks fill the last block of a file.
[[nodiscard]] constexpr bool is_fill(char c) noexcept {
  return labelsbase::is_blank(c) || c == '\x1A' || c == '\0';
}

// Returns the text without blanks at both ends.
[[nodiscard]] constexpr std::string_view trimmed(std::string_view text) noexcept {
  while (!text.empty() && is_fill(text.front())) text.remove_prefix(1);
  while (!text.empty() && is_fill(text.back())) text.remove_suffix(1);
  return text;
}

// Takes the first or last word off a text. Returns an empty view if there is none.
[[nodiscard]] constexpr std::string_view take_first_word(std::string_view& text) noexcept {
  text = trimmed(text);
  auto const size = static_cast<std::size_t>(std::ranges::find_if(text, is_fill) - text.begin());
  auto const word = text.substr(0, size);
  text.remove_prefix(size);
  return word;
}

[[nodiscard]] constexpr std::string_view take_last_word(std::string_view& text) noexcept {
  text = trimmed(text);
  auto size = text.size();
  while (size > 0 && !is_fill(text[size - 1])) --size;
  auto const word = text.substr(size);
  text.remove_suffix(word.size());
  return word;
}

// Takes the first line off a text, without its end.
[[nodiscard]] constexpr std::string_view take_line(std::string_view& text) noexcept {
  auto const size = std::min(text.find_first_of("\r\n"), text.size());
  auto const line = text.substr(0, size);
  text.remove_prefix(size);
  if (text.starts_with('\r')) text.remove_prefix(1);
  if (text.starts_with('\n')) text.remove_prefix(1);
  return line;
}

// Whether both texts are the same letters, in either case.
[[nodiscard]] constexpr bool same_letters(std::string_view a, std::string_view b) noexcept {
  return std::ranges::equal(a, b, {}, labelsbase::to_upper, labelsbase::to_upper);
}

[[nodiscard]] constexpr bool all_digits(std::string_view text) noexcept {
  return !text.empty() && std::ranges::all_of(text, labelsbase::is_digit);
}

}  // namespace lists
