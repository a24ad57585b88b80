// Sums and differences of label points, and changes of their type.

#include <algorithm>
#include <cstring>
#include <string_view>

#include "labelsbase/counts/integers.h"
#include "labelsbase/labelcvt/label_cvt.h"
#include "labelsbase/labelcvt/label_point.h"
#include "labelsbase/labelcvt/registry.h"
#include "labelsbase/support/text.h"

using namespace labelsbase;

namespace {

// Key numbers of one gauge, by the digits of their count: the gauge's own, then 4, 5 and 6.
struct count_length_row {
  label_t types[4];
};

// clang-format off
constexpr count_length_row count_length_rows[] = {
    {{keycode_35_label_t,  keycode_35_label_4_t,  keycode_35_label_5_t,  keycode_35_label_6_t}},
    {{keycode_16_label_t,  keycode_16_label_4_t,  keycode_16_label_5_t,  keycode_16_label_6_t}},
    {{keycode_353_label_t, keycode_353_label_4_t, keycode_353_label_5_t, keycode_353_label_6_t}},
};
// clang-format on

// Returns the row of a type, or null for types whose count has one length only.
count_length_row const* count_lengths_of(label_t type) noexcept {
  auto const* const row = std::ranges::find_if(
      count_length_rows, [type](count_length_row const& r) { return std::ranges::count(r.types, type) != 0; });
  return row == std::end(count_length_rows) ? nullptr : row;
}

// Returns the samples of one step of the count's leading digits. Deliberate: one pair of numbers for all
// gauges, chosen by the shorter count alone.
constexpr int leading_digit(int shorter_count) noexcept { return shorter_count == 4 ? 640'000 : 6'400'000; }

// Returns a point of the converter of both, or the invalid point if their types differ.
LabelPoint point_of_both(LabelPoint const& a, LabelPoint const& b, int sample) {
  if (a.converter == b.converter || a.converter->type() == b.converter->type())
    return LabelPoint{*a.converter, sample};
  LabelPoint refused = invalid_label_point;
  refused.template_choice = true;
  return refused;
}

}  // namespace

LabelPoint LabelPoint::operator+(LabelPoint const& other) const {
  return point_of_both(*this, other, wrap_add(sample, other.sample));
}

LabelPoint LabelPoint::operator-(LabelPoint const& other) const {
  return point_of_both(*this, other, wrap_sub(sample, other.sample));
}

void LabelPoint::modify_type(label_t type) {
  auto const* const family = count_lengths_of(converter->type());
  if (!family || family != count_lengths_of(type) || !converter->has_prefix()) return;

  auto* const changed = get_static_label_cvt(type);
  int const old_digits = converter->get_count_length();
  int const new_digits = changed->get_count_length();
  if (old_digits == new_digits) return;

  if (old_digits < new_digits) {
    // The last characters of the prefix are the leading digits of the longer count. A prefix that ends before them
    // adds nothing.
    std::string_view const whole{prefix, strnlen(prefix, prefix_length)};
    auto const at = std::min(static_cast<std::size_t>(changed->get_prefix_length()), whole.size());
    char digits[prefix_length + 1];
    text_writer{digits}.put(whole.substr(at, static_cast<std::size_t>(new_digits - old_digits)));
    int const leading = text_reader{digits}.number().value_or(0);
    sample = wrap_add(sample, wrap_mul(leading, leading_digit(old_digits)));
  } else {
    sample %= leading_digit(new_digits);
  }
  converter = changed;
  label_template = changed->get_template(template_choice);
}

void LabelPoint::modify_count_length(int digits) {
  auto const* const family = count_lengths_of(converter->type());
  if (family && digits >= 4 && digits <= 6) modify_type(family->types[digits - 3]);
}
