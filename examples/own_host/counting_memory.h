// What the host's allocator has counted.
#pragma once

// Return the blocks that were allocated, and those of them that were not freed.
int blocks_allocated() noexcept;
int blocks_live() noexcept;
