// Sums of labels.
#pragma once

#include <cstdint>
#include <limits>

#include "labelsbase/labelcvt/label_point.h"

namespace labelcheck {

// Returns whether a value is a 32-bit sample, special samples included.
[[nodiscard]] constexpr bool is_sample(std::int64_t value) noexcept {
  return value >= std::numeric_limits<std::int32_t>::min() && value <= std::numeric_limits<std::int32_t>::max();
}

// A sample that was added up, or why it has no label.
struct sum {
  int sample;           // moved into the range of the type
  char const* problem;  // null if there is such a label; otherwise why not, in words
};

// Returns the sample that lies `samples` after `start`. Timecode wraps at the end of the day, key numbers and ink
// numbers at the end of their count. Refuses sums beyond the range of samples, and those at which the keys of the
// film do not go on.
[[nodiscard]] sum add_samples(LabelPoint const& start, std::int64_t samples);

}  // namespace labelcheck
