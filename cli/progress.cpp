#include "cli/progress.h"

#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <string_view>

namespace cli {
namespace {

// A terminal that does not take it misses a line of progress, and nothing else.
void write_to_terminal(std::string_view text) noexcept {
  [[maybe_unused]] auto const ignored = ::write(STDERR_FILENO, text.data(), text.size());
}

std::string size_text(double bytes) {
  constexpr std::array units{" B", " kB", " MB", " GB", " TB"};
  std::size_t unit = 0;
  for (; bytes >= 1'000 && unit + 1 < units.size(); ++unit) bytes /= 1'000;
  return std::to_string(static_cast<std::int64_t>(bytes + 0.5)) + units[unit];
}

std::string time_text(double seconds) {
  auto const whole = static_cast<std::int64_t>(seconds) + 1;
  return whole < 120 ? std::to_string(whole) + " s" : std::to_string(whole / 60) + " min";
}

}  // namespace

std::string progress_text(std::int64_t done, std::int64_t total, double seconds) {
  auto const rate = static_cast<double>(done) / seconds;
  return "labels: " + std::to_string(done * 100 / total) + " % of " + size_text(static_cast<double>(total)) +
         ", " + size_text(rate) + "/s, " + time_text(static_cast<double>(total - done) / rate) + " left";
}

void progress_line::draw(int fd) {
  auto const now = clock::now();
  if (now < next_) return;
  next_ = now + std::chrono::milliseconds{200};

  struct stat file {};
  auto const done = std::int64_t{lseek(fd, 0, SEEK_CUR)};
  bool const is_within_file = fstat(fd, &file) == 0 && S_ISREG(file.st_mode) && done > 0 && done < file.st_size;
  if (!is_within_file) return clear();
  auto const seconds = std::chrono::duration<double>(now - start_).count();
  write_to_terminal("\r\x1b[K" + progress_text(done, file.st_size, seconds));
  is_drawn_ = true;
}

void progress_line::clear() noexcept {
  if (is_drawn_) write_to_terminal("\r\x1b[K");
  is_drawn_ = false;
}

}  // namespace cli
