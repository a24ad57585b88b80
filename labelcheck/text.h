// Texts in which people write numbers.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "labelsbase/characters.h"

namespace labelcheck {

// Returns the digits that the text begins with.
[[nodiscard]] constexpr std::string_view digits_of(std::string_view text) noexcept {
  return text.substr(
      0, static_cast<std::size_t>(std::ranges::find_if_not(text, labelsbase::is_digit) - text.begin()));
}

// Returns the number that digits say, or 10^12 if it is larger: no field of a label can have it.
[[nodiscard]] constexpr std::int64_t value_of(std::string_view digits) noexcept {
  constexpr std::int64_t largest = 1'000'000'000'000;
  std::int64_t value = 0;
  for (char const digit : digits) value = std::min(value * 10 + (digit - '0'), largest);
  return value;
}

// Appends a number from 0 up with at least `digits` digits.
inline void append_number(std::string& text, std::int64_t value, int digits) {
  auto const written = std::to_string(value);
  auto const size = std::max(static_cast<std::size_t>(digits), written.size());
  text.append(size - written.size(), '0').append(written);
}

}  // namespace labelcheck
