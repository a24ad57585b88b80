#include "cli/messages.h"

#include <sys/stat.h>
#include <unistd.h>

namespace cli {
namespace {

bool are_one_file(int a, int b) noexcept {
  struct stat of_a {};
  struct stat of_b {};
  return fstat(a, &of_a) == 0 && fstat(b, &of_b) == 0 && of_a.st_dev == of_b.st_dev && of_a.st_ino == of_b.st_ino;
}

}  // namespace

std::string quoted(std::string_view text) {
  constexpr std::size_t shown = 60;
  constexpr char const* hex_digits = "0123456789ABCDEF";
  std::string result{"\""};
  for (char const c : text.substr(0, shown)) {
    auto const byte = static_cast<unsigned char>(c);
    if (byte < ' ' || byte > '~') {
      result.append("\\x").append(1, hex_digits[byte >> 4]).append(1, hex_digits[byte & 15]);
    } else {
      if (c == '"' || c == '\\') result += '\\';
      result += c;
    }
  }
  return result += text.size() > shown ? "...\"" : "\"";
}

messages::messages(output& results) noexcept
    : own_{STDERR_FILENO}, to_{are_one_file(STDOUT_FILENO, STDERR_FILENO) ? results : own_} {}

void messages::say(std::string_view text) {
  to_.write("labels: ");
  to_.line(text);
}

}  // namespace cli
