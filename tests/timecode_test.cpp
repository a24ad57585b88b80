// Arithmetic of timecode.

#include "tests/testing.h"

namespace {

using hmsf = std::array<int, 4>;

// The arithmetic for every sample of the day, the texts of the first and last second of each minute.
TEST(DropFrame, AgreesWithCountingLabelsOneByOne) {
  open_timecode<ntsc_drop_label> drop{15};
  LabelPoint point{ntsc_drop_label_t, 0};
  int hour = 0, minute = 0, second = 0, frame = 0;
  for (int sample = 0; sample < 24 * 107'892; ++sample) {
    ASSERT_EQ(drop.split(sample), (hmsf{hour, minute, second, frame})) << sample;
    ASSERT_EQ(drop.hmsf_to_sample(), sample);
    if (second == 0 || second == 59) {
      char text[48], digits[48], count[9];
      std::snprintf(text, sizeof text, " %02d:%02d:%02d;%02d", hour, minute, second, frame);
      std::snprintf(digits, sizeof digits, "%02d%02d%02d%02d", hour, minute, second, frame);
      ASSERT_STREQ(point.cvt()->get_abs_string(&point, sample), text);
      ASSERT_EQ(point.cvt()->get_abs_sample(text), sample) << text;
      int video = 0;
      ASSERT_EQ(video_frames_to_timecode(sample + 1, count, Label_timecode_30, 1), 1);
      ASSERT_STREQ(count, digits);
      ASSERT_EQ(timecode_to_video_frames(&video, digits, Label_timecode_30, 1), 1);
      ASSERT_EQ(video, sample + 1);
    }
    if (++frame < 30) continue;
    frame = 0;
    if (++second < 60) continue;
    second = 0;
    minute = (minute + 1) % 60;
    if (minute == 0) ++hour;
    if (minute % 10 != 0) frame = 2;
  }
  EXPECT_EQ(hour, 24);
}

TEST(DropFrame, LabelsLeftOutAreTheLastSamplesOfTheMinuteBefore) {
  open_timecode<ntsc_drop_label> drop{15};
  // clang-format off
  struct { hmsf label; int sample; } const cases[] = {
      {{0, 1, 0, 0}, 1798}, {{0, 1, 0, 1}, 1799}, {{0, 1, 0, 2}, 1800}, {{0, 10, 0, 0}, 17'982},
      {{0, 1, 61, 0}, 1798 + 1830},  // no field is held against its range
      {{0, 61, 0, 2}, 107'892 + 1800},
      {{0, -1, 5, 0}, -1798 + 28 + 4 * 30},  // minutes below zero take the labels of a short minute
      {{0, -1, 0, 7}, -1798 + 7 - 2},
  };
  // clang-format on
  for (auto const& c : cases) EXPECT_EQ(drop.join(c.label), c.sample) << testing::PrintToString(c.label);
}

TEST(Split, WrapsAtMidnightOnce) {
  open_timecode<pal_label> pal{15};
  open_timecode<ntsc_drop_label> drop{15};
  // clang-format off
  struct { int sample; hmsf pal, drop; } const cases[] = {
      {-1, {23, 59, 59, 24}, {23, 59, 59, 29}},  {2'589'408, {4, 46, 16, 8}, {0, 0, 0, 0}},
      {2'160'000, {0, 0, 0, 0}, {20, 1, 12, 2}},
      {-3'000'000, {-9, -20, 0, 0}, {-3, -40, -499, -18}},  // further below, one day is added and no more
      {INT_MIN, {-23'836, -55, -45, -23}, {-19'880, 0, -42, -20}}, {INT_MAX, {4, 55, 45, 22}, {8, 0, 42, 19}},
  };
  // clang-format on
  for (auto const& c : cases) {
    EXPECT_EQ(pal.split(c.sample), c.pal) << c.sample;
    EXPECT_EQ(drop.split(c.sample), c.drop) << c.sample;
  }
}

TEST(DropFrame, StaysDropFrameAfterInit) {
  std::unique_ptr<label_cvt> const cvt{make_any_label_cvt(ntsc_drop_label_t)};
  cvt->as_timecode()->init();
  LabelPoint point{*cvt, 0};
  EXPECT_STREQ(cvt->get_abs_string(&point, 1800), " 00:01:00.02");
  EXPECT_EQ(cvt->get_abs_sample("00:10:00.00"), 17'982);
  EXPECT_EQ(cvt->normalise_sample_unit(-1), 2'591'999) << "init sets the day of the plain count";
}

TEST(Normalise, KeepsAWholeDay) {
  auto& pal = *get_static_label_cvt(pal_label_t);
  for (auto const& [sample, normal] : std::map<int, int>{
           {0, 0}, {-1, 2'159'999}, {-2'160'000, 0}, {2'160'000, 2'160'000}, {4'320'000, 2'160'000}})
    EXPECT_EQ(pal.normalise_sample_unit(sample), normal) << sample;
  for (int t = 5; t < numLabelCvts; ++t) {
    auto& cvt = *get_static_label_cvt(label_t{t});
    if (cvt.UserType() != User_timecode) continue;
    auto const day = dynamic_cast<timecode_label&>(cvt).samples_per_day();
    for (int sample : {INT_MIN, INT_MIN + 1, -day - 1, -day, day, day + 1, 7 * day, INT_MAX}) {
      int const normal = cvt.normalise_sample_unit(sample);
      EXPECT_TRUE(normal >= 0 && normal <= day) << sample;
      EXPECT_EQ((static_cast<long long>(normal) - sample) % day, 0) << sample;
    }
  }
}

TEST(SlowTimecode, FollowsTheSettingAtConstruction) {
  // clang-format off
  struct { label_t type; char const *key, *setting; int fps; bool is_slow; } const cases[] = {
      {tc_60_label_t, "60p_timecode_type", "2", 30, true},  {tc_60_label_t, "60p_timecode_type", "3", 30, false},
      {tc_60_label_t, "60p_timecode_type", "1", 60, false}, {tc_60_label_t, "50p_timecode_type", "2", 60, false},
      {tc_50_label_t, "50p_timecode_type", "2", 25, true},  {tc_50_label_t, "50p_timecode_type", "-9", 50, false},
      {tc_60_duration_label_t, "60p_timecode_type", "2", 60, false},
      {tc_50_duration_label_t, "50p_timecode_type", "2", 50, false},
  };
  // clang-format on
  for (auto const& c : cases) {
    refhost::config_guard const setting{c.key, c.setting};
    std::unique_ptr<label_cvt> const cvt{make_any_label_cvt(c.type)};
    EXPECT_EQ(cvt->get_modulus(), c.fps) << c.key << c.setting;
    EXPECT_EQ(cvt->isSpecialSlowTC(), c.is_slow);
    LabelPoint point{*cvt, 7};
    EXPECT_STREQ(point.get_string(), c.is_slow ? " 00:00:00:03" : " 00:00:00.07");
  }
}

TEST(SlowTimecode, TwoFieldsMakeAFrame) {
  refhost::config_guard const setting{"60p_timecode_type", "2"};
  std::unique_ptr<label_cvt> const cvt{make_any_label_cvt(tc_60_label_t)};
  LabelPoint point{*cvt, 0};
  // clang-format off
  struct { int sample; char const* text; } const cases[] = {
      {1, " 00:00:00:00"}, {60, " 00:00:01.00"}, {-3, "-00:00:00:01"}, {5'184'000, " 00:00:00.00"},
  };
  // clang-format on
  for (auto const& c : cases) EXPECT_STREQ(cvt->get_abs_string(&point, c.sample), c.text) << c.sample;
  EXPECT_EQ(cvt->get_abs_sample("00:00:01.03"), 33);  // a count of frames, not of fields
}

TEST(Deprecated, EntryPointsAnswerAndSaySo) {
  auto& ntsc = *get_static_label_cvt(ntsc_label_t);
  auto const said = said_by([&ntsc] {
    EXPECT_EQ(ntsc.get_abs_sample(1.0), 29);
    EXPECT_EQ(ntsc.get_abs_sample(1e99), -100'000'000);
    EXPECT_EQ(ntsc.get_abs_sample(-1.0), -30);
    EXPECT_EQ(shared(tc_24_label_t).get_V2tc(48), 48.0);
    EXPECT_EQ(shared(pal_label_t).get_V2tc(-50), -2.0);
    EXPECT_EQ(Label{pal_label_t}.get_V2tc(50), 2.0);
  });
  EXPECT_EQ(std::ranges::count(said, '\n'), 6);
  EXPECT_TRUE(said.starts_with("assertion failed 0 at labelsbase/labelcvt line ")) << said;
}

}  // namespace
