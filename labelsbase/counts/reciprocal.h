// Division by one divisor, many times over.
#pragma once

#include <bit>
#include <cstdint>

#include "host/language.h"

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
      : divisor_{divisor < 1 ? 1 : divisor},
        shift_{32U + static_cast<unsigned>(std::bit_width(static_cast<unsigned>(divisor_) - 1))},
        multiplier_{multiplier_of(static_cast<unsigned>(divisor_), shift_)} {}

  [[nodiscard]] constexpr int divisor() const noexcept { return divisor_; }

  [[nodiscard]] constexpr int quotient(int dividend) const noexcept {
    if (dividend >= 0) return static_cast<int>(quotient_of_magnitude(static_cast<unsigned>(dividend)));
    return static_cast<int>(0U - quotient_of_magnitude(0U - static_cast<unsigned>(dividend)));
  }

  // Divides a magnitude from 0 to 2^31.
  [[nodiscard]] constexpr unsigned quotient_of_magnitude(unsigned dividend) const noexcept {
    return static_cast<unsigned>((dividend * multiplier_) >> shift_);
  }

 private:
  // Returns 2^shift / divisor rounded up, which has at most 33 bits.
  [[nodiscard]] static constexpr std::uint64_t multiplier_of(unsigned divisor, unsigned shift) noexcept {
    auto const high = (std::uint64_t{1} << (shift - 32)) / divisor;  // schoolbook division, 32 bits at a time
    auto const rest = (std::uint64_t{1} << (shift - 32)) % divisor;
    auto const low = ((rest << 32) + divisor - 1) / divisor;
    return (high << 32) + low;
  }

  int divisor_;
  unsigned shift_;
  std::uint64_t multiplier_;
};

}  // namespace labelsbase
