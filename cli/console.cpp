#include "cli/console.h"

#include <sys/stat.h>

#include <cerrno>
#include <charconv>
#include <cstring>
#include <stdexcept>
#include <system_error>

#include "cli/text.h"

namespace cli {
namespace {

bool are_one_file(int a, int b) noexcept {
  struct stat of_a {};
  struct stat of_b {};
  return fstat(a, &of_a) == 0 && fstat(b, &of_b) == 0 && of_a.st_dev == of_b.st_dev && of_a.st_ino == of_b.st_ino;
}

}  // namespace

void output::write_across_blocks(std::string_view text) noexcept {
  while (!text.empty()) {
    if (used_ == buffer_.size()) flush();
    auto const part = text.substr(0, buffer_.size() - used_);
    std::memcpy(buffer_.data() + used_, part.data(), part.size());
    used_ += part.size();
    text.remove_prefix(part.size());
  }
}

void output::line(std::int64_t number) noexcept {
  constexpr std::size_t longest = sizeof "-9223372036854775808";  // the newline takes the place of the terminator
  if (buffer_.size() - used_ < longest) flush();
  char* const out = buffer_.data() + used_;
  char* const end = std::to_chars(out, out + longest, number).ptr;
  *end = '\n';
  used_ += static_cast<std::size_t>(end - out) + 1;
}

void output::flush() noexcept {
  char const* next = buffer_.data();
  while (used_ > 0 && error_ == 0) {
    auto const written = ::write(fd_, next, used_);
    if (written >= 0) {
      next += written;
      used_ -= static_cast<std::size_t>(written);
    } else if (errno != EINTR) {
      error_ = errno;
    }
  }
  used_ = 0;
}

console::console() noexcept
    : messages_{are_one_file(STDOUT_FILENO, STDERR_FILENO) ? results : errors_},
      progress_{&messages_ == &errors_ && isatty(STDERR_FILENO) == 1} {}

void console::say(std::string_view message) noexcept {
  messages_.write("labels: ");
  messages_.line(message);
}

void console::hint(std::string_view message) {
  say(place.number > 0 ? place.text().append(": ").append(message) : std::string{message});
}

void console::flush() noexcept {
  if (!errors_.is_empty()) progress_.clear();
  results.flush();
  errors_.flush();
}

exit_status console::finish(exit_status so_far) noexcept {
  progress_.clear();
  flush();
  if (results.error() == 0) return so_far;

  // The output that failed may be the one for messages too.
  errors_.write("labels: standard output: ");
  errors_.line(std::generic_category().message(results.error()));
  errors_.flush();
  return failed;
}

std::string refusal(std::string_view where, std::string_view value, std::string_view why) {
  return std::string{where}.append(" ").append(in_quotes(value)).append(": ").append(why);
}

void refuse(std::string_view where, std::string_view value, std::string_view why) {
  throw std::runtime_error{refusal(where, value, why)};
}

}  // namespace cli
