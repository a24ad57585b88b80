// The film labels that the benchmarks count, and the plain arithmetic that goes with a call of snprintf or sscanf.
#pragma once

#include "labelsbase/labelcvt/label_types.h"

namespace bench {

enum class form { prefixed, prefixed_perfs, feet, frames };

struct film {
  label_t type;
  char const* name;
  form shape;
  char const* prefix;
  char const* first;  // the label of sample 0, which sets the prefix; empty for types without one
  int frames_per_count;
  int perfs_per_frame;
  int end;  // samples run from 0 to end - 1
};

// clang-format off
inline constexpr film keycode_35  {keycode_35_label_t,  "keycode_35",  form::prefixed,       "KJ123456", "KJ1234560000+00", 16, 4,   640'000};
inline constexpr film keycode_353 {keycode_353_label_t, "keycode_353", form::prefixed_perfs, "KJ123456", "KJ1234560000+00", 22, 3,   639'998};
inline constexpr film foot_35     {foot_35_label_t,     "foot_35",     form::feet,           "",         "",                16, 4,   640'000};
inline constexpr film ink_35      {ink_35_label_t,      "ink_35",      form::prefixed,       "AB12",     "AB120000+00",     16, 4,   640'000};
inline constexpr film film_frames {film_frames_label_t, "film_frames", form::frames,         "",         "",                 1, 1, 1'000'000};
// clang-format on

struct film_numbers {
  int count, frame, perf;
};

[[nodiscard]] constexpr film_numbers split(film const& f, int sample) {
  if (f.shape == form::prefixed_perfs) {
    int const shifted = sample + 2;
    return {shifted / 64, shifted % 64 / 3, 3 - shifted % 64 % 3};
  }
  int const frames = sample / f.perfs_per_frame;
  return {frames / f.frames_per_count, frames % f.frames_per_count, 0};
}

[[nodiscard]] constexpr int join(film const& f, film_numbers const& at) {
  if (f.shape == form::prefixed_perfs) return at.count * 64 + at.frame * 3 - (at.perf - 1);
  return (at.count * f.frames_per_count + at.frame) * f.perfs_per_frame;
}

}  // namespace bench
