#include "labelsbase/labelcvt/label_point.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "labelsbase/counts/integers.h"
#include "labelsbase/labelcvt/invalid_converter.h"
#include "labelsbase/labelcvt/registry.h"
#include "labelsbase/labelcvt/timecode.h"

using namespace labelsbase;

namespace {

// Returns the converter as a timecode_label, or null if it is of another family.
timecode_label* timecode_of(label_cvt const& cvt) {
  return cvt.UserType() == User_timecode ? cvt.as_timecode() : nullptr;
}

}  // namespace

struct invalid_point_maker {
  static constexpr LabelPoint make() noexcept { return LabelPoint{&invalid_converter.converter}; }
};

constinit LabelPoint invalid_label_point = invalid_point_maker::make();

LabelPoint::LabelPoint() noexcept : LabelPoint{&invalid_converter.converter} {}

LabelPoint::LabelPoint(label_t type, int at_sample)
    : LabelPoint{is_label_type(type) ? *get_static_label_cvt(type) : invalid_converter.converter, at_sample} {}

LabelPoint::LabelPoint(label_cvt& cvt, int at_sample)
    : sample{cvt.normalise_sample_unit(at_sample)},
      converter{&cvt},
      label_template{cvt.get_template(template_choice)} {}

LabelPoint::LabelPoint(LabelPoint const& other) noexcept
    : converter{other.converter}, label_template{other.label_template} {
  copy_value(other);
}

LabelPoint::LabelPoint(LabelPoint&& other) noexcept
    : converter{other.converter}, label_template{std::move(other.label_template)} {
  copy_value(other);
}

LabelPoint& LabelPoint::operator=(LabelPoint const& other) noexcept {
  if (this == &other) return *this;
  copy_value(other);
  label_template = other.label_template;
  return *this;
}

LabelPoint& LabelPoint::operator=(LabelPoint&& other) noexcept {
  if (this == &other) return *this;
  copy_value(other);
  label_template = std::move(other.label_template);
  return *this;
}

// Terminates the prefix even if the other one lacks its terminator.
void LabelPoint::copy_value(LabelPoint const& other) noexcept {
  if (*prefix || *other.prefix) {  // few types have one: for the benchmark's row assign_point
    std::ranges::fill(prefix, '\0');
    std::memcpy(prefix, other.prefix, strnlen(other.prefix, prefix_length));
  }
  sample = other.sample;
  converter = other.converter;
  template_choice = other.template_choice;
}

void LabelPoint::init() noexcept {
  *this = LabelPoint{};
  text[0] = '\0';
}

char const* LabelPoint::get_string() { return converter->get_abs_string(this, sample); }

char const* LabelPoint::get_keep_string() { return converter->get_keep_string(this, sample); }

int LabelPoint::get_hmsf(short& h, short& m, short& s, short& f) {
  h = m = s = f = 0;
  auto* const timecode = timecode_of(*converter);
  return timecode ? timecode->get_abs_hmsf(sample, h, m, s, f) : 0;
}

bool LabelPoint::operator==(LabelPoint const& other) const {
  if (converter->type() != other.converter->type() || sample != other.sample) return false;
  return !converter->has_prefix() || std::strncmp(prefix, other.prefix, prefix_length) == 0;
}

void LabelPoint::constrain_positive() {
  auto const* const timecode = timecode_of(*converter);
  if (timecode && sample < 0) sample = wrap_add(sample, timecode->samples_per_day());
}

void LabelPoint::removePadding() {
  if (sample < 0) return;
  char const* const shape = label_template.text();
  label_template = LabelTemplate{shape + (*shape == '-')};
}
