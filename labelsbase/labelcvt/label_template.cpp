#include "labelsbase/labelcvt/label_template.h"

#include <algorithm>
#include <cstring>
#include <string_view>

#include "labelsbase/samples.h"
#include "labelsbase/support/text.h"

using namespace labelsbase;

namespace {

// Whether placeholders fill the position: letters, digits, signs and free fields.
constexpr bool is_entry(char c) noexcept { return is_alphanumeric(c) || c == '+' || c == '-' || c == '?'; }

void fill_entries(char* text, std::size_t length, char fill) noexcept {
  std::replace_if(text, text + length, is_entry, fill);
}

// Returns the text with its entry positions filled, or the text itself if that changes nothing.
LightweightString<char> filled(LightweightString<char> const& text, char fill) noexcept {
  std::string_view const characters{text.c_str(), text.length()};
  if (std::ranges::none_of(characters, [fill](char c) { return is_entry(c) && c != fill; })) return text;

  LightweightString<char> result{text.c_str(), text.length()};
  if (char* const begin = result.detach()) fill_entries(begin, result.length(), fill);
  return result;
}

constexpr bool is_separator(char c) noexcept {
  return !is_alphanumeric(c) && c != ' ' && c != '-' && c != '?' && c != '~';
}

}  // namespace

// Makes the placeholders now, not at first use: conversions allocate nothing, and threads may read one template at
// once.
void LabelTemplate::set(LightweightString<char> const& text) noexcept {
  text_ = text;
  invalid_ = filled(text, '?');
  past_end_ = filled(text, '>');
  before_start_ = filled(text, '<');
}

// All converters come here. One buffer makes one count to change when a point is copied, not four.
void LabelTemplate::set(char const* text) noexcept {
  std::size_t const length = std::strlen(or_empty(text));
  char* copy =
      LightweightString<char>::set_in_one_buffer({&text_, &invalid_, &past_end_, &before_start_}, text, length);
  if (!copy) return;
  for (char const fill : {'?', '>', '<'}) fill_entries(copy += text_.capacity(), length, fill);
}

bool LabelTemplate::isAtSeparator(unsigned pos) const noexcept {
  return pos < text_.length() && is_separator(text_.c_str()[pos]);
}

bool LabelTemplate::isValidChar(char c, unsigned pos) const noexcept {
  if (pos >= text_.length()) return false;
  char const limit = text_.c_str()[pos];
  auto const code = static_cast<signed char>(c);

  if (limit == '?') return is_printable(c);
  if (is_digit(limit)) return c >= '0' && c <= limit;
  if (is_alphanumeric(limit)) return code >= 'A' && code <= limit;
  if (limit == '-') return c == '+' || c == '-' || c == ' ';
  return false;
}

char const* LabelTemplate::getInvalidString(int sample) const noexcept {
  if (sample == past_end_sample) return past_end_.c_str();
  if (sample == before_start_sample) return before_start_.c_str();
  return invalid_.c_str();
}
