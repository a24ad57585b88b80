// What the columns of logs and sheets hold, by their headings.
#pragma once

#include <string_view>

namespace lists {

enum class column_role {
  other,
  name,
  tracks,
  source_in,
  source_out,
  source_length,
  record_in,
  record_out,
  record_length,
  mark_in,
  mark_out,
  mark_length,
  other_rate,  // timecode at a rate of its own, whatever the rate of the list
};

// Returns the role of a column by its heading, in any case; blanks and punctuation do not count.
[[nodiscard]] column_role role_of(std::string_view heading) noexcept;

// Whether the column holds a length of time, which no sync point moves.
[[nodiscard]] constexpr bool is_length(column_role role) noexcept {
  return role == column_role::source_length || role == column_role::record_length ||
         role == column_role::mark_length;
}

}  // namespace lists
