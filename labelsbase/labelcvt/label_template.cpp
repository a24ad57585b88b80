#include "labelsbase/labelcvt/label_template.h"

#include "labelsbase/samples.h"
#include "labelsbase/support/text.h"

using namespace labelsbase;

namespace {

// Letters, digits, signs and free fields are filled; separators, blanks and hidden fields stay as they are.
constexpr bool is_entry(char c) noexcept { return is_alphanumeric(c) || c == '+' || c == '-' || c == '?'; }

LightweightString<char> filled(LightweightString<char> const& text, char fill) noexcept {
  LightweightString<char> result{text.c_str(), text.length()};
  if (char* c = result.detach())
    for (; *c; ++c)
      if (is_entry(*c)) *c = fill;
  return result;
}

constexpr bool is_separator(char c) noexcept {
  return !is_alphanumeric(c) && c != ' ' && c != '-' && c != '?' && c != '~';
}

}  // namespace

// The placeholders are made here, not when they are first asked for: conversions allocate nothing, and threads may
// read one template at once.
void LabelTemplate::set(LightweightString<char> const& text) noexcept {
  text_ = text;
  invalid_ = filled(text, '?');
  past_end_ = filled(text, '>');
  before_start_ = filled(text, '<');
}

bool LabelTemplate::isAtSeparator(unsigned pos) const noexcept {
  return pos < text_.length() && is_separator(text_.c_str()[pos]);
}

bool LabelTemplate::isValidChar(char c, unsigned pos) const noexcept {
  if (pos >= text_.length()) return false;
  char const limit = text_.c_str()[pos];
  auto const code = static_cast<signed char>(c);

  if (limit == '?') return code > ' ' && code <= '~';
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
