// Division by one divisor, many times over.
#pragma once

#include <cstdint>

namespace labelsbase {

// Divides by a fixed divisor from 1 up, rounding toward zero as `/` does. Every dividend is exact.
//
// A dividend from 0 to 2^26 - 1 by a divisor up to 4096 costs one multiplication. That holds a day at 240 frames a
// second and a million keys of 64 perforations. See Granlund and Montgomery, "Division by Invariant Integers using
// Multiplication", PLDI 1994.
//
//   reciprocal{25}.quotient(90'024)   // 3600
class reciprocal {
 public:
  constexpr reciprocal() noexcept = default;

  // A divisor below 1 counts as 1.
  constexpr explicit reciprocal(int divisor) noexcept
      : divisor_{divisor < 1 ? 1 : divisor},
        fast_dividends_{divisor_ <= 4096 ? 1U << 26 : 0U},
        multiplier_{((std::uint64_t{1} << shift) + static_cast<unsigned>(divisor_) - 1) /
                    static_cast<unsigned>(divisor_)} {}

  [[nodiscard]] constexpr int divisor() const noexcept { return divisor_; }

  [[nodiscard]] constexpr int quotient(int dividend) const noexcept {
    auto const fast = static_cast<unsigned>(dividend);
    if (fast >= fast_dividends_) return dividend / divisor_;
    return static_cast<int>((fast * multiplier_) >> shift);
  }

 private:
  static constexpr unsigned shift = 38;

  int divisor_ = 1;
  unsigned fast_dividends_ = 1U << 26;
  std::uint64_t multiplier_ = std::uint64_t{1} << shift;
};

}  // namespace labelsbase
