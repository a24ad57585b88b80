// Reads any text and writes any sample with any label type. Texts must be read as sscanf reads them; a label must
// be read back as the sample of its frame, by the strict reader too.

#include <algorithm>
#include <memory>

#include "fuzz/fuzz_input.h"
#include "labelcheck/range.h"
#include "labelcheck/read.h"
#include "labelsbase/characters.h"
#include "labelsbase/labels.h"

extern int const fuzz_words = 2;

namespace {

// Whether the label of the sample names its frame. Past these limits, counts of film are ambiguous.
bool has_label(label_cvt& cvt, int sample) {
  int const keys = cvt.get_count_length() == 4 ? 10'000 : cvt.get_count_length() == 5 ? 100'000 : 1'000'000;
  switch (cvt.UserType()) {
    case User_timecode:
      return sample < cvt.as_timecode()->samples_per_day();
    case User_keycode:  // the last two perforations of 3-perf film carry the key after the last
      return cvt.samples_per_unit() != 3 || sample < 64 * keys - 2;
    case User_feet:
      return sample >= 0 && sample < 4'000'000;  // a hundred thousand feet of 16 mm
    default:
      return cvt.UserType() != User_none;
  }
}

// Returns the low 32 bits of the sample of these fields.
int sample_of(std::int64_t h, std::int64_t m, std::int64_t s, std::int64_t f, int fps) {
  return static_cast<int>(((h * 60 + m) * 60 + s) * fps + f);
}

// Read as the C library would, field by field.
int timecode_by_sscanf(char const* text, int fps) {
  bool const negative = *text == '-';
  int h = 0, m = 0, s = 0, f = 0;
  char separator = 0;
  if (std::sscanf(text + negative, "%d:%d:%d%c%d", &h, &m, &s, &separator, &f) != 5)
    return negative ? labelsbase::unreadable_negative_sample : labelsbase::invalid_sample;
  int const sample = sample_of(h, m, s, f, fps);
  return negative ? labelsbase::wrap_negate(sample) : sample;
}

int packed_by_sscanf(char const* text, int fps) {
  int h = 0, m = 0, s = 0, f = 0;
  bool const is_read = std::sscanf(text, fps < 101 ? "%2d%2d%2d%2d" : "%2d%2d%2d%3d", &h, &m, &s, &f) == 4;
  return is_read ? sample_of(h, m, s, f, fps) : labelsbase::invalid_sample;
}

void demand_read_as_sscanf_does(char const* text) {
  for (label_t const type : {pal_label_t, tc_240_label_t}) {
    auto& cvt = *get_static_label_cvt(type);
    int const fps = cvt.get_modulus();
    demand(cvt.get_abs_sample(text) == timecode_by_sscanf(text, fps), "timecode is read as sscanf reads it", text);
    demand(cvt.get_abs_sample_from_packed_string(text) == packed_by_sscanf(text, fps),
           "packed timecode is read as sscanf reads it", text);
  }
  int frames = labelsbase::invalid_sample;
  std::sscanf(text, "%d", &frames);
  demand(get_static_label_cvt(film_frames_label_t)->get_abs_sample(text) == frames,
         "film frames are read as sscanf reads them", text);
}

// Demands that the label of a sample is its sample's alone, whoever reads it.
void demand_read_back(label_cvt& cvt, LabelPoint& point, int sample) {
  std::string const text = cvt.get_abs_string(&point, sample);
  int const unit = cvt.samples_per_unit();
  int const read = cvt.get_abs_sample(text.c_str());
  demand(read == (unit == 3 ? sample : sample - sample % unit), "a label is read back", text);

  auto const strict = labelcheck::read(cvt.type(), text);
  auto const* const reading = std::get_if<labelcheck::reading>(&strict);
  std::string_view const prefix = cvt.get_prefix(&point);
  bool const is_strict =
      labelcheck::range_of(cvt.type()).has_label(sample) && std::ranges::all_of(prefix, labelsbase::is_printable);
  demand(reading || !is_strict, "the strict reader accepts what is written", text);
  demand(!reading || reading->sample == read, "both readers read the same sample", text);

  if (cvt.UserType() != User_timecode || cvt.isSpecialSlowTC() || cvt.get_modulus() > 40) return;
  char packed[16];
  std::snprintf(packed, sizeof packed, "%08x", cvt.get_abs_smpte_string(&point, sample) & ~0x40U);
  demand(cvt.get_abs_sample_from_packed_string(packed) == sample, "packed timecode is read back", text);
}

void demand_written(label_cvt& cvt, LabelPoint& point, int sample) {
  int const before = point.sample;
  std::string const text = cvt.get_abs_string(&point, sample);
  demand(text.size() <= LabelPoint::text_length, "a text fits its buffer", text);
  for (char const* other : {cvt.get_keep_string(&point, sample), cvt.get_perfs_string(&point, sample),
                            cvt.get_abs_perfs_string(&point, sample), cvt.get_string(&point, sample)})
    demand(std::strlen(other) <= LabelPoint::text_length, "a text fits its buffer", other);
  (void)cvt.get_abs_smpte_string(&point, sample);
  demand(text == cvt.get_abs_string(&point, sample), "a sample is written the same twice", text);
  demand(point.sample == before && point.converter == &cvt, "a point keeps its value", text);

  int const normal = cvt.normalise_sample_unit(sample);
  if (!labelsbase::is_special_sample(normal) && has_label(cvt, normal)) demand_read_back(cvt, point, normal);
}

}  // namespace

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  fuzz_input input{data, size};
  auto const type = input.type();
  int const sample = input.number();
  auto const& text = input.text();
  demand_read_as_sscanf_does(text.c_str());

  std::unique_ptr<label_cvt> const cvt{make_any_label_cvt(type)};
  LabelPoint point{*cvt, 0};
  cvt->set_prefix(&point, text.c_str());
  int const read = cvt->get_abs_sample(text.c_str());
  (void)cvt->get_abs_sample_from_packed_string(text.c_str());
  (void)cvt->get_keep_sample(text.c_str());
  demand(cvt->get_abs_sample(text.c_str()) == read, "a text reads the same twice", text);
  for (int const tried : {sample, read}) demand_written(*cvt, point, tried);
  return 0;
}
