// Doubles as text, whatever the process's locale.
#pragma once

#include <algorithm>
#include <charconv>
#include <cstring>
#include <limits>
#include <system_error>

#include "labelsbase/support/text.h"

namespace labelsbase {

// As "%.10f" in the "C" locale.
inline text_writer& put_fixed(text_writer& out, double value) noexcept {
  char digits[352];  // more than the largest double has
  auto const end = std::to_chars(digits, digits + sizeof digits - 1, value, std::chars_format::fixed, 10).ptr;
  *end = '\0';
  return out.put(digits);
}

// As strtod in the "C" locale; 0 when no number begins the text.
[[nodiscard]] inline double read_double(char const* text) noexcept {
  while (is_blank(*text)) ++text;
  bool const negative = *text == '-';
  if (negative || *text == '+') ++text;
  if (*text == '-') return 0.0;  // one sign is enough

  auto format = std::chars_format::general;
  if (text[0] == '0' && to_upper(text[1]) == 'X') {
    format = std::chars_format::hex;
    text += 2;
  }
  double value = 0.0;
  auto const [end, error] = std::from_chars(text, text + std::strlen(text), value, format);
  if (error == std::errc::result_out_of_range) {
    // Too large or too small, as its exponent or its first digits say.
    std::string_view const number{text, static_cast<std::size_t>(end - text)};
    bool const small =
        number.find('-') != std::string_view::npos || number.find_first_not_of('0') == number.find('.');
    value = small ? 0.0 : std::numeric_limits<double>::infinity();
  }
  return negative ? -value : value;
}

}  // namespace labelsbase
