// Memory of the host's allocator.
#pragma once

#include <cstddef>
#include <new>

namespace labelsbase {

// Returns a block of at least `bytes` bytes. If the host has no memory, calls the new-handler and tries again;
// throws std::bad_alloc if no new-handler is installed.
void* host_allocate(std::size_t bytes);

// Returns such a block at an address that is a multiple of `alignment`, a power of two.
void* host_allocate(std::size_t bytes, std::align_val_t alignment);

// Returns what `make` returns, or null if it throws.
template <typename Make>
auto null_on_throw(Make make) noexcept -> decltype(make()) {
  try {
    return make();
  } catch (...) {
    return nullptr;
  }
}

// Returns a block as the forms above do, with an alignment or without, but null where they throw.
inline void* host_allocate_or_null(std::size_t bytes, auto... alignment) noexcept {
  return null_on_throw([=] { return host_allocate(bytes, alignment...); });
}

// Gives a block back; null is allowed. A block that was asked for with an alignment goes back through the second
// form.
void host_free(void* block) noexcept;
void host_free_aligned(void* block) noexcept;

}  // namespace labelsbase
