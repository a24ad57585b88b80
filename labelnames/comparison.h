// Private: names compared as people mean them.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

#include "labelsbase/characters.h"

namespace labelnames {

// The characters of a name in capitals, with a "-" for blanks, dashes and underscores between two digits and
// without those elsewhere.
class plain_characters {
 public:
  constexpr explicit plain_characters(std::string_view name) noexcept : rest_{name} {}

  // Returns the next character, or nothing at the end.
  [[nodiscard]] constexpr std::optional<char> next() noexcept {
    auto const size = rest_.size();
    while (!rest_.empty() && is_gap(rest_.front())) rest_.remove_prefix(1);
    if (rest_.empty()) return std::nullopt;
    bool const is_after_gap = rest_.size() < size;
    if (is_after_gap && labelsbase::is_digit(last_) && labelsbase::is_digit(rest_.front())) return last_ = '-';
    last_ = labelsbase::to_upper(rest_.front());
    rest_.remove_prefix(1);
    return last_;
  }

 private:
  [[nodiscard]] static constexpr bool is_gap(char c) noexcept { return c == ' ' || c == '-' || c == '_'; }

  std::string_view rest_;
  char last_ = '\0';
};

[[nodiscard]] constexpr bool is_same_name(std::string_view a, std::string_view b) noexcept {
  plain_characters in_a{a};
  plain_characters in_b{b};
  for (;;) {
    auto const c = in_a.next();
    if (c != in_b.next()) return false;
    if (!c) return true;
  }
}

// A name by its plain characters.
class plain_name {
 public:
  static constexpr std::size_t longest = 32;  // more than any type's

  constexpr explicit plain_name(std::string_view name) noexcept {
    plain_characters in{name};
    for (auto c = in.next(); c && length_ < longest; c = in.next()) text_[length_++] = *c;
  }

  // Returns the text, of at most `longest` characters.
  [[nodiscard]] constexpr std::string_view text() const noexcept { return {text_.data(), length_}; }

 private:
  std::array<char, longest> text_{};
  std::size_t length_ = 0;
};

// Takes the next of the names that blanks separate off the list. Returns an empty text at the end.
[[nodiscard]] constexpr std::string_view take_name(std::string_view& names) noexcept {
  auto const name = names.substr(0, names.find(' '));
  names.remove_prefix(name.size() < names.size() ? name.size() + 1 : name.size());
  return name;
}

}  // namespace labelnames
