// Reads any text as a keep string and as a stored roll. A label must be kept again as it was read.

#include "fuzz/fuzz_input.h"
#include "labelsbase/labels.h"
#include "refhost/refhost.h"

extern int const fuzz_numbers = 1;

namespace {

void demand_roll(std::string const& text) {
  auto const before = refhost::allocator_statistics().live_blocks;
  {
    MediumRoll const roll{text.c_str()};
    auto const [medium, generation] = roll.ident;
    demand(medium == Medium_none || labelsbase::is_medium(medium), "a roll is on a medium", text);
    demand(generation >= Gen_unknown && generation <= Gen_4th, "a roll has a generation", text);
    demand(text.find(roll.reelid.c_str()) != std::string::npos, "the reel is in the text", text);
    (void)MediumRollId_to_UserString(roll.ident);
  }
  demand(refhost::allocator_statistics().live_blocks == before, "a roll gives its memory back", text);
}

}  // namespace

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  refhost::diagnostic_guard const silent{[](std::string_view) {}};
  fuzz_input input{data, size};
  int const offset = input.number();
  auto const text = input.rest();

  EditLabel label{text.c_str()};
  char kept[Label::keep_string_size], kept_again[Label::keep_string_size];
  auto const length = std::strlen(label.make_keep_string(kept));
  demand(length < sizeof kept, "a keep string fits its buffer", text);
  EditLabel again{kept};
  if (length + 1 < sizeof kept)
    demand(!std::strcmp(again.make_keep_string(kept_again), kept), "a label is kept as it was read", text);
  (void)again.contains(label);
  demand(std::strlen(label.get_string(offset)) <= LabelPoint::text_length, "a text fits its buffer", text);
  (void)label.posn_to_sample(label.get_abs_posn_extrapolate(offset));
  label.fixup_pitch();
  demand_roll(text);
  return 0;
}
