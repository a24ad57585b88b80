// Film types, by their facts.
#pragma once

#include <cstdint>

#include "labelsbase/labelcvt/label_facts.h"

namespace cli {

// Whether samples of the type are perforations.
[[nodiscard]] constexpr bool counts_perforations(labelsbase::label_facts const& facts) noexcept {
  return facts.family == User_keycode || facts.family == User_ink || facts.family == User_feet;
}

// Returns the perforations after which labels start again at 0. Feet may have a digit more than `count_digits`.
[[nodiscard]] constexpr std::int64_t perfs_per_run(labelsbase::label_facts const& facts) noexcept {
  std::int64_t counts = facts.family == User_feet ? 10 : 1;
  for (int digit = 0; digit < facts.film.count_digits; ++digit) counts *= 10;
  return counts * facts.film.gauge.perfs_per_count();
}

static_assert(perfs_per_run(labelsbase::facts_of(keycode_35_label_t)) == 640'000);
static_assert(perfs_per_run(labelsbase::facts_of(foot_16_label_t)) == 4'000'000);

}  // namespace cli
