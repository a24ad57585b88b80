// Private: texts in which people write numbers.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

#include "labelsbase/characters.h"
#include "labelsbase/counts/integers.h"

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

// Returns the number that four digits say, or one above 9999 if they are not all digits. Works on the four at
// once, for the benchmarks strict_reading/foot_35 and strict_reading/keycode_35; in 64 bits, which hold every sum.
[[nodiscard]] constexpr std::uint32_t value_of_four(char const* text) noexcept {
  auto const byte = [text](int i) { return std::uint32_t{static_cast<unsigned char>(text[i])} << 8 * i; };
  std::uint64_t const digits = (byte(0) | byte(1) | byte(2) | byte(3)) ^ 0x30303030U;  // "1234": 0x04030201
  bool const all_digits = (((digits + 0x76767676U) | digits) & 0x80808080U) == 0;      // every byte at most 9
  std::uint64_t const pairs = (digits * 10 + (digits >> 8)) & 0x00FF00FFU;             // 34 << 16 | 12
  return all_digits ? static_cast<std::uint32_t>((pairs * 100 + (pairs >> 16)) & 0xFFFFU) : 10'000U;
}

// Whether eight characters are printable, at once, for the benchmark strict_reading/keycode_35.
[[nodiscard]] inline bool eight_are_printable(char const* text) noexcept {
  std::uint64_t eight = 0;
  std::memcpy(&eight, text, sizeof eight);
  constexpr std::uint64_t ones = 0x0101010101010101U;
  auto const below =
      labelsbase::wrap_sub(eight, ones * '!') & ~eight;  // the top bit of a byte says that it is wrong
  auto const above = labelsbase::wrap_add(eight, ones * (0x7F - '~')) | eight;
  return ((below | above) & ones * 0x80U) == 0;
}

// Appends a number from 0 up with at least `digits` digits.
inline void append_number(std::string& text, std::int64_t value, int digits) {
  auto const written = std::to_string(value);
  auto const size = std::max(static_cast<std::size_t>(digits), written.size());
  text.append(size - written.size(), '0').append(written);
}

}  // namespace labelcheck
