// Buffered output.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace cli {

// Collects text and hands it to a file descriptor a block at a time. Nothing is handed over on destruction.
class output {
 public:
  explicit output(int fd) noexcept : fd_{fd} {}
  output(output const&) = delete;
  output& operator=(output const&) = delete;

  void write(std::string_view text) noexcept;

  // Writes with the end of the line.
  void line(std::string_view text) noexcept;
  void line(std::int32_t number) noexcept;

  // Hands over what has been collected.
  void flush() noexcept;

  // Why nothing can be written any more, as errno has it; 0 while all is well.
  [[nodiscard]] int error() const noexcept { return error_; }

 private:
  int fd_;
  int error_ = 0;
  std::size_t used_ = 0;
  std::array<char, 65'536> buffer_;
};

}  // namespace cli
