#include "host/os.h"

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <type_traits>

#include "refhost/refhost.h"

namespace {

constinit std::atomic<std::int64_t> live_blocks{0};
constinit std::atomic<std::int64_t> allocations{0};

class counting_allocator final : public Kiv::Allocator {
 public:
  void* allocate(std::size_t bytes) noexcept override {
    void* block = std::malloc(std::max<std::size_t>(bytes, 1));
    if (!block) return nullptr;
    live_blocks.fetch_add(1, std::memory_order_relaxed);
    allocations.fetch_add(1, std::memory_order_relaxed);
    return block;
  }

  void free(void* block) noexcept override {
    if (!block) return;
    live_blocks.fetch_sub(1, std::memory_order_relaxed);
    std::free(block);
  }
};

class atomic_reference_counts final : public Kiv::ReferenceCounts {
 public:
  // A new owner is always made from an existing one, so relaxed order is enough.
  void increment(std::int32_t& count) noexcept override {
    std::atomic_ref{count}.fetch_add(1, std::memory_order_relaxed);
  }

  // Release publishes what this owner wrote. Acquire lets the last owner see all of it before it destroys.
  bool decrement(std::int32_t& count) noexcept override {
    return std::atomic_ref{count}.fetch_sub(1, std::memory_order_acq_rel) == 1;
  }
};

class services final : public Kiv::OperatingServices {
 public:
  Kiv::Allocator& allocator() noexcept override { return allocator_; }
  Kiv::ReferenceCounts& reference_counts() noexcept override { return counts_; }

 private:
  counting_allocator allocator_;
  atomic_reference_counts counts_;
};

// Has no initialiser and no destructor to run, so it works as long as the process lives.
constinit services the_services;
static_assert(std::is_trivially_destructible_v<services>);

}  // namespace

Kiv::OperatingServices& OS() noexcept { return the_services; }

namespace refhost {

allocator_counts allocator_statistics() noexcept {
  return {live_blocks.load(std::memory_order_relaxed), allocations.load(std::memory_order_relaxed)};
}

}  // namespace refhost
