// Reads any text as a double. The answer must be that of strtod.

#include <cfloat>
#include <cmath>
#include <cstdlib>

#include "fuzz/fuzz_input.h"
#include "labelsbase/support/doubles.h"

extern int const fuzz_numbers = 0;

namespace {

bool are_same(double a, double b) noexcept {
  if (std::signbit(a) != std::signbit(b)) return false;
  return a == b || (std::isnan(a) && std::isnan(b));
}

// Some C libraries round hexadecimal digits beyond those of a subnormal the wrong way.
bool may_be_rounded(std::string const& text, double value) noexcept {
  return text.find_first_of("xX") != std::string::npos && std::abs(value) <= DBL_MIN;
}

}  // namespace

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  auto const text = fuzz_input{data, size}.rest();
  double const expected = std::strtod(text.c_str(), nullptr);
  double const read = labelsbase::read_double(text.c_str());
  demand(are_same(read, expected) || may_be_rounded(text, expected), "a double reads as strtod reads it", text);
  return 0;
}
