// Reads any text as a double and as a whole number, and writes both. The answers must be those of strtod, sscanf
// and snprintf, and what is written must be read back.

#include <algorithm>
#include <cfloat>
#include <climits>
#include <cmath>

#include "fuzz/fuzz_input.h"
#include "labelsbase/support/doubles.h"
#include "labelsbase/support/text.h"

extern int const fuzz_words = 3;

namespace {

constexpr std::size_t longest_text = 352;  // room for the largest double, and for the widest number

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

// Demands that `write` fills a buffer of each size as snprintf does.
template <std::size_t size>
void demand_written(auto const& write, char const* property, char const* format, auto... values) {
  char expected[longest_text];
  std::snprintf(expected, sizeof expected, format, values...);
  expected[size - 1] = '\0';
  guarded<size> buffer;
  labelsbase::text_writer out{buffer.text(), size};
  write(out);
  buffer.demand_whole(expected);
  demand(!std::strcmp(buffer.text(), expected), property, expected);
  demand(out.length() == std::strlen(expected), "a writer knows the length of its text", expected);
}

void demand_number_written(int value, int width) {
  auto const number = [&](auto& out) { out.number(value, width); };
  demand_written<LabelPoint::text_length>(number, "a number is written as snprintf writes it", "%0*d", width,
                                          value);
  demand_written<5>(number, "a number is cut as snprintf cuts it", "%0*d", width, value);
  demand_written<24>([&](auto& out) { out.signed_digits(value, width); }, "digits are written as snprintf does",
                     "%.*d", std::max(width, 1), value);

  char text[48];
  labelsbase::text_writer{text}.number(value, width);
  demand(labelsbase::text_reader{text}.number() == value, "a written number is read back", text);
}

void demand_double_written(double value) {
  auto const fixed = [&](auto& out) { labelsbase::put_fixed(out, value); };
  demand_written<longest_text>(fixed, "a double is written as snprintf writes it", "%.10f", value);
  demand_written<9>(fixed, "a double is cut as snprintf cuts it", "%.10f", value);

  char text[longest_text], again[longest_text];
  labelsbase::text_writer out{text}, out_again{again};
  labelsbase::put_fixed(out, value);
  labelsbase::put_fixed(out_again, labelsbase::read_double(text));
  demand(!std::strcmp(text, again), "a written double is read back", text);
}

}  // namespace

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  fuzz_input input{data, size};
  int const number = input.number();
  int const width = input.choice<int>(40);
  demand_number_written(number, width);
  demand_double_written(input.real());

  auto const& text = input.text();
  double const expected = std::strtod(text.c_str(), nullptr);
  double const read = labelsbase::read_double(text.c_str());
  demand(are_same(read, expected) || may_be_rounded(text, expected), "a double reads as strtod reads it", text);
  demand_double_written(read);
  demand_whole_number(text, "%d%n", INT_MAX);
  demand_whole_number(text, "%2d%n", 2);
  demand_whole_number(text, "%3d%n", 3);
  return 0;
}
