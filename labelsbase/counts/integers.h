// Arithmetic on samples. Callers may hand in any 32-bit sample, so sums and products wrap at 32 bits by name.
#pragma once

#include <cstdint>

#include "labelsbase/samples.h"

namespace labelsbase {

// Returns the low 32 bits of `value`.
[[nodiscard]] constexpr int wrap_to_int(std::uint64_t value) noexcept {
  return static_cast<int>(static_cast<std::uint32_t>(value));
}

// Returns the sum of any two ints, wrapped at 32 bits.
[[nodiscard]] constexpr int wrap_add(int a, int b) noexcept {
  return static_cast<int>(static_cast<unsigned>(a) + static_cast<unsigned>(b));
}

// Returns the difference a - b of any two ints, wrapped at 32 bits.
[[nodiscard]] constexpr int wrap_sub(int a, int b) noexcept {
  return static_cast<int>(static_cast<unsigned>(a) - static_cast<unsigned>(b));
}

// Returns the product of any two ints, wrapped at 32 bits.
[[nodiscard]] constexpr int wrap_mul(int a, int b) noexcept {
  return static_cast<int>(static_cast<unsigned>(a) * static_cast<unsigned>(b));
}

// Returns -value. The smallest int is its own negative.
[[nodiscard]] constexpr int wrap_negate(int value) noexcept { return wrap_sub(0, value); }

// Returns the magnitude of `value`. The smallest int is its own magnitude and stays negative.
[[nodiscard]] constexpr int wrap_magnitude(int value) noexcept { return value < 0 ? wrap_negate(value) : value; }

// Returns `value` without its fraction, or invalid_sample if that does not fit an int or is not a number.
[[nodiscard]] constexpr int to_int(double value) noexcept {
  return value > -2147483649.0 && value < 2147483648.0 ? static_cast<int>(value) : invalid_sample;
}

}  // namespace labelsbase
