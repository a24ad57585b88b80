// What a converter remembers of its last conversion.
#pragma once

#include <atomic>

#include "labelsbase/counts/integers.h"

namespace labelsbase {

// A number that conversions leave behind. Several threads may convert through one shared converter: each write and
// each read is whole, and costs a plain move. Which thread's number remains is left open.
class scratch_register {
 public:
  constexpr scratch_register() noexcept = default;

  // Writes the number.
  scratch_register& operator=(int value) noexcept {
    value_.store(value, std::memory_order_relaxed);
    return *this;
  }

  // Change the number, for hosts' classes that count on from it.
  scratch_register& operator+=(int change) noexcept { return *this = wrap_add(*this, change); }
  scratch_register& operator-=(int change) noexcept { return *this = wrap_sub(*this, change); }
  scratch_register& operator++() noexcept { return *this += 1; }
  scratch_register& operator--() noexcept { return *this -= 1; }

  // Reads the number.
  operator int() const noexcept {  // NOLINT(google-explicit-constructor): a register reads as its number
    return value_.load(std::memory_order_relaxed);
  }

 private:
  std::atomic<int> value_{0};
};

}  // namespace labelsbase
