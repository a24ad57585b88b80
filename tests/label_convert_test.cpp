// Labels of another family for the same instant or frame.

#include "labelconvert/conversion.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <utility>

namespace labelconvert {
namespace {

using enum rounding;
using enum obstacle;

constexpr track tc_23976{tc_24_label_t, Kiv::FrameRate_23_976}, tc_24{tc_24_label_t, Kiv::FrameRate_24},
    tc_25{pal_label_t, Kiv::FrameRate_25}, tc_2997df{ntsc_drop_label_t, Kiv::FrameRate_29_97},
    tc_30{ntsc_label_t, Kiv::FrameRate_30}, tc_60{tc_60_label_t, Kiv::FrameRate_60},
    feet_35{foot_35_label_t, Kiv::FrameRate_24}, feet_16{foot_16_label_t, Kiv::FrameRate_24},
    feet_353{foot_353_label_t, Kiv::FrameRate_24}, key_353{keycode_353_label_t, Kiv::FrameRate_24};

struct conversion_case {
  request asked;
  int sample;
  answer expected;
};

std::string shown(answer const& a) {
  return std::to_string(a.sample) + " of " + std::to_string(a.before) + " to " + std::to_string(a.after);
}

TEST(Conversion, FindsTheInstantOrTheFrame) {
  constexpr auto time = shared::time;
  constexpr auto frame = shared::frame;
  constexpr auto most = std::numeric_limits<int>::max();
  conversion_case const cases[] = {
      // 1 h is 107892.1078 frames at 29.97; 25 frames are 29.97, 12 are 14.3856
      {{tc_25, tc_2997df}, 90'000, {107'892, 107'892, 107'893}},
      {{tc_25, tc_2997df}, 25, {30, 29, 30}},
      {{tc_25, tc_2997df, time, {}, down}, 25, {29, 29, 30}},
      {{tc_25, tc_2997df, time, {}, up}, 12, {15, 14, 15}},
      {{tc_25, tc_2997df, frame}, 90'000, {90'000, 90'000, 90'000}},
      {{tc_23976, tc_24}, 24'000, {24'024, 24'024, 24'024}},
      {{tc_23976, tc_24, frame}, 24'000, {24'000, 24'000, 24'000}},
      {{tc_30, tc_60, time, {100, 0}}, 99, {5'183'998, 5'183'998, 5'183'998}},  // the day before
      {{tc_60, tc_30}, 3, {2, 1, 2}},                                           // halfway
      {{tc_24, tc_25, frame}, 2'073'600, {2'073'600, 2'073'600, 2'073'600}},
      {{tc_60, tc_30, frame}, most, {1'307'647, 1'307'647, 1'307'647}},  // (2^31 - 1) modulo the day
      // film: samples are perforations, frame by frame
      {{tc_25, feet_35, {}, {90'000, 64}}, 90'016, {128, 128, 128}},
      {{feet_35, feet_16}, 6'400, {1'600, 1'600, 1'600}},
      {{feet_353, key_353, {}, {0, 62}}, 5, {67, 67, 67}},  // one perforation to one
      {{feet_353, tc_24}, 5, {2, 1, 2}},                    // 1 2/3 frames
      {{feet_35, tc_2997df, time}, 96, {30, 29, 30}},
      // 2:3, the sync point on the first frame of the cycle: film 1 2 . 3 4 (the phase is 1)
      {{tc_24, tc_2997df, {}, {}, near, Transfer_2_3_pulldown, 1}, 2, {3, 3, 3}},
      {{tc_2997df, feet_35, {}, {}, near, Transfer_2_3_pulldown, 1}, 2, {8, 4, 8}},  // the added frame
      {{tc_2997df, tc_24, {}, {}, down, Transfer_2_3_pulldown, 1}, 2, {1, 1, 2}},
      {{tc_2997df, tc_24, {}, {}, down, Transfer_2_3_pulldown, 1}, 1'800, {1'440, 1'440, 1'440}},
      {{feet_35, tc_25, {}, {}, near, Transfer_24_to_25, 24}, 0, {1, 1, 1}},
  };
  for (auto const& [asked, sample, expected] : cases) {
    ASSERT_EQ(find_obstacle(asked), none) << sample;
    auto const found = conversion{asked}.of(sample);
    ASSERT_TRUE(found) << sample;
    EXPECT_EQ(shown(*found), shown(expected)) << sample;
  }
}

TEST(Conversion, GivesNoSampleThatDoesNotFit) {
  constexpr auto least = std::numeric_limits<int>::min();
  constexpr auto most = std::numeric_limits<int>::max();
  EXPECT_FALSE((conversion{{tc_24, feet_35}}.of(most)));
  EXPECT_FALSE((conversion{{tc_24, feet_35, {}, {most, least}}}.of(least)));
  EXPECT_FALSE((conversion{{tc_24, {film_frames_label_t, Kiv::FrameRate_24}}}.of(100'000'001)));
  EXPECT_FALSE((conversion{{tc_24, tc_30, {}, {most, 0}, near, Transfer_2_3_pulldown}}.of(least)));
}

// No frame of the slower track is lost on the way through a faster one.
TEST(Conversion, GoesThereAndBack) {
  request const pairs[] = {
      {tc_25, tc_2997df},
      {tc_24, tc_25},
      {tc_23976, tc_24},
      {tc_24, tc_2997df, {}, {}, near, Transfer_2_3_pulldown, 3},
      {tc_24, tc_25, {}, {}, near, Transfer_24_to_25, 7},
  };
  for (auto const& asked : pairs) {
    auto back = asked;
    std::swap(back.from, back.to);
    conversion const to{asked};
    conversion const from{back};
    for (int sample = 0; sample < 2'000'000; sample += 31)
      ASSERT_EQ(from.of(to.of(sample)->sample)->sample, sample) << asked.from.type << " to " << asked.to.type;
  }
}

TEST(Conversion, NamesTheObstacle) {
  struct {
    request asked;
    obstacle expected;
  } const cases[] = {
      {{tc_25, {timecode_label_t, Kiv::FrameRate_25}}, no_labels},
      {{{static_cast<label_t>(99), Kiv::FrameRate_25}, tc_25}, no_labels},
      {{{pal_label_t, Kiv::FrameRate_unknown}, tc_25}, unknown_rate},
      {{tc_30, feet_35}, no_usual_share},
      {{feet_35, tc_60, shared::frame}, none},
      {{feet_35, feet_16}, none},
      {{tc_25, tc_30, {}, {}, near, Transfer_2_3_pulldown}, transfer_needs_film},
      {{tc_24, feet_35, {}, {}, near, Transfer_2_3_pulldown}, transfer_needs_film},
      {{tc_25, feet_35, {}, {}, near, Transfer_2_3_pulldown}, transfer_needs_30},
      {{tc_30, feet_35, {}, {}, near, Transfer_24_to_25}, transfer_needs_25},
      {{tc_30, feet_35, {}, {}, near, Transfer_project_rate}, unknown_transfer},
      {{tc_30, feet_35, {}, {}, near, Transfer_2_3_pulldown, 5}, unknown_phase},
      {{tc_30, feet_35, {}, {}, near, Transfer_2_3_pulldown, -1}, unknown_phase},
  };
  for (auto const& [asked, expected] : cases) EXPECT_EQ(find_obstacle(asked), expected) << explain(expected);
}

}  // namespace
}  // namespace labelconvert
