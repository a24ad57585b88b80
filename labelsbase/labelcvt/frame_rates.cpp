// The timecode of the host's frame rates.

#include <algorithm>
#include <iterator>

#include "host/current_project.h"
#include "labelsbase/labelcvt/label_types.h"

namespace {

struct timecode_rate_row {
  Kiv::FrameRate rate;
  double counted_fps;     // frames per second that timecode of this rate counts
  label_t standard_type;  // of a timecode standard of this rate; null_label_t: 30 frames, by the drop-frame flag
  label_t default_type;   // of material of this rate
};

// Rates with the 1000/1001 factor are the nominal rate / 1.001, as hosts print them: 29.970029970029973, which is
// the double after 30000.0 / 1001.
// clang-format off
constexpr timecode_rate_row timecode_rate_rows[] = {
//  rate                     counted fps      by standard     by rate
    {Kiv::FrameRate_24,      24.0,            tc_24_label_t,  tc_24_label_t},
    {Kiv::FrameRate_23_976,  24 / 1.001,  tc_24_label_t,  tc_24_label_t},
    {Kiv::FrameRate_25,      25.0,            pal_label_t,    pal_label_t},
    {Kiv::FrameRate_30,      30.0,            null_label_t,   ntsc_label_t},
    {Kiv::FrameRate_29_97,   30 / 1.001,  null_label_t,   ntsc_label_t},
    {Kiv::FrameRate_48,      24.0,            tc_24_label_t,  tc_24_label_t},
    {Kiv::FrameRate_47_952,  24.0,            tc_24_label_t,  tc_24_label_t},
    {Kiv::FrameRate_50,      50.0,            tc_50_label_t,  tc_50_label_t},
    {Kiv::FrameRate_60,      60.0,            tc_60_label_t,  tc_60_label_t},
    {Kiv::FrameRate_59_94,   60 / 1.001,  tc_60_label_t,  tc_60_label_t},
    {Kiv::FrameRate_12,      12.0,            tc_12_label_t,  tc_12_label_t},
    {Kiv::FrameRate_11_988,  12 / 1.001,  tc_12_label_t,  tc_12_label_t},
    {Kiv::FrameRate_12_5,    12.5,            tc_12_label_t,  tc_12_label_t},
    {Kiv::FrameRate_15,      15.0,            tc_15_label_t,  tc_15_label_t},
    {Kiv::FrameRate_14_985,  15 / 1.001,  tc_15_label_t,  tc_15_label_t},
    {Kiv::FrameRate_20,      20.0,            tc_20_label_t,  tc_20_label_t},
    {Kiv::FrameRate_80,      80.0,            tc_80_label_t,  tc_80_label_t},
    {Kiv::FrameRate_90,      90.0,            tc_90_label_t,  tc_90_label_t},
    {Kiv::FrameRate_100,     100.0,           tc_100_label_t, tc_100_label_t},
    {Kiv::FrameRate_120,     120.0,           tc_120_label_t, tc_120_label_t},
    {Kiv::FrameRate_119_88,  120 / 1.001, tc_120_label_t, tc_120_label_t},
    {Kiv::FrameRate_240,     240.0,           tc_240_label_t, tc_240_label_t},
    {Kiv::FrameRate_239_76,  240 / 1.001, tc_240_label_t, tc_240_label_t},
};
// clang-format on

// What a rate without a row gets.
constexpr timecode_rate_row unknown_rate{Kiv::FrameRate_unknown, 24.0, null_label_t, tc_24_label_t};

timecode_rate_row const& row_of(Kiv::FrameRate rate) noexcept {
  auto const* const row = std::ranges::find(timecode_rate_rows, rate, &timecode_rate_row::rate);
  return row == std::end(timecode_rate_rows) ? unknown_rate : *row;
}

}  // namespace

label_t TvStd_to_label_type(TCInf const& standard) noexcept {
  label_t const type = row_of(standard.frame_rate).standard_type;
  if (type != null_label_t) return type;
  return standard.drop_frame ? ntsc_drop_label_t : ntsc_label_t;
}

double getDefaultTimecodeFrameRate(Kiv::FrameRate rate) noexcept { return row_of(rate).counted_fps; }

label_t getDefaultLabelTypeforFrameRate(Kiv::FrameRate rate) noexcept { return row_of(rate).default_type; }

label_t getDefaultLabelTypeForProject() {
  return TvStd_to_label_type(
      {Kiv::CurrentProject::getFrameRate(), Kiv::CurrentProject::getUseDropFrameTimecode()});
}
