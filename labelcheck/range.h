// The samples that labels of a type can express.
//
//   auto const keys = labelcheck::range_of(keycode_35_label_t);
//   keys.last                                   // 1279999: twice the 10000 keys of 64 perforations
//   keys.has_label(-1)                          // false
//   labelcheck::explain_missing(keycode_35_label_t, -1)
//       // "has no label; keycode_35_label covers samples 0 to 1279999"
#pragma once

#include <cstdint>
#include <string>

#include "labelsbase/labelcvt/label_facts.h"
#include "labelsbase/samples.h"

namespace labelcheck {

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

// The samples that have labels: frames for timecode and film frames, perforations for other film.
struct sample_range {
  std::int64_t first;         // the lowest sample with a label
  std::int64_t last;          // the highest sample with a label, itself included
  std::int64_t feet_run = 0;  // samples after which feet of whole frames start again at 0; 0 for other types
  int frame_samples = 1;      // samples of a frame

  // Whether the label would be "-0000+00": zero has no sign.
  [[nodiscard]] constexpr bool is_negative_zero(std::int64_t sample) const noexcept {
    return sample < 0 && feet_run > 0 && -sample % feet_run < frame_samples;
  }

  // Whether a sample has a label. Special samples, such as invalid_sample, have none.
  [[nodiscard]] constexpr bool has_label(int sample) const noexcept {
    return sample >= first && sample <= last && !is_negative_zero(sample) &&
           !labelsbase::is_special_sample(sample);
  }
};

// Returns the range of a type with labels. That of 50 and 60 frame timecode follows the host's setting.
[[nodiscard]] sample_range range_of(label_t type);

// Returns why a sample of a type has no label: "has no label, since the number is reserved".
[[nodiscard]] std::string explain_missing(label_t type, int sample);

}  // namespace labelcheck
