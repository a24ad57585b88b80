#include "labelsbase/labelcvt/keycode.h"

#include <algorithm>
#include <cstring>

#include "labelsbase/labelcvt/film_columns.h"
#include "labelsbase/samples.h"
#include "labelsbase/support/text.h"

using namespace labelsbase;

namespace {

constexpr film_facts const& film_of(label_t type) noexcept {
  auto const& facts = facts_of(type);
  return facts.is_film() ? facts.film : facts_of(keycode_35_label_t).film;
}

constexpr unsigned digits_of(label_t type) noexcept {
  return static_cast<unsigned>(facts_of(type).film.count_digits);
}

}  // namespace

keycode_label::keycode_label(label_t gauge_type, unsigned count_digits)
    : prefix_label{film_of(gauge_type).gauge.frames_per_count(), film_of(gauge_type).gauge.perfs_per_frame(), 12},
      reports_perfs_{film_of(gauge_type).reports_perfs} {
  gauge_ = film_of(gauge_type).gauge;
  separator_ = film_of(gauge_type).separator;
  set_count_len(count_digits);
  dummy_prefix_ = facts_of(keycode_35_label_t).film.dummy_prefix;
  if (gauge_.has_whole_frames()) prefix_label::build_template();
}

char const* keycode_label::type_str() const { return label_type_name(keycode_label_t); }
label_t keycode_label::type() const { return keycode_label_t; }
UserLabelType keycode_label::UserType() const { return User_keycode; }
int keycode_label::normalise_sample_unit(int perfs) { return wrap_to_counts(perfs); }
int keycode_label::perfs_per_keyKode() const { return reports_perfs_ ? gauge_.perfs_per_count() : 1; }
int keycode_label::get_abs_sample_from_packed_string(char const* text) { return get_abs_sample(text); }

int keycode_label::get_sample_span_from_packed_strings(char const* from, char const* to) {
  int const start = get_abs_sample(from);
  return normalise_sample_unit(wrap_sub(get_abs_sample(to), start));
}

void keycode_label::get_counts(int perfs) { remember(gauge_.split(perfs)); }

int keycode_label::get_perf_offset(int perfs) { return perfs % gauge_.perfs_per_count(); }

int keycode_label::get_perfs() { return perfs_at({key_, frame_, perfs_left_}); }

int keycode_label::perfs_at(film_place const& at) const noexcept {
  return at.frame >= 0 && at.frame < gauge_.frames_per_count() ? gauge_.join(at) : invalid_sample;
}

char const* keycode_label::get_abs_string(LabelPoint* point, int perfs) {
  if (!fills_columns(point, perfs)) return write_any(point, perfs, separator_, false);
  auto const at = gauge_.split(perfs);
  remember(at);
  return write_columns(point, at.count, at.frame);
}

// A function of its own: labels that fill their columns need no stack.
[[gnu::noinline]] char const* keycode_label::write_any(LabelPoint* point, int perfs, char separator,
                                                       bool names_perforation) {
  if (is_special_sample(perfs)) return get_invalid_string(point, perfs);
  auto at = gauge_.split(perfs);
  if (is_settled()) {
    remember(at);
  } else {
    get_counts(perfs);
    at = {key_, frame_, perfs_left_};
  }
  return write_label(point, at.count, at.frame, separator, names_perforation ? at.perfs_left + 1 : 0);
}

char const* keycode_label::get_abs_perfs_string(LabelPoint* point, int perfs) {
  if (!point || is_special_sample(perfs)) return "";
  text_writer{point->text}.number(get_perf_offset(perfs), 2);
  return point->text;
}

int keycode_label::get_abs_sample(char const* text) {
  text = or_empty(text);
  return read_label(text, std::strlen(text), perfs_left_);
}

int keycode_label::read_label(char const* text, std::size_t length, int perfs_left) {
  film_place at{0, 0, perfs_left};
  if (!has_columns(length) || !read_count_and_frame(text + prefix_length_, static_cast<int>(count_length_), at))
    return read_any(text, length, perfs_left);
  key_ = at.count;
  frame_ = at.frame;
  return perfs_at(at);
}

[[gnu::noinline]] int keycode_label::read_any(char const* text, std::size_t length, int perfs_left) {
  if (length < prefix_length_) return invalid_sample;
  int const key = read_count(text, length, '_');
  if (key < 0) return invalid_sample;

  int frame = 0;
  auto const count_end = std::min(length, std::size_t{prefix_length_} + count_length_);
  if (count_end < length) {
    // The frame is one or two characters at the end, its first digit among the first 15 characters of the label.
    auto const* const digit = std::find_if(text + count_end, text + length, is_digit);
    auto const at = static_cast<std::size_t>(digit - text);
    if (at == length || at > 14 || length - at > 2) return invalid_sample;
    frame = text_reader{digit}.number(static_cast<int>(length - at)).value_or(0);
  }
  key_ = key;
  frame_ = frame;
  return is_settled() ? perfs_at({key, frame, perfs_left}) : get_perfs();
}

keycode_353::keycode_353(unsigned digits) : keycode_label{keycode_353_label_t, digits} {
  keycode_353::build_template();
}
keycode_353::~keycode_353() = default;

void keycode_353::build_template() {
  char frames[16];
  text_writer{frames}.number(typed_frames()).put(".3");
  set_count_templates(frames);
}

char const* keycode_353::get_abs_string(LabelPoint* point, int perfs) { return get_keep_string(point, perfs); }
int keycode_353::get_abs_sample(char const* text) { return get_keep_sample(text); }

char const* keycode_353::get_keep_string(LabelPoint* point, int perfs) {
  if (!fills_columns(point, perfs)) return write_any(point, perfs, '+', true);
  auto const at = gauge_.split(perfs);
  remember(at);
  return write_columns(point, at.count, at.frame, at.perfs_left + 1);
}

