#include "labelsbase/labelcvt/keycode.h"

#include <algorithm>
#include <cstring>

#include "labelsbase/labelcvt/gauge_rows.h"
#include "labelsbase/labelcvt/three_perf.h"
#include "labelsbase/samples.h"
#include "labelsbase/support/text.h"

using namespace labelsbase;

keycode_label::keycode_label(film_gauge gauge, unsigned count_digits)
    : prefix_label{gauge_row_of(gauge).frames_per_key, gauge_row_of(gauge).perfs_per_frame, 12},
      gauge_{&gauge_row_of(gauge)} {
  separator_ = gauge_->separator;
  set_count_len(count_digits);
  dummy_prefix_ = "XX000000";
  prefix_label::build_template();
}

char const* keycode_label::type_str() const { return label_type_name(keycode_label_t); }
label_t keycode_label::type() const { return keycode_label_t; }
UserLabelType keycode_label::UserType() const { return User_keycode; }
int keycode_label::normalise_sample_unit(int perfs) { return wrap_to_counts(perfs); }
int keycode_label::perfs_per_keyKode() const { return gauge_->reported_perfs_per_key; }
int keycode_label::get_abs_sample_from_packed_string(char const* text) { return get_abs_sample(text); }

int keycode_label::get_sample_span_from_packed_strings(char const* from, char const* to) {
  int const start = get_abs_sample(from);
  return normalise_sample_unit(wrap_sub(get_abs_sample(to), start));
}

void keycode_label::get_counts(int perfs) {
  key_ = perfs / gauge_->perfs_per_key;
  frame_ = perfs % gauge_->perfs_per_key / gauge_->perfs_per_frame;
}

int keycode_label::get_perf_offset(int perfs) { return perfs % gauge_->perfs_per_key; }

bool keycode_label::has_frame() const noexcept { return frame_ >= 0 && frame_ <= gauge_->last_frame; }

int keycode_label::get_perfs() {
  if (!has_frame()) return invalid_sample;
  return wrap_add(wrap_mul(key_, gauge_->perfs_per_key), frame_ * gauge_->perfs_per_frame);
}

char const* keycode_label::get_abs_string(LabelPoint* point, int perfs) {
  if (is_special_sample(perfs)) return get_invalid_string(point, perfs);
  get_counts(perfs);
  return write_label(point, key_, frame_, separator_);
}

char const* keycode_label::get_abs_perfs_string(LabelPoint* point, int perfs) {
  if (!point || is_special_sample(perfs)) return "";
  text_writer{point->text}.number(get_perf_offset(perfs), 2);
  return point->text;
}

int keycode_label::get_abs_sample(char const* text) {
  text = or_empty(text);
  auto const length = std::strlen(text);
  if (length < prefix_length_) return invalid_sample;
  key_ = read_count(text, length, '_');
  if (key_ < 0) return invalid_sample;

  frame_ = 0;
  auto const count_end = std::min(length, std::size_t{prefix_length_} + count_length_);
  if (count_end < length) {
    // The frame is one or two characters at the end, its first digit among the first 15 characters of the label.
    auto const* const digit = std::find_if(text + count_end, text + length, is_digit);
    auto const at = static_cast<std::size_t>(digit - text);
    if (at == length || at > 14 || length - at > 2) return invalid_sample;
    frame_ = text_reader{digit}.number().value_or(0);
  }
  return get_perfs();
}

keycode_353::keycode_353(unsigned digits) : keycode_label{film_gauge::g35_3perf, digits} {
  keycode_353::build_template();
}

void keycode_353::build_template() {
  char frames[16];
  text_writer{frames}.number(typed_frames()).put(".3");
  set_count_templates(frames);
}

void keycode_353::get_counts(int perfs) {
  auto const at = three_perf::place_of(perfs);
  key_ = at.key;
  frame_ = at.frame;
  remainder_ = at.remainder;
}

int keycode_353::get_perfs() {
  return has_frame() ? three_perf::perfs_of({key_, frame_, remainder_}) : invalid_sample;
}

char const* keycode_353::get_abs_string(LabelPoint* point, int perfs) { return get_keep_string(point, perfs); }
int keycode_353::get_abs_sample(char const* text) { return get_keep_sample(text); }

char const* keycode_353::get_keep_string(LabelPoint* point, int perfs) {
  if (is_special_sample(perfs)) return get_invalid_string(point, perfs);
  get_counts(perfs);
  return write_label(point, key_, frame_, '+', remainder_ + 1);
}

int keycode_353::get_keep_sample(char const* text) {
  char label[64];
  text_writer out{label};
  out.put(or_empty(text));
  auto const length = out.length();
  if (length < 2 || !is_digit(label[length - 1])) return invalid_sample;

  remainder_ = label[length - 1] - '0' - 1;
  label[length - 2] = '\0';
  return keycode_label::get_abs_sample(label);
}
