#include <tuple>

#include "tests/testing.h"

namespace {

TEST(Medium, WithoutARateIsNotProgressiveAndHasNoLabelType) {
  for (int value :
       {INT_MIN, -1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, labelsbase::medium_count, INT_MAX}) {
    SCOPED_TRACE(value);
    auto const m = MediumRollMedium{value};
    EXPECT_EQ(getFrameRatefromMedium(m), 0);
    EXPECT_FALSE(mediumRollIsFrameProgressive(m));
    EXPECT_FALSE(mediumIsDoubleRateProgressive(m));
    EXPECT_EQ(getSampleDurationFromMedium(m), Kiv::getFrameDuration(Kiv::FrameRate{0}) * 0.5);
    EXPECT_EQ(said_by([&] { EXPECT_EQ(getDefaultLabelTypeForMedium(m), null_label_t); }),
              "assertion failed false at labelsbase/MediumRoll line 696\n");
  }
  EXPECT_STREQ(labelsbase::medium_name(Medium_film24_out), "film24_out");
  EXPECT_STREQ(labelsbase::medium_name(MediumRollMedium{9}), "");
  EXPECT_STREQ(labelsbase::medium_name(MediumRollMedium{labelsbase::medium_count}), "");
}

TEST(MediumOfARate, SaysSoWhenThereIsNone) {
  auto const line = [](char const* rest) { return std::string{"assertion failed "} + rest + '\n'; };
  constexpr auto scan = Kiv::Image::ScanMode_progressive;
  for (int code : {INT32_MIN, -1, 0, 11, 34, code_behind_the_last, INT32_MAX}) {
    SCOPED_TRACE(code);
    EXPECT_EQ(said_by([&] { EXPECT_EQ(getMediumRollfromInputDetails(scan, Kiv::FrameRate{code}), 0); }),
              line("0 at labelsbase/MediumRoll line 224"));
    EXPECT_EQ(said_by([&] { EXPECT_EQ(getMediumRollfromOutputDetails(scan, Kiv::FrameRate{code}), 0); }),
              line("0 at labelsbase/MediumRoll line 361"));
    EXPECT_EQ(said_by([&] { EXPECT_EQ(getOutputMediumfromFrameRate(Kiv::FrameRate{code}), 28); }),
              line("false at labelsbase/MediumRoll line 520"));
    EXPECT_EQ(said_by([&] { EXPECT_EQ(getRepresentativeSourceMediumfromFrameRate(Kiv::FrameRate{code}), 15); }),
              line("false at labelsbase/MediumRoll line 577"));
  }
}

TEST(MediumOfARate, IsFoundForAMeasuredOne) {
  std::tuple<double, double, int> const intervals[] = {{23, 23.99, 29},   {23.99, 24.1, 28}, {24.9, 25.1, 32},
                                                       {29, 29.99, 35},   {29.99, 30.1, 34}, {49.9, 50.1, 38},
                                                       {59.8, 59.99, 40}, {59.99, 60.1, 39}};
  for (auto const& [from, to, medium] : intervals) {
    EXPECT_EQ(getMediumRollfromOutputFramerateDouble(std::nextafter(from, 100)), medium) << from;
    EXPECT_EQ(getMediumRollfromOutputFramerateDouble(std::nextafter(to, 0)), medium) << to;
    EXPECT_EQ(getMediumRollfromOutputFramerateDouble(from), 28) << from;
    EXPECT_EQ(getMediumRollfromOutputFramerateDouble(to), 28) << to;
  }
  for (double fps : {0.0, -25.0, 24.5, 27.0, 48.0, 100.0, 1e99, HUGE_VAL, std::nan("")})
    EXPECT_EQ(getMediumRollfromOutputFramerateDouble(fps), 28) << fps;
}

TEST(MediumOfTheProject, IsForEditingAndForPlayout) {
  std::tuple<int, int, int> const cases[] = {{1, 17, 30}, {3, 20, 33},  {4, 23, 37},  {5, 23, 37},
                                             {8, 25, 33}, {9, 26, 37},  {10, 26, 37}, {0, 17, 30},
                                             {6, 17, 30}, {11, 17, 30}, {48, 17, 30}, {-1, 17, 30}};
  for (auto const& [code, edit, playout] : cases) {
    refhost::project_guard const project{{.frame_rate = Kiv::FrameRate{code}}};
    EXPECT_EQ(getDefaultEditMediumForProject(Kiv::FrameRate{code}), edit) << code;
    EXPECT_EQ(getDefaultEditMediumForProject(), edit) << code;
    EXPECT_EQ(getDefaultEditPlayoutMediumForProject(), playout) << code;
  }
}

TEST(MediumOfTheProject, FollowsItsOutputPicture) {
  refhost::project_guard const project{
      {.output_scan = Kiv::Image::ScanMode_interlaced_upper_first, .output_rate = Kiv::FrameRate_29_97}};
  EXPECT_EQ(getMediumRollfromOutputFormat(Kiv::CurrentProject::getOutputImageFormat()), Medium_out_2997i);
}

}  // namespace
