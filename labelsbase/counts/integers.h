// Arithmetic that may wrap. Callers may hand in any 32-bit sample, so sums and products of samples wrap at 32 bits
// by name. No other code wraps, not even unsigned numbers: the sanitizers stop at it.
#pragma once

#include <concepts>
#include <cstdint>
#include <type_traits>

#include "labelsbase/samples.h"

// Lets unsigned numbers wrap in a function, which clang's integer sanitizer otherwise reports.
#ifdef __clang__
#define LABELSBASE_WRAPS [[clang::no_sanitize("unsigned-integer-overflow")]]
#else
#define LABELSBASE_WRAPS
#endif

namespace labelsbase {

// Returns the low 32 bits of `value`.
[[nodiscard]] constexpr int wrap_to_int(std::uint64_t value) noexcept {
  return static_cast<int>(static_cast<std::uint32_t>(value));
}

// Returns the sum of any two ints, wrapped at 32 bits.
LABELSBASE_WRAPS [[nodiscard]] constexpr int wrap_add(int a, int b) noexcept {
  return static_cast<int>(static_cast<unsigned>(a) + static_cast<unsigned>(b));
}

// Returns the difference a - b of any two ints, wrapped at 32 bits.
LABELSBASE_WRAPS [[nodiscard]] constexpr int wrap_sub(int a, int b) noexcept {
  return static_cast<int>(static_cast<unsigned>(a) - static_cast<unsigned>(b));
}

// Returns the product of any two ints, wrapped at 32 bits.
LABELSBASE_WRAPS [[nodiscard]] constexpr int wrap_mul(int a, int b) noexcept {
  return static_cast<int>(static_cast<unsigned>(a) * static_cast<unsigned>(b));
}

// Returns -value. The smallest int is its own negative.
[[nodiscard]] constexpr int wrap_negate(int value) noexcept { return wrap_sub(0, value); }

// Returns the magnitude of `value`. The smallest int is its own magnitude and stays negative.
[[nodiscard]] constexpr int wrap_magnitude(int value) noexcept { return value < 0 ? wrap_negate(value) : value; }

// Returns the magnitude of any int, from 0 to 2^31.
LABELSBASE_WRAPS [[nodiscard]] constexpr unsigned magnitude_of(int value) noexcept {
  return value < 0 ? 0U - static_cast<unsigned>(value) : static_cast<unsigned>(value);
}

// Returns the sum of two unsigned numbers, wrapped at their own width.
template <std::unsigned_integral Number>
LABELSBASE_WRAPS [[nodiscard]] constexpr Number wrap_add(Number a, std::type_identity_t<Number> b) noexcept {
  return a + b;
}

// Returns the difference a - b of two unsigned numbers, wrapped at their own width.
template <std::unsigned_integral Number>
LABELSBASE_WRAPS [[nodiscard]] constexpr Number wrap_sub(Number a, std::type_identity_t<Number> b) noexcept {
  return a - b;
}

// Returns the product of two unsigned numbers, wrapped at their own width.
template <std::unsigned_integral Number>
LABELSBASE_WRAPS [[nodiscard]] constexpr Number wrap_mul(Number a, std::type_identity_t<Number> b) noexcept {
  return a * b;
}

// Returns a number with one more decimal digit after it, wrapped at its own width.
template <std::unsigned_integral Number>
LABELSBASE_WRAPS [[nodiscard]] constexpr Number wrap_append_digit(Number number,
                                                                  std::type_identity_t<Number> digit) noexcept {
  return number * 10 + digit;
}

// Returns `value` without its fraction, or invalid_sample if that does not fit an int or is not a number.
[[nodiscard]] constexpr int to_int(double value) noexcept {
  return value > -2147483649.0 && value < 2147483648.0 ? static_cast<int>(value) : invalid_sample;
}

}  // namespace labelsbase
