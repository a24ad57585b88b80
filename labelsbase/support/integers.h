// Arithmetic on samples. Samples come from callers and may hold any 32-bit value, so sums and products wrap at
// 32 bits by name.
#pragma once

#include <cstdint>

#include "labelsbase/samples.h"

namespace labelsbase {

[[nodiscard]] constexpr int wrap_to_int(std::uint64_t value) noexcept {
  return static_cast<int>(static_cast<std::uint32_t>(value));
}

[[nodiscard]] constexpr int wrap_add(int a, int b) noexcept {
  return static_cast<int>(static_cast<unsigned>(a) + static_cast<unsigned>(b));
}

[[nodiscard]] constexpr int wrap_sub(int a, int b) noexcept {
  return static_cast<int>(static_cast<unsigned>(a) - static_cast<unsigned>(b));
}

[[nodiscard]] constexpr int wrap_mul(int a, int b) noexcept {
  return static_cast<int>(static_cast<unsigned>(a) * static_cast<unsigned>(b));
}

// The smallest sample is its own negative.
[[nodiscard]] constexpr int wrap_negate(int value) noexcept { return wrap_sub(0, value); }

// The smallest sample is its own magnitude too, and stays negative.
[[nodiscard]] constexpr int wrap_magnitude(int value) noexcept { return value < 0 ? wrap_negate(value) : value; }

// A double without its fraction; the invalid sample for what does not fit an int or is not a number.
[[nodiscard]] constexpr int to_int(double value) noexcept {
  return value > -2147483649.0 && value < 2147483648.0 ? static_cast<int>(value) : invalid_sample;
}

}  // namespace labelsbase
