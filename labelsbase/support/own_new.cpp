// The shared library's own forms of new and delete. The linker's version script keeps them inside the library: the
// host program's own forms are neither replaced nor used. A static library cannot keep them to itself and goes
// without.

#include <cstddef>
#include <new>

#include "labelsbase/support/memory.h"

using namespace labelsbase;

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
