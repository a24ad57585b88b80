// Every label of the day, for every timecode type.

#include <gtest/gtest.h>

#include <cstring>

#include "labelsbase/labels.h"

namespace {

class DaySweep : public testing::TestWithParam<int> {};

TEST_P(DaySweep, EveryLabelReadsBackAndTheyIncrease) {
  LabelPoint point{static_cast<label_t>(GetParam()), 0};
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

INSTANTIATE_TEST_SUITE_P(Timecode, DaySweep,
                         testing::Values(5, 6, 7, 8, 20, 31, 32, 42, 43, 44, 45, 46, 47, 48, 49, 50, 51),
                         [](auto const& type) {
                           return get_static_label_cvt(static_cast<label_t>(type.param))->type_str();
                         });

}  // namespace
