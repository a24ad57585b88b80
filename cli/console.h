// Where the tool writes: results to standard output, messages to standard error.
#pragma once

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "cli/progress.h"

namespace cli {

enum exit_status : int {
  all_well = 0,
  some_refused = 1,  // some of the input was refused; the rest was processed
  failed = 2,        // wrong usage, or reading or writing failed
};

// Collects text and writes it to a file descriptor in blocks. The destructor writes nothing.
class output {
 public:
  explicit output(int fd) noexcept : fd_{fd} {}
  output(output const&) = delete;
  output& operator=(output const&) = delete;

  void write(std::string_view text) noexcept {
    if (text.size() > buffer_.size() - used_) return write_across_blocks(text);
    std::copy_n(text.data(), text.size(), buffer_.data() + used_);  // empty texts may be null
    used_ += text.size();
  }

  // Writes the text or number and ends the line.
  void line(std::string_view text) noexcept {
    write(text);
    write("\n");
  }
  void line(std::int64_t number) noexcept;

  // Writes out what has been collected.
  void flush() noexcept;

  // Returns the errno of the write that failed, or 0.
  [[nodiscard]] int error() const noexcept { return error_; }

  [[nodiscard]] bool is_empty() const noexcept { return used_ == 0; }

 private:
  void write_across_blocks(std::string_view text) noexcept;

  int fd_;
  int error_ = 0;
  std::size_t used_ = 0;
  std::array<char, 65'536> buffer_;
};

// Where an item stands: "line 3" or "argument 3".
struct item_place {
  char const* kind = "";
  std::int64_t number = 0;  // from 1; 0 outside the items

  [[nodiscard]] std::string text() const { return std::string{kind} + " " + std::to_string(number); }
};

class console {
 public:
  console() noexcept;

  output results{STDOUT_FILENO};
  item_place place{};  // of the item that is processed

  // Writes a message line: say("standard input: Is a directory") writes "labels: standard input: Is a directory".
  void say(std::string_view message) noexcept;

  // Writes a message line about the item that is processed: hint("blank") writes "labels: line 3: blank".
  void hint(std::string_view message);

  void flush() noexcept;

  // Shows on a terminal how far a file has been read, if that takes long. To be called before each block is read.
  void show_progress(int fd) { progress_.update(fd); }

  // Flushes, reports a failure to write the results, and returns the program's exit code.
  [[nodiscard]] exit_status finish(exit_status so_far) noexcept;

 private:
  output errors_{STDERR_FILENO};
  output& messages_;  // `results` if both go to one file or terminal, to keep messages and results in order
  progress_line progress_;
};

// Returns the message that refuses a value: `--key "1": expected a key of 4 digits and a frame of 2`.
[[nodiscard]] std::string refusal(std::string_view where, std::string_view value, std::string_view why);

// Reports the value as refused and ends the command with exit code 2.
[[noreturn]] void refuse(std::string_view where, std::string_view value, std::string_view why);

}  // namespace cli
