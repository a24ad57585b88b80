// Lines of a file descriptor, in constant memory.
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <optional>
#include <string_view>

namespace cli {

class line_reader {
 public:
  static constexpr std::size_t longest_line = 4'096;  // bytes, the end of the line not counted

  struct line {
    std::string_view text;  // without "\n" or "\r\n"; a terminator follows; good until the next call
    bool too_long = false;  // `text` is the beginning of it
  };

  // `before_waiting` is called before each read, which may have to wait for input.
  line_reader(int fd, std::function<void()> before_waiting);

  // Nothing at the end of the input, and when it cannot be read.
  [[nodiscard]] std::optional<line> next();

  // Why the input could not be read, as errno has it; 0 when it was read to its end.
  [[nodiscard]] int error() const noexcept { return error_; }

 private:
  // Whether there is more input.
  [[nodiscard]] bool refill();
  [[nodiscard]] line take(char* end, char* next) noexcept;

  int fd_;
  int error_ = 0;
  std::function<void()> before_waiting_;
  bool skipping_ = false;  // within a line that was too long
  std::array<char, 65'536> buffer_;
  char* begin_ = buffer_.data();
  char* end_ = buffer_.data();  // never past the last byte, which has room for a terminator
};

}  // namespace cli
