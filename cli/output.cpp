#include "cli/output.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstring>

namespace cli {

void output::write(std::string_view text) noexcept {
  while (!text.empty()) {
    if (used_ == buffer_.size()) flush();
    auto const part = text.substr(0, buffer_.size() - used_);
    std::memcpy(buffer_.data() + used_, part.data(), part.size());
    used_ += part.size();
    text.remove_prefix(part.size());
  }
}

void output::line(std::string_view text) noexcept {
  write(text);
  write("\n");
}

void output::line(std::int32_t number) noexcept {
  constexpr std::size_t longest = sizeof "-2147483648";  // the end of the line stands for the terminator
  if (buffer_.size() - used_ < longest) flush();
  char* const out = buffer_.data() + used_;
  char* const end = std::to_chars(out, out + longest, number).ptr;
  *end = '\n';
  used_ += static_cast<std::size_t>(end - out) + 1;
}

void output::flush() noexcept {
  char const* next = buffer_.data();
  while (used_ > 0 && error_ == 0) {
    auto const written = ::write(fd_, next, used_);
    if (written < 0) {
      if (errno != EINTR) error_ = errno;
      continue;
    }
    next += written;
    used_ -= static_cast<std::size_t>(written);
  }
  used_ = 0;
}

}  // namespace cli
