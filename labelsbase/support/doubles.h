// Doubles as text, whatever the process's locale.
#pragma once

#include <algorithm>
#include <bit>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <limits>
#include <string_view>
#include <system_error>

#include "labelsbase/counts/integers.h"
#include "labelsbase/support/text.h"

namespace labelsbase {

// Units of the tenth decimal in 1.
inline constexpr std::uint64_t ten_decimals = 10'000'000'000;

// Returns a double in units of its tenth decimal, rounded to nearest, ties to even. Exact: a double is an integer
// times a power of two. Returns 0 outside 2^-11 to 2^29, where 64 bits do not hold the units or the rest.
[[nodiscard]] constexpr std::uint64_t in_ten_decimals(double value) noexcept {
  __extension__ using wide = unsigned __int128;
  constexpr int mantissa_bits = 52;
  constexpr auto hidden_bit = std::uint64_t{1} << mantissa_bits;
  auto const bits = std::bit_cast<std::uint64_t>(value);
  auto const halvings = 1075 - static_cast<int>(bits >> mantissa_bits);  // below zero if the sign is set
  if (halvings < 24 || halvings > 63) return 0;

  wide const product = wide{(bits & (hidden_bit - 1)) | hidden_bit} * ten_decimals;
  auto const units = static_cast<std::uint64_t>(product >> halvings);
  auto const one_unit = std::uint64_t{1} << halvings;
  auto const rest = static_cast<std::uint64_t>(product) & (one_unit - 1);
  bool const rounds_up = rest + (units & 1) > one_unit / 2;
  return units + rounds_up;
}

// Writes a double as "%.10f" does in the "C" locale. Inlined by force, so that the writer stays in registers
// (write_keep_string).
[[gnu::always_inline]] inline text_writer& put_fixed(text_writer& out, double value) noexcept {
  if (auto const units = in_ten_decimals(value)) {
    auto const fraction = units % ten_decimals;
    char decimals[11] = {'.'};
    put_pair(decimals + 1, static_cast<int>(fraction / 100'000'000));
    put_digits(decimals + 3, static_cast<unsigned>(fraction % 100'000'000), 8);
    return out.number(static_cast<int>(units / ten_decimals)).put(std::string_view{decimals, sizeof decimals});
  }
  char digits[352];  // more than the largest double has
  auto const* const end = std::to_chars(digits, std::end(digits), value, std::chars_format::fixed, 10).ptr;
  return out.put(std::string_view{digits, static_cast<std::size_t>(end - digits)});
}

[[nodiscard]] constexpr bool is_hex_digit(char c) noexcept {
  return is_digit(c) || (to_upper(c) >= 'A' && to_upper(c) <= 'F');
}

// How a number is written: its digits, and what its exponent counts.
struct number_form {
  bool (*is_digit)(char c) noexcept;
  char exponent_mark;  // in capitals
  int digit_weight;    // what a digit adds to the exponent
  std::chars_format format;
};

inline constexpr number_form decimal_form{is_digit, 'E', 1, std::chars_format::general};
inline constexpr number_form hexadecimal_form{is_hex_digit, 'P', 4, std::chars_format::hex};

// A part of a number: where it ends, and its exponent.
struct number_part {
  char const* end;
  std::int64_t exponent;
};

// Finds an exponent: [mark [+|-] decimal digits]. Its value stops far outside the range of doubles.
[[nodiscard]] constexpr number_part find_exponent(char const* text, number_form const& form) noexcept {
  if (to_upper(*text) != form.exponent_mark) return {text, 0};
  char const* next = text + 1;
  bool const is_negative = *next == '-';
  if (is_negative || *next == '+') ++next;
  if (!is_digit(*next)) return {text, 0};

  constexpr auto largest = std::numeric_limits<std::int64_t>::max() / 100;
  std::int64_t exponent = 0;
  for (; is_digit(*next); ++next) exponent = std::min(exponent * 10 + (*next - '0'), largest);
  return {next, is_negative ? -exponent : exponent};
}

// Finds a number without its sign and "0x": digits [. digits] [exponent], with a digit before or behind the point.
// Returns the start of the text as the end if there is none. The exponent is that of the first significant digit,
// so it tells a number that is too large from one that is too small.
[[nodiscard]] constexpr number_part find_number(char const* text, number_form const& form) noexcept {
  char const* next = text;
  std::int64_t places = 0;  // significant digits before the point, or minus the zeros behind it
  bool has_digits = false;
  bool is_significant = false;
  bool is_fraction = false;
  for (;; ++next) {
    if (*next == '.' && !is_fraction) {
      is_fraction = true;
    } else if (form.is_digit(*next)) {
      has_digits = true;
      is_significant |= *next != '0';
      if (is_significant && !is_fraction) ++places;
      if (is_fraction && !is_significant) --places;
    } else {
      break;
    }
  }
  if (!has_digits) return {text, 0};
  auto const [end, exponent] = find_exponent(next, form);
  return {end, places * form.digit_weight + exponent};
}

// Reads any number as strtod does.
//
//   blanks [+|-] ( decimal | 0x hexadecimal | inf | infinity | nan ), in any case
[[nodiscard, gnu::noinline]] inline double read_any_number(char const* text) noexcept {
  while (is_blank(*text)) ++text;
  bool const is_negative = *text == '-';
  if (is_negative || *text == '+') ++text;

  auto const* form = &decimal_form;
  auto number = find_number(text, decimal_form);
  if (text[0] == '0' && to_upper(text[1]) == 'X') {
    // Without hexadecimal digits behind it, "0x" is the decimal 0 and an x.
    auto const hexadecimal = find_number(text + 2, hexadecimal_form);
    if (hexadecimal.end != text + 2) {
      text += 2;
      form = &hexadecimal_form;
      number = hexadecimal;
    }
  }
  char const* end = number.end;
  if (end == text) {
    if (!is_upper(to_upper(*text))) return 0.0;  // a second sign, say, which from_chars would take
    end = text + std::strlen(text);
  }

  double value = 0.0;
  auto const error = std::from_chars(text, end, value, form->format).ec;
  if (error == std::errc::invalid_argument) return 0.0;
  if (error == std::errc::result_out_of_range)
    value = number.exponent > 0 ? std::numeric_limits<double>::infinity() : 0.0;
  return is_negative ? -value : value;
}

// Reads a double as strtod does in the "C" locale, correctly rounded. Returns 0 if the text does not begin with a
// number; an infinity for a number that is too large, and 0 for one that is too small.
[[nodiscard]] inline double read_double(char const* text) noexcept {
  // Nearly every text is digits [. digits] in up to 15 characters. Doubles hold such digits and such a power of
  // ten exactly, so their quotient is correctly rounded.
  char const* next = text;
  std::uint64_t digits = 0;
  auto const take_digits = [&] {
    for (unsigned digit = 0; (digit = digit_value(*next)) < 10; ++next) digits = wrap_append_digit(digits, digit);
  };
  take_digits();
  if (*next == '.') ++next;
  char const* const fraction = next;
  take_digits();
  if (*next || next - text > 15) return read_any_number(text);
  auto const decimals = static_cast<std::size_t>(next - fraction);
  return static_cast<double>(static_cast<std::int64_t>(digits)) / powers_of_ten<double>[decimals];
}

}  // namespace labelsbase
