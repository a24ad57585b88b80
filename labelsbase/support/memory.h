// Memory of the host's allocator.
#pragma once

#include <cstddef>

namespace labelsbase {

// A block of at least `bytes` bytes from the host's allocator. Throws std::bad_alloc when the host has none, after
// the new-handler has had its say.
void* host_allocate(std::size_t bytes);

// Gives such a block back; null is allowed.
void host_free(void* block) noexcept;

}  // namespace labelsbase
