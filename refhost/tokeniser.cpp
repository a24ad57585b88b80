#include "host/tokeniser.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <string_view>

#include "host/os.h"

// One block of the host's memory: the state, then a copy of the text with a terminator in place of each separator.
struct tokeniser::state {
  char const* at;
  char const* end;
};

tokeniser::tokeniser(char const* text, char const* separators) {
  std::string_view const source{text};
  std::string_view const separator_set{separators};
  void* block = OS().allocator().allocate(sizeof(state) + source.size() + 1);
  if (!block) return;

  char* copy = static_cast<char*>(block) + sizeof(state);
  std::ranges::replace_copy_if(
      source, copy, [&](char c) { return separator_set.find(c) != std::string_view::npos; }, '\0');
  copy[source.size()] = '\0';
  state_ = new (block) state{copy, copy + source.size()};
}

tokeniser::~tokeniser() { OS().allocator().free(state_); }

char const* tokeniser::next() {
  if (!state_) return nullptr;
  char const* token = std::find_if(state_->at, state_->end, [](char c) { return c != '\0'; });
  state_->at = token + std::strlen(token);
  return token == state_->end ? nullptr : token;
}
