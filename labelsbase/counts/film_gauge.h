// How film counts: perforations split into keys (or feet, or ink numbers) and frames, and joined again.
//
//   film              perforations   perforations   frames
//                     a frame        a key          a key
//   35 mm, 4-perf     4              64             16
//   35 mm, 3-perf     3              64             21 1/3, numbered 0 to 21
//   16 mm             1              20             20
//
// Where a key holds whole frames, frame `f` of key `k` begins at perforation `k x perfs a key + f x perfs a
// frame`.
//
// At 3 perforations a frame keys begin within frames. Frame `f` of key `k` holds the perforations 64k + 3f - 2 to
// 64k + 3f, so that frame 0 of every key ends on the key's first perforation:
//
//   perforation   58  59  60 | 61 | 62  63  64 | 65  66  67
//   key + frame      0+20    |0+21|    1+00    |    1+01
//   perfs left     2   1   0 |  2 |  2   1   0 |  2   1   0     to the last perforation of the frame
//
//   film_gauge{4, 64}.split(100)           // {1, 9, 0}: key 1, frame 9
//   film_gauge{4, 64}.join({1, 9, 0})      // 100
//   film_gauge{3, 64}.split(62)            // {1, 0, 2}
#pragma once

#include "labelsbase/counts/integers.h"
#include "labelsbase/counts/reciprocal.h"

namespace labelsbase {

// A place on film.
struct film_place {
  int count;       // key, foot or ink number
  int frame;       // within the count
  int perfs_left;  // perforations to the last one of the frame, 0 to 2 at 3-perf; 0 where a count holds whole
                   // frames

  // Compares all fields.
  friend constexpr bool operator==(film_place const&, film_place const&) = default;
};

// The arithmetic of one film: perforations, frames, and what its edge is numbered by.
class film_gauge {
 public:
  constexpr film_gauge() noexcept : film_gauge{1, 1} {}

  // Perforations of a frame and of a key (foot, ink number), from 1 up; numbers below 1 count as 1.
  constexpr film_gauge(int perfs_per_frame, int perfs_per_count) noexcept
      : per_frame_{perfs_per_frame},
        perfs_per_count_{perfs_per_count < 1 ? 1 : perfs_per_count},
        frames_per_count_{(perfs_per_count_ - 1) / per_frame_.divisor() + 1},
        has_whole_frames_{perfs_per_count_ % per_frame_.divisor() == 0},
        per_count_{has_whole_frames_ ? frames_per_count_ : perfs_per_count_} {}

  // Returns the gauge of keys, feet or ink numbers of whole frames. Both numbers are from 1 up; smaller ones count
  // as 1. Perforations of a key beyond 32 bits wrap.
  [[nodiscard]] static constexpr film_gauge of_whole_frames(int perfs_per_frame, int frames_per_count) noexcept {
    film_gauge gauge;
    gauge.per_frame_ = reciprocal{perfs_per_frame};
    gauge.per_count_ = reciprocal{frames_per_count};
    gauge.frames_per_count_ = gauge.per_count_.divisor();
    gauge.perfs_per_count_ = wrap_mul(gauge.frames_per_count_, gauge.perfs_per_frame());
    return gauge;
  }

  // Returns the perforations of a frame, from 1 up.
  [[nodiscard]] constexpr int perfs_per_frame() const noexcept { return per_frame_.divisor(); }

  // Returns the perforations from one key (foot, ink number) to the next.
  [[nodiscard]] constexpr int perfs_per_count() const noexcept { return perfs_per_count_; }

  // Returns how many frame numbers a key has. A frame that the next key begins in counts: 22 at 3-perf.
  [[nodiscard]] constexpr int frames_per_count() const noexcept { return frames_per_count_; }

  // Whether a key holds whole frames. Otherwise labels name the perforation, too.
  [[nodiscard]] constexpr bool has_whole_frames() const noexcept { return has_whole_frames_; }

  // Returns the place of a perforation. Below zero, whole frames round toward key 0 and 3-perf rounds down.
  [[nodiscard]] constexpr film_place split(int perfs) const noexcept {
    if (!has_whole_frames_) [[unlikely]]
      return split_within_frames(perfs);
    return split_whole_frames(perfs);
  }

  // Returns the place of a perforation where keys hold whole frames, rounding toward key 0.
  [[nodiscard]] constexpr film_place split_whole_frames(int perfs) const noexcept {
    if (perfs >= 0) return split_magnitude(static_cast<unsigned>(perfs));
    auto const at = split_magnitude(magnitude_of(perfs));
    return {wrap_negate(at.count), wrap_negate(at.frame), 0};
  }

  // Returns the perforation of a place, whatever it holds: the first one of the frame, or at 3-perf the very one.
  [[nodiscard]] constexpr int join(film_place const& at) const noexcept {
    int const frame_perfs = wrap_mul(at.frame, perfs_per_frame());
    return wrap_sub(wrap_add(wrap_mul(at.count, perfs_per_count_), frame_perfs), at.perfs_left);
  }

 private:
  // Splits a magnitude from 0 to 2^31 into whole frames.
  [[nodiscard]] constexpr film_place split_magnitude(unsigned perfs) const noexcept {
    unsigned const frames = per_frame_.quotient_of_magnitude(perfs);
    unsigned const count = per_count_.quotient_of_magnitude(frames);
    unsigned const frame = frames - count * static_cast<unsigned>(frames_per_count_);
    return {static_cast<int>(count), static_cast<int>(frame), 0};
  }

  [[nodiscard]] constexpr film_place split_within_frames(int perfs) const noexcept {
    int const last_perf = perfs_per_frame() - 1;
    int const shifted = wrap_add(perfs, last_perf);  // key 0 begins at 0
    int const count = shifted >= 0 ? per_count_.quotient(shifted) : -1 - per_count_.quotient(-1 - shifted);
    int const in_count = shifted - count * perfs_per_count_;
    int const frame = static_cast<int>(per_frame_.quotient_of_magnitude(static_cast<unsigned>(in_count)));
    return {count, frame, last_perf - (in_count - frame * perfs_per_frame())};
  }

  reciprocal per_frame_;
  int perfs_per_count_;
  int frames_per_count_;
  bool has_whole_frames_;
  reciprocal per_count_;  // by frames where keys hold whole frames, else by perforations
};

}  // namespace labelsbase
