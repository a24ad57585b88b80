// Sample and position values that carry a message instead of a place in the material.
//
//   value          meaning                                        its label shows
//   -100000000     invalid: unreadable text, value out of range   ???.??.??.??
//    100000001     past the end of the material                   >>>.>>.>>.>>
//    100000002     before the start of the material               <<<.<<.<<.<<
#pragma once

#include "host/language.h"

namespace labelsbase {

// Samples are frames, fields or perforations, by the label type.

inline constexpr int invalid_sample = -100'000'000;      // unreadable text, a value out of range
inline constexpr int past_end_sample = 100'000'001;      // past the end of the material
inline constexpr int before_start_sample = 100'000'002;  // before the start of the material

// What timecode returns for unreadable text that begins with "-". Deliberately not the invalid sample: hosts tell
// the two apart.
inline constexpr int unreadable_negative_sample = 100'000'000;

// The length of a label that is made from its type alone, in samples.
inline constexpr int default_label_length = 100'000'000;

// "No position", in seconds.
inline constexpr double invalid_posn = 1e99;

// Whether a sample carries a message and shows as a placeholder.
[[nodiscard]] constexpr bool is_special_sample(int sample) noexcept {
  return sample == invalid_sample || sample == past_end_sample || sample == before_start_sample;
}

}  // namespace labelsbase
