// Every label of the day, for every timecode type.

#include "tests/testing.h"

namespace {

class DaySweep : public testing::TestWithParam<int> {};

TEST_P(DaySweep, EveryLabelReadsBackAndTheyIncrease) {
  LabelPoint point{label_t{GetParam()}, 0};
  auto& cvt = *point.cvt();
  int const day = dynamic_cast<timecode_label&>(cvt).samples_per_day();
  char before[LabelPoint::text_length + 1] = "";
  for (int sample = 0; sample < day; ++sample) {
    char const* const text = cvt.get_abs_string(&point, sample);
    ASSERT_LT(std::strcmp(before, text), 0) << before << " then " << text;
    ASSERT_EQ(cvt.get_abs_sample(text), sample) << text;
    std::strcpy(before, text);
  }
  EXPECT_EQ(std::strncmp(cvt.get_abs_string(&point, day), " 00:00:00", 9), 0);
}

std::vector<int> timecode_types() {
  std::vector<int> types;
  for (int t = 0; t < numLabelCvts; ++t)
    if (shared(label_t{t}).type() == t && shared(label_t{t}).UserType() == User_timecode) types.push_back(t);
  return types;
}

INSTANTIATE_TEST_SUITE_P(Timecode, DaySweep, testing::ValuesIn(timecode_types()),
                         [](auto const& type) { return shared(label_t{type.param}).type_str(); });

}  // namespace
