// How a text is encoded, by its first bytes.
#pragma once

#include <cstddef>
#include <string_view>

namespace lists {

// Returns the bytes of the byte-order mark that UTF-8 text begins with: 3, or 0 without one.
[[nodiscard]] constexpr std::size_t utf8_mark(std::string_view text) noexcept {
  return text.starts_with("\xEF\xBB\xBF") ? 3 : 0;
}

// Whether a text of at least 4 bytes is UTF-16: it begins with a byte-order mark, or every other byte is NUL.
[[nodiscard]] constexpr bool is_utf16(std::string_view text) noexcept {
  if (text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF")) return true;
  auto const is_nul = [text](std::size_t i) { return i < text.size() && text[i] == '\0'; };
  bool const is_little = is_nul(1) && is_nul(3) && !is_nul(0) && !is_nul(2);
  bool const is_big = is_nul(0) && is_nul(2) && !is_nul(1) && !is_nul(3);
  return text.size() >= 4 && (is_little || is_big);
}

// What is said of UTF-16.
inline constexpr char const* utf16_refusal =
    "the text is UTF-16; expected UTF-8 or ASCII: convert it with 'iconv -f UTF-16 -t UTF-8'";

}  // namespace lists
