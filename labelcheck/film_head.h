// Private: prefix and count of key numbers and ink numbers, where people have written them with too many or too
// few characters.
#pragma once

#include <string_view>

#include "labelcheck/film_form.h"
#include "labelcheck/parser.h"

namespace labelcheck {

// Returns the characters before the frames: up to the separator, or to what people write for it.
[[nodiscard]] std::string_view head_of(film_form const& form, std::string_view text) noexcept;

struct film_head {
  std::string_view prefix;
  std::string_view count;
};

// Splits a head. In one of the wrong length, the count is wrong if there are only digits behind a whole prefix,
// and otherwise the prefix.
//
//   split(F35, "KJ123456123")     // "KJ123456", "123"
//   split(F35, "KJ100123")        // "KJ10", "0123"
[[nodiscard]] film_head split(film_form const& form, std::string_view head) noexcept;

// Whether a label begins with printable characters, as many as prefix and count have, and no blanks or dashes
// break them up. A prefix may contain dashes if prefix and count have their length. Otherwise the parser keeps
// what is wrong.
[[nodiscard]] bool has_form_of_head(film_form const& form, explaining_parser& in) noexcept;

}  // namespace labelcheck
