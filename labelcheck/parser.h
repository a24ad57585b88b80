// Private: takes a label apart from its start, a piece at a time.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "labelcheck/read.h"
#include "labelcheck/text.h"
#include "labelsbase/characters.h"
#include "labelsbase/counts/integers.h"

namespace labelcheck {

// What is wrong with a text, as in `refusal`.
struct fault {
  field wrong;
  reason why;
  std::size_t position;
  field next = field::whole;
  int number = 0;
};

// Returns the refusal of a text for its fault, or as unrecognised if there is no nearest label.
[[nodiscard]] refusal refuse_text(label_t type, fault const& found, std::string nearest);

// Each step goes on behind its piece and returns true, or returns false.
//
// A grammar is a template, written once for two parsers. The quick one finds out whether a text is a label. The
// explaining one takes apart what the quick one refused, and keeps what is wrong.
//
//   explaining_parser in{"01:61"};
//   int hours, minutes;
//   in.number(field::hours, 2, 23, hours) && in.separator(field::minutes, ':') &&
//       in.number(field::minutes, 2, 59, minutes)   // false
//   in.found()                                      // field::minutes, reason::range, position 3, number 59
template <bool explaining>
class parser {
 public:
  static constexpr bool explains = explaining;

  explicit parser(std::string_view text) noexcept
      : begin_{text.data()}, next_{begin_}, end_{begin_ + text.size()} {}

  [[nodiscard]] bool at_end() const noexcept { return next_ == end_; }
  [[nodiscard]] bool is_at(char c) const noexcept { return next_ != end_ && *next_ == c; }
  [[nodiscard]] std::size_t position() const noexcept { return static_cast<std::size_t>(next_ - begin_); }
  [[nodiscard]] std::string_view whole() const noexcept {
    return {begin_, static_cast<std::size_t>(end_ - begin_)};
  }
  [[nodiscard]] std::string_view rest() const noexcept { return {next_, static_cast<std::size_t>(end_ - next_)}; }

  // `characters` is at most the length of the rest.
  void skip(std::size_t characters) noexcept { next_ += characters; }

  // Whether `characters` are left. The steps of a quick parser rely on it, and look for no end; an explaining
  // parser goes on in any case, until it finds what is missing or too much.
  [[nodiscard]] bool expects(std::size_t characters) const noexcept {
    return explains || rest().size() == characters;
  }

  // Returns how many digits come next. A quick parser expects them up to the last `characters`, and leaves it to
  // the step that reads them to refuse others.
  [[nodiscard]] std::size_t digits_before(std::size_t characters) const noexcept {
    return explains ? digits_of(rest()).size() : labelsbase::wrap_sub(rest().size(), characters);
  }

  // Reads `count` digits, and leaves what follows them alone.
  [[nodiscard, gnu::always_inline]] bool digits(field name, int count, int& value) noexcept {
    if (explains && end_ - next_ < count) return refuse_digits(name, count);
    unsigned number = 0;
    int i = 0;
    if (count >= 4) {
      number = value_of_four(next_);
      if (number > 9'999) return refuse_digits(name, count);
      i = 4;
    }
    for (; i < count; ++i) {
      auto const digit = labelsbase::digit_value(next_[i]);
      if (digit > 9) return refuse_digits(name, count);
      number = number * 10 + digit;
    }
    next_ += count;
    value = static_cast<int>(number);
    return true;
  }

  // Reads a number from 0 to `last` of `count` digits, which no digit may follow: a separator or the end must.
  [[nodiscard, gnu::always_inline]] bool number(field name, int count, int last, int& value) noexcept {
    if constexpr (explains) {
      if (!digits(name, count, value)) return false;
      auto const start = position() - static_cast<std::size_t>(count);
      if (!at_end() && labelsbase::is_digit(*next_)) return refuse(name, reason::digit_count, count);
      return value <= last || refuse_at(start, name, reason::range, last);
    } else {
      auto number = labelsbase::digit_value(*next_++);  // of no digit, one that makes the number exceed `last`
      for (int i = 1; i < count; ++i) {
        auto const digit = labelsbase::digit_value(*next_++);
        if (digit > 9) return false;
        number = labelsbase::wrap_append_digit(number, digit);
      }
      value = static_cast<int>(number);
      return number <= static_cast<unsigned>(last);
    }
  }

  // Steps over either separator. At the end of the text, leaves it to the step for `next` to report that as
  // missing.
  [[nodiscard]] bool separator(field next, char usual, char other) noexcept {
    if (explains && at_end()) return true;
    bool const is_right = *next_ == usual || *next_ == other;
    if (!is_right) return refuse_separator(next, reason::separator);
    ++next_;
    return true;
  }
  [[nodiscard]] bool separator(field next, char only) noexcept { return separator(next, only, only); }

  [[nodiscard]] bool end() noexcept { return !explains || at_end() || refuse(field::whole, reason::trailing); }

  // Return false. An explaining parser keeps what is wrong, here or at a position.
  bool refuse(field wrong, reason why, int number = 0) noexcept {
    return refuse_at(position(), wrong, why, number);
  }
  bool refuse_at(std::size_t position, field wrong, reason why, int number = 0) noexcept {
    return refuse({.wrong = wrong, .why = why, .position = position, .number = number});
  }
  bool refuse_separator(field next, reason why) noexcept {
    return refuse({.wrong = field::separator, .why = why, .position = position(), .next = next});
  }

  [[nodiscard]] fault const& found() const noexcept { return found_; }

 private:
  bool refuse(fault const& found) noexcept {
    if constexpr (explains) found_ = found;
    return false;
  }

  bool refuse_digits(field name, int count) noexcept {
    if (at_end()) return refuse(name, reason::missing);
    return refuse_at(position() + digits_of(rest()).size(), name, reason::digit_count, count);
  }

  char const* begin_;
  char const* next_;
  char const* end_;
  fault found_{field::whole, reason::unrecognised, 0};
};

using quick_parser = parser<false>;
using explaining_parser = parser<true>;

}  // namespace labelcheck
