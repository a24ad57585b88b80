// Ink numbers, feet and frames, and film frames.

#include <gtest/gtest.h>

#include <climits>
#include <cstdio>
#include <memory>
#include <random>
#include <string>

#include "labelsbase/labels.h"

namespace {

constexpr int invalid = -100'000'000;

label_cvt& shared(label_t type) { return *get_static_label_cvt(type); }

TEST(Feet, WriteAndReadBackTheFrameOfEveryPerforation) {
  struct {
    label_t type;
    int frames_per_foot, perfs_per_frame;
  } const cases[] = {{foot_35_label_t, 16, 4}, {foot_16_label_t, 40, 1}};
  for (auto const& c : cases) {
    LabelPoint point{c.type, 0};
    int const foot = c.frames_per_foot * c.perfs_per_frame;
    for (int start : {0, 9'997 * foot, 99'997 * foot, 4'711 * foot})
      for (int sample = start; sample < start + 3 * foot; ++sample)
        for (int sign : {1, -1}) {
          int const frame = sample / c.perfs_per_frame;
          char expected[48];
          std::snprintf(expected, sizeof expected, "%c%04d+%02d", sign < 0 && sample != 0 ? '-' : ' ',
                        frame / c.frames_per_foot, frame % c.frames_per_foot);
          char const* const text = point.cvt()->get_abs_string(&point, sign * sample);
          ASSERT_STREQ(text, expected);
          ASSERT_EQ(point.cvt()->get_abs_sample(text), sign * (sample - sample % c.perfs_per_frame)) << text;
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

TEST(Feet, TextsAtTheEdges) {
  struct {
    label_t type;
    int sample;
    char const* text;
  } const cases[] = {
      {foot_35_label_t, 4'100, " 0064+01"},
      {foot_35_label_t, -4, "-0000+01"},
      {foot_35_label_t, 63, " 0000+15"},
      {foot_35_label_t, 64, " 0001+00"},
      {foot_16_label_t, 40, " 0001+00"},
      {foot_353_label_t, 0, " 0000+00.1"},
      {foot_353_label_t, 1, " 0000+01.3"},
      {foot_35_label_t, 100'000 * 64, " 0000+00"},
      {foot_35_label_t, 99'999 * 64, " 99999+00"},
      {foot_353_label_t, 100'000 * 64, " 100000+00.1"},
      {foot_353_label_t, 100'001 * 64, " 0001+00.1"},
      {foot_16_label_t, INT_MAX, " 53587091+07"},
      {foot_35_label_t, INT_MIN, "--33554432+00"},
      {foot_35_label_t, invalid, "?????.??"},
      {foot_353_label_t, 100'000'002, "<<<<<<<<.<"},
      {film_frames_label_t, 0, "000000"},
      {film_frames_label_t, 1'234'567, "1234567"},
      {film_frames_label_t, -5, "-000005"},
      {film_frames_label_t, INT_MIN, "-2147483648"},
      {film_frames_label_t, 100'000'001, ">>>>>>>"},
      {ink_35_label_t, (1'234 * 16 + 5) * 4, "XXXX1234+05"},
      {ink_16_label_t, 1'234 * 20 + 19, "XXXX1234+19"},
      {ink_35_label_t, -64, "NEGATIVE"},
      {ink_35_label_t, 10'000 * 64, "XXXX0000+00"},
      {ink_16_label_t, invalid, "???????????"},
  };
  for (auto const& c : cases) {
    std::unique_ptr<label_cvt> const cvt{make_any_label_cvt(c.type)};
    LabelPoint point{*cvt, 0};
    EXPECT_STREQ(cvt->get_abs_string(&point, c.sample), c.text) << c.sample;
  }
}

TEST(Feet, LoseTheirSignColumnWithTheTemplate) {
  LabelPoint point{foot_35_label_t, 64};
  point.removePadding();
  EXPECT_STREQ(point.get_string(), "0001+00");
}

TEST(Feet, ReadAnyText) {
  struct {
    label_t type;
    char const* text;
    int sample;
  } const cases[] = {
      {foot_35_label_t, "0001+00", 64},
      {foot_35_label_t, "-0001+00", -64},
      {foot_35_label_t, "1+20", 144},  // deliberate: more frames than the foot has
      {foot_35_label_t, "1x2", 72},
      {foot_35_label_t, "7", 448},
      {foot_35_label_t, "", 0},
      {foot_35_label_t, nullptr, 0},
      {foot_35_label_t, "abc", 0},
      {foot_35_label_t, "- 12+3", -(12 * 16 + 3) * 4},
      {foot_35_label_t, "--12+3", (12 * 16 - 3) * 4},
      {foot_35_label_t, "+64+1", (64 * 16 + 1) * 4},
      {foot_35_label_t, "+x5", 0},  // a sign without a number separates
      {foot_16_label_t, "4294967297+1", 41},
      {foot_353_label_t, " 0001+00.1", 64},
      {foot_353_label_t, "-0001+00.1", -64},
      {foot_353_label_t, "0001+00", 64 + 1},  // its last digit is taken for the perforation
      {foot_353_label_t, "0001+05.x", 64 + 15},
      {foot_353_label_t, "2", 128 - 1},
      {foot_353_label_t, "", 0},
      {film_frames_label_t, "000024", 24},
      {film_frames_label_t, " -5 frames", -5},
      {film_frames_label_t, "x", invalid},
      {film_frames_label_t, nullptr, invalid},
      {ink_35_label_t, "1234+05", (1'234 * 16 + 5) * 4},
      {ink_35_label_t, "AB12-1234+05", (1'234 * 16 + 5) * 4},
      {ink_35_label_t, "00001234+16", invalid},
      {ink_16_label_t, "00001234+16", 1'234 * 20 + 16},
      {ink_35_label_t, "00001234+123", invalid},
      {ink_35_label_t, "1234", 1'234 * 64},
      {ink_35_label_t, "AB12__12+05", 20},    // only key numbers are filled with "_"
      {ink_35_label_t, "AB121234", invalid},  // short texts are filled in front: 000A B121 2 34
      {ink_35_label_t, "AB121234+-1", invalid},
      {ink_35_label_t, "AB12-123+01", invalid},
      {ink_35_label_t, "", 0},
      {ink_35_label_t, nullptr, 0},
  };
  for (auto const& c : cases)
    EXPECT_EQ(shared(c.type).get_abs_sample(c.text), c.sample) << (c.text ? c.text : "null");
}

TEST(Ink, WritesAndReadsBackTheFrameOfEveryPerforation) {
  struct {
    label_t type;
    int frames_per_count, perfs_per_frame;
  } const cases[] = {{ink_35_label_t, 16, 4}, {ink_16_label_t, 20, 1}};
  for (auto const& c : cases) {
    LabelPoint point{c.type, 0};
    auto& cvt = *point.cvt();
    cvt.set_prefix(&point, "AB120000+00");
    int const count = c.frames_per_count * c.perfs_per_frame;
    for (int start : {0, 9'997 * count, 4'711 * count})
      for (int sample = start; sample < start + 3 * count; ++sample) {
        char expected[48];
        std::snprintf(expected, sizeof expected, "AB12%04d+%02d", sample / count,
                      sample % count / c.perfs_per_frame);
        char const* const text = cvt.get_abs_string(&point, sample);
        ASSERT_STREQ(text, expected);
        ASSERT_EQ(cvt.get_abs_sample(text), sample - sample % c.perfs_per_frame) << text;
      }
    EXPECT_EQ(cvt.normalise_sample_unit(10'000 * count + 5), 5);
    EXPECT_EQ(cvt.normalise_sample_unit(-1), 10'000 * count - 1);
    EXPECT_EQ(cvt.perfs_per_keyKode(), 1);
    EXPECT_EQ(cvt.getFrameSeparator(), '+');
  }
}

TEST(Ink, TakesItsPrefixFromTextsOfAnyLength) {
  struct {
    char const* text;
    char const* prefix;
  } const cases[] = {
      {"AB12", "0000AB12"}, {"AB121234+05", "AB121234"}, {"AB12-1234+05", "AB121234"}, {"12", "000012"},
      {"", "0000"},         {"1234+05", "00001234"},     {"AB121234", "000AB121"},
  };
  for (auto const& c : cases) {
    LabelPoint point{ink_35_label_t, 0};
    point.cvt()->set_prefix(&point, c.text);
    EXPECT_STREQ(point.prefix, c.prefix) << c.text;
  }
}

// Any bytes through every type: the sanitizers watch the buffers.
TEST(AllTypes, TakeAnyBytes) {
  std::mt19937 random{40};
  std::string const likely = "0123456789+&.:;-_ AKX";
  for (int t = 0; t < numLabelCvts; ++t) {
    LabelPoint point{static_cast<label_t>(t), 0};
    auto& cvt = *point.cvt();
    for (int i = 0; i < 3'000; ++i) {
      std::string text(random() % 41, '\0');
      for (auto& c : text) c = random() % 8 ? likely[random() % likely.size()] : static_cast<char>(random());
      std::unique_ptr<char[]> const exact{new char[text.size() + 1]};
      std::copy_n(text.c_str(), text.size() + 1, exact.get());

      cvt.set_prefix(&point, exact.get());
      point.sample = cvt.get_abs_sample(exact.get());
      (void)cvt.get_keep_sample(exact.get());
      (void)cvt.get_abs_sample_from_packed_string(exact.get());
      for (int sample : {point.sample, static_cast<int>(random())}) {
        ASSERT_LE(std::char_traits<char>::length(cvt.get_abs_string(&point, sample)), LabelPoint::text_length);
        (void)cvt.get_keep_string(&point, sample);
        (void)cvt.get_abs_perfs_string(&point, sample);
        (void)cvt.normalise_sample_unit(sample);
      }
    }
  }
}

}  // namespace
