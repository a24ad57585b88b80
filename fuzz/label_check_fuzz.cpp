// Runs the strict reader on any text. Any nearest label that it suggests must be accepted.

#include <cstdlib>

#include "fuzz/fuzz_input.h"
#include "labelcheck/label_check.h"

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  fuzz_input input{data, size};
  auto const type = static_cast<label_t>(input.number<std::uint32_t>() % numLabelCvts);
  auto const refused = labelcheck::check(type, input.rest());
  if (refused && !refused->nearest.empty() && labelcheck::check(type, refused->nearest)) std::abort();
  return 0;
}
