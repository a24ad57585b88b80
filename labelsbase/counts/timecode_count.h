// How timecode counts: samples split into hours, minutes, seconds and frames, and joined again (SMPTE ST 12-1).
//
//   frames a second    labels an hour   labels a day
//   24                         86,400      2,073,600
//   25                         90,000      2,160,000
//   30                        108,000      2,592,000
//   30, drop-frame            107,892      2,589,408
//
// Drop-frame counts 30 labels a second, but leaves out labels 00 and 01 of every minute that is not a multiple of
// ten. So its labels keep up with 30000/1001 frames a second:
//
//   minute       0      1      2     ...    9    |  10     ten minutes
//   labels     1800   1798   1798    ...  1798   | 1800    1800 + 9 x 1798 = 17,982
//
//   sample     1798         1799         1800         1801
//   label   00:00:59;28  00:00:59;29  00:01:00;02  00:01:00;03
//
// To split a drop-frame sample, add the labels left out before it: 18 for every ten minutes, and 2 for every
// minute begun since. What results counts as plain 30 frame timecode.
//
//   constexpr timecode_count ntsc_drop{30, true};
//   ntsc_drop.split(1800)             // {0, 1, 0, 2}
//   ntsc_drop.join({0, 10, 0, 0})     // 17982
//   wrap_span(-1, ntsc_drop.labels_per_day())   // 2589407
#pragma once

#include "labelsbase/counts/integers.h"
#include "labelsbase/counts/reciprocal.h"

namespace labelsbase {

// The fields of a timecode. `timecode_count::join` accepts values beyond these ranges too.
struct timecode_fields {
  int hours;    // 0 to 23 within a day
  int minutes;  // 0 to 59
  int seconds;  // 0 to 59
  int frames;   // 0 to the labels of a second less 1

  // Compares all fields.
  friend constexpr bool operator==(timecode_fields const&, timecode_fields const&) = default;
};

// A count of `frames_per_second` labels a second that starts again after a day. A sample is one frame.
class timecode_count {
 public:
  constexpr timecode_count() noexcept : timecode_count{1} {}

  // `frames_per_second` below 1 counts as 1. Drop-frame is defined for 30 frames a second.
  constexpr explicit timecode_count(int frames_per_second, bool drop_frame = false) noexcept
      : per_second_{frames_per_second}, drop_frame_{drop_frame} {}

  // Returns the labels of a second: 30 for drop-frame, too.
  [[nodiscard]] constexpr int frames_per_second() const noexcept { return per_second_.divisor(); }

  // Whether labels are left out to keep up with 30000/1001 frames a second.
  [[nodiscard]] constexpr bool is_drop_frame() const noexcept { return drop_frame_; }

