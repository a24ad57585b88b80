// The shape of a label's text.
//
//   LabelTemplate const shape{"-29.59.59.29"};
//   shape.isValidChar('3', 1)                       // false: the tens of hours end at 2
//   shape.isAtSeparator(3)                          // true
//   shape.getInvalidString(past_end_sample)         // ">>>.>>.>>.>>"
#pragma once

#include "host/lightweight_string.h"
#include "labelsbase/export.h"

// Says what each position of a label's text accepts, one template character a position:
//
//   template character        accepts
//   "0" to "9"                a digit up to this one
//   "A" to "Z", "a" to "z"    a character from "A" up to this one
//   "?"                       any printable character but a blank
//   "-"                       a sign: "+", "-" or a blank
//   "~"                       nothing: the position is hidden
//   blank                     nothing
//   any other                 nothing: a separator
//
// Deliberate: "+" and "#" are separators too. Timecode has the template "-29.59.59.29", a key number of 35 mm film
// "????????9999+19".
class LABELSBASE_API LabelTemplate {
 public:
  constexpr LabelTemplate() noexcept = default;

  // A text is a template: `LabelTemplate shape = text;`.
  LabelTemplate(LightweightString<char> const& text) noexcept {
    set(text);
  }  // NOLINT(google-explicit-constructor)
  explicit LabelTemplate(char const* text) noexcept { set(text); }

  // Sets the template's text, and derives the placeholders from it. The first form shares the buffer of the text.
  void set(LightweightString<char> const& text) noexcept;
  void set(char const* text) noexcept;

  // Returns the template's text; "" for an empty template.
  [[nodiscard]] char const* text() const noexcept { return text_.c_str(); }

  // Whether the character at `pos`, counted from 0, is a separator. False past the end.
  [[nodiscard]] bool isAtSeparator(unsigned pos) const noexcept;

  // Whether `c` may be typed at `pos`, counted from 0. False past the end.
  [[nodiscard]] bool isValidChar(char c, unsigned pos) const noexcept;

  // Returns the text of a label that cannot be shown: its fields filled with ">" for the past-the-end sample, "<"
  // for the before-the-start sample and "?" for any other. Valid until the template changes.
  [[nodiscard]] char const* getInvalidString(int sample) const noexcept;

 private:
  LightweightString<char> text_;
  LightweightString<char> invalid_;
  LightweightString<char> past_end_;
  LightweightString<char> before_start_;
};
