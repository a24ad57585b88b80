#include "tests/testing.h"

namespace {

TEST(EdlNames, AreReadInAnyCaseUpToABlank) {
  // clang-format off
  struct { char const* text; int type; } const cases[] = {
      {"p24", 8},   {"24F", 8},   {"30F-Drop", 7},   {"FR", 30},          {"i16", 19}, {"BAD", 0}, {"", 0},
      {"25f x", 5}, {"F35\t+", 10}, {"F6510_1200", 0}, {nullptr, 0},
      {"30F-NONDROPXYZ", 6},  // judged by its first 11 characters
      {" 25f", 9},            // deliberate: nothing before the first blank finds the first empty code
  };
  // clang-format on
  for (auto const& c : cases) EXPECT_EQ(edlstr_to_label_type(c.text), c.type) << (c.text ? c.text : "null");
  EXPECT_EQ(edlstr_to_film_label_type(" "), 0);  // keycode_label_t has no converter
}

TEST(EdlNames, MapIntoAFamily) {
  // clang-format off
  struct { char const* text; UserLabelType family; int type; } const cases[] = {
      {"F35", User_feet, 14},  {"F353", User_ink, 18}, {"I16", User_keycode, 11}, {"F352", User_feet, 0},
      {"P", User_timecode, 0}, {"F35", User_any, 0},   {"FR", User_film_frames, 0},
  };
  // clang-format on
  for (auto const& c : cases) EXPECT_EQ(edlstr_to_label_type(c.text, c.family), c.type) << c.text;
}

TEST(Siblings, OfTypesWithoutLabels) {
  // clang-format off
  struct { int type, foot, ink, key; char const* name; } const cases[] = {
      {9, 0, 0, 0, "BAD"},  {13, 0, 18, 10, "BAD"},        {17, 14, 0, 0, "I35"},  // deliberate: as 35 mm ink
      {30, 0, 0, 0, "BAD"}, {numLabelCvts, 0, 0, 0, "BAD"}, {-1, 0, 0, 0, "BAD"}, {INT_MIN, 0, 0, 0, "BAD"},
  };
  // clang-format on
  for (auto const& c : cases) {
    EXPECT_STREQ(label_type_to_edlstr(label_t{c.type}), c.name) << c.type;
    EXPECT_EQ(label_t_to_foot_label_t(label_t{c.type}), c.foot) << c.type;
    EXPECT_EQ(label_t_to_ink_label_t(label_t{c.type}), c.ink) << c.type;
    EXPECT_EQ(label_t_to_key_label_t(label_t{c.type}), c.key) << c.type;
    EXPECT_EQ(get_vid_fps(label_t{c.type}), 1.0);
    EXPECT_EQ(label_type_to_TvStd(label_t{c.type}).frame_rate, 0);
    EXPECT_EQ(Label::get_natural_pitch(label_t{c.type}), c.type == film_frames_label_t ? 1.0 / 24 : 1.0);
  }
}

TEST(Siblings, DurationsFollowTheOutput) {
  // clang-format off
  struct { int output, type, duration; } const cases[] = {
      {4, 31, 42}, {5, 32, 43}, {5, 6, 7}, {5, 7, 7}, {4, 6, 6}, {4, 7, 6}, {10, 6, 7}, {5, 5, 5}, {5, 99, 99},
  };
  // clang-format on
  for (auto const& [output, type, duration] : cases) {
    refhost::project_guard const project{{.output_rate = Kiv::FrameRate{output}}};
    EXPECT_EQ(label_t_to_duration_label_t(label_t{type}), duration) << "output " << output << " type " << type;
  }
}

TEST(Families, MatchThemselvesAndAny) {
  EXPECT_TRUE(UserType_matches(User_any, User_none) && UserType_matches(User_ink, User_any));
  EXPECT_TRUE(UserType_matches(User_feet, User_feet));
  EXPECT_FALSE(UserType_matches(User_none, User_none) || UserType_matches(User_feet, User_ink));
}

TEST(HostRates, UnknownOrOfTheProject) {
  for (int code : {INT_MIN, -1, 0, 11, 34, code_behind_the_last, INT_MAX}) {
    Kiv::FrameRate const rate{code};
    EXPECT_EQ(getDefaultTimecodeFrameRate(rate), 24) << code;
    EXPECT_EQ(TvStd_to_label_type({rate, false}), ntsc_label_t) << code;
    EXPECT_EQ(TvStd_to_label_type({rate, true}), ntsc_drop_label_t) << code;
    EXPECT_EQ(getDefaultLabelTypeforFrameRate(rate), tc_24_label_t) << code;
  }
  EXPECT_EQ(getDefaultTimecodeFrameRate(Kiv::FrameRate_23_976), 23.976023976023978);
  EXPECT_EQ(getDefaultTimecodeFrameRate(Kiv::FrameRate_29_97), 29.970029970029973);
  refhost::project_guard const drop{{.frame_rate = Kiv::FrameRate_29_97, .drop_frame = true}};
  EXPECT_EQ(getDefaultLabelTypeForProject(), ntsc_drop_label_t);
  refhost::project_guard const pal{{.frame_rate = Kiv::FrameRate_25, .drop_frame = true}};
  EXPECT_EQ(getDefaultLabelTypeForProject(), pal_label_t);
}

}  // namespace
