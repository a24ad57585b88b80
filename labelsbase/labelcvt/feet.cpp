#include "labelsbase/labelcvt/feet.h"

#include <algorithm>

#include "labelsbase/labelcvt/film_columns.h"
#include "labelsbase/samples.h"
#include "labelsbase/support/text.h"

using namespace labelsbase;

namespace {

constexpr film_gauge three_perf = facts_of(foot_353_label_t).film.gauge;

bool has_sign_column(LabelPoint const& point) noexcept { return *point.label_template.text() == '-'; }

char const* behind_blanks(char const* text) noexcept {
  text = or_empty(text);
  while (is_blank(*text)) ++text;
  return text;
}

// Reads feet and frames of any text behind its sign.
film_place read_any_place(char const* text) noexcept {
  // Deliberate: passes over a number that begins right here, so one behind a blank is read twice.
  text_reader in{text};
  auto const feet = in.number();
  if (feet && !is_blank(*text)) text = in.rest();
  if (*text) ++text;
  return {feet.value_or(0), text_reader{text}.number().value_or(0), 0};
}

}  // namespace

foot_label::foot_label(int frames_per_foot, int perfs_per_frame, int feet_digits)
    : variable_label{std::max(frames_per_foot, 1), perfs_per_frame},
      feet_digits_{feet_digits},
      perfs_per_frame_{std::max(perfs_per_frame, 1)},
      gauge_{film_gauge::of_whole_frames(perfs_per_frame, frames_per_foot)} {
  foot_label::build_template();
}

foot_label::foot_label(label_t type)
    : foot_label{facts_of(type).film.gauge.frames_per_count(), facts_of(type).film.gauge.perfs_per_frame(),
                 facts_of(type).film.count_digits} {}

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
  return static_cast<int>(powers_of_ten<unsigned>[static_cast<std::size_t>(std::clamp(feet_digits_, 0, 8)) + 1]);
}

bool foot_label::fills_columns(film_place const& at) const noexcept {
  return feet_digits_ > 0 && feet_digits_ < 10 &&
         static_cast<unsigned>(at.count) < powers_of_ten<unsigned>[static_cast<std::size_t>(feet_digits_)] &&
         static_cast<unsigned>(at.frame) < 100;
}

char const* foot_label::get_abs_string(LabelPoint* point, int perfs) {
  return is_special_sample(perfs) ? get_invalid_string(point, perfs) : samples_to_feet(point, perfs);
}

int foot_label::get_abs_sample(char const* text) { return feet_to_samples(text); }

char const* foot_label::samples_to_feet(LabelPoint* point, int perfs) {
  if (!point || !has_own_gauge()) return write_any(point, perfs);
  auto const at = gauge_.split_whole_frames(wrap_magnitude(perfs));
  if (!fills_columns(at)) return write_any(point, perfs);
  int const digits = feet_digits_;
  char* out = point->text;
  if (has_sign_column(*point)) *out++ = perfs < 0 ? '-' : ' ';
  *put_count_and_frame(out, at.count, digits, '+', at.frame) = '\0';
  return point->text;
}

// A function of its own: labels that fill their columns need no stack.
[[gnu::noinline]] char const* foot_label::write_any(LabelPoint* point, int perfs) const {
  if (!point) return "";
  auto [feet, frame, perfs_left] =
      film_gauge::of_whole_frames(perfs_per_frame_, modulus_).split(wrap_magnitude(perfs));
  if (int const limit = feet_limit(); feet >= limit) feet -= limit;
  text_writer out{point->text};
  if (has_sign_column(*point)) out.put(perfs < 0 ? '-' : ' ');
  out.number(feet, feet_digits_).put('+').number(frame, 2);
  return point->text;
}

int foot_label::feet_to_samples(char const* text) {
  text = behind_blanks(text);
  film_place at{};
  if (!read_count_and_frame(text, 4, at) || is_digit(text[7])) return read_any(text);
  return join(at);
}

// A function of its own: labels that fill their columns need no stack.
[[gnu::noinline]] int foot_label::read_any(char const* text) const noexcept {
  bool const negative = *text == '-';
  int const perfs = join(read_any_place(text + negative));
  return negative ? wrap_negate(perfs) : perfs;
}

int foot_label::join(film_place const& at) const noexcept {
  return wrap_mul(wrap_add(wrap_mul(at.count, modulus_), at.frame), perfs_per_frame_);
}

char const* foot_353_label::samples_to_feet(LabelPoint* point, int perfs) {
  if (!point) return "";
  auto const at = three_perf.split(wrap_magnitude(perfs));
  int const limit = feet_limit();
  int const feet = at.count > limit ? at.count - limit : at.count;  // deliberate: only feet above the limit
  feet_ = feet;
  frame_ = at.frame;
  remainder_ = at.perfs_left;

  text_writer out{point->text};
  out.put(perfs < 0 ? '-' : ' ').number(feet, feet_digits_).put('+').number(at.frame, 2);
  out.put('.').number(at.perfs_left + 1);
  return point->text;
}

int foot_353_label::feet_to_samples(char const* text) {
  text = behind_blanks(text);
  bool const negative = *text == '-';
  char label[64];
  text_writer out{label};
  out.put(text + negative);

  char const last = out.length() > 0 ? label[out.length() - 1] : '\0';
  auto at = read_any_place(label);
  at.perfs_left = is_digit(last) ? last - '1' : 0;
  remainder_ = at.perfs_left;
  int const perfs = three_perf.join(at);
  return negative ? wrap_negate(perfs) : perfs;
}

foot_35_label::foot_35_label() : concrete_label{kind} { foot_35_label::build_template(); }
foot_35_label::~foot_35_label() = default;
void foot_35_label::build_template() { set_shape(".19"); }

foot_16_label::foot_16_label() : concrete_label{kind} { foot_16_label::build_template(); }
foot_16_label::~foot_16_label() = default;
void foot_16_label::build_template() { set_shape(".39"); }

foot_353_label::foot_353_label() : concrete_label{kind} { foot_353_label::build_template(); }
foot_353_label::~foot_353_label() = default;
void foot_353_label::build_template() { set_shape("+29.3"); }
