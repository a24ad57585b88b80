#include "tests/testing.h"

namespace {

LabelPoint key(label_t type, int sample, char const* prefix) {
  LabelPoint point{type, sample};
  std::strcpy(point.prefix, prefix);
  return point;
}

TEST(PointArithmetic, WrapsByTheType) {
  // clang-format off
  struct { label_t type; int a, b, sum, difference; } const cases[] = {
      {pal_label_t, 2'159'999, 2, 1, 2'159'997}, {pal_label_t, 1, 2, 3, 2'159'999},
      {pal_label_t, 2'159'999, 1, 2'160'000, 2'159'998},  // a whole day stays
      {keycode_35_label_t, 639'999, 1, 0, 639'998}, {foot_35_label_t, 4, 8, 12, -4},  // feet do not wrap
  };
  // clang-format on
  for (auto const& c : cases) {
    LabelPoint const a = key(c.type, c.a, "KJ123456"), b{c.type, c.b};
    LabelPoint const sum = a + b;
    EXPECT_EQ(sum.sample, c.sum);
    EXPECT_EQ((a - b).sample, c.difference);
    EXPECT_STREQ(sum.prefix, "");
    EXPECT_STREQ(sum.label_template.text(), a.cvt()->get_template(true).text());
  }
  EXPECT_EQ((LabelPoint{foot_35_label_t, INT_MAX} + LabelPoint{foot_35_label_t, 1}).sample, INT_MIN);
}

TEST(PointArithmetic, OfTwoTypesIsTheInvalidPoint) {
  LabelPoint const pal{pal_label_t, 5}, ntsc{ntsc_label_t, 5};
  EXPECT_TRUE(pal + ntsc == invalid_label_point && pal - ntsc == invalid_label_point);
}

TEST(CountLength, MovesDigitsBetweenPrefixAndCount) {
  // clang-format off
  struct { label_t from; int sample; char const* prefix; label_t to; int result; } const cases[] = {
      {keycode_35_label_4_t, 100, "KJ123412", keycode_35_label_6_t, 100 + 12 * 640'000},
      {keycode_35_label_4_t, 100, "KJ123412", keycode_35_label_5_t, 100 + 2 * 640'000},
      {keycode_35_label_5_t, 100, "KJ12341", keycode_35_label_6_t, 100 + 1 * 6'400'000},
      {keycode_16_label_t, 100, "KJ1234x2", keycode_16_label_6_t, 100},  // no number, nothing moves
      {keycode_35_label_6_t, 7'680'100, "KJ1234", keycode_35_label_5_t, 1'280'100},
      {keycode_35_label_5_t, -640'001, "KJ1234", keycode_35_label_t, -1},
  };
  // clang-format on
  for (auto const& c : cases) {
    LabelPoint point = key(c.from, 0, c.prefix);
    point.sample = c.sample;
    point.modify_type(c.to);
    EXPECT_EQ(point.sample, c.result) << c.prefix;
    EXPECT_EQ(point.cvt(), get_static_label_cvt(c.to));
    EXPECT_STREQ(point.prefix, c.prefix);
  }
}

TEST(CountLength, ReadsNothingBehindTheEndOfThePrefix) {
  LabelPoint point{keycode_35_label_4_t, 100};
  point.cvt()->set_prefix(&point, "ABCDEF12");
  point.modify_count_length(6);
  point.sample = 100;
  point.cvt()->set_prefix(&point, "ZZZZZZ");
  point.modify_count_length(4);
  point.modify_count_length(5);
  EXPECT_EQ(point.sample, 100);
}

TEST(CountLength, ChangesNothingOutsideItsFamily) {
  for (auto const& [from, to] : {std::pair{keycode_35_label_4_t, keycode_35_label_t},  // one length
                                 {keycode_35_label_t, keycode_16_label_6_t},
                                 {ink_35_label_t, keycode_35_label_6_t}}) {
    LabelPoint point = key(from, 100, "KJ123456");
    point.label_template.set("kept");
    LabelPoint const before = point;
    point.modify_type(to);
    EXPECT_TRUE(point == before);
    EXPECT_STREQ(point.label_template.text(), "kept");
  }
}

TEST(CountLength, IsSetByItsDigits) {
  // clang-format off
  struct { label_t from; int digits; label_t to; } const cases[] = {
      {keycode_16_label_t, 5, keycode_16_label_5_t}, {keycode_353_label_6_t, 4, keycode_353_label_4_t},
      {keycode_35_label_t, 7, keycode_35_label_t},   {keycode_35_label_6_t, 3, keycode_35_label_6_t},
      {pal_label_t, 5, pal_label_t},
  };
  // clang-format on
  for (auto const& c : cases) {
    LabelPoint point{c.from, 0};
    point.template_choice = false;
    point.modify_count_length(c.digits);
    EXPECT_EQ(point.cvt()->type(), c.to);
    EXPECT_STREQ(point.label_template.text(), point.cvt()->get_template(c.from == c.to).text());
  }
}

}  // namespace
