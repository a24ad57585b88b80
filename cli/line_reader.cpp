#include "cli/line_reader.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>

namespace cli {

line_reader::line_reader(int fd, std::function<void()> before_waiting)
    : fd_{fd}, before_waiting_{std::move(before_waiting)} {}

std::optional<line_reader::line> line_reader::next() {
  for (;;) {
    auto const size = static_cast<std::size_t>(end_ - begin_);
    if (auto* const newline = static_cast<char*>(std::memchr(begin_, '\n', size))) {
      if (!std::exchange(skipping_, false)) return take(newline, newline + 1);
      begin_ = newline + 1;
      continue;
    }
    if (skipping_) begin_ = end_;
    if (begin_ + longest_line + 1 < end_) {  // even if a "\r" comes last
      skipping_ = true;
      return line{{begin_, longest_line}, true};
    }
    if (refill()) continue;
    if (error_ != 0 || begin_ == end_) return std::nullopt;
    return take(end_, end_);
  }
}

bool line_reader::refill() {
  std::memmove(buffer_.data(), begin_, static_cast<std::size_t>(end_ - begin_));
  end_ -= begin_ - buffer_.data();
  begin_ = buffer_.data();

  before_waiting_();
  ssize_t bytes = 0;
  do {
    bytes = ::read(fd_, end_, static_cast<std::size_t>(buffer_.data() + buffer_.size() - 1 - end_));
  } while (bytes < 0 && errno == EINTR);
  if (bytes < 0) error_ = errno;
  if (bytes <= 0) return false;
  end_ += bytes;
  return true;
}

line_reader::line line_reader::take(char* end, char* next) noexcept {
  char* const begin = std::exchange(begin_, next);
  if (end != begin && end[-1] == '\r') --end;
  *end = '\0';
  auto const size = static_cast<std::size_t>(end - begin);
  return {{begin, std::min(size, longest_line)}, size > longest_line};
}

}  // namespace cli
