// Takes a label apart from its start, a piece at a time.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "labelcheck/read.h"
#include "labelcheck/text.h"
#include "labelsbase/characters.h"

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

// Each step goes on behind its piece and returns true, or keeps what is wrong and returns false.
//
//   parser in{"01:61"};
//   int hours, minutes;
//   in.number(field::hours, 2, 23, hours) && in.separator(field::minutes, ':') &&
//       in.number(field::minutes, 2, 59, minutes)   // false
//   in.found()                                      // field::minutes, reason::range, position 3, number 59
class parser {
 public:
  explicit parser(std::string_view text) noexcept
      : begin_{text.data()}, next_{begin_}, end_{begin_ + text.size()} {}

  [[nodiscard]] bool at_end() const noexcept { return next_ == end_; }
  [[nodiscard]] bool is_at(char c) const noexcept { return next_ != end_ && *next_ == c; }
  [[nodiscard]] std::size_t position() const noexcept { return static_cast<std::size_t>(next_ - begin_); }
  [[nodiscard]] std::string_view rest() const noexcept { return {next_, static_cast<std::size_t>(end_ - next_)}; }

  // `characters` is at most the length of the rest.
  void skip(std::size_t characters) noexcept { next_ += characters; }

  // Reads `count` digits, and leaves what follows them alone.
  [[nodiscard]] bool digits(field name, int count, int& value) noexcept {
    if (end_ - next_ < count) return refuse_digits(name, count);
    unsigned number = 0;
    for (int i = 0; i < count; ++i) {
      auto const digit = labelsbase::digit_value(next_[i]);
      if (digit > 9) return refuse_digits(name, count);
      number = number * 10 + digit;
    }
    next_ += count;
    value = static_cast<int>(number);
    return true;
  }

  // Reads a number from 0 to `last` of `count` digits, which no digit may follow.
  [[nodiscard]] bool number(field name, int count, int last, int& value) noexcept {
    if (!digits(name, count, value)) return false;
    auto const start = position() - static_cast<std::size_t>(count);
    if (!at_end() && labelsbase::is_digit(*next_)) return refuse(name, reason::digit_count, count);
    return value <= last || refuse_at(start, name, reason::range, last);
  }

  // Steps over either separator. At the end of the text, leaves it to the step for `next` to report that as
  // missing.
  [[nodiscard]] bool separator(field next, char usual, char other) noexcept {
    if (at_end()) return true;
    bool const is_right = *next_ == usual || *next_ == other;
    if (!is_right) return refuse_separator(next, reason::separator);
    ++next_;
    return true;
  }
  [[nodiscard]] bool separator(field next, char only) noexcept { return separator(next, only, only); }

  [[nodiscard]] bool end() noexcept { return at_end() || refuse(field::whole, reason::trailing); }

  // Keep what is wrong, here or at a position, and return false.
  bool refuse(field wrong, reason why, int number = 0) noexcept {
    return refuse_at(position(), wrong, why, number);
  }
  bool refuse_at(std::size_t position, field wrong, reason why, int number = 0) noexcept {
    found_ = {.wrong = wrong, .why = why, .position = position, .number = number};
    return false;
  }
  bool refuse_separator(field next, reason why) noexcept {
    found_ = {.wrong = field::separator, .why = why, .position = position(), .next = next};
    return false;
  }

  [[nodiscard]] fault const& found() const noexcept { return found_; }

 private:
  bool refuse_digits(field name, int count) noexcept {
    if (at_end()) return refuse(name, reason::missing);
    return refuse_at(position() + digits_of(rest()).size(), name, reason::digit_count, count);
  }

  char const* begin_;
  char const* next_;
  char const* end_;
  fault found_{field::whole, reason::unrecognised, 0};
};

}  // namespace labelcheck
