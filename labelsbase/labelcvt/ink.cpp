#include "labelsbase/labelcvt/ink.h"

#include <algorithm>
#include <cstring>
#include <string_view>

#include "labelsbase/labelcvt/film_columns.h"
#include "labelsbase/samples.h"
#include "labelsbase/support/text.h"

using namespace labelsbase;

namespace {

// The text of an ink number: a prefix of 4 characters, 4 digits, a separator and 2 digits of frames.
using ink_text = char[11 + 1];

// Writes an ink number of full length. A shorter text gets up to 4 zeros in front; a longer one loses its middle.
text_writer write_whole(ink_text& label, std::string_view text) noexcept {
  constexpr std::size_t prefix = 4, rest = 7, whole = prefix + rest;
  text_writer out{label};
  if (text.size() > whole) return out.put(text.substr(0, prefix)).put(text.substr(text.size() - rest));
  for (auto zeros = std::min(whole - text.size(), prefix); zeros > 0; --zeros) out.put('0');
  return out.put(text);
}

constexpr int frames_of(label_t type) noexcept { return facts_of(type).film.gauge.frames_per_count(); }
constexpr int perfs_of(label_t type) noexcept { return facts_of(type).film.gauge.perfs_per_frame(); }

}  // namespace

ink_label::ink_label(int frames_per_count, int perfs_per_frame)
    : prefix_label{std::max(frames_per_count, 1), std::max(perfs_per_frame, 1), 8} {
  set_count_len(4);
  dummy_prefix_ = facts_of(ink_35_label_t).film.dummy_prefix;
  ink_label::build_template();
}

char const* ink_label::type_str() const { return label_type_name(ink_label_t); }
label_t ink_label::type() const { return ink_label_t; }
UserLabelType ink_label::UserType() const { return User_ink; }
int ink_label::normalise_sample_unit(int perfs) { return wrap_to_counts(perfs); }

film_gauge ink_label::gauge() const { return film_gauge::of_whole_frames(samples_per_unit(), modulus_); }

void ink_label::get_counts(int perfs) { remember(gauge().split(perfs)); }

char const* ink_label::get_abs_string(LabelPoint* point, int perfs) {
  if (!fills_columns(point, perfs)) return write_any(point, perfs);
  auto const at = gauge_.split(perfs);
  remember(at);
  return write_columns(point, at.count, at.frame);
}

[[gnu::noinline]] char const* ink_label::write_any(LabelPoint* point, int perfs) {
  if (is_special_sample(perfs)) return get_invalid_string(point, perfs);
  if (is_settled()) {
    auto const at = gauge_.split(perfs);
    remember(at);
    return write_label(point, at.count, at.frame, separator_);
  }
  get_counts(perfs);
  return write_label(point, count_, frame_, separator_);
}

int ink_label::get_abs_sample(char const* text) {
  text = or_empty(text);
  auto const length = std::strlen(text);
  film_place at{};
  if (!has_columns(length) || !read_count_and_frame(text + prefix_length_, static_cast<int>(count_length_), at))
    return read_any(text);
  return at.frame < modulus_ ? gauge_.join(at) : invalid_sample;
}

[[gnu::noinline]] int ink_label::read_any(char const* text) {
  ink_text buffer;
  auto const label = write_whole(buffer, text);
  int const count = read_count(label.c_str(), label.length(), '\0');
  if (count < 0) return invalid_sample;

  int frame = 0;
  auto const count_end = std::size_t{prefix_length_} + count_length_;
  if (label.length() > count_end) {
    if (label.length() - count_end > 3) return invalid_sample;  // a separator and two digits
    frame = text_reader{label.c_str() + count_end + 1}.number().value_or(0);
  }
  if (frame < 0 || frame >= modulus_) return invalid_sample;
  return gauge().join({count, frame, 0});
}

void ink_label::build_template() {
  char frames[16];
  text_writer{frames}.number(typed_frames());
  set_count_templates(frames);
}

void ink_label::set_prefix(LabelPoint* point, char const* text) {
  ink_text label;
  prefix_label::set_prefix(point, write_whole(label, or_empty(text)).c_str());
}

ink_35_label::ink_35_label() : concrete_label{frames_of(kind), perfs_of(kind)} {}
ink_35_label::~ink_35_label() = default;

ink_16_label::ink_16_label() : concrete_label{frames_of(kind), perfs_of(kind)} {}
ink_16_label::~ink_16_label() = default;
