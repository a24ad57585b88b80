// Division by one divisor, many times over.
#pragma once

#include <cstdint>

#include "host/language.h"
#include "labelsbase/counts/integers.h"

namespace labelsbase {

// Divides by a fixed divisor from 1 up, rounding toward zero as `/` does, in one multiplication. Exact for every
// int. See Granlund and Montgomery, "Division by Invariant Integers using Multiplication", PLDI 1994.
//
//   reciprocal{25}.quotient(90'024)   // 3600
class reciprocal {
 public:
  constexpr reciprocal() noexcept : reciprocal{1} {}

  // A divisor below 1 counts as 1.
  constexpr explicit reciprocal(int divisor) noexcept
      : divisor_{divisor < 1 ? 1 : divisor}, multiplier_{~std::uint64_t{0} / static_cast<unsigned>(divisor_)} {}

  // Returns the divisor, from 1 up.
  [[nodiscard]] constexpr int divisor() const noexcept { return divisor_; }

  // Returns dividend / divisor, rounded toward zero, for any int.
  [[nodiscard]] constexpr int quotient(int dividend) const noexcept {
    if (dividend >= 0) return static_cast<int>(quotient_of_magnitude(static_cast<unsigned>(dividend)));
    return wrap_negate(static_cast<int>(quotient_of_magnitude(magnitude_of(dividend))));
  }

  // Divides any magnitude.
  [[nodiscard]] constexpr unsigned quotient_of_magnitude(unsigned dividend) const noexcept {
    return static_cast<unsigned>((product{std::uint64_t{dividend} + 1} * multiplier_) >> 64);
  }

 private:
  // The quotient is its upper half, which processors have in a register of its own.
  __extension__ using product = unsigned __int128;

  // The multiplier is rounded down. One more than the dividend makes up for that: it adds 1 / divisor, and what
  // rounding takes away is less, as long as dividends have 32 bits.
  int divisor_;
  std::uint64_t multiplier_;  // (2^64 - 1) / divisor
};

}  // namespace labelsbase
