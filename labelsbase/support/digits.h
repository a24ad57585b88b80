// Decimal digits, two at a time.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "labelsbase/characters.h"

namespace labelsbase {

// "00" to "99".
inline constexpr auto digit_pairs = [] {
  std::array<char[2], 100> pairs{};
  for (std::size_t i = 0; i < 100; ++i) {
    pairs[i][0] = static_cast<char>('0' + i / 10);
    pairs[i][1] = static_cast<char>('0' + i % 10);
  }
  return pairs;
}();

// Writes a number from 0 to 99.
inline void put_pair(char* out, int value) noexcept {
  std::memcpy(out, digit_pairs[static_cast<unsigned>(value)], 2);
}

// Reads two digits. Returns false if another character is among them.
inline bool read_pair(char const* text, int& value) noexcept {
  auto const tens = digit_value(text[0]);
  if (tens > 9) return false;
  auto const units = digit_value(text[1]);
  if (units > 9) return false;
  value = static_cast<int>(tens * 10 + units);
  return true;
}

// Writes the last `digits` digits of a number, with leading zeros.
inline void put_digits(char* out, unsigned value, int digits) noexcept {
  for (; digits >= 2; digits -= 2) {
    put_pair(out + digits - 2, static_cast<int>(value % 100));
    value /= 100;
  }
  if (digits > 0) *out = static_cast<char>('0' + value % 10);
}

// Returns how many digits a number has; 1 for 0.
[[nodiscard]] constexpr int digits_in(unsigned value) noexcept {
  int digits = 1;
  for (std::uint64_t power = 10; value >= power; power *= 10) ++digits;
  return digits;
}

}  // namespace labelsbase
