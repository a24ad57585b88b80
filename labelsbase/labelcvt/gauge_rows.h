// The table of film gauges.
#pragma once

#include <algorithm>
#include <iterator>

#include "labelsbase/labelcvt/keycode.h"

namespace labelsbase {

// Film as its key numbers count it (SMPTE ST 254 for the marks on 35 mm film, ST 271 on 16 mm, ST 270 on 65 mm).
struct gauge_row {
  film_gauge gauge;
  int frames_per_key;
  int perfs_per_frame;
  int perfs_per_key;
  int reported_perfs_per_key;
  int last_frame;  // the largest frame number that a label may show within a key
  char separator;  // between key and frame
};

// Deliberate: the 2-perf and 8-perf gauges of 35 mm report 1 perforation per key. The 3-perf gauge numbers 22
// frames to the key although 64 perforations hold 21 and a third.
// clang-format off
inline constexpr gauge_row gauge_rows[] = {
//  gauge                      frames/key  perfs/frame  perfs/key  reported  last  separator
    {film_gauge::g35,                 16,           4,        64,       64,   15,  '+'},
    {film_gauge::g16,                 20,           1,        20,       20,   19,  '&'},
    {film_gauge::g35_3perf,           22,           3,        64,       64,   21,  '+'},
    {film_gauge::g35_2perf,           32,           2,        64,        1,   31,  '+'},
    {film_gauge::g35_8perf,            8,           8,        64,        1,    7,  '+'},
    {film_gauge::g65_5perf_80,        16,           5,        80,       80,   15,  '+'},
    {film_gauge::g65_8perf_80,        10,           8,        80,       80,    9,  '+'},
    {film_gauge::g65_10perf_80,        8,          10,        80,       80,    7,  '+'},
    {film_gauge::g65_5perf_120,       24,           5,       120,      120,   23,  '+'},
    {film_gauge::g65_8perf_120,       15,           8,       120,      120,   14,  '+'},
    {film_gauge::g65_10perf_120,      12,          10,       120,      120,   11,  '+'},
    {film_gauge::g65_15perf_120,       8,          15,       120,      120,    7,  '+'},
};
// clang-format on

static_assert(std::ranges::all_of(gauge_rows, [](gauge_row const& row) {
  bool const whole_frames = row.frames_per_key * row.perfs_per_frame == row.perfs_per_key;
  return &row == &gauge_rows[static_cast<int>(row.gauge)] && row.last_frame == row.frames_per_key - 1 &&
         whole_frames != (row.gauge == film_gauge::g35_3perf);
}));

[[nodiscard]] constexpr gauge_row const& gauge_row_of(film_gauge gauge) noexcept {
  return gauge_rows[static_cast<int>(gauge)];
}

}  // namespace labelsbase
