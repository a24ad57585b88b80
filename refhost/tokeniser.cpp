#include "host/tokeniser.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <new>

#include "host/os.h"

namespace {

// A block for the thread's tokenisers, one at a time: keep strings and stored rolls need no memory of the
// allocator.
alignas(std::max_align_t) constinit thread_local char thread_block[1024];
constinit thread_local bool thread_block_taken = false;

}  // namespace

// The state stands in front of a copy of the text, in one block. In the copy, the first separator stands for all.
// One more separator follows the text, so that every token ends at one.
struct tokeniser::state {
  char* rest;
  char* end;
  bool* taken;  // what to clear when the block is free again; null for a block of the allocator
  char separator;
};

tokeniser::tokeniser(char const* text, char const* separators) {
  std::size_t const size = std::strlen(text);
  std::size_t const bytes = sizeof(state) + size + 1;
  bool const fits = bytes <= sizeof thread_block && !thread_block_taken;
  void* block = fits ? thread_block : OS().allocator().allocate(bytes);
  if (!block) return;
  if (fits) thread_block_taken = true;

  auto* const copy = static_cast<char*>(block) + sizeof(state);
  std::copy_n(text, size, copy);
  copy[size] = *separators;
  for (char const* other = separators; *other; ++other)
    if (other != separators) std::replace(copy, copy + size, *other, *separators);
  state_ = new (block) state{copy, copy + size + 1, fits ? &thread_block_taken : nullptr, *separators};
}

tokeniser::~tokeniser() {
  if (state_ && state_->taken)
    *state_->taken = false;
  else
    OS().allocator().free(state_);
}

char const* tokeniser::next() {
  if (!state_) return nullptr;
  auto& [rest, end, taken, separator] = *state_;
  for (; rest != end; ++rest) {
    if (*rest == separator) continue;
    char* const token = rest;
    auto* const stop = static_cast<char*>(std::memchr(token, separator, static_cast<std::size_t>(end - token)));
    *stop = '\0';
    rest = stop + 1;
    return token;
  }
  return nullptr;
}