  // Returns the labels of an hour, which wrap at 32 bits above 596523 frames a second.
  [[nodiscard]] constexpr int labels_per_hour() const noexcept {
    return drop_frame_ ? drop_hour : wrap_mul(frames_per_second(), 3'600);
  }

  // Returns the labels of a day, which wrap at 32 bits above 24855 frames a second.
  [[nodiscard]] constexpr int labels_per_day() const noexcept { return wrap_mul(labels_per_hour(), 24); }

  // Returns the fields of a sample. Hours run past 23 for samples beyond a day; a negative sample has negative
  // fields.
  [[nodiscard]] constexpr timecode_fields split(int sample) const noexcept {
    if (sample >= 0) return split_from_zero(static_cast<unsigned>(sample));
    if (drop_frame_) return split_before_zero(sample);
    auto const [hours, minutes, seconds, frames] = split_from_zero(magnitude_of(sample));
    return {-hours, -minutes, -seconds, -frames};
  }

  // Returns the fields of a sample from 0 to 2^31.
  [[nodiscard]] constexpr timecode_fields split_from_zero(unsigned sample) const noexcept {
    unsigned const label = drop_frame_ ? with_left_out_labels(sample) : sample;
    unsigned const seconds = per_second_.quotient_of_magnitude(label);
    unsigned const minutes = seconds / 60;
    unsigned const hours = seconds / 3'600;
    return {static_cast<int>(hours), static_cast<int>(minutes - hours * 60),
            static_cast<int>(seconds - minutes * 60),
            static_cast<int>(label - seconds * static_cast<unsigned>(frames_per_second()))};
  }

  // Returns the sample of the fields, whatever they hold. A label that drop-frame leaves out comes out as one of
  // the last two samples of the minute before.
  [[nodiscard]] constexpr int join(timecode_fields const& fields) const noexcept {
    auto const [hours, minutes, seconds, frames] = fields;
    if (drop_frame_) {
      int const in_minute = wrap_add(wrap_mul(seconds, 30), frames);
      return wrap_add(wrap_add(wrap_mul(hours, drop_hour), minute_start(minutes)), in_minute);
    }
    int const all_minutes = wrap_add(wrap_mul(hours, 60), minutes);
    int const all_seconds = wrap_add(wrap_mul(all_minutes, 60), seconds);
    return wrap_add(wrap_mul(all_seconds, frames_per_second()), frames);
  }

  // Whether drop-frame leaves this label out: frames 00 and 01 of a minute that is not a multiple of ten.
  [[nodiscard]] constexpr bool leaves_out(timecode_fields const& fields) const noexcept {
    return drop_frame_ && fields.minutes % 10 != 0 && fields.seconds == 0 && fields.frames < 2;
  }

 private:
  // Samples.
  static constexpr int full_minute = 1'800;
  static constexpr int short_minute = 1'798;
  static constexpr int ten_minutes = full_minute + 9 * short_minute;
  static constexpr int drop_hour = 6 * ten_minutes;

  static_assert(ten_minutes == 17'982 && drop_hour == 107'892 && 24 * drop_hour == 2'589'408);

  [[nodiscard]] static constexpr unsigned with_left_out_labels(unsigned sample) noexcept {
    unsigned const tens = sample / ten_minutes;
    unsigned const in_ten_minutes = sample - tens * ten_minutes;
    unsigned const short_minutes = in_ten_minutes < 2 ? 0 : (in_ten_minutes - 2) / short_minute;
    return sample + 18 * tens + 2 * short_minutes;
  }

  // Deliberate: below zero only hours and tens of minutes are split off, and what is left counts as seconds.
  [[nodiscard]] static constexpr timecode_fields split_before_zero(int sample) noexcept {
    int const in_ten_minutes = sample % ten_minutes;
    return {sample / drop_hour, sample % drop_hour / ten_minutes * 10, in_ten_minutes / 30, in_ten_minutes % 30};
  }

  // Returns the sample from which a minute of the drop-frame hour counts its seconds and frames. In a short minute
  // that is two samples before its first label, frame 02.
  [[nodiscard]] static constexpr int minute_start(int minutes) noexcept {
    int const before_minute_0 = minutes % 10 < 0 ? 2 : 0;
    return wrap_add(wrap_mul(minutes / 10, ten_minutes), minutes % 10 * short_minute - before_minute_0);
  }

  reciprocal per_second_;
  bool drop_frame_;
};

// Wraps a sample into a day of `day` samples. Deliberate: one day is added once, so a sample further below zero
// stays negative. Returns the sample as it is if `day` is below 1.
[[nodiscard]] constexpr int wrap_into_day(int sample, int day) noexcept {
  if (sample < 0) sample = wrap_add(sample, day);
  return day > 0 && sample >= day ? sample % day : sample;
}

// Wraps a span into 0 to one whole day. Deliberate: a whole day stays, since 24:00:00:00 is a valid span. Returns
// the sample as it is if `day` is below 1.
[[nodiscard]] constexpr int wrap_span(int sample, int day) noexcept {
  if (day < 1 || (sample >= 0 && sample <= day)) return sample;
  int const rest = sample % day;
  if (sample > 0) return rest == 0 ? day : rest;
  return rest < 0 ? rest + day : 0;
}

}  // namespace labelsbase
