#include "labelsbase/labelcvt/ink.h"

#include <algorithm>
#include <cstring>

#include "labelsbase/labelcvt/film_columns.h"
#include "labelsbase/samples.h"
#include "labelsbase/support/text.h"

using namespace labelsbase;

namespace {

// An ink number of 11 characters. A shorter text gets up to 4 zeros in front; a longer one loses its middle.
class ink_text {
 public:
  explicit ink_text(char const* text) noexcept : ink_text{text, std::strlen(text)} {}

  ink_text(char const* text, std::size_t length) noexcept {
    text_writer out{text_};
    if (length < whole) {
      for (auto zeros = std::min<std::size_t>(whole - length, prefix); zeros > 0; --zeros) out.put('0');
      out.put(text);
    } else if (length > whole) {
      for (std::size_t i = 0; i < prefix; ++i) out.put(text[i]);
      out.put(text + length - rest);
    } else {
      out.put(text);
    }
    length_ = out.length();
  }

  [[nodiscard]] char const* c_str() const noexcept { return text_; }
  [[nodiscard]] std::size_t length() const noexcept { return length_; }

 private:
  static constexpr std::size_t whole = 11, prefix = 4, rest = 7;

  char text_[whole + 1];
  std::size_t length_;
};

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
  int count = 0;
  int frame = 0;
  if (!has_columns(length) ||
      !read_count_and_frame(text + prefix_length_, static_cast<int>(count_length_), count, frame))
    return read_any(text, length);
  return frame < modulus_ ? gauge_.join({count, frame, 0}) : invalid_sample;
}

[[gnu::noinline]] int ink_label::read_any(char const* text, std::size_t text_length) {
  ink_text const label{text, text_length};
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
  prefix_label::set_prefix(point, ink_text{or_empty(text)}.c_str());
}

ink_35_label::ink_35_label() : concrete_label{frames_of(kind), perfs_of(kind)} {}
ink_35_label::~ink_35_label() = default;

ink_16_label::ink_16_label() : concrete_label{frames_of(kind), perfs_of(kind)} {}
ink_16_label::~ink_16_label() = default;
