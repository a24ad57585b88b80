// Reads any text and writes any sample with any label type. A label must read back as the sample of its frame.

#include <memory>

#include "fuzz/fuzz_input.h"
#include "labelsbase/labels.h"

extern int const fuzz_numbers = 2;

namespace {

// Whether the label of the sample names its frame. Past these limits, counts of film are ambiguous.
bool has_label(label_cvt& cvt, int sample) {
  int const keys = cvt.get_count_length() == 4 ? 10'000 : cvt.get_count_length() == 5 ? 100'000 : 1'000'000;
  switch (cvt.UserType()) {
    case User_timecode:
      return sample < dynamic_cast<timecode_label&>(cvt).samples_per_day();
    case User_keycode:  // the last two perforations of 3-perf film carry the key after the last
      return cvt.samples_per_unit() != 3 || sample < 64 * keys - 2;
    case User_feet:
      return sample >= 0 && sample < 4'000'000;  // a hundred thousand feet of 16 mm
    default:
      return cvt.UserType() != User_none;
  }
}

// Reads timecode as the C library would, field by field.
int read_as_sscanf_does(char const* text, int fps) {
  bool const negative = *text == '-';
  int h = 0, m = 0, s = 0, f = 0;
  char separator = 0;
  if (std::sscanf(text + negative, "%d:%d:%d%c%d", &h, &m, &s, &separator, &f) != 5)
    return negative ? labelsbase::unreadable_negative_sample : labelsbase::invalid_sample;
  auto const seconds = (static_cast<unsigned>(h) * 60 + static_cast<unsigned>(m)) * 60 + static_cast<unsigned>(s);
  auto const sum = seconds * static_cast<unsigned>(fps) + static_cast<unsigned>(f);
  return static_cast<int>(negative ? 0 - sum : sum);
}

}  // namespace

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  fuzz_input input{data, size};
  auto const type = static_cast<label_t>(input.number<std::uint32_t>() % numLabelCvts);
  int const sample = input.number();
  auto const text = input.rest();

  for (label_t const timecode : {pal_label_t, tc_240_label_t}) {
    auto& cvt = *get_static_label_cvt(timecode);
    demand(cvt.get_abs_sample(text.c_str()) == read_as_sscanf_does(text.c_str(), cvt.get_modulus()),
           "timecode is read as sscanf reads it", text);
  }
  std::unique_ptr<label_cvt> const cvt{make_any_label_cvt(type)};
  LabelPoint point{*cvt, 0};
  cvt->set_prefix(&point, text.c_str());
  (void)cvt->get_abs_sample_from_packed_string(text.c_str());
  (void)cvt->get_keep_sample(text.c_str());
  for (int const tried : {sample, cvt->get_abs_sample(text.c_str())}) {
    demand(std::strlen(cvt->get_abs_string(&point, tried)) <= LabelPoint::text_length, "a text fits its buffer",
           text);
    (void)cvt->get_keep_string(&point, tried);
    (void)cvt->get_perfs_string(&point, tried);
    (void)cvt->get_abs_perfs_string(&point, tried);
    (void)cvt->get_abs_smpte_string(&point, tried);

    int const normal = cvt->normalise_sample_unit(tried);
    if (labelsbase::is_special_sample(normal) || !has_label(*cvt, normal)) continue;
    int const unit = cvt->samples_per_unit();
    int const read = cvt->get_abs_sample(cvt->get_abs_string(&point, normal));
    demand(read == (unit == 3 ? normal : normal - normal % unit), "a label reads back", point.text);
  }
  return 0;
}
