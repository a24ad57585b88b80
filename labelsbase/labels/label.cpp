#include "labelsbase/labels/label.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string_view>
#include <utility>

#include "host/current_project.h"
#include "labelsbase/counts/integers.h"
#include "labelsbase/labelcvt/label_cvt.h"
#include "labelsbase/labelcvt/label_facts.h"
#include "labelsbase/labelcvt/registry.h"
#include "labelsbase/support/text.h"

using namespace labelsbase;

Label::Label(label_t type)
    : start{*get_static_label_cvt(type), 0},
      length{default_label_length},
      pitch{get_natural_pitch(type)},
      bounded{1} {}

Label::Label(label_cvt& cvt) : start{cvt, 0}, length{default_label_length}, pitch{get_natural_pitch(cvt.type())} {}

Label::Label(LabelPoint const& point)
    : start{point}, length{default_label_length}, pitch{get_natural_pitch(point.converter->type())} {
  start.converter->set_prefix(&start, start.prefix);  // the copy is terminated, the other need not be
}

Label::Label(Label const& other)
    : start{other.start}, length{other.length}, pitch{other.pitch}, bounded{other.bounded} {}

Label::Label(Label&& other) noexcept
    : start{std::move(other.start)}, length{other.length}, pitch{other.pitch}, bounded{other.bounded} {}

Label& Label::operator=(Label const& other) {
  if (this == &other) return *this;
  copy_value(other);
  use_template();
  return *this;
}

// NOLINTNEXTLINE(performance-noexcept-move-constructor)
Label& Label::operator=(Label&& other) {
  if (this == &other) return *this;
  copy_value(other);
  start.label_template = std::move(other.start.label_template);  // nearly always the type's already
  use_template();
  return *this;
}

// Copies all but the revision and the template, to the shared converter of the type.
void Label::copy_value(Label const& other) {
  start.copy_value(other.start);
  start.converter = get_static_label_cvt(other.start.converter->type());
  length = other.length;
  pitch = other.pitch;
  bounded = other.bounded;
  start.converter->set_prefix(&start, other.get_string(0));
}

void Label::use_converter(label_t type) {
  start.converter = get_static_label_cvt(type);
  use_template();
}

void Label::use_template() { start.label_template = start.converter->get_template(start.template_choice); }

void Label::init() noexcept {
  revision = 1;
  pitch = 0.0;
  bounded = 0;
}

void Label::set_type(label_t type) {
  use_converter(type);
  pitch = get_natural_pitch(type);
}

void Label::set_prefix(char const* text) {
  if (start.converter->has_prefix()) start.converter->set_prefix(&start, text);
}

int Label::get_end() const noexcept { return wrap_add(start.sample, length); }
void Label::set_end(int sample) noexcept { length = wrap_sub(sample, start.sample); }

int Label::cmp(int offset) const noexcept {
  if (bounded == 0) return 0;
  if (offset > length || offset == invalid_sample) return past_end_sample;
  return offset < 0 ? before_start_sample : 0;
}

namespace {

bool lies_within(int offset, int length) noexcept { return offset >= 0 && offset <= length; }

// Returns the label's prefix, copied into the point's buffer: converters share theirs.
std::string_view prefix_of(LabelPoint& point) {
  auto const& cvt = *point.converter;
  char const* prefix = cvt.get_prefix(&point);
  text_writer out{point.text};
  for (int left = cvt.get_prefix_length(); left > 0 && *prefix; --left) out.put(*prefix++);
  return {out.c_str(), out.length()};
}

}  // namespace

bool Label::contains(int sample) const noexcept {
  return bounded == 0 || lies_within(wrap_sub(sample, start.sample), length);
}

bool Label::contains(Label const& other) const {
  // This label's prefix first: a converter that both share remembers it for a label without one.
  auto const prefix = prefix_of(start);
  LabelPoint their_start = other.start;
  if (!std::ranges::equal(prefix, prefix_of(their_start), {}, to_upper, to_upper)) return false;
  if (bounded == 0) return true;
  int const offset = wrap_sub(other.start.sample, start.sample);
  if (!lies_within(offset, length)) return false;
  return other.bounded == 0 || lies_within(wrap_add(offset, other.length), length);
}

int Label::get_sample(int sample) const noexcept {
  return contains(sample) ? wrap_sub(sample, start.sample) : invalid_sample;
}

