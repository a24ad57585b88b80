#include "labelsbase/support/memory.h"

#include <cstdint>
#include <cstring>
#include <limits>

#include "host/os.h"
#include "labelsbase/host_allocated.h"

namespace labelsbase {

void* host_allocate(std::size_t bytes) {
  for (;;) {
    if (void* block = OS().allocator().allocate(bytes)) return block;
    auto const make_room = std::get_new_handler();
    if (!make_room) throw std::bad_alloc{};
    make_room();
  }
}

// The address of the host's block stands right before the aligned one.
void* host_allocate(std::size_t bytes, std::align_val_t alignment) {
  auto const boundary = static_cast<std::size_t>(alignment);
  auto const extra = boundary + sizeof(void*);
  if (bytes > std::numeric_limits<std::size_t>::max() - extra) throw std::bad_alloc{};

  auto* const block = static_cast<char*>(host_allocate(bytes + extra));
  auto const first = reinterpret_cast<std::uintptr_t>(block) + sizeof(void*);
  auto* const aligned = block + sizeof(void*) + (boundary - first % boundary) % boundary;
  std::memcpy(aligned - sizeof(void*), &block, sizeof block);
  return aligned;
}

void host_free(void* block) noexcept { OS().allocator().free(block); }

void host_free_aligned(void* block) noexcept {
  if (!block) return;
  void* hosts = nullptr;
  std::memcpy(&hosts, static_cast<char*>(block) - sizeof hosts, sizeof hosts);
  host_free(hosts);
}

using std::align_val_t;
using std::nothrow_t;
using std::size_t;

// clang-format off
void* host_allocated::operator new(size_t bytes) { return host_allocate(bytes); }
void* host_allocated::operator new(size_t bytes, align_val_t alignment) { return host_allocate(bytes, alignment); }
void* host_allocated::operator new(size_t bytes, nothrow_t const&) noexcept { return host_allocate_or_null(bytes); }
void* host_allocated::operator new(size_t bytes, align_val_t alignment, nothrow_t const&) noexcept { return host_allocate_or_null(bytes, alignment); }

void* host_allocated::operator new[](size_t bytes) { return host_allocate(bytes); }
void* host_allocated::operator new[](size_t bytes, align_val_t alignment) { return host_allocate(bytes, alignment); }
void* host_allocated::operator new[](size_t bytes, nothrow_t const&) noexcept { return host_allocate_or_null(bytes); }
void* host_allocated::operator new[](size_t bytes, align_val_t alignment, nothrow_t const&) noexcept { return host_allocate_or_null(bytes, alignment); }

void host_allocated::operator delete(void* block) noexcept { host_free(block); }
void host_allocated::operator delete(void* block, align_val_t) noexcept { host_free_aligned(block); }
void host_allocated::operator delete(void* block, nothrow_t const&) noexcept { host_free(block); }
void host_allocated::operator delete(void* block, align_val_t, nothrow_t const&) noexcept { host_free_aligned(block); }

void host_allocated::operator delete[](void* block) noexcept { host_free(block); }
void host_allocated::operator delete[](void* block, align_val_t) noexcept { host_free_aligned(block); }
void host_allocated::operator delete[](void* block, nothrow_t const&) noexcept { host_free(block); }
void host_allocated::operator delete[](void* block, align_val_t, nothrow_t const&) noexcept { host_free_aligned(block); }
// clang-format on

}  // namespace labelsbase
