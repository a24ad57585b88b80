// Division by one number, many times over.
#pragma once

#include <cstdint>

namespace labelsbase {

// Division by a divisor from 1 to 4096 as one multiplication. Exact for every dividend from 0 to 2^26 - 1, which
// holds more than a day at 240 frames a second. Granlund and Montgomery, "Division by Invariant Integers using
// Multiplication", PLDI 1994.
class reciprocal {
 public:
  constexpr reciprocal() noexcept = default;
  constexpr explicit reciprocal(int divisor) noexcept
      : multiplier_{(one + static_cast<std::uint64_t>(divisor) - 1) / static_cast<std::uint64_t>(divisor)} {}

  [[nodiscard]] constexpr int quotient(int dividend) const noexcept {
    return static_cast<int>((static_cast<std::uint64_t>(static_cast<unsigned>(dividend)) * multiplier_) >> shift);
  }

 private:
  static constexpr unsigned shift = 38;
  static constexpr auto one = std::uint64_t{1} << shift;

  std::uint64_t multiplier_ = one;
};

}  // namespace labelsbase
