// Private: media that can replace each other. Interlaced and progressive video at one nominal rate are one family,
// and so is video at twice that rate:
//
//   24   24p, 24i, 2398p, 2398i, and film24 as a source
//   25   25p, 25i, 50p
//   30   30p, 30i, 2997p, 2997i, 60p, 5994p
//
// Deliberate: no other rate has a family, not even 48.
#pragma once

#include "labelsbase/MediumRoll/medium_rows.h"

namespace labelsbase {

// Returns the nominal frames a second of the medium's family, 24, 25 or 30, or 0 if it has none.
[[nodiscard]] constexpr int family_fps(medium_row const& row) noexcept {
  double const fps = facts_of(row.rate).nominal_fps;
  if (fps == 24) return 24;
  if (fps == 25 || fps == 50) return 25;
  if (fps == 30 || fps == 60) return 30;
  return 0;
}

// Returns the family of a source, or 0 for all other media. Sources of one family can replace each other as the
// generation before.
[[nodiscard]] constexpr int source_family_fps(MediumRollMedium medium) noexcept {
  auto const& row = row_of(medium);
  if (medium == Medium_film24) return 24;
  return row.role == medium_role::source ? family_fps(row) : 0;
}

// Returns whether a source of a family runs slower than its nominal rate, by 1000/1001.
[[nodiscard]] constexpr bool is_slowed_source(MediumRollMedium medium) noexcept {
  return source_family_fps(medium) != 0 && facts_of(row_of(medium).rate).has_1001_factor;
}

// Returns whether two outputs of a family have one rate, and so are one for playout.
[[nodiscard]] constexpr bool are_one_playout(MediumRollMedium a, MediumRollMedium b) noexcept {
  auto const& first = row_of(a);
  auto const& second = row_of(b);
  return first.role == medium_role::output && second.role == medium_role::output && first.rate == second.rate &&
         family_fps(first) != 0;
}

}  // namespace labelsbase
