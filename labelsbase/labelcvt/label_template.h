// The shape of a label's text.
#pragma once

#include "host/lightweight_string.h"
#include "labelsbase/export.h"

// What may stand at each position of a label's text, a template character a position:
//
//   "0" to "9"         a digit up to this one         "A" to "Z", "a" to "z"   a character from "A" up to this one
//   "?"                any printable character        "-"                      a sign: "+", "-" or a blank
//   "~"                hidden, takes nothing          blank                    takes nothing
//   anything else      a separator, takes nothing
//
// "+" and "#" are deliberately separators too. Example: "-29.59.59.29" for timecode, "????????9999+19" for a key
// number of 35 mm film.
class LABELSBASE_API LabelTemplate {
 public:
  constexpr LabelTemplate() noexcept = default;
  explicit LabelTemplate(LightweightString<char> const& text) noexcept { set(text); }

  // Gives the template its text, and derives the placeholders from it.
  void set(LightweightString<char> const& text) noexcept;

  // The template's text; "" when there is none.
  [[nodiscard]] char const* text() const noexcept { return text_.c_str(); }

  // Whether a separator stands at `pos`. A position past the end has none.
  [[nodiscard]] bool isAtSeparator(unsigned pos) const noexcept;

  // Whether `c` may be typed at `pos`. A position past the end takes nothing.
  [[nodiscard]] bool isValidChar(char c, unsigned pos) const noexcept;

  // The text of a label that cannot be shown, its fields filled with ">" for the past-the-end sample, "<" for the
  // before-the-start sample and "?" for any other. Good until the template changes.
  [[nodiscard]] char const* getInvalidString(int sample) const noexcept;

 private:
  LightweightString<char> text_;
  LightweightString<char> invalid_;
  LightweightString<char> past_end_;
  LightweightString<char> before_start_;
};
