// The host's memory and reference counts. All memory of the library, and of the strings that host and library
// share, comes from this allocator, so either side may free what the other allocated.
#pragma once

#include <cstddef>
#include <cstdint>

#include "host/language.h"

namespace Kiv {

// Both functions may be called from any thread.
class Allocator {
 public:
  // Returns a block of at least `bytes` bytes (0 is allowed), aligned as malloc aligns. Returns null if there is
  // no memory.
  virtual void* allocate(std::size_t bytes) noexcept = 0;

  // Frees a block of `allocate`. Null is allowed and does nothing.
  virtual void free(void* block) noexcept = 0;

 protected:
  ~Allocator() = default;
};

// Both functions may be called from any thread, on one count at the same time, so both must be atomic.
class ReferenceCounts {
 public:
  // Adds 1 to `count`.
  virtual void increment(std::int32_t& count) noexcept = 0;

  // Subtracts 1 from `count`. Returns true if it became 0; everything that other owners wrote before they let go
  // must then be visible to the caller (release and acquire).
  [[nodiscard]] virtual bool decrement(std::int32_t& count) noexcept = 0;

 protected:
  ~ReferenceCounts() = default;
};

// The services of the host that all of the library needs: memory and reference counts.
class OperatingServices {
 public:
  // Returns the host's allocator, the same object for the life of the process.
  virtual Allocator& allocator() noexcept = 0;

  // Returns the host's reference counts, the same object for the life of the process.
  virtual ReferenceCounts& reference_counts() noexcept = 0;

 protected:
  ~OperatingServices() = default;
};

}  // namespace Kiv

// Returns the host's one services object. Called at any time, also while static objects are built and destroyed:
// the object must work before the host's first initialiser has run and after its last destructor (use `constinit`
// and a trivial destructor).
Kiv::OperatingServices& OS() noexcept;
