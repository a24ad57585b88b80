// Whole numbers in settings.
#pragma once

#include <charconv>
#include <cstdint>
#include <optional>
#include <string_view>
#include <system_error>

namespace refhost {

// Parses a text that is one decimal number, without blanks and without "+". Returns nothing for any other text and
// for numbers outside 32 bits.
[[nodiscard]] inline std::optional<std::int32_t> whole_number(std::string_view text) noexcept {
  std::int32_t number = 0;
  auto const* end = text.data() + text.size();
  auto const [stop, error] = std::from_chars(text.data(), end, number);
  if (error != std::errc{} || stop != end) return std::nullopt;
  return number;
}

}  // namespace refhost
