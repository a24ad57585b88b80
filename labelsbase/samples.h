// Sample and position values that carry a message instead of a place in the material.
#pragma once

namespace labelsbase {

// Samples are frames, fields or perforations, as the label type has it.
inline constexpr int invalid_sample = -100'000'000;      // unreadable text, a value out of range
inline constexpr int past_end_sample = 100'000'001;      // after the last sample of the material
inline constexpr int before_start_sample = 100'000'002;  // before its first sample

// What unreadable text with a leading "-" gives. Deliberately not the invalid sample: hosts tell the two apart.
inline constexpr int unreadable_negative_sample = 100'000'000;

inline constexpr int default_label_length = 100'000'000;  // samples

inline constexpr double invalid_posn = 1e99;  // seconds

// Whether a sample stands for no place at all and shows as a placeholder.
[[nodiscard]] constexpr bool is_special_sample(int sample) noexcept {
  return sample == invalid_sample || sample == past_end_sample || sample == before_start_sample;
}

}  // namespace labelsbase
