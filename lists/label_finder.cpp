#include "lists/label_finder.h"

#include "labelsbase/characters.h"

namespace lists {
namespace {

using labelsbase::is_alphanumeric;
using labelsbase::is_digit;

constexpr bool is_mark(char c) noexcept { return c == ':' || c == ';' || c == '.'; }
constexpr bool is_plus(char c) noexcept { return c == '+' || c == '&'; }

// Reads on in a text. Characters past the end are NUL.
class cursor {
 public:
  cursor(std::string_view text, std::size_t at) noexcept : text_{text}, at_{at} {}

  [[nodiscard]] std::size_t at() const noexcept { return at_; }
  [[nodiscard]] char peek(std::size_t ahead = 0) const noexcept {
    return at_ + ahead < text_.size() ? text_[at_ + ahead] : '\0';
  }
  void skip() noexcept { ++at_; }

  // Skips `count` digits. Returns false and skips nothing if there are fewer.
  bool digits(int count) noexcept {
    for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i)
      if (!is_digit(peek(i))) return false;
    at_ += static_cast<std::size_t>(count);
    return true;
  }

  std::size_t all_digits() noexcept {
    auto const start = at_;
    while (is_digit(peek())) ++at_;
    return at_ - start;
  }

  // Whether a label may end here.
  [[nodiscard]] bool is_at_end() const noexcept {
    auto const next = peek();
    if (is_alphanumeric(next) || next == '_') return false;
    return !((is_mark(next) || is_plus(next)) && is_digit(peek(1)));
  }

 private:
  std::string_view text_;
  std::size_t at_;
};

// Whether a label may begin at a letter or digit.
bool may_begin(std::string_view text, std::size_t at) noexcept {
  if (at == 0) return true;
  auto const before = text[at - 1];
  if (is_alphanumeric(before) || before == '_') return false;
  return !((is_mark(before) || is_plus(before)) && at > 1 && is_digit(text[at - 2]));
}

bool is_signed(std::string_view text, std::size_t at) noexcept {
  if (at == 0 || text[at - 1] != '-') return false;
  return at == 1 || labelsbase::is_blank(text[at - 2]) ||
         std::string_view{"\"'([{=,;"}.find(text[at - 2]) != std::string_view::npos;
}

}  // namespace

std::size_t label_finder::end_of_timecode(std::string_view text, std::size_t at) const noexcept {
  cursor in{text, at};
  for (int field = 0; field < 3; ++field) {
    if (!in.digits(2)) return 0;
    if (!is_mark(in.peek()) && !(field == 2 && in.peek() == '+')) return 0;
    in.skip();
  }
  return in.digits(facts_.timecode.frame_digits()) && in.is_at_end() ? in.at() : 0;
}

std::size_t label_finder::end_of_film(std::string_view text, std::size_t at) const noexcept {
  cursor in{text, at};
  auto const prefix = facts_.film.prefix_length;
  for (int i = 0; i < prefix; ++i, in.skip())
    if (!is_alphanumeric(in.peek())) return 0;
  if (prefix > 0 ? !in.digits(facts_.film.count_digits) : in.all_digits() == 0) return 0;
  if (!is_plus(in.peek())) return 0;
  in.skip();
  if (!in.digits(2)) return 0;
  if (facts_.film.names_perforation() && in.peek() == '.' && is_digit(in.peek(1))) {
    in.skip();
    in.skip();
  }
  return in.is_at_end() ? in.at() : 0;
}

std::size_t label_finder::end_of_number(std::string_view text, std::size_t at) const noexcept {
  cursor in{text, at};
  return in.all_digits() >= static_cast<std::size_t>(facts_.film.count_digits) && in.is_at_end() ? in.at() : 0;
}

std::optional<found_label> label_finder::next(std::string_view text, std::size_t from) const noexcept {
  bool const has_prefix = facts_.film.prefix_length > 0;
  for (auto at = from; at < text.size(); ++at) {
    if (has_prefix ? !is_alphanumeric(text[at]) : !is_digit(text[at])) continue;
    if (may_begin(text, at)) {
      auto const end = facts_.is_timecode() ? end_of_timecode(text, at)
                       : is_bare_number()   ? end_of_number(text, at)
                                            : end_of_film(text, at);
      bool const has_sign = !has_prefix && is_signed(text, at) && at > from;
      auto const begin = has_sign ? at - 1 : at;
      if (end > 0) return found_label{begin, end - begin};
    }
    while (at + 1 < text.size() && is_alphanumeric(text[at + 1])) ++at;  // no label begins within a word
  }
  return std::nullopt;
}

}  // namespace lists
