// Text of labels, written and read a field at a time: no locale, no format strings, no allocation.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <string_view>

#include "labelsbase/characters.h"
#include "labelsbase/counts/integers.h"
#include "labelsbase/support/digits.h"

namespace labelsbase {

[[nodiscard]] constexpr char const* or_empty(char const* text) noexcept { return text ? text : ""; }

// Writes into a buffer of a fixed size: never past its end, always terminated. Drops what does not fit.
class text_writer {
 public:
  template <std::size_t size>
  explicit constexpr text_writer(char (&buffer)[size]) noexcept : text_writer{buffer, size} {}

  // `size` counts the terminator and is at least 1.
  constexpr text_writer(char* buffer, std::size_t size) noexcept
      : begin_{buffer}, next_{buffer}, last_{buffer + size - 1} {
    *next_ = '\0';
  }

  constexpr text_writer& put(char c) noexcept {
    if (next_ == last_) return *this;
    *next_++ = c;
    *next_ = '\0';
    return *this;
  }

  constexpr text_writer& put(std::string_view text) noexcept {
    // Two copies: most texts are literals, and the size of the first copy is then a constant.
    auto const room = static_cast<std::size_t>(last_ - next_);
    if (text.size() <= room)
      next_ = std::copy_n(text.data(), text.size(), next_);
    else
      next_ = std::copy_n(text.data(), room, next_);
    *next_ = '\0';
    return *this;
  }

  // Writes a number as "%0*d" does: at least `width` characters, the sign included.
  text_writer& number(int value, int width = 0) noexcept {
    if (width <= 1 && value >= 0 && value < 10) return put(static_cast<char>('0' + value));
    if (value < 0) return signed_digits(value, std::max(width, 1) - 1);
    return signed_digits(value, width > 0 ? width : digits_in(static_cast<unsigned>(value)));
  }

  // Writes a number as "%.*d" does: a sign if it is negative, then at least `digits` digits, and at least one.
  text_writer& signed_digits(int value, int digits) noexcept {
    // Nearly every number fills its digits. A negative one is too large, as unsigned numbers go.
    bool const fills = digits > 0 && digits < 10 &&
                       static_cast<unsigned>(value) < powers_of_ten<unsigned>[static_cast<std::size_t>(digits)] &&
                       last_ - next_ >= digits;
    if (fills) {
      put_digits(next_, static_cast<unsigned>(value), digits);
      next_ += digits;
      *next_ = '\0';
    } else {
      next_ = put_any_digits(next_, last_, value, digits);
    }
    return *this;
  }

  [[nodiscard]] constexpr char const* c_str() const noexcept { return begin_; }

  // Returns where the next character goes.
  [[nodiscard]] constexpr char* end() const noexcept { return next_; }
  [[nodiscard]] constexpr std::size_t length() const noexcept { return static_cast<std::size_t>(next_ - begin_); }

 private:
  // Writes such a number up to `last`, and the terminator. Returns where that stands. A function of its own, so
  // that callers stay short.
  [[gnu::noinline]] static char* put_any_digits(char* next, char* last, int value, int digits) noexcept {
    constexpr int most = 10;
    auto const magnitude = magnitude_of(value);
    if (value < 0 && next != last) *next++ = '-';
    for (; digits > most && next != last; --digits) *next++ = '0';

    int const size = std::clamp(digits, digits_in(magnitude), most);
    char text[most];
    put_digits(text, magnitude, size);
    next = std::copy_n(text, std::min<std::ptrdiff_t>(size, last - next), next);
    *next = '\0';
    return next;
  }

  char* begin_;
  char* next_;
  char* last_;
};

// Reads a text as the scanf family does, one conversion at a time.
class text_reader {
 public:
  explicit constexpr text_reader(char const* text) noexcept : next_{or_empty(text)} {}

  // Reads a number as "%d" does, or "%2d" with a width of 2: skips blanks, accepts a sign and counts it in the
  // width. Numbers too large for 64 bits stop at the largest; the low 32 bits are kept. Returns nothing if no
  // digit follows.
  //
  //   blank* ("+" | "-")? digit+
  constexpr std::optional<int> number(int width = unlimited) noexcept {
    if (is_digit(*next_)) return width > 0 ? std::optional{wrap_to_int(magnitude(width, largest))} : std::nullopt;
    skip_blanks();
    bool const negative = *next_ == '-';
    if (negative || *next_ == '+') {
      ++next_;
      if (width != unlimited) --width;
    }
    if (width <= 0 || !is_digit(*next_)) return {};
    int const number = wrap_to_int(magnitude(width, negative ? largest + 1 : largest));
    return negative ? wrap_negate(number) : number;
  }

  // Returns the rest of the text, behind what was read.
  [[nodiscard]] constexpr char const* rest() const noexcept { return next_; }

  // Reads any one character, as "%c" does. Returns nothing at the end of the text.
  constexpr std::optional<char> character() noexcept {
    if (!*next_) return {};
    return *next_++;
  }

  // Reads the given character, without skipping blanks. Returns false if another one follows.
  constexpr bool literal(char c) noexcept {
    if (*next_ != c || !c) return false;
    ++next_;
    return true;
  }

  constexpr void skip_blanks() noexcept {
    while (is_blank(*next_)) ++next_;
  }

 private:
  static constexpr int unlimited = std::numeric_limits<int>::max();
  static constexpr auto largest = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());

  // Reads digits, of which there is one or more, up to `width` of them. Returns their number, up to `limit`.
  [[nodiscard]] constexpr std::uint64_t magnitude(int width, std::uint64_t limit) noexcept {
    auto const* digits = next_;
    std::uint64_t value = 0;
    std::uint64_t digit = digit_value(*digits);
    std::size_t length = 0;
    do {
      value = wrap_append_digit(value, digit);
      digit = digit_value(digits[++length]);
    } while (digit < 10 && (width == unlimited || length < static_cast<std::size_t>(width)));
    next_ += length;
    constexpr std::size_t always_fit = 18;  // digits
    if (length <= always_fit) return value;

    // A number from 2^63 / 10 up stays too large with any further digit.
    value = 0;
    for (; digits != next_; ++digits) value = std::min(value, largest / 10 + 1) * 10 + digit_value(*digits);
    return std::min(value, limit);
  }

  char const* next_;
};

}  // namespace labelsbase
