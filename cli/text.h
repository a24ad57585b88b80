// Text and numbers as users write and read them.
#pragma once

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "labelsbase/characters.h"
#include "refhost/whole_number.h"

namespace cli {

using labelsbase::is_digit;

[[nodiscard]] constexpr bool all_digits(std::string_view text) noexcept {
  return std::ranges::all_of(text, is_digit);
}

// Returns the whole text as a 32-bit number, "1800" or "-25", or nothing if it is not one.
using refhost::whole_number;

// As whole_number; a "+" may come first.
[[nodiscard]] inline std::optional<std::int32_t> signed_number(std::string_view text) noexcept {
  if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
  return whole_number(text);
}

// Returns the whole text as a number, "0.04" or "1e-3", or nothing if it is not one.
[[nodiscard]] inline std::optional<double> decimal(std::string_view text) noexcept {
  double number = 0;
  auto const* const end = text.data() + text.size();
  auto const [stop, error] = std::from_chars(text.data(), end, number);
  if (error != std::errc{} || stop != end) return std::nullopt;
  return number;
}

// Returns the shortest text that reads back as the same number.
[[nodiscard]] inline std::string shortest(double number) {
  std::array<char, 32> text;
  return {text.begin(), std::to_chars(text.begin(), text.end(), number).ptr};
}

// Returns the text in quotes. Unprintable bytes are written as \xHH, and a text of more than 60 bytes is cut
// short.
[[nodiscard]] inline std::string in_quotes(std::string_view text) {
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

// Returns the text with blanks added up to `width` characters.
[[nodiscard]] inline std::string padded(std::string_view text, std::size_t width) {
  std::string result{text};
  result.resize(std::max(width, text.size()), ' ');
  return result;
}

}  // namespace cli
