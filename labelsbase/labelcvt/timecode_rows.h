// The table of timecode rates.
#pragma once

#include <algorithm>
#include <iterator>

#include "labelsbase/labelcvt/label_types.h"

namespace labelsbase {

struct rate_row {
  label_t type;
  int fps;  // frames that the count has in a second
  char separator;
  int samples_per_day;
  char const* shape;  // the template; it keeps its text whatever the setting says
  int frame_digits;
  char const* setting;  // the host's setting that may slow the count to `slow_fps`, null for none
  int slow_fps;
};

// clang-format off
inline constexpr rate_row rate_rows[] = {
//  type                    fps  sep   samples/day  template        digits  setting               slow fps
    {pal_label_t,            25, '.',   2'160'000,  "-29.59.59.29",  2,     nullptr,               0},
    {ntsc_label_t,           30, '.',   2'592'000,  "-29.59.59.29",  2,     nullptr,               0},
    {ntsc_drop_label_t,      30, ';',   2'589'408,  "-29.59.59.29",  2,     nullptr,               0},
    {tc_24_label_t,          24, '+',   2'073'600,  "-29.59.59.29",  2,     nullptr,               0},
    {tc_48_label_t,          48, '+',   4'147'200,  "-29.59.59.49",  2,     nullptr,               0},
    {tc_50_label_t,          50, '.',   4'320'000,  "-29.59.59.49",  2,     "50p_timecode_type",  25},
    {tc_60_label_t,          60, '.',   5'184'000,  "-29.59.59.59",  2,     "60p_timecode_type",  30},
    {tc_50_duration_label_t, 50, '.',   4'320'000,  "-29.59.59.49",  2,     nullptr,               0},
    {tc_60_duration_label_t, 60, '.',   5'184'000,  "-29.59.59.59",  2,     nullptr,               0},
    {tc_12_label_t,          12, '.',   1'036'800,  "-29.59.59.19",  2,     nullptr,               0},
    {tc_15_label_t,          15, '.',   1'296'000,  "-29.59.59.19",  2,     nullptr,               0},
    {tc_20_label_t,          20, '.',   1'728'000,  "-29.59.59.19",  2,     nullptr,               0},
    {tc_80_label_t,          80, '.',   6'912'000,  "-29.59.59.79",  2,     nullptr,               0},
    {tc_90_label_t,          90, '.',   7'776'000,  "-29.59.59.89",  2,     nullptr,               0},
    {tc_100_label_t,        100, '.',   8'640'000,  "-29.59.59.99",  2,     nullptr,               0},
    {tc_120_label_t,        120, '.',  10'368'000,  "-29.59.59.199", 3,     nullptr,               0},
    {tc_240_label_t,        240, '.',  20'736'000,  "-29.59.59.299", 3,     nullptr,               0},
};
// clang-format on

// Only drop frame has a day that is not 86400 seconds of its count.
static_assert(std::ranges::all_of(rate_rows, [](rate_row const& row) {
  return row.samples_per_day == (row.type == ntsc_drop_label_t ? 24 * 107'892 : 86'400 * row.fps);
}));

// The row of a rate; there is one for every timecode type but timecode_label_t itself.
[[nodiscard]] constexpr rate_row const& rate_row_of(label_t type) noexcept {
  return *std::ranges::find(rate_rows, type, &rate_row::type);
}

}  // namespace labelsbase
