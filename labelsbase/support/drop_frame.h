// Drop-frame timecode (SMPTE ST 12-1): which frame labels are left out.
//
// Labels are numbered as if none were left out, 1800 to the minute. The first two of every minute are, but for
// each tenth minute: a full one.
#pragma once

#include "labelsbase/counts/integers.h"

namespace labelsbase::drop_frame {

// Samples.
inline constexpr int full_minute = 1'800;
inline constexpr int short_minute = 1'798;
inline constexpr int ten_minutes = full_minute + 9 * short_minute;
inline constexpr int hour = 6 * ten_minutes;
inline constexpr int day = 24 * hour;

static_assert(ten_minutes == 17'982 && hour == 107'892 && day == 2'589'408);

// The number of the label at a sample from 0 up.
[[nodiscard]] constexpr int label_number(int sample) noexcept {
  int const tens = sample / ten_minutes;
  int const short_minutes = (sample % ten_minutes - 2) / short_minute;
  return sample + 18 * tens + 2 * short_minutes;
}

// The sample from which a minute of the hour counts its seconds and frames. In a short minute that is two samples
// before its first label, frame 02.
[[nodiscard]] constexpr int minute_start(int minutes) noexcept {
  return wrap_add(wrap_mul(minutes / 10, ten_minutes), minutes % 10 * short_minute);
}

}  // namespace labelsbase::drop_frame
