// The lines of standard input.
#pragma once

#include <array>
#include <cstddef>
#include <cstring>
#include <string_view>

#include "cli/console.h"

namespace cli {

// Reads lines in constant memory, however long they are.
class line_reader {
 public:
  static constexpr std::size_t longest_line = 4'096;  // bytes, without the end of the line

  // Flushes `io` before each read, because that may wait for input.
  explicit line_reader(console& io) noexcept : io_{io} {}

  // Goes on to the next line. Returns false at the end of the input or if it cannot be read.
  [[nodiscard]] bool next() {
    auto const size = static_cast<std::size_t>(end_ - begin_);
    auto* const newline = static_cast<char*>(std::memchr(begin_, '\n', size));
    if (!newline || is_skipping_) return next_across_blocks();
    take(newline, newline + 1);
    return true;
  }

  // Returns the line without its end, "\n" or "\r\n", and without blanks before that. A terminator follows. It may
  // be changed, and is valid until the next call.
  [[nodiscard]] std::string_view text() const noexcept { return text_; }

  // Whether the line is longer than `longest_line`. The text is its beginning.
  [[nodiscard]] bool is_too_long() const noexcept { return is_too_long_; }

  // Returns the errno of the read that failed, or 0.
  [[nodiscard]] int error() const noexcept { return error_; }

 private:
  static constexpr std::size_t block_size = 1 << 17;

  [[nodiscard]] bool next_across_blocks();

  // Returns whether there is more input.
  [[nodiscard]] bool refill();

  void take(char* end, char* next) noexcept {
    auto const* const begin = begin_;
    begin_ = next;
    while (end != begin && (end[-1] == '\r' || end[-1] == ' ' || end[-1] == '\t')) --end;
    *end = '\0';
    auto const size = static_cast<std::size_t>(end - begin);
    is_too_long_ = size > longest_line;
    text_ = {begin, is_too_long_ ? longest_line : size};
  }

  console& io_;
  int error_ = 0;
  bool is_skipping_ = false;  // within a line that is too long
  bool is_too_long_ = false;
  std::string_view text_;
  std::array<char, block_size> block_;
  char* begin_ = block_.data();
  char* end_ = block_.data();  // never past the last byte, which is kept for a terminator
};

}  // namespace cli
