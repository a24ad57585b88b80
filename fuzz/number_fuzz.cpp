// Reads any text as a double and as a whole number. The answers must be those of strtod and sscanf.

#include <cfloat>
#include <climits>
#include <cmath>
#include <cstdlib>

#include "fuzz/fuzz_input.h"
#include "labelsbase/support/doubles.h"
#include "labelsbase/support/text.h"

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

void demand_whole_number(std::string const& text, char const* format, int width) {
  int expected = 0, end = 0;
  bool const readable = std::sscanf(text.c_str(), format, &expected, &end) == 1;
  labelsbase::text_reader reader{text.c_str()};
  auto const number = reader.number(width);
  demand(number.has_value() == readable, "a number is found where sscanf finds one", text);
  if (!readable) return;
  demand(*number == expected, "a number reads as sscanf reads it", text);
  demand(reader.character().value_or('\0') == text.c_str()[end], "reading stops where sscanf stops", text);
}

}  // namespace

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  auto const text = fuzz_input{data, size}.rest();
  double const expected = std::strtod(text.c_str(), nullptr);
  double const read = labelsbase::read_double(text.c_str());
  demand(are_same(read, expected) || may_be_rounded(text, expected), "a double reads as strtod reads it", text);
  demand_whole_number(text, "%d%n", INT_MAX);
  demand_whole_number(text, "%2d%n", 2);
  demand_whole_number(text, "%3d%n", 3);
  return 0;
}
