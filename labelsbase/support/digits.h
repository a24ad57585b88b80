// Decimal digits, two at a time.
#pragma once

#include <array>
#include <cstddef>
#include <cstring>
#include <limits>

#include "labelsbase/characters.h"
#include "labelsbase/export.h"

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

// The powers of ten that a type holds exactly: 1 to 10^9 for unsigned, 1 to 10^15 for double.
template <class Number>
LABELSBASE_LOCAL inline constexpr auto powers_of_ten = [] {
  std::array<Number, std::numeric_limits<Number>::digits10 + 1> powers{1};
  for (std::size_t i = 1; i < powers.size(); ++i) powers[i] = powers[i - 1] * 10;
  return powers;
}();

// Writes a number that has at most `digits` digits, 1 to 10, with leading zeros.
inline void put_digits(char* out, unsigned value, int digits) noexcept {
  char* const leading_pair_end = out + 2;
  for (char* end = out + digits; end > leading_pair_end; end -= 2) {
    put_pair(end - 2, static_cast<int>(value % 100));
    value /= 100;
  }
  if (digits % 2 == 0) {
    put_pair(out, static_cast<int>(value));
  } else {
    *out = static_cast<char>('0' + value);
  }
}

// Reads exactly `digits` digits, 1 to 9. Returns false if another character is among them.
[[nodiscard]] inline bool read_digits(char const* text, int digits, int& number) noexcept {
  unsigned value = 0;
  for (char const* const end = text + digits; text != end; ++text) {
    auto const digit = digit_value(*text);
    if (digit > 9) return false;
    value = value * 10 + digit;
  }
  number = static_cast<int>(value);
  return true;
}

// Returns how many digits a number has; 1 for 0.
[[nodiscard]] constexpr int digits_in(unsigned value) noexcept {
  std::size_t digits = 1;
  while (digits < powers_of_ten<unsigned>.size() && value >= powers_of_ten<unsigned>[digits]) ++digits;
  return static_cast<int>(digits);
}

}  // namespace labelsbase
