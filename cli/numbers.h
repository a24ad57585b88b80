// Numbers that users write and read.
#pragma once

#include <array>
#include <charconv>
#include <optional>
#include <string>
#include <string_view>

namespace cli {

// The shortest text that reads back as the same number.
[[nodiscard]] inline std::string shortest(double number) {
  std::array<char, 32> text;
  return {text.begin(), std::to_chars(text.begin(), text.end(), number).ptr};
}

// The whole text as a number, "0.04" and "1e-3".
[[nodiscard]] inline std::optional<double> decimal(std::string_view text) noexcept {
  double number = 0;
  auto const* const end = text.data() + text.size();
  auto const read = std::from_chars(text.data(), end, number);
  if (read.ec != std::errc{} || read.ptr != end) return std::nullopt;
  return number;
}

}  // namespace cli