int keycode_353::get_keep_sample(char const* text) {
  text = or_empty(text);
  auto const length = strnlen(text, 63);
  if (length < 2 || !is_digit(text[length - 1])) return invalid_sample;
  int const perfs_left = text[length - 1] - '1';
  perfs_left_ = perfs_left;
  return read_label(text, length - 2, perfs_left);
}

// Constructors and destructors are defined here, so that the classes' tables of virtual functions are the
// library's alone.
// clang-format off
keycode_35::keycode_35(unsigned digits) : keycode_label{keycode_35_label_t, digits} {}
keycode_35::~keycode_35() = default;
keycode_16::keycode_16(unsigned digits) : keycode_label{keycode_16_label_t, digits} {}
keycode_16::~keycode_16() = default;
keycode_352::keycode_352(unsigned digits) : keycode_label{keycode_352_label_t, digits} {}
keycode_352::~keycode_352() = default;
keycode_358::keycode_358(unsigned digits) : keycode_label{keycode_358_label_t, digits} {}
keycode_358::~keycode_358() = default;
keycode_655_80::keycode_655_80(unsigned digits) : keycode_label{keycode_655_80_label_t, digits} {}
keycode_655_80::~keycode_655_80() = default;
keycode_658_80::keycode_658_80(unsigned digits) : keycode_label{keycode_658_80_label_t, digits} {}
keycode_658_80::~keycode_658_80() = default;
keycode_6510_80::keycode_6510_80(unsigned digits) : keycode_label{keycode_6510_80_label_t, digits} {}
keycode_6510_80::~keycode_6510_80() = default;
keycode_655_120::keycode_655_120(unsigned digits) : keycode_label{keycode_655_120_label_t, digits} {}
keycode_655_120::~keycode_655_120() = default;
keycode_658_120::keycode_658_120(unsigned digits) : keycode_label{keycode_658_120_label_t, digits} {}
keycode_658_120::~keycode_658_120() = default;
keycode_6510_120::keycode_6510_120(unsigned digits) : keycode_label{keycode_6510_120_label_t, digits} {}
keycode_6510_120::~keycode_6510_120() = default;
keycode_6515_120::keycode_6515_120(unsigned digits) : keycode_label{keycode_6515_120_label_t, digits} {}
keycode_6515_120::~keycode_6515_120() = default;

keycode_35_label::keycode_35_label() : concrete_label{digits_of(kind)} {}
keycode_35_label::~keycode_35_label() = default;
keycode_35_label_4::keycode_35_label_4() : concrete_label{digits_of(kind)} {}
keycode_35_label_4::~keycode_35_label_4() = default;
keycode_35_label_5::keycode_35_label_5() : concrete_label{digits_of(kind)} {}
keycode_35_label_5::~keycode_35_label_5() = default;
keycode_35_label_6::keycode_35_label_6() : concrete_label{digits_of(kind)} {}
keycode_35_label_6::~keycode_35_label_6() = default;
keycode_16_label::keycode_16_label() : concrete_label{digits_of(kind)} {}
keycode_16_label::~keycode_16_label() = default;
keycode_16_label_4::keycode_16_label_4() : concrete_label{digits_of(kind)} {}
keycode_16_label_4::~keycode_16_label_4() = default;
keycode_16_label_5::keycode_16_label_5() : concrete_label{digits_of(kind)} {}
keycode_16_label_5::~keycode_16_label_5() = default;
keycode_16_label_6::keycode_16_label_6() : concrete_label{digits_of(kind)} {}
keycode_16_label_6::~keycode_16_label_6() = default;
keycode_353_label::keycode_353_label() : concrete_label{digits_of(kind)} {}
keycode_353_label::~keycode_353_label() = default;
keycode_353_label_4::keycode_353_label_4() : concrete_label{digits_of(kind)} {}
keycode_353_label_4::~keycode_353_label_4() = default;
keycode_353_label_5::keycode_353_label_5() : concrete_label{digits_of(kind)} {}
keycode_353_label_5::~keycode_353_label_5() = default;
keycode_353_label_6::keycode_353_label_6() : concrete_label{digits_of(kind)} {}
keycode_353_label_6::~keycode_353_label_6() = default;
keycode_352_label::keycode_352_label() : concrete_label{digits_of(kind)} {}
keycode_352_label::~keycode_352_label() = default;
keycode_358_label::keycode_358_label() : concrete_label{digits_of(kind)} {}
keycode_358_label::~keycode_358_label() = default;
keycode_655_80_label::keycode_655_80_label() : concrete_label{digits_of(kind)} {}
keycode_655_80_label::~keycode_655_80_label() = default;
keycode_658_80_label::keycode_658_80_label() : concrete_label{digits_of(kind)} {}
keycode_658_80_label::~keycode_658_80_label() = default;
keycode_6510_80_label::keycode_6510_80_label() : concrete_label{digits_of(kind)} {}
keycode_6510_80_label::~keycode_6510_80_label() = default;
keycode_655_120_label::keycode_655_120_label() : concrete_label{digits_of(kind)} {}
keycode_655_120_label::~keycode_655_120_label() = default;
keycode_658_120_label::keycode_658_120_label() : concrete_label{digits_of(kind)} {}
keycode_658_120_label::~keycode_658_120_label() = default;
keycode_6510_120_label::keycode_6510_120_label() : concrete_label{digits_of(kind)} {}
keycode_6510_120_label::~keycode_6510_120_label() = default;
keycode_6515_120_label::keycode_6515_120_label() : concrete_label{digits_of(kind)} {}
keycode_6515_120_label::~keycode_6515_120_label() = default;
// clang-format on
