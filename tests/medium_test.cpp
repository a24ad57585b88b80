#include "labelsbase/MediumRoll/medium.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <string>

#include "host/current_project.h"
#include "labelsbase/MediumRoll/medium_roll.h"
#include "refhost/refhost.h"

namespace {

MediumRollMedium medium(int value) { return static_cast<MediumRollMedium>(value); }
Kiv::FrameRate rate(int code) { return static_cast<Kiv::FrameRate>(code); }

// What `call` prints.
template <typename Call>
std::string said_by(Call call) {
  testing::internal::CaptureStdout();
  call();
  return testing::internal::GetCapturedStdout();
}

std::string user_word(int value) {
  std::string const text = MediumRollId_to_UserString({medium(value), Gen_any});
  return text.substr(0, text.find(','));
}

struct rate_medium {
  int source, output, rate;
  char scan;
  int label_type;
  char const* name;
  char const* word;  // of the source
};

// clang-format off
constexpr rate_medium rate_media[] = {
    {15, 28,  1, 'p',  8, "24p",   "24p"},  {16, 29,  2, 'p',  8, "2398p", "24p"},   {17, 30,  1, 'i',  8, "24i",   "24i"},
    {18, 31,  2, 'i',  8, "2398i", "24i"},  {19, 32,  3, 'p',  5, "25p",   "25p"},   {20, 33,  3, 'i',  5, "25i",   "25i"},
    {21, 34,  4, 'p',  6, "30p",   "30p"},  {22, 35,  5, 'p',  6, "2997p", "30p"},   {23, 36,  4, 'i',  6, "30i",   "30i"},
    {24, 37,  5, 'i',  6, "2997i", "30i"},  {25, 38,  8, 'p', 31, "50p",   "50p"},   {26, 39,  9, 'p', 32, "60p",   "60p"},
    {27, 40, 10, 'p', 32, "5994p", "60p"},  {41, 43,  6, 'p', 20, "48p",   "med?"},  {42, 44,  7, 'p', 20, "48pb",  "med?"},
    {45, 58, 35, 'p', 44, "12p",   "12p"},  {46, 59, 36, 'p', 44, "12pb",  "12p"},   {47, 60, 37, 'p', 44, "125p",  "12.5p"},
    {48, 61, 38, 'p', 45, "15p",   "15p"},  {49, 62, 39, 'p', 45, "15pb",  "15p"},   {50, 63, 40, 'p', 46, "20p",   "20p"},
    {51, 64, 41, 'p', 47, "80p",   "80p"},  {52, 65, 42, 'p', 48, "90p",   "90p"},   {53, 66, 43, 'p', 49, "100p",  "100p"},
    {54, 67, 44, 'p', 50, "120p",  "120p"}, {55, 68, 45, 'p', 50, "120pb", "120p"},  {56, 69, 46, 'p', 51, "240p",  "240p"},
    {57, 70, 47, 'p', 51, "240pb", "240p"},
};
// clang-format on

void expect_rate_medium(int value, rate_medium const& c) {
  SCOPED_TRACE(value);
  bool const progressive = c.scan == 'p';
  auto const m = medium(value);
  EXPECT_EQ(getFrameRatefromMedium(m), c.rate);
  EXPECT_EQ(mediumRollIsFrameProgressive(m), progressive);
  EXPECT_EQ(mediumIsDoubleRateProgressive(m), c.rate >= 8 && c.rate <= 10);
  EXPECT_EQ(getSampleDurationFromMedium(m), Kiv::getFrameDuration(rate(c.rate)) * (progressive ? 1 : 0.5));
  EXPECT_EQ(getDefaultLabelTypeForMedium(m), c.label_type);
  EXPECT_EQ(getLabelTypeForMediumFrameRate(m), c.label_type);
}

TEST(Medium, HasARateAScanAndALabelType) {
  for (auto const& c : rate_media) {
    expect_rate_medium(c.source, c);
    expect_rate_medium(c.output, c);
    EXPECT_EQ(user_word(c.source), c.word);
    EXPECT_EQ(user_word(c.output), "med?");
    EXPECT_EQ(labelsbase::medium_name(medium(c.source)), "src_" + std::string{c.name});
    EXPECT_EQ(labelsbase::medium_name(medium(c.output)), "out_" + std::string{c.name});
  }
}

TEST(Medium, WithoutARateIsNotProgressiveAndHasNoLabelType) {
  std::map<int, std::string> const words{{2, "film"}, {3, "video"}, {4, "audio"},
                                         {10, "ink"}, {11, "Lab"},  {13, "24p"}};
  for (int value : {INT32_MIN, -1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 71, INT32_MAX}) {
    SCOPED_TRACE(value);
    auto const m = medium(value);
    EXPECT_EQ(getFrameRatefromMedium(m), 0);
    EXPECT_FALSE(mediumRollIsFrameProgressive(m));
    EXPECT_FALSE(mediumIsDoubleRateProgressive(m));
    EXPECT_EQ(getSampleDurationFromMedium(m), Kiv::getFrameDuration(rate(0)) * 0.5);
    EXPECT_EQ(said_by([&] { EXPECT_EQ(getDefaultLabelTypeForMedium(m), null_label_t); }),
              "assertion failed false at labelsbase/MediumRoll line 696\n");
    EXPECT_EQ(user_word(value), words.count(value) ? words.at(value) : "med?");
  }
  EXPECT_STREQ(labelsbase::medium_name(Medium_film24_out), "film24_out");
  EXPECT_STREQ(labelsbase::medium_name(medium(9)), "");
  EXPECT_STREQ(labelsbase::medium_name(medium(71)), "");
}

TEST(MediumOfARate, DependsOnTheScanWhereThereAreTwo) {
  std::map<int, rate_medium> progressive, interlaced;  // by rate
  for (auto const& c : rate_media) (c.scan == 'p' ? progressive : interlaced)[c.rate] = c;
  for (auto const& [code, c] : progressive) {
    for (int mode : {INT32_MIN, -1, 0, 1, 2, 3, 4, 5, INT32_MAX}) {
      auto const scan = static_cast<Kiv::Image::ScanMode>(mode);
      bool const is_interlaced = mode != 3 && mode != 4 && interlaced.count(code);
      auto const& expected = is_interlaced ? interlaced[code] : c;
      EXPECT_EQ(getMediumRollfromInputDetails(scan, rate(code)), expected.source) << mode << ' ' << code;
      EXPECT_EQ(getMediumRollfromOutputDetails(scan, rate(code)), expected.output) << mode << ' ' << code;
    }
    EXPECT_EQ(getRepresentativeSourceMediumfromFrameRate(rate(code)), c.source) << code;
    EXPECT_EQ(getOutputMediumfromFrameRate(rate(code)), c.output) << code;
  }
}

TEST(MediumOfARate, SaysSoWhenThereIsNone) {
  auto const line = [](char const* rest) { return std::string{"assertion failed "} + rest + '\n'; };
  constexpr auto scan = Kiv::Image::ScanMode_progressive;
  for (int code : {INT32_MIN, -1, 0, 11, 34, 48, INT32_MAX}) {
    SCOPED_TRACE(code);
    EXPECT_EQ(said_by([&] { EXPECT_EQ(getMediumRollfromInputDetails(scan, rate(code)), 0); }),
              line("0 at labelsbase/MediumRoll line 224"));
    EXPECT_EQ(said_by([&] { EXPECT_EQ(getMediumRollfromOutputDetails(scan, rate(code)), 0); }),
              line("0 at labelsbase/MediumRoll line 361"));
    EXPECT_EQ(said_by([&] { EXPECT_EQ(getOutputMediumfromFrameRate(rate(code)), 28); }),
              line("false at labelsbase/MediumRoll line 520"));
    EXPECT_EQ(said_by([&] { EXPECT_EQ(getRepresentativeSourceMediumfromFrameRate(rate(code)), 15); }),
              line("false at labelsbase/MediumRoll line 577"));
  }
}

TEST(MediumOfARate, IsFoundForAMeasuredOne) {
  struct {
    double from, to;
    int medium;
  } const intervals[] = {{23, 23.99, 29},   {23.99, 24.1, 28}, {24.9, 25.1, 32},  {29, 29.99, 35},
                         {29.99, 30.1, 34}, {49.9, 50.1, 38},  {59.8, 59.99, 40}, {59.99, 60.1, 39}};
  for (auto const& c : intervals) {
    EXPECT_EQ(getMediumRollfromOutputFramerateDouble(std::nextafter(c.from, 100)), c.medium) << c.from;
    EXPECT_EQ(getMediumRollfromOutputFramerateDouble(std::nextafter(c.to, 0)), c.medium) << c.to;
    EXPECT_EQ(getMediumRollfromOutputFramerateDouble(c.from), 28) << c.from;
    EXPECT_EQ(getMediumRollfromOutputFramerateDouble(c.to), 28) << c.to;
  }
  for (double fps : {0.0, -25.0, 24.5, 27.0, 48.0, 100.0, 1e99, HUGE_VAL, std::nan("")})
    EXPECT_EQ(getMediumRollfromOutputFramerateDouble(fps), 28) << fps;
}

TEST(MediumOfTheProject, IsForEditingAndForPlayout) {
  struct {
    int rate, edit, playout;
  } const cases[] = {{1, 17, 30},  {2, 17, 30},  {3, 20, 33},  {4, 23, 37},  {5, 23, 37},
                     {6, 17, 30},  {7, 17, 30},  {8, 25, 33},  {9, 26, 37},  {0, 17, 30},
                     {10, 26, 37}, {11, 17, 30}, {44, 17, 30}, {-1, 17, 30}, {48, 17, 30}};
  for (auto const& c : cases) {
    refhost::project_guard const project{{.frame_rate = rate(c.rate)}};
    EXPECT_EQ(getDefaultEditMediumForProject(rate(c.rate)), c.edit) << c.rate;
    EXPECT_EQ(getDefaultEditMediumForProject(), c.edit) << c.rate;
    EXPECT_EQ(getDefaultEditPlayoutMediumForProject(), c.playout) << c.rate;
  }
}

TEST(MediumOfTheProject, FollowsItsOutputPicture) {
  refhost::project_guard const project{
      {.output_scan = Kiv::Image::ScanMode_interlaced_upper_first, .output_rate = Kiv::FrameRate_29_97}};
  EXPECT_EQ(getMediumRollfromOutputFormat(Kiv::CurrentProject::getOutputImageFormat()), Medium_out_2997i);
}

}  // namespace
