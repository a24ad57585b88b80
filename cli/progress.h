// How far a command has come in a long file, shown on a terminal.
#pragma once

#include <chrono>
#include <cstdint>
#include <string>

namespace cli {

// Returns "labels: 45 % of 160 MB, 33 MB/s, 3 s left". `seconds` is the time that `done` of `total` bytes took.
[[nodiscard]] std::string progress_text(std::int64_t done, std::int64_t total, double seconds);

// A line on standard error that is drawn over. Nothing is drawn in the first half second.
class progress_line {
 public:
  // Draws nothing if `is_shown` is false, for example because standard error is not a terminal.
  explicit progress_line(bool is_shown) noexcept : is_shown_{is_shown} {}

  // Draws the line anew if some time has passed. `fd` is open for reading. Draws nothing for what is not a file.
  void update(int fd) {
    if (is_shown_) draw(fd);
  }

  // Removes the line, so that messages can be written.
  void clear() noexcept;

 private:
  using clock = std::chrono::steady_clock;

  void draw(int fd);

  bool is_shown_;
  bool is_drawn_ = false;
  clock::time_point start_ = clock::now();
  clock::time_point next_ = start_ + std::chrono::milliseconds{500};
};

}  // namespace cli
