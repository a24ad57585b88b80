// Reads any text as a keep string and as a stored roll, and writes it again.

#include <cstdlib>

#include "fuzz/fuzz_input.h"
#include "labelsbase/labels.h"

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  fuzz_input input{data, size};
  int const offset = input.number();
  auto const text = input.rest();

  EditLabel label{text.c_str()};
  char kept[Label::keep_string_size];
  if (std::strlen(label.make_keep_string(kept)) >= sizeof kept) std::abort();
  (void)EditLabel{kept}.contains(label);
  (void)label.get_string(offset);
  (void)label.posn_to_sample(label.get_abs_posn_extrapolate(offset));
  label.fixup_pitch();

  MediumRoll roll{text.c_str()};
  (void)MediumRollId_to_UserString(roll.ident);
  return 0;
}
