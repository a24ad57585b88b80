// The timecode that the benchmarks count, and the plain arithmetic that goes with a call of snprintf or sscanf.
#pragma once

#include "labelsbase/framecounts/count_types.h"
#include "labelsbase/labelcvt/label_types.h"

namespace bench {

struct rate {
  label_t type;
  char const* name;
  int fps;
  char separator;
  bool drop;
  int end;           // samples run from 0 to end - 1, a day
  label_type count;  // as frame counts have it
};

// clang-format off
inline constexpr rate tc_24      {tc_24_label_t,     "24",      24, '+', false,  2'073'600, Label_timecode_24};
inline constexpr rate tc_25      {pal_label_t,       "25",      25, '.', false,  2'160'000, Label_timecode_25};
inline constexpr rate tc_30_drop {ntsc_drop_label_t, "30-drop", 30, ';', true,   2'589'408, Label_timecode_30};
inline constexpr rate tc_240     {tc_240_label_t,    "240",    240, '.', false, 20'736'000, {}};
// clang-format on

struct timecode_numbers {
  int hours, minutes, seconds, frames;
};

[[nodiscard]] constexpr timecode_numbers split(rate const& r, int sample) {
  if (r.drop) {
    int const tens = sample / 17'982, in_tens = sample % 17'982;
    sample += 18 * tens + (in_tens < 1'800 ? 0 : 2 * ((in_tens - 1'800) / 1'798 + 1));
  }
  int const seconds = sample / r.fps;
  return {seconds / 3600, seconds / 60 % 60, seconds % 60, sample % r.fps};
}

[[nodiscard]] constexpr int join(rate const& r, timecode_numbers const& at) {
  int const minutes = at.hours * 60 + at.minutes;
  int const sample = (minutes * 60 + at.seconds) * r.fps + at.frames;
  return r.drop ? sample - 2 * (minutes - minutes / 10) : sample;
}

}  // namespace bench
