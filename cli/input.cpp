#include "cli/input.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <system_error>
#include <utility>

namespace cli {
namespace {

// Reads the lines of standard input in constant memory.
class line_reader {
 public:
  static constexpr std::size_t longest_line = 4'096;  // bytes, without the end of the line

  struct line {
    std::string_view text;  // without "\n" or "\r\n"; a terminator follows; valid until the next call
    bool too_long = false;  // `text` is only the beginning
  };

  // Flushes `io` before each read, because that may wait for input.
  explicit line_reader(console& io) noexcept : io_{io} {}

  // Returns nothing at the end of the input or if it cannot be read.
  [[nodiscard]] std::optional<line> next();

  // Returns the errno of the read that failed, or 0.
  [[nodiscard]] int error() const noexcept { return error_; }

 private:
  // Returns whether there is more input.
  [[nodiscard]] bool refill();
  [[nodiscard]] line take(char* end, char* next) noexcept;

  console& io_;
  int error_ = 0;
  bool skipping_ = false;  // within a line that is too long
  std::array<char, 65'536> buffer_;
  char* begin_ = buffer_.data();
  char* end_ = buffer_.data();  // never past the last byte, which is kept for a terminator
};

std::optional<line_reader::line> line_reader::next() {
  for (;;) {
    auto const size = static_cast<std::size_t>(end_ - begin_);
    if (auto* const newline = static_cast<char*>(std::memchr(begin_, '\n', size))) {
      if (!std::exchange(skipping_, false)) return take(newline, newline + 1);
      begin_ = newline + 1;
      continue;
    }
    if (skipping_) begin_ = end_;
    if (begin_ + longest_line + 1 < end_) {  // too long even if a "\r" comes last
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

  io_.flush();
  ssize_t bytes = 0;
  do {
    bytes = ::read(STDIN_FILENO, end_, static_cast<std::size_t>(buffer_.data() + buffer_.size() - 1 - end_));
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

// Counts the items and reports the refused ones.
class item_count {
 public:
  item_count(char const* place, console& io) noexcept : place_{place}, io_{io} {}

  void add(std::string_view item, problem const& wrong) {
    ++number_;
    if (!wrong) return;
    status_ = some_refused;
    io_.say(refusal(place_ + std::to_string(number_) + ":", item, *wrong));
  }

  [[nodiscard]] exit_status status() const noexcept { return status_; }

 private:
  std::string place_;  // "line "
  console& io_;
  std::int64_t number_ = 0;
  exit_status status_ = all_well;
};

exit_status for_each_line(console& io, item_taker const& take) {
  item_count count{"line ", io};
  problem const too_long = "the line is longer than " + std::to_string(line_reader::longest_line) + " bytes";
  line_reader lines{io};
  while (io.results.error() == 0) {
    auto const line = lines.next();
    if (!line) break;
    count.add(line->text, line->too_long ? too_long : take(line->text));
  }
  if (lines.error() == 0) return count.status();
  io.say("standard input: " + std::generic_category().message(lines.error()));
  return failed;
}

}  // namespace

exit_status for_each_item(std::vector<std::string> const& operands, console& io, item_taker const& take) {
  if (operands.empty()) return for_each_line(io, take);

  item_count count{"argument ", io};
  for (auto const& operand : operands) count.add(operand, take(operand));
  return count.status();
}

}  // namespace cli