LabelPoint Label::get_label_point(int offset) const {
  int const out_of_range = cmp(offset);
  if (out_of_range == 0) return get_unbounded_label_point(offset);
  LabelPoint point = start;
  point.sample = out_of_range;
  return point;
}

LabelPoint Label::get_unbounded_label_point(int offset) const {
  LabelPoint point = start;
  point.sample = point.converter->normalise_sample_unit(wrap_add(start.sample, offset));
  return point;
}

double Label::get_V2tc(int offset) const {
  auto& cvt = *start.converter;
  return cvt.get_V2tc(cvt.normalise_sample_unit(wrap_add(start.sample, offset)));
}

char const* Label::get_string(int offset) const {
  int const out_of_range = cmp(offset);
  if (out_of_range != 0) return out_of_range == past_end_sample ? ">>>>>>" : "<<<<<<";
  return start.converter->get_string(&start, offset);
}

char const* Label::get_perfs_string(int offset) const {
  int const out_of_range = cmp(offset);
  if (out_of_range != 0) return out_of_range == past_end_sample ? ">>" : "<<";
  return start.converter->get_perfs_string(&start, offset);
}

char const* Label::get_smpte_string(int offset) const {
  unsigned packed = 0;
  if (!get_smpte(offset, packed)) return nullptr;
  // NOLINTNEXTLINE(performance-no-int-to-ptr): the pointer is how hosts get the number
  return reinterpret_cast<char const*>(std::uintptr_t{packed});
}

bool Label::get_smpte(int offset, unsigned& packed) const {
  if (cmp(offset) != 0) return false;
  packed = start.converter->get_smpte_string(&start, offset);
  return true;
}

void Label::get_samples_from_SMPTETc(unsigned packed, bool& drop) const { (void)samples_from_SMPTE(packed, drop); }

int Label::samples_from_SMPTE(unsigned packed, bool& drop) const {
  return start.converter->get_samples_from_SMPTETc(packed, drop);
}

bool Label::operator==(Label const& other) const {
  return start == other.get_label_point(0) && get_label_point(length) == other.get_label_point(other.length);
}

double Label::sample_to_posn(int sample) const {
  if (sample == invalid_sample) return invalid_posn;
  return start.converter->normalise_sample_unit(sample) * pitch;
}

double Label::get_abs_posn(int offset) const {
  if (bounded != 0 && !lies_within(offset, length)) return invalid_posn;
  return get_abs_posn_extrapolate(offset);
}

double Label::get_abs_posn_extrapolate(int offset) const { return sample_to_posn(wrap_add(start.sample, offset)); }

namespace {

bool has_sample(double posn_seconds, double pitch) noexcept {
  return posn_seconds != invalid_posn && std::isfinite(posn_seconds) && std::isfinite(pitch) && pitch != 0.0;
}

// Returns the sample at a position. A negative position belongs to the sample before.
int sample_at(double posn_seconds, double pitch) noexcept {
  double const samples = posn_seconds / pitch;
  return to_int(posn_seconds < 0 ? samples - 1 : samples);
}

}  // namespace

int Label::posn_to_sample(double posn_seconds) const {
  if (!has_sample(posn_seconds, pitch)) return invalid_sample;
  double const tolerance = pitch / 250;
  double const unit = start.converter->samples_per_unit() * pitch;
  return sample_at(std::floor((posn_seconds + tolerance) / unit) * unit + tolerance, pitch);
}

int Label::abs_posn_to_sample(double posn_seconds) const {
  if (!has_sample(posn_seconds, pitch)) return invalid_sample;
  return sample_at(posn_seconds + pitch / 500, pitch);
}

// The host answers once for each of its speeds. A host that asks for a natural pitch while it answers gets the
// nominal one.
double Label::get_natural_pitch(label_t type) {
  thread_local bool is_asking_host = false;
  auto const& facts = facts_of(type);
  if (!facts.timecode.at_host_speed || is_asking_host) return 1.0 / facts.samples_per_second();

  is_asking_host = true;
  static double const pal_pitch = 1.0 / get_vid_fps(pal_label_t);
  static double const ntsc_pitch = 1.0 / get_vid_fps(ntsc_label_t);
  is_asking_host = false;
  return type == pal_label_t ? pal_pitch : ntsc_pitch;
}

Label const& get_invalid_label() {
  static Label const invalid{invalid_label_point};
  return invalid;
}

bool is_film_project() {
  auto const rate = Kiv::CurrentProject::getFrameRate();
  return rate == Kiv::FrameRate_24 || rate == Kiv::FrameRate_48;
}
