// Timecode: construction and the arithmetic of hours, minutes, seconds and frames.

#include "labelsbase/labelcvt/timecode.h"

#include <algorithm>
#include <cmath>

#include "host/config.h"
#include "labelsbase/labelcvt/drop_frame.h"
#include "labelsbase/labelcvt/timecode_rows.h"
#include "labelsbase/support/broken.h"
#include "labelsbase/support/integers.h"

using namespace labelsbase;

timecode_label::timecode_label(int frames_per_second, int format)
    : variable_label{frames_per_second, 1}, format_{static_cast<unsigned>(format)} {
  init();
  timecode_label::build_template();
}

timecode_label::timecode_label(label_t rate_type, int format)
    : variable_label{rate_row_of(rate_type).fps, 1}, format_{static_cast<unsigned>(format)} {
  auto const& row = rate_row_of(rate_type);
  init();
  if (row.setting)
    use_setting(row.setting, row.slow_fps);
  else
    samples_per_day_ = row.samples_per_day;

  separator_ = row.separator;
  frame_digits_ = row.frame_digits;
  shape_ = row.shape;
  drop_frame_ = row.type == ntsc_drop_label_t;
  timecode_label::build_template();
}

void timecode_label::init() {
  modulus_ = std::max(modulus_, 1);
  separator_ = '.';
  samples_per_day_ = wrap_mul(modulus_, 86'400);
}

void timecode_label::use_setting(char const* key, int slow_fps) {
  int const setting = config_int(key, 1);
  if (setting == 2) format_ |= Format_slow_timecode;
  if (setting == 2 || setting == 3) modulus_ = slow_fps;
  init();
}

void labelsbase::use_one_pass(timecode_label& converter) noexcept {
  if (converter.isSpecialSlowTC() || !(converter.format_ & Format_hours)) return;
  converter.one_pass_samples_ = static_cast<unsigned>(converter.samples_per_day_);
  converter.per_frames_per_second_ = reciprocal{converter.modulus_};
}

timecode_label* labelsbase::as_timecode(label_cvt* converter) {
  return converter->UserType() == User_timecode ? dynamic_cast<timecode_label*>(converter) : nullptr;
}

char const* timecode_label::type_str() const { return label_type_name(timecode_label_t); }
label_t timecode_label::type() const { return timecode_label_t; }
UserLabelType timecode_label::UserType() const { return User_timecode; }
bool timecode_label::isSpecialSlowTC() const { return (format_ & Format_slow_timecode) != 0; }
void timecode_label::build_template() { set_templates(shape_); }

int timecode_label::normalise_sample_unit(int sample) {
  int const day = samples_per_day_;
  if (day < 1 || (sample >= 0 && sample <= day)) return sample;

  int const rest = sample % day;
  if (sample > 0) return rest == 0 ? day : rest;
  return rest < 0 ? rest + day : 0;
}

int timecode_label::get_abs_hmsf(int sample, short& h, short& m, short& s, short& f) {
  bool second_field = false;
  sample_to_hmsf(sample, second_field);
  h = static_cast<short>(hours_);
  m = static_cast<short>(minutes_);
  s = static_cast<short>(seconds_);
  f = static_cast<short>(frames_);
  return frames_;
}

double timecode_label::get_V2tc(int samples) {
  broken("0", labelcvt_module);
  return samples / get_vid_fps(type());
}

int timecode_label::get_abs_sample(double seconds) {
  broken("0", labelcvt_module);
  return to_int(std::floor((seconds + 0.0001) * get_vid_fps(type())));
}

namespace {

// Into the day. Deliberate: one day is added once, so a sample further below zero stays negative, and its fields
// come out negative.
int wrap_day(int sample, int day) noexcept {
  if (sample < 0) sample = wrap_add(sample, day);
  return day > 0 && sample >= day ? sample % day : sample;
}

}  // namespace

void timecode_label::split(int label) noexcept {
  int const seconds = label / modulus_;
  hours_ = seconds / 3600;
  minutes_ = seconds / 60 % 60;
  seconds_ = seconds % 60;
  frames_ = label % modulus_;
}

void timecode_label::sample_to_hmsf(int sample, bool& second_field) {
  second_field = isSpecialSlowTC() && (sample & 1) != 0;
  if (isSpecialSlowTC()) sample /= 2;
  split(wrap_day(sample, samples_per_day_));
}

int timecode_label::hmsf_to_sample() {
  int const minutes = wrap_add(wrap_mul(hours_, 60), minutes_);
  int const seconds = wrap_add(wrap_mul(minutes, 60), seconds_);
  return wrap_add(wrap_mul(seconds, modulus_), frames_);
}

void ntsc_drop_label::sample_to_hmsf(int sample, bool& second_field) {
  second_field = false;
  sample = wrap_day(sample, drop_frame::day);
  if (sample >= 0) return split(drop_frame::label_number(sample));

  // More than a day below zero, only hours and tens of minutes are split off.
  int const in_tens = sample % drop_frame::ten_minutes;
  hours_ = sample / drop_frame::hour;
  minutes_ = sample % drop_frame::hour / drop_frame::ten_minutes * 10;
  seconds_ = in_tens / 30;
  frames_ = in_tens % 30;
}

int ntsc_drop_label::hmsf_to_sample() { return drop_frame::sample_of({hours_, minutes_, seconds_, frames_}); }
