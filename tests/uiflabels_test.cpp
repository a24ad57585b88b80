#include <new>

#include "labelsbase/uiflabels.h"
#include "tests/testing.h"

namespace {

TEST(LabelChoices, OutOfRangeAreNone) {
  for (int const label : {-1, uif_cd + 1, INT_MIN, INT_MAX}) {
    VagueUIFLabel const choice{label};
    EXPECT_STREQ(uifLabel_to_config_str(choice), "") << label;
    EXPECT_EQ(uifLabelText(choice), 12840U) << label;
    EXPECT_EQ(uifLabelType(choice), User_none) << label;
    EXPECT_EQ(uifLabelMedroll(choice).medium, Medium_none) << label;
    EXPECT_EQ(uifLabelMedroll(choice).generation, Gen_unknown) << label;
  }
}

TEST(LabelChoices, AreFoundByKeywordTheEarlierFirst) {
  for (int label = 0; label <= uif_cd; ++label) {
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
