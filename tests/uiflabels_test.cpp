#include <new>

#include "labelsbase/uiflabels.h"
#include "tests/testing.h"

namespace {

TEST(LabelChoices, AreFoundByNumber) {
  // clang-format off
  struct { int label; char const* config; ResId text; int family, medium, generation; } const cases[] = {
      {0, "Any_Label", 12833, 1, 1, 1},              {2, "Primary_Timecode", 12842, 3, 1, 2},
      {4, "1st_Gen_Video_Timecode", 12843, 3, 3, 3}, {6, "KeyKode", 12841, 4, 2, 1},
      {8, "Ink_code", 12839, 6, 10, 1},              {9, "24P_Timecode", 12832, 3, 15, 1},
      {11, "reelid1", 12845, 2, 4, 3},               {13, "lab_reel", 12847, 2, 10, 1},
      {14, "comp_reel", 12849, 2, 11, 1},            {24, "Edit_24PTimecode", 11755, 3, 14, 1},
      {27, "Edit_ElapDur", 11756, 3, 8, 1},          {28, "scene", 12854, 2, 0, 0},
      {31, "24f_Generation", 12831, 3, 15, 1},       {32, "name", 13081, 2, 0, 0},
      {34, "cd", 13876, 2, 0, 0},                    {-1, "", 12840, 0, 0, 0},
      {35, "", 12840, 0, 0, 0},                      {INT32_MIN, "", 12840, 0, 0, 0},
  };
  // clang-format on
  for (auto const& c : cases) {
    EXPECT_STREQ(uifLabel_to_config_str(VagueUIFLabel{c.label}), c.config) << c.label;
    EXPECT_EQ(uifLabelText(VagueUIFLabel{c.label}), c.text) << c.label;
    EXPECT_EQ(uifLabelType(VagueUIFLabel{c.label}), c.family) << c.label;
    EXPECT_EQ(uifLabelMedroll(VagueUIFLabel{c.label}).medium, c.medium) << c.label;
    EXPECT_EQ(uifLabelMedroll(VagueUIFLabel{c.label}).generation, c.generation) << c.label;
  }
}

TEST(LabelChoices, AreFoundByKeywordTheEarlierFirst) {
  for (int label = 0; label <= 34; ++label) {
    std::string const keyword = uifLabel_to_config_str(VagueUIFLabel{label});
    int const expected = label == 32 ? 16 : label == 28 ? 18 : label == 29 ? 21 : label == 30 ? 22 : label;
    EXPECT_EQ(config_str_to_uifLabel(keyword.c_str()), expected) << keyword;
    EXPECT_NE(uifLabelText(VagueUIFLabel{label}), 12840U);
    EXPECT_NE(uifLabelType(VagueUIFLabel{label}), 0);
  }
  for (char const* none : {"Name", "", "any_label", "name ", static_cast<char const*>(nullptr)})
    EXPECT_EQ(config_str_to_uifLabel(none), -1);
}

TEST(LabelChoices, HaveAnInertConstructor) {
  VagueUIFLabelDef choice{uif_scene, 10688, User_no_label, {Medium_film, Gen_any}, "scene"};
  EXPECT_EQ(choice.medroll.medium, Medium_film);
  auto* const again = new (&choice) VagueUIFLabelDef{uif_name, 1, User_ink, "name", Medium_ink, Gen_1st};
  EXPECT_EQ(again->medroll.medium, Medium_none);
  EXPECT_EQ(again->medroll.generation, Gen_unknown);
}

}  // namespace
