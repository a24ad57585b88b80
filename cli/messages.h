// What the tool has to say, on standard error.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "cli/output.h"

namespace cli {

// The text in quotes, bytes that do not print as \xHH, a long text cut short.
[[nodiscard]] std::string quoted(std::string_view text);

class messages {
 public:
  // Where standard error and standard output are one file or terminal, messages go through `results`, so that they
  // stand among the results in order.
  explicit messages(output& results) noexcept;

  // One line, for example "labels: standard input: Is a directory".
  void say(std::string_view text);

  void flush() noexcept { to_.flush(); }

 private:
  output own_;
  output& to_;
};

}  // namespace cli
