// Reading and writing of text. What is read is held against the C library by a fuzz target.

#include "labelsbase/support/text.h"
#include "labelsbase/counts/reciprocal.h"
#include "labelsbase/support/doubles.h"
#include "tests/testing.h"

namespace {

using labelsbase::text_reader;
using labelsbase::text_writer;

TEST(TextReader, KeepsTheLowBitsOfSaturatedNumbers) {
  // clang-format off
  struct { char const* text; int value; } const cases[] = {
      {"2147483648", INT_MIN},         {"4294967296", 0},           {"9223372036854775807", -1},
      {"9223372036854775808", -1},     {"-9223372036854775808", 0}, {"-99999999999999999999999", 0},
      {"99999999999999999999999", -1}, {"-2147483649", INT_MAX},
  };
  // clang-format on
  for (auto const& c : cases) EXPECT_EQ(text_reader{c.text}.number(), c.value) << c.text;
  EXPECT_EQ(text_reader{nullptr}.number(), std::nullopt);
}

TEST(TextWriter, WritesNumbersAsPrintfDoes) {
  std::mt19937 random{2};
  for (int i = 0; i < 20'000; ++i) {
    int const value = i < 300 ? i - 150 : static_cast<int>(random()) >> (random() % 31);
    int const width = static_cast<int>(random() % 14);
    char expected[32], written[32];
    std::snprintf(expected, sizeof expected, "%0*d", width, value);
    text_writer{written}.number(value, width);
    ASSERT_STREQ(written, expected);
  }
}

TEST(TextWriter, WritesDoublesAsPrintfDoes) {
  std::mt19937_64 random{3};
  for (int i = 0; i < 30'000; ++i) {
    auto const mantissa = static_cast<double>(random() >> (random() % 60));
    double const values[] = {std::bit_cast<double>(random() & ~(1ULL << 60)), std::ldexp(mantissa, -11),
                             std::ldexp(mantissa, -static_cast<int>(random() % 90))};
    double const value = values[i % 3];  // the second kind lies halfway between two tenth decimals
    char expected[352], written[352];
    std::snprintf(expected, sizeof expected, "%.10f", value);
    text_writer out{written};
    labelsbase::put_fixed(out, value);
    ASSERT_STREQ(written, expected);
  }
}

TEST(TextWriter, NeverWritesPastItsBuffer) {
  char buffer[8] = "......!";
  text_writer out{buffer, 6};
  out.put("abc").number(-12345, 9).put('x');
  EXPECT_STREQ(buffer, "abc-0");
  EXPECT_EQ(buffer[6], '!');
  EXPECT_EQ(out.length(), 5U);
}

TEST(Integers, DoublesThatDoNotFitAreTheInvalidSample) {
  // clang-format off
  struct { double value; int sample; } const cases[] = {
      {2147483647.9, INT_MAX},       {2147483648.0, -100'000'000}, {-2147483648.9, INT_MIN},
      {-2147483649.0, -100'000'000}, {1e99, -100'000'000},         {-0.9, 0},
      {std::numeric_limits<double>::quiet_NaN(), -100'000'000},
      {-std::numeric_limits<double>::infinity(), -100'000'000},
  };
  // clang-format on
  for (auto const& c : cases) EXPECT_EQ(labelsbase::to_int(c.value), c.sample) << c.value;
}

TEST(Reciprocal, DividesExactly) {
  std::mt19937 random{3};
  for (int divisor = 1; divisor <= 4096; ++divisor) {
    labelsbase::reciprocal const per{divisor};
    for (int i = 0; i < 40; ++i) {
      int const near_multiple = static_cast<int>(random() % (1U << 26)) / divisor * divisor - i % 2;
      int const dividend = i == 0 ? (1 << 26) - 1 : std::max(near_multiple, 0);
      ASSERT_EQ(per.quotient(dividend), dividend / divisor) << dividend << " / " << divisor;
    }
  }
}

}  // namespace
