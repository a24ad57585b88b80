// The numbers within a label's text.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace labelcheck {

[[nodiscard]] constexpr bool is_digit(char c) noexcept { return c >= '0' && c <= '9'; }
[[nodiscard]] constexpr bool is_blank(char c) noexcept { return c == ' ' || (c >= '\t' && c <= '\r'); }

// The digits that the text begins with.
[[nodiscard]] constexpr std::string_view digits_of(std::string_view text) noexcept {
  return text.substr(0, static_cast<std::size_t>(std::ranges::find_if_not(text, is_digit) - text.begin()));
}

// Numbers too large for any field of a label are all the same.
[[nodiscard]] constexpr std::int64_t number(std::string_view digits) noexcept {
  constexpr std::int64_t largest = 1'000'000'000'000;
  std::int64_t value = 0;
  for (char const digit : digits) value = std::min(value * 10 + (digit - '0'), largest);
  return value;
}

// Appends a number of 0 or more with at least so many digits.
inline void append_number(std::string& text, std::int64_t value, std::size_t digits) {
  auto const written = std::to_string(value);
  text.append(digits - std::min(digits, written.size()), '0').append(written);
}

}  // namespace labelcheck
