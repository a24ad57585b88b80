// Private: the strict reader of key numbers, ink numbers, feet and film frames.
#pragma once

#include <string>
#include <string_view>
#include <variant>

#include "labelcheck/film_form.h"
#include "labelcheck/read.h"

namespace labelcheck {

// As read, for a type of film: explains what is wrong with a text that the quick parser has refused.
[[nodiscard]] std::variant<reading, refusal> explain_film(film_form form, std::string_view text);

// Reads as much as people would, and moves each field to the nearest that exists. Returns an empty text if nothing
// is legible.
//
//   blank* head                  (other* frame (other* perforation)?)?     key or ink number; head: see head_of
//   blank* ("-" | "+")? blank* feet (other* frame (other* perforation)?)?
//   blank* ("-" | "+")? blank* frames
//
// Blanks and dashes within the head are skipped, and digits before a prefix that begins with a letter; `other` is
// any character but a digit.
[[nodiscard]] std::string nearest_film_label(film_form const& form, std::string_view text);

}  // namespace labelcheck
