#include "labelsbase/support/memory.h"

#include <new>

#include "host/os.h"

namespace labelsbase {

void* host_allocate(std::size_t bytes) {
  for (;;) {
    if (void* block = OS().allocator().allocate(bytes)) return block;
    auto const make_room = std::get_new_handler();
    if (!make_room) throw std::bad_alloc{};
    make_room();
  }
}

void host_free(void* block) noexcept { OS().allocator().free(block); }

}  // namespace labelsbase

// The library's own forms of new and delete. The linker's version script keeps them inside the library: the host
// program's own forms are neither replaced nor used. A static library cannot keep them to itself and goes without.
#ifdef LABELSBASE_OWN_NEW

using labelsbase::host_allocate;
using labelsbase::host_free;

namespace {

void* host_allocate_or_null(std::size_t bytes) noexcept {
  try {
    return host_allocate(bytes);
  } catch (...) {
    return nullptr;
  }
}

}  // namespace

void* operator new(std::size_t bytes) { return host_allocate(bytes); }
void* operator new[](std::size_t bytes) { return host_allocate(bytes); }
void* operator new(std::size_t bytes, std::nothrow_t const&) noexcept { return host_allocate_or_null(bytes); }
void* operator new[](std::size_t bytes, std::nothrow_t const&) noexcept { return host_allocate_or_null(bytes); }

void operator delete(void* block) noexcept { host_free(block); }
void operator delete[](void* block) noexcept { host_free(block); }
void operator delete(void* block, std::size_t) noexcept { host_free(block); }
void operator delete[](void* block, std::size_t) noexcept { host_free(block); }
void operator delete(void* block, std::nothrow_t const&) noexcept { host_free(block); }
void operator delete[](void* block, std::nothrow_t const&) noexcept { host_free(block); }

#endif
