// Runs the strict reader on any text. Any nearest label that it suggests must be accepted.

#include "fuzz/fuzz_input.h"
#include "labelcheck/label_check.h"
#include "labelsbase/labels.h"

extern int const fuzz_numbers = 1;

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  fuzz_input input{data, size};
  auto const type = static_cast<label_t>(input.number<std::uint32_t>() % numLabelCvts);
  auto const text = input.rest();
  auto const refused = labelcheck::check(type, text);
  if (!refused) {
    demand(get_static_label_cvt(type)->get_abs_sample(text.c_str()) != labelsbase::invalid_sample,
           "an accepted text is a label", text);
  } else {
    demand(refused->position <= text.size(), "a refusal points into the text", text);
    demand(refused->nearest.empty() || !labelcheck::check(type, refused->nearest), "the nearest label is one",
           text);
  }
  return 0;
}
