#include "cli/lines.h"

#include <unistd.h>

#include <cerrno>

namespace cli {

bool line_reader::next_across_blocks() {
  for (;;) {
    auto const size = static_cast<std::size_t>(end_ - begin_);
    if (auto* const newline = static_cast<char*>(std::memchr(begin_, '\n', size))) {
      bool const ends_skipped_line = is_skipping_;
      is_skipping_ = false;
      if (!ends_skipped_line) {
        take(newline, newline + 1);
        return true;
      }
      begin_ = newline + 1;
      continue;
    }
    if (is_skipping_) begin_ = end_;
    if (size > longest_line + 1 && !is_skipping_) {  // too long even if a "\r" comes last
      is_skipping_ = is_too_long_ = true;
      text_ = {begin_, longest_line};
      return true;
    }
    if (refill()) continue;
    if (error_ != 0 || begin_ == end_) return false;
    take(end_, end_);
    return true;
  }
}

bool line_reader::refill() {
  std::memmove(block_.data(), begin_, static_cast<std::size_t>(end_ - begin_));
  end_ -= begin_ - block_.data();
  begin_ = block_.data();

  io_.flush();
  io_.show_progress(STDIN_FILENO);
  ssize_t bytes = 0;
  do {
    bytes = ::read(STDIN_FILENO, end_, static_cast<std::size_t>(block_.data() + block_.size() - 1 - end_));
  } while (bytes < 0 && errno == EINTR);
  if (bytes < 0) error_ = errno;
  if (bytes <= 0) return false;
  end_ += bytes;
  return true;
}

}  // namespace cli
