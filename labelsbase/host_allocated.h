// Memory of the host's allocator for objects that both host and library make and delete.
#pragma once

#include <cstddef>
#include <new>

#include "labelsbase/export.h"

namespace labelsbase {

// Gives the classes below it their forms of new and delete. All of them lead to the host's allocator, so it does
// not matter which side deletes. The throwing forms throw std::bad_alloc if the host has no memory; the others
// return null. Classes aligned beyond the allocator's blocks are aligned within a larger block.
struct LABELSBASE_API host_allocated {
  // Return memory for one object.
  static void* operator new(std::size_t bytes);
  static void* operator new(std::size_t bytes, std::align_val_t alignment);
  static void* operator new(std::size_t bytes, std::nothrow_t const&) noexcept;
  static void* operator new(std::size_t bytes, std::align_val_t alignment, std::nothrow_t const&) noexcept;
  static void* operator new(std::size_t, void* place) noexcept { return place; }

  // Return memory for an array of objects.
  static void* operator new[](std::size_t bytes);
  static void* operator new[](std::size_t bytes, std::align_val_t alignment);
  static void* operator new[](std::size_t bytes, std::nothrow_t const&) noexcept;
  static void* operator new[](std::size_t bytes, std::align_val_t alignment, std::nothrow_t const&) noexcept;
  static void* operator new[](std::size_t, void* place) noexcept { return place; }

  // Free the memory of an object. Null does nothing.
  static void operator delete(void* block) noexcept;
  static void operator delete(void* block, std::align_val_t) noexcept;
  static void operator delete(void* block, std::nothrow_t const&) noexcept;
  static void operator delete(void* block, std::align_val_t, std::nothrow_t const&) noexcept;
  static void operator delete(void*, void*) noexcept {}

  // Free the memory of an array. Null does nothing.
  static void operator delete[](void* block) noexcept;
  static void operator delete[](void* block, std::align_val_t) noexcept;
  static void operator delete[](void* block, std::nothrow_t const&) noexcept;
  static void operator delete[](void* block, std::align_val_t, std::nothrow_t const&) noexcept;
  static void operator delete[](void*, void*) noexcept {}
};

}  // namespace labelsbase
