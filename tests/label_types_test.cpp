#include <gtest/gtest.h>

#include <set>
#include <string>

#include "labelsbase/labels.h"
#include "refhost/refhost.h"

namespace {

label_t type(int value) { return static_cast<label_t>(value); }
Kiv::FrameRate rate(int code) { return static_cast<Kiv::FrameRate>(code); }

TEST(EdlNames, ReadInAnyCaseByCodeOrByLongName) {
  struct {
    char const* text;
    int type;
  } const cases[] = {
      {"P", 5},
      {"25f", 5},
      {"p24", 8},
      {"24F", 8},
      {"n", 6},
      {"30F-Drop", 7},
      {"nd", 7},
      {"48f", 20},
      {"50F", 31},
      {"60f", 32},
      {"D50", 42},
      {"d60", 43},
      {"FR", 30},
      {"I35", 18},
      {"i16", 19},
      {"f353_6", 29},
      {"F6515_120", 41},
      {"12F", 0},
      {"P12", 44},
      {"240f", 0},
      {"P240", 51},
      {"BAD", 0},
      {"", 0},
      {"25", 0},
      {"25f x", 5},
      {"F35\t+", 10},
      {"30F-NONDROPXYZ", 6},  // judged by its first 11 characters
      {"F6510_120  ", 40},
      {"F6510_1200", 0},
      {" 25f", 9},
      {"\n", 9},  // deliberate: nothing before the first blank finds the first empty code
  };
  for (auto const& c : cases) EXPECT_EQ(edlstr_to_label_type(c.text), c.type) << '"' << c.text << '"';
  EXPECT_EQ(edlstr_to_label_type(nullptr), 0);
}

TEST(EdlNames, AreReadBackAsTheTypeThatWroteThem) {
  int written = 0;
  for (int t = -5; t < 60; ++t) {
    std::string const name = label_type_to_edlstr(type(t));
    if (name == "BAD") continue;
    ++written;
    if (t == ink_label_t) {
      EXPECT_EQ(name, "I35");  // the ink base writes as 35 mm ink
      EXPECT_EQ(edlstr_to_label_type(name.c_str()), ink_35_label_t);
    } else if (t >= tc_12_label_t) {
      EXPECT_EQ(edlstr_to_label_type(name.c_str()), 0) << name;  // deliberate: only "P12" and its like are read
    } else {
      EXPECT_EQ(edlstr_to_label_type(name.c_str()), t) << name;
    }
  }
  EXPECT_EQ(written, 4 + 3 + 3 + 1 + 9 + 2 + 9 + 8);
}

TEST(EdlNames, MapIntoAFamily) {
  struct {
    char const* text;
    UserLabelType family;
    int type;
  } const cases[] = {
      {"F35", User_feet, 14},      {"F353", User_ink, 18}, {"I16", User_keycode, 11},
      {"F16_5", User_keycode, 25}, {"F352", User_feet, 0}, {"F358", User_keycode, 34},
      {"P", User_timecode, 0},     {"F35", User_any, 0},   {"FR", User_film_frames, 0},
  };
  for (auto const& c : cases) EXPECT_EQ(edlstr_to_label_type(c.text, c.family), c.type) << c.text;
}

TEST(EdlNames, FilmTypesAreTheKeyNumbersWithAConverter) {
  std::set<int> film;
  for (int t = 0; t < numLabelCvts; ++t) film.insert(edlstr_to_film_label_type(label_type_to_edlstr(type(t))));
  std::set<int> expected{0, 10, 11, 12};
  for (int t = 21; t <= 29; ++t) expected.insert(t);
  for (int t = 33; t <= 41; ++t) expected.insert(t);
  EXPECT_EQ(film, expected);
  EXPECT_EQ(edlstr_to_film_label_type(" "), 0);  // keycode_label_t has no converter
}

TEST(Siblings, KeepTheirAsymmetries) {
  struct {
    int type, foot, ink, key;
  } const cases[] = {
      {9, 0, 0, 0},         {10, 14, 18, 10}, {12, 16, 18, 12}, {13, 0, 18, 10},  {14, 14, 18, 10},
      {16, 16, 0, 12},      {17, 14, 0, 0},   {18, 14, 18, 10}, {19, 15, 19, 11}, {20, 0, 0, 0},
      {23, 14, 18, 23},     {26, 15, 19, 26}, {29, 16, 18, 29}, {30, 0, 0, 0},    {32, 0, 0, 0},
      {33, 0, 0, 33},       {41, 0, 0, 41},   {42, 0, 0, 0},    {-1, 0, 0, 0},    {52, 0, 0, 0},
      {INT32_MIN, 0, 0, 0},
  };
  for (auto const& c : cases) {
    EXPECT_EQ(label_t_to_foot_label_t(type(c.type)), c.foot) << c.type;
    EXPECT_EQ(label_t_to_ink_label_t(type(c.type)), c.ink) << c.type;
    EXPECT_EQ(label_t_to_key_label_t(type(c.type)), c.key) << c.type;
  }
}

TEST(Siblings, DurationsFollowTheOutput) {
  struct {
    int output, type, duration;
  } const cases[] = {
      {4, 31, 42}, {5, 32, 43}, {5, 6, 7}, {5, 7, 7}, {4, 6, 6},
      {4, 7, 6},   {10, 6, 7},  {5, 5, 5}, {2, 8, 8}, {5, 99, 99},
  };
  for (auto const& c : cases) {
    refhost::project_guard const project{{.output_rate = rate(c.output)}};
    EXPECT_EQ(label_t_to_duration_label_t(type(c.type)), c.duration)
        << "output " << c.output << " type " << c.type;
  }
}

TEST(Families, MatchThemselvesAndAny) {
  EXPECT_TRUE(UserType_matches(User_any, User_none));
  EXPECT_TRUE(UserType_matches(User_ink, User_any));
  EXPECT_TRUE(UserType_matches(User_feet, User_feet));
  EXPECT_FALSE(UserType_matches(User_none, User_none));
  EXPECT_FALSE(UserType_matches(User_feet, User_ink));
}

TEST(HostRates, GiveTimecodeTypes) {
  struct {
    int code;
    double fps;
    int by_standard, by_drop_standard, by_rate;
  } const cases[] = {
      {0, 24, 6, 7, 8},
      {1, 24, 8, 8, 8},
      {2, 24000.0 / 1001, 8, 8, 8},
      {3, 25, 5, 5, 5},
      {4, 30, 6, 7, 6},
      {5, 30000.0 / 1001, 6, 7, 6},
      {6, 24, 8, 8, 8},
      {7, 24, 8, 8, 8},
      {8, 50, 31, 31, 31},
      {9, 60, 32, 32, 32},
      {10, 60000.0 / 1001, 32, 32, 32},
      {11, 24, 6, 7, 8},
      {34, 24, 6, 7, 8},
      {36, 12000.0 / 1001, 44, 44, 44},
      {37, 12.5, 44, 44, 44},
      {39, 15000.0 / 1001, 45, 45, 45},
      {40, 20, 46, 46, 46},
      {43, 100, 49, 49, 49},
      {45, 120000.0 / 1001, 50, 50, 50},
      {47, 240000.0 / 1001, 51, 51, 51},
      {48, 24, 6, 7, 8},
      {-1, 24, 6, 7, 8},
      {INT32_MAX, 24, 6, 7, 8},
  };
  for (auto const& c : cases) {
    EXPECT_EQ(getDefaultTimecodeFrameRate(rate(c.code)), c.fps) << c.code;
    EXPECT_EQ(TvStd_to_label_type({rate(c.code), false}), c.by_standard) << c.code;
    EXPECT_EQ(TvStd_to_label_type({rate(c.code), true}), c.by_drop_standard) << c.code;
    EXPECT_EQ(getDefaultLabelTypeforFrameRate(rate(c.code)), c.by_rate) << c.code;
  }
}

TEST(HostRates, StandardsOfTypesReadBack) {
  int standards = 0;
  for (int t = -1; t <= numLabelCvts; ++t) {
    TCInf const standard = label_type_to_TvStd(type(t));
    if (standard.frame_rate == 0) continue;
    ++standards;
    EXPECT_EQ(standard.drop_frame, t == ntsc_drop_label_t);
    int const read_back = t == tc_48_label_t ? tc_24_label_t : t;  // 48 is a rate of 24 frame timecode
    EXPECT_EQ(TvStd_to_label_type(standard), read_back) << t;
  }
  EXPECT_EQ(standards, 4 + 1 + 2 + 8);
  EXPECT_EQ(label_type_to_TvStd(tc_24_label_t).frame_rate, Kiv::FrameRate_23_976);  // deliberate
}

TEST(HostRates, TheProjectHasAType) {
  refhost::project_guard const drop{{.frame_rate = Kiv::FrameRate_29_97, .drop_frame = true}};
  EXPECT_EQ(getDefaultLabelTypeForProject(), ntsc_drop_label_t);
  refhost::project_guard const pal{{.frame_rate = Kiv::FrameRate_25, .drop_frame = true}};
  EXPECT_EQ(getDefaultLabelTypeForProject(), pal_label_t);
}

TEST(HostRates, OnlyTheClassicTypesHaveAVideoRate) {
  for (int t = -1; t <= numLabelCvts; ++t) {
    double const expected = t == 5 ? 25.0 : t == 6 || t == 7 ? 30000.0 / 1001 : 1.0;
    EXPECT_EQ(get_vid_fps(type(t)), expected) << t;
  }
}

TEST(NaturalPitch, IsSecondsPerSampleOfTheMaterial) {
  struct {
    int type;
    double pitch;
  } const cases[] = {
      {0, 1.0},
      {4, 1.0},
      {5, 1.0 / 25},
      {6, 1.0 / (30000.0 / 1001)},
      {7, 1.0 / (30000.0 / 1001)},
      {8, 1.0 / 24},
      {9, 1.0},
      {10, 1.0 / 96},
      {11, 1.0 / 24},
      {12, 1.0 / 72},
      {13, 1.0},
      {17, 1.0},
      {20, 1.0 / 48},
      {30, 1.0 / 24},
      {31, 0.02},
      {33, 1.0 / 48},
      {34, 1.0 / 192},
      {38, 1.0 / 120},
      {40, 1.0 / 240},
      {41, 1.0 / 360},
      {43, 1.0 / 60},
      {48, 1.0 / 90},
      {51, 1.0 / 240},
      {-1, 1.0},
      {52, 1.0},
      {INT32_MIN, 1.0},
  };
  for (auto const& c : cases) EXPECT_EQ(Label::get_natural_pitch(type(c.type)), c.pitch) << c.type;
}

}  // namespace
