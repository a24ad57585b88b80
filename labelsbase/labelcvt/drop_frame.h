// Drop-frame timecode (SMPTE ST 12-1): which frame labels are left out.
//
// Labels are numbered as if none were left out, 1800 to the minute. The first two of every minute are, but for
// each tenth minute: a full one.
#pragma once

#include "labelsbase/labelcvt/timecode.h"
#include "labelsbase/support/integers.h"

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

// The sample of a label that is given by its fields, whatever they hold. A label that is left out comes out as one
// of the last two samples of the minute before.
[[nodiscard]] constexpr int sample_of(timecode_fields const& fields) noexcept {
  auto const [hours, minutes, seconds, frames] = fields;
  int const tens = minutes / 10;
  int const minute = minutes % 10;
  int const minute_start = tens * ten_minutes + minute * short_minute - (minute < 0 ? 2 : 0);
  int const in_minute = wrap_add(wrap_mul(seconds, 30), frames);
  return wrap_add(wrap_add(wrap_mul(hours, hour), minute_start), in_minute);
}

}  // namespace labelsbase::drop_frame
