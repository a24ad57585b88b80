// Reads any text and writes any sample with any label type.

#include <cstdlib>
#include <memory>

#include "fuzz/fuzz_input.h"
#include "labelsbase/labels.h"

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  fuzz_input input{data, size};
  auto const type = static_cast<label_t>(input.number<std::uint32_t>() % numLabelCvts);
  int const sample = input.number();
  auto const text = input.rest();

  std::unique_ptr<label_cvt> const cvt{make_any_label_cvt(type)};
  LabelPoint point{*cvt, 0};
  cvt->set_prefix(&point, text.c_str());
  (void)cvt->get_abs_sample_from_packed_string(text.c_str());
  (void)cvt->get_keep_sample(text.c_str());
  for (int const tried : {sample, cvt->get_abs_sample(text.c_str())}) {
    if (std::strlen(cvt->get_abs_string(&point, tried)) > LabelPoint::text_length) std::abort();
    (void)cvt->get_keep_string(&point, tried);
    (void)cvt->get_perfs_string(&point, tried);
    (void)cvt->get_abs_smpte_string(&point, tried);

    // Timecode must read back every sample of its day that it writes.
    int const normal = cvt->normalise_sample_unit(tried);
    auto const* const timecode = dynamic_cast<timecode_label*>(cvt.get());
    if (timecode && normal < timecode->samples_per_day() &&
        cvt->get_abs_sample(cvt->get_abs_string(&point, normal)) != normal)
      std::abort();
  }
  return 0;
}
