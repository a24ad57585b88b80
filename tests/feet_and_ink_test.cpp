// Ink numbers, feet and frames, and film frames.

#include "tests/testing.h"

namespace {

TEST(FeetAndInk, WriteAndReadBackTheFrameOfEveryPerforation) {
  for (label_t const type : {foot_35_label_t, foot_16_label_t, ink_35_label_t, ink_16_label_t}) {
    LabelPoint point{type, 0};
    auto& cvt = *point.cvt();
    bool const ink = cvt.has_prefix();
    cvt.set_prefix(&point, "AB120000+00");
    int const perfs = cvt.samples_per_unit(), unit = cvt.get_modulus() * perfs;
    for (int start : {0, 9'997 * unit, 4'711 * unit, ink ? 1'234 * unit : 99'997 * unit})
      for (int sample = start; sample < start + 3 * unit; ++sample)
        for (int sign : {1, ink ? 1 : -1}) {
          char expected[48];
          std::snprintf(expected, sizeof expected, "%s%04d+%02d",
                        ink                       ? "AB12"
                        : sign < 0 && sample != 0 ? "-"
                                                  : " ",
                        sample / unit, sample % unit / perfs);
          char const* const text = cvt.get_abs_string(&point, sign * sample);
          ASSERT_STREQ(text, expected);
          ASSERT_EQ(cvt.get_abs_sample(text), sign * (sample - sample % perfs)) << text;
        }
  }
}

TEST(Feet353, NameEveryPerforationExactly) {
  LabelPoint point{foot_353_label_t, 0};
  for (int start : {0, 64 * 9'999, 64 * 99'990, -64 * 300})
    for (int sample = start; sample < start + 192; ++sample) {
      char const* const text = point.cvt()->get_abs_string(&point, sample);
      ASSERT_EQ(point.cvt()->get_abs_sample(text), sample) << text;
    }
}

TEST(FeetAndInk, TextsAtTheEdges) {
  // clang-format off
  expect_written({
      {foot_35_label_t, 4'100, " 0064+01"},           {foot_35_label_t, -4, "-0000+01"},
      {foot_35_label_t, 63, " 0000+15"},              {foot_35_label_t, 64, " 0001+00"},
      {foot_16_label_t, 40, " 0001+00"},              {foot_353_label_t, 0, " 0000+00.1"},
      {foot_353_label_t, 1, " 0000+01.3"},            {foot_35_label_t, 100'000 * 64, " 0000+00"},
      {foot_35_label_t, 99'999 * 64, " 99999+00"},    {foot_353_label_t, 100'000 * 64, " 100000+00.1"},
      {foot_353_label_t, 100'001 * 64, " 0001+00.1"}, {foot_16_label_t, INT_MAX, " 53587091+07"},
      {foot_35_label_t, INT_MIN, "--33554432+00"},    {foot_35_label_t, invalid, "?????.??"},
      {foot_353_label_t, 100'000'002, "<<<<<<<<.<"},  {film_frames_label_t, 0, "000000"},
      {film_frames_label_t, 1'234'567, "1234567"},    {film_frames_label_t, -5, "-000005"},
      {film_frames_label_t, INT_MIN, "-2147483648"},  {film_frames_label_t, 100'000'001, ">>>>>>>"},
      {ink_35_label_t, 78'996, "XXXX1234+05"}, {ink_16_label_t, 1'234 * 20 + 19, "XXXX1234+19"},
      {ink_35_label_t, -64, "NEGATIVE"},              {ink_35_label_t, 10'000 * 64, "XXXX0000+00"},
      {ink_16_label_t, invalid, "???????????"},
  });
  // clang-format on
  LabelPoint point{foot_35_label_t, 64};
  point.removePadding();
  EXPECT_STREQ(point.get_string(), "0001+00");
}

TEST(FeetAndInk, ReadAnyText) {
  // clang-format off
  expect_read({
      {foot_35_label_t, "0001+00", 64}, {foot_35_label_t, "-0001+00", -64},
      {foot_35_label_t, "1+20", 144},  // deliberate: more frames than the foot has
      {foot_35_label_t, "1x2", 72},  {foot_35_label_t, "7", 448}, {foot_35_label_t, "", 0},
      {foot_35_label_t, nullptr, 0}, {foot_35_label_t, "abc", 0},
      {foot_35_label_t, "- 12+3", -(12 * 16 + 12) * 4}, {foot_35_label_t, "--12+3", (12 * 16 - 3) * 4},
      {foot_35_label_t, "+64+1", (64 * 16 + 1) * 4},   {foot_16_label_t, "4294967297+1", 41},
      {foot_35_label_t, "+x5", 0},  // a sign without a number separates
      {foot_353_label_t, " 0001+00.1", 64},                      {foot_353_label_t, "-0001+00.1", -64},
      {foot_353_label_t, "0001+00", 64 + 1},  // its last digit is taken for the perforation
      {foot_353_label_t, "0001+05.x", 64 + 15},  {foot_353_label_t, "2", 128 - 1},
      {foot_353_label_t, "", 0},                 {foot_353_label_t, nullptr, 0},
      {film_frames_label_t, "000024", 24},       {film_frames_label_t, " -5 frames", -5},
      {film_frames_label_t, "x", invalid},       {film_frames_label_t, nullptr, invalid},
      {ink_35_label_t, "1234+05", 78'996},       {ink_35_label_t, "AB12-1234+05", 78'996},
      {ink_35_label_t, "00001234+16", invalid},  {ink_16_label_t, "00001234+16", 1'234 * 20 + 16},
      {ink_35_label_t, "00001234+123", invalid}, {ink_35_label_t, "1234", 1'234 * 64},
      {ink_35_label_t, "AB12__12+05", 20},  // only key numbers are filled with "_"
      {ink_35_label_t, "AB121234", invalid},  // short texts are filled in front: 000A B121 2 34
      {ink_35_label_t, "AB121234+-1", invalid}, {ink_35_label_t, "AB12-123+01", invalid}, {ink_35_label_t, "", 0},
      {ink_35_label_t, nullptr, 0},
  });
  // clang-format on
}

TEST(Ink, TakesItsPrefixFromTextsOfAnyLength) {
  struct {
    char const *text, *prefix;
  } const cases[] = {
      {"AB12", "0000AB12"},         {"AB121234+05", "AB121234"}, {"12", "000012"},        {"", "0000"},
      {"AB12-1234+05", "AB121234"}, {"1234+05", "00001234"},     {"AB121234", "000AB121"}};
  for (auto const& c : cases) {
    LabelPoint point{ink_35_label_t, 0};
    point.cvt()->set_prefix(&point, c.text);
    EXPECT_STREQ(point.prefix, c.prefix) << c.text;
  }
}

}  // namespace
