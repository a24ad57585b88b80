#include "labelsbase/labelcvt/label_cvt.h"

#include "labelsbase/counts/integers.h"
#include "labelsbase/labelcvt/invalid_converter.h"
#include "labelsbase/samples.h"

using namespace labelsbase;

constinit std::atomic<int> label_cvt::howmany{1};

int label_cvt::get_samples_from_SMPTETc(unsigned&, bool&) { return 0; }
char const* label_cvt::get_abs_perfs_string(LabelPoint*, int) { return ""; }
void label_cvt::build_template() { set_templates(""); }

char const* label_cvt::get_invalid_string(LabelPoint* point, int sample) const noexcept {
  return (point ? point->label_template : label_template_).getInvalidString(sample);
}

void label_cvt::set_templates(char const* text) noexcept {
  label_template_.set(text);
  prefixless_template_ = label_template_;
}

namespace {

int sample_at(LabelPoint const* point, int offset) noexcept {
  return point ? wrap_add(offset, point->sample) : offset;
}

// Returns a field of two packed decimal digits, whose tens are masked with `tens_mask`.
constexpr int bcd_field(unsigned packed, unsigned tens_mask) noexcept {
  return static_cast<int>((packed & 15U) + ((packed >> 4) & tens_mask) * 10);
}

}  // namespace

char const* variable_label::type_str() const { return label_type_name(variable_label_t); }
label_t variable_label::type() const { return variable_label_t; }
UserLabelType variable_label::UserType() const { return User_none; }
bool variable_label::has_prefix() const { return false; }
int variable_label::get_prefix_length() const { return 0; }
int variable_label::get_count_length() const { return 0; }
int variable_label::get_modulus() const { return modulus_; }
int variable_label::samples_per_unit() const { return samples_per_unit_; }
char variable_label::getFrameSeparator() const { return separator_; }

char const* variable_label::get_string(LabelPoint* point, int offset) {
  return get_abs_string(point, sample_at(point, offset));
}

char const* variable_label::get_perfs_string(LabelPoint* point, int offset) {
  return get_abs_perfs_string(point, sample_at(point, offset));
}

unsigned variable_label::get_smpte_string(LabelPoint* point, int offset) {
  return get_abs_smpte_string(point, sample_at(point, offset));
}

// Frames above 39 do not fit the two bits of their tens: 50 and 60 frame timecode carries pairs of frames.
int variable_label::get_samples_from_SMPTETc(unsigned& packed, bool& drop) {
  int const frames = bcd_field(packed, 3);
  int const seconds = bcd_field(packed >> 8, 7);
  int const minutes = bcd_field(packed >> 16, 7);
  int const hours = bcd_field(packed >> 24, 3);
  drop = (packed & 0x40U) != 0;

  int const frames_per_count = modulus_ == 50 || modulus_ == 60 ? 2 : 1;
  int const total_seconds = hours * 3600 + minutes * 60 + seconds;
  return wrap_mul(wrap_add(wrap_mul(total_seconds, modulus_), frames * frames_per_count), samples_per_unit_);
}

int variable_label::get_sample(LabelPoint* point, char const* text) {
  return wrap_sub(get_abs_sample(text), sample_at(point, 0));
}

int variable_label::get_sample(LabelPoint* point, int offset) { return sample_at(point, offset); }
int variable_label::get_abs_sample_from_packed_string(char const*) { return invalid_sample; }
int variable_label::get_sample_span_from_packed_strings(char const*, char const*) { return invalid_sample; }
char const* variable_label::get_abs_string(LabelPoint*, int) { return ""; }
unsigned variable_label::get_abs_smpte_string(LabelPoint*, int) { return 0; }
int variable_label::get_abs_sample(char const*) { return 0; }
char const* variable_label::get_keep_string(LabelPoint* point, int sample) {
  return get_abs_string(point, sample);
}
int variable_label::get_keep_sample(char const* text) { return get_abs_sample(text); }
double variable_label::get_V2tc(int) { return invalid_posn; }
int variable_label::get_abs_sample(double) { return invalid_sample; }
void variable_label::build_template() {}
char const* variable_label::get_dummy_prefix() { return ""; }
char const* variable_label::get_prefix(LabelPoint const*) const { return ""; }
void variable_label::set_prefix(LabelPoint*, char const*) {}

char const* dummy_label::type_str() const { return label_type_name(dummy_label_t); }
label_t dummy_label::type() const { return dummy_label_t; }
UserLabelType dummy_label::UserType() const { return User_none; }
char const* dummy_label::get_string(LabelPoint*, int) { return "???"; }
char const* dummy_label::get_perfs_string(LabelPoint*, int) { return "??"; }  // Deliberate: one fewer.
unsigned dummy_label::get_smpte_string(LabelPoint*, int) { return 0; }
int dummy_label::get_sample(LabelPoint*, char const*) { return invalid_sample; }
int dummy_label::get_sample(LabelPoint*, int) { return invalid_sample; }
char const* dummy_label::get_abs_string(LabelPoint*, int) { return "???"; }
unsigned dummy_label::get_abs_smpte_string(LabelPoint*, int) { return 0; }
int dummy_label::get_abs_sample(char const*) { return invalid_sample; }
double dummy_label::get_V2tc(int) { return invalid_posn; }
int dummy_label::get_abs_sample(double) { return invalid_sample; }
void dummy_label::build_template() {}

constinit invalid_converter_storage labelsbase::invalid_converter;
