// Lines of a text, each with its place, in constant memory.
//
// The parts of a line, written one after the other, are the bytes that were read:
//
//   line := mark text end      mark: the UTF-8 byte-order mark, before the first line only
//                              end:  "\n" or "\r\n"; "\r" in a text without any "\n"; "" at the end of the text
//
// A line longer than `longest_line` comes in pieces. Between two pieces stands a blank or punctuation, so that no
// label is cut, unless the line has none for thousands of bytes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lists {

struct line {
  std::string_view mark{};  // empty, or the byte-order mark
  std::string_view text{};  // valid until the next call
  std::string_view end{};   // empty for all pieces but the last
  std::int64_t number = 0;  // from 1
  std::size_t column = 1;   // where the text begins: 1, or further right for a later piece
  bool goes_on = false;     // another piece of the same line follows
  bool is_whole() const noexcept { return column == 1 && !goes_on; }
};

// Returns the column of a byte of the line, from 1. Columns count characters of UTF-8.
[[nodiscard]] std::size_t column_of(line const& in, std::size_t byte) noexcept;

class line_reader {
 public:
  static constexpr std::size_t longest_line = 65'536;  // bytes of a line that comes whole

  // Reads from a file descriptor, which stays open. Calls `before_reading` each time that it may have to wait.
  explicit line_reader(int fd, std::function<void()> before_reading = {});

  // Returns the beginning of the text, at most one block, with the byte-order mark. Only before the first next().
  [[nodiscard]] std::string_view beginning();

  // Returns nothing at the end of the text or if it cannot be read.
  [[nodiscard]] std::optional<line> next();

  // Returns the errno of the read that failed, or 0.
  [[nodiscard]] int error() const noexcept { return error_; }

  // Returns the bytes read so far.
  [[nodiscard]] std::int64_t bytes() const noexcept { return bytes_; }

 private:
  void begin();
  [[nodiscard]] bool refill();
  [[nodiscard]] line take(std::size_t text_size, std::size_t end_size);
  [[nodiscard]] std::string_view unread() const noexcept { return {block_.data() + begin_, end_ - begin_}; }

  int fd_;
  int error_ = 0;
  std::function<void()> before_reading_;
  std::vector<char> block_;
  std::size_t begin_ = 0;
  std::size_t end_ = 0;
  std::int64_t bytes_ = 0;
  std::int64_t number_ = 1;
  std::size_t column_ = 1;
  std::size_t mark_size_ = 0;
  char line_end_ = '\n';
  bool has_begun_ = false;
};

// Says why a text cannot be read, from its beginning: it is UTF-16, or contains a NUL byte. Returns
// nothing for text, whatever its language. NUL bytes and control-Z at the end, with which old disks fill their
// last block, are text.
[[nodiscard]] std::optional<std::string> why_unreadable(std::string_view beginning);

}  // namespace lists
