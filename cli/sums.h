// Sums of labels.
#pragma once

#include <cstdint>
#include <limits>

#include "cli/input.h"
#include "labelsbase/labels.h"

namespace cli {

[[nodiscard]] constexpr bool is_sample(std::int64_t value) noexcept {
  return value >= std::numeric_limits<std::int32_t>::min() && value <= std::numeric_limits<std::int32_t>::max();
}

// Fills `sum` with the sample that lies `samples` after `start`, moved into the range of the type. Returns what is
// wrong if that is beyond the range of samples, or if the labels do not go on there.
[[nodiscard]] problem add_samples(LabelPoint const& start, std::int64_t samples, int& sum);

}  // namespace cli
