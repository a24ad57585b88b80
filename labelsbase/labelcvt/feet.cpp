#include "labelsbase/labelcvt/feet.h"

#include <algorithm>

#include "labelsbase/labelcvt/three_perf.h"
#include "labelsbase/samples.h"
#include "labelsbase/support/text.h"

using namespace labelsbase;

foot_label::foot_label(int frames_per_foot, int perfs_per_frame, int feet_digits)
    : variable_label{std::max(frames_per_foot, 1), perfs_per_frame},
      feet_digits_{feet_digits},
      perfs_per_frame_{std::max(perfs_per_frame, 1)} {
  foot_label::build_template();
}

char const* foot_label::type_str() const { return label_type_name(foot_label_t); }
label_t foot_label::type() const { return foot_label_t; }
UserLabelType foot_label::UserType() const { return User_feet; }
void foot_label::build_template() { set_templates(""); }

void foot_label::set_shape(char const* frames) noexcept {
  char shape[32];
  text_writer out{shape};
  out.put('-');
  for (int i = 0; i < std::min(feet_digits_, 16); ++i) out.put('9');
  set_templates(out.put(frames).c_str());
}

int foot_label::feet_limit() const noexcept {
  int limit = 10;
  for (int i = 0; i < std::clamp(feet_digits_, 0, 8); ++i) limit *= 10;
  return limit;
}

char const* foot_label::get_abs_string(LabelPoint* point, int perfs) {
  return is_special_sample(perfs) ? get_invalid_string(point, perfs) : samples_to_feet(point, perfs);
}

int foot_label::get_abs_sample(char const* text) { return feet_to_samples(text); }

char const* foot_label::samples_to_feet(LabelPoint* point, int perfs) {
  if (!point) return "";
  int frames = wrap_magnitude(perfs) / perfs_per_frame_;
  auto const limit = std::int64_t{feet_limit()} * modulus_;
  if (frames >= limit) frames = static_cast<int>(frames - limit);

  text_writer out{point->text};
  if (*point->label_template.text() == '-') out.put(perfs < 0 ? '-' : ' ');
  out.number(frames / modulus_, feet_digits_).put('+').number(frames % modulus_, 2);
  return point->text;
}

// Deliberate: the digits that are passed over begin where the number was looked for, so after a blank or a second
// sign none are.
foot_label::parts foot_label::read_parts(char const* text) noexcept {
  while (is_blank(*text)) ++text;
  bool const negative = *text == '-';
  text += negative;

  int const feet = text_reader{text}.number().value_or(0);
  while (is_digit(*text)) ++text;
  if (*text) ++text;
  return {negative, feet, text_reader{text}.number().value_or(0)};
}

int foot_label::feet_to_samples(char const* text) {
  auto const [negative, feet, frames] = read_parts(or_empty(text));
  int const perfs = wrap_mul(wrap_add(wrap_mul(feet, modulus_), frames), perfs_per_frame_);
  return negative ? wrap_negate(perfs) : perfs;
}

foot_35_label::foot_35_label() : concrete_label{16, 4, 4} { foot_35_label::build_template(); }
void foot_35_label::build_template() { set_shape(".19"); }

foot_16_label::foot_16_label() : concrete_label{40, 1, 4} { foot_16_label::build_template(); }
void foot_16_label::build_template() { set_shape(".39"); }

foot_353_label::foot_353_label() : concrete_label{22, 3, 4} { foot_353_label::build_template(); }
void foot_353_label::build_template() { set_shape("+29.3"); }

char const* foot_353_label::samples_to_feet(LabelPoint* point, int perfs) {
  if (!point) return "";
  auto const at = three_perf::place_of(wrap_magnitude(perfs));
  feet_ = at.key > feet_limit() ? at.key - feet_limit() : at.key;  // deliberate: only feet above the limit
  frame_ = at.frame;
  remainder_ = at.remainder;

  text_writer out{point->text};
  out.put(perfs < 0 ? '-' : ' ').number(feet_, feet_digits_).put('+').number(frame_, 2);
  out.put('.').number(remainder_ + 1);
  return point->text;
}

int foot_353_label::feet_to_samples(char const* text) {
  text = or_empty(text);
  while (is_blank(*text)) ++text;
  char label[65];  // a sign and 63 characters
  text_writer out{label, *text == '-' ? sizeof label : sizeof label - 1};
  out.put(text);

  char const last = out.length() > 0 ? label[out.length() - 1] : '\0';
  remainder_ = is_digit(last) ? last - '1' : 0;
  auto const [negative, feet, frames] = read_parts(label);
  int const perfs = three_perf::perfs_of({feet, frames, remainder_});
  return negative ? wrap_negate(perfs) : perfs;
}
