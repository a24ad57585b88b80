// The host's memory and reference-count services. All memory of the library, and of strings that the host and the
// library share, comes from here, so that either side may free what the other made.
#pragma once

#include <cstddef>
#include <cstdint>

namespace Kiv {

class Allocator {
 public:
  // A block of at least `bytes` bytes (0 included), aligned as malloc aligns; null when there is none to be had.
  virtual void* allocate(std::size_t bytes) noexcept = 0;

  // Gives back a block of `allocate`. Null is allowed and does nothing.
  virtual void free(void* block) noexcept = 0;

 protected:
  ~Allocator() = default;
};

// Counts are raised and lowered from any thread, so both operations are atomic.
class ReferenceCounts {
 public:
  virtual void increment(std::int32_t& count) noexcept = 0;

  // True when the count fell to 0. What other owners wrote before they let go is then visible here.
  [[nodiscard]] virtual bool decrement(std::int32_t& count) noexcept = 0;

 protected:
  ~ReferenceCounts() = default;
};

class OperatingServices {
 public:
  virtual Allocator& allocator() noexcept = 0;
  virtual ReferenceCounts& reference_counts() noexcept = 0;

 protected:
  ~OperatingServices() = default;
};

}  // namespace Kiv

// The host's one services object. It is asked for at any time from loading on, also while static objects are
// built and destroyed, so it must answer before the host's own initialisers have run and after its destructors.
Kiv::OperatingServices& OS() noexcept;
