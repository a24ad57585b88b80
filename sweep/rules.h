// What the text of every sample reads back as: one rule a family, in plain divisions from the numbers of the
// type's row.
//
//   family           sample                        its text reads back as
//   timecode         any                           the sample within its day; below zero, the same before zero
//     drop-frame     below zero                    0: drop-frame labels are never negative
//   key numbers      from 0                        the first perforation of its frame
//                    from the last key's end on    the same, one round of keys less
//                    from twice that on            invalid: the key has more digits than its columns
//                    less than a key below zero    the frame as far above zero: the sign reads as a separator
//                    lower                         0: "NEGATIVE" has no digits
//     3-perf         from -2                       itself, with rounds as above
//                    lower                         invalid: "NEGATIVE" does not end in a perforation
//   ink numbers      from 0                        the first perforation of its frame, within one round of counts
//                    less than a count below zero  invalid if the frame has one digit; with two, the frame without
//                                                  its sign, which long texts lose with their middle
//                    lower                         0: "NEGATIVE" has no digits
//   feet             any                           the first perforation of its frame; one round less from 100000
//                                                  feet on
//     3-perf         any                           itself; one round less above 100000 feet
//                    the last two, either side     below zero: the two perforations before foot 0 wrap the count
//   film frames      any                           itself
//   none             any                           invalid
//
// The placeholders of special samples read back as invalid, but as 0 where any text reads as a number: ink numbers
// and feet. The smallest int is its own magnitude.
#pragma once

#include <climits>
#include <cstdint>

#include "labelsbase/labelcvt/label_facts.h"
#include "labelsbase/samples.h"

namespace sweep {

using wide = std::int64_t;

inline constexpr int invalid = labelsbase::invalid_sample;

// Returns a value that fits an int.
[[nodiscard]] constexpr int narrow(wide value) noexcept { return static_cast<int>(value); }

// Returns 10 to the power of an exponent from 0.
[[nodiscard]] constexpr wide power_of_ten(int exponent) noexcept {
  return exponent == 0 ? 1 : 10 * power_of_ten(exponent - 1);
}

struct timecode_rule {
  wide day;  // samples
  bool drop_frame;

  int operator()(int sample) const noexcept {
    if (labelsbase::is_special_sample(sample)) return invalid;
    if (sample >= 0) return narrow(sample % day);
    if (drop_frame) return 0;
    return sample == INT_MIN ? narrow(-(sample + day)) : narrow(-(-wide{sample} % day));
  }
};

struct key_rule {
  wide perfs, key, keys;  // perforations of a frame, of a key; how many keys there are

  int operator()(int sample) const noexcept {
    if (labelsbase::is_special_sample(sample)) return invalid;
    if (sample <= -key) return 0;
    if (sample < 0) return narrow(-sample - -sample % perfs);
    if (sample >= 2 * keys * key) return invalid;
    wide const within = sample >= keys * key ? sample - keys * key : sample;
    return narrow(within - within % perfs);
  }
};

struct three_perf_key_rule {
  wide key, keys;

  int operator()(int sample) const noexcept {
    if (labelsbase::is_special_sample(sample) || sample < -2) return invalid;
    wide const shifted = wide{sample} + 2;  // a key begins two perforations before its number
    if (shifted >= 2 * keys * key) return invalid;
    return narrow(shifted >= keys * key ? sample - keys * key : sample);
  }
};

struct ink_rule {
  wide perfs, count, counts;  // perforations of a frame, of a count; how many counts there are

  int operator()(int sample) const noexcept {
    if (labelsbase::is_special_sample(sample) || sample <= -count) return 0;
    if (sample >= 0) {
      wide const within = sample % (counts * count);
      return narrow(within - within % perfs);
    }
    wide const frame = -sample / perfs;
    return frame > 0 && frame < 10 ? invalid : narrow(frame * perfs);
  }
};

struct feet_rule {
  wide perfs, foot;                       // perforations of a frame, of a foot
  static constexpr wide round = 100'000;  // feet

  int operator()(int sample) const noexcept {
    if (labelsbase::is_special_sample(sample)) return 0;
    if (sample == INT_MIN) return sample;
    wide magnitude = sample < 0 ? -wide{sample} : sample;
    if (magnitude >= round * foot) magnitude -= round * foot;
    magnitude -= magnitude % perfs;
    return narrow(sample < 0 ? -magnitude : magnitude);
  }
};

struct three_perf_feet_rule {
  wide foot;

  int operator()(int sample) const noexcept {
    if (labelsbase::is_special_sample(sample)) return 0;
    if (sample == INT_MIN) return sample;
    wide const magnitude = sample < 0 ? -wide{sample} : sample;
    if (magnitude + 2 > INT_MAX) return narrow(-magnitude);
    bool const wraps = magnitude + 2 >= (feet_rule::round + 1) * foot;
    wide const within = wraps ? magnitude - feet_rule::round * foot : magnitude;
    return narrow(sample < 0 ? -within : within);
  }
};

struct film_frames_rule {
  int operator()(int sample) const noexcept { return labelsbase::is_special_sample(sample) ? invalid : sample; }
};

struct no_labels_rule {
  int operator()(int) const noexcept { return invalid; }
};

// Returns what `visit` returns for the rule of a type.
auto with_rule_of(labelsbase::label_facts const& facts, auto visit) {
  auto const& film = facts.film;
  wide const perfs = film.gauge.perfs_per_frame();
  wide const count = film.gauge.perfs_per_count();
  wide const counts = power_of_ten(film.count_digits);
  bool const three_perf = count % perfs != 0;

  switch (facts.has_labels() ? facts.family : User_none) {
    case User_timecode: {
      wide const full_day = wide{86'400} * facts.timecode.frames_per_second;
      wide const left_out = 24 * 54 * 2;  // two labels of each minute but every tenth
      bool const drop = facts.timecode.drop_frame;
      return visit(timecode_rule{drop ? full_day - left_out : full_day, drop});
    }
    case User_keycode:
      return three_perf ? visit(three_perf_key_rule{count, counts}) : visit(key_rule{perfs, count, counts});
    case User_ink:
      return visit(ink_rule{perfs, count, counts});
    case User_feet:
      return three_perf ? visit(three_perf_feet_rule{count}) : visit(feet_rule{perfs, count});
    case User_film_frames:
      return visit(film_frames_rule{});
    default:
      return visit(no_labels_rule{});
  }
}

}  // namespace sweep
