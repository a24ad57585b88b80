// Classes of characters in labels: ASCII, whatever the program's locale.
//
//   is_digit('7')        // true
//   is_blank(9)          // true: a tab
//   is_printable(' ')    // false
#pragma once

#include "host/language.h"
#include "labelsbase/counts/integers.h"

namespace labelsbase {

// Whether the character is from "0" to "9".
[[nodiscard]] constexpr bool is_digit(char c) noexcept { return c >= '0' && c <= '9'; }

// Whether the character is from "A" to "Z".
[[nodiscard]] constexpr bool is_upper(char c) noexcept { return c >= 'A' && c <= 'Z'; }

// Whether the character is from "a" to "z".
[[nodiscard]] constexpr bool is_lower(char c) noexcept { return c >= 'a' && c <= 'z'; }

// Whether the character is a digit or a letter.
[[nodiscard]] constexpr bool is_alphanumeric(char c) noexcept { return is_digit(c) || is_upper(c) || is_lower(c); }

// Whether the character is a space, tab, line feed, vertical tab, form feed or carriage return.
[[nodiscard]] constexpr bool is_blank(char c) noexcept { return c == ' ' || (c >= '\t' && c <= '\r'); }

// Whether the character is from "!" to "~": visible, so not a blank.
[[nodiscard]] constexpr bool is_printable(char c) noexcept { return c > ' ' && c <= '~'; }

// Returns the value of a digit, 0 to 9, or a number above 9 for any other character.
[[nodiscard]] constexpr unsigned digit_value(char c) noexcept {
  return wrap_sub(static_cast<unsigned>(c), unsigned{'0'});
}

// Returns the capital of a lower-case letter, and any other character as it is.
[[nodiscard]] constexpr char to_upper(char c) noexcept { return is_lower(c) ? static_cast<char>(c - 32) : c; }

}  // namespace labelsbase
