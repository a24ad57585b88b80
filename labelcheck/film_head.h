// Private: prefix and count of key numbers and ink numbers, where people have written them with too many or too
// few characters.
#pragma once

#include <string_view>

#include "labelcheck/film_form.h"

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

}  // namespace labelcheck
