// What every frame rate of the host is: one table, one row a rate. Label types, media and the tool read it.
//
//   facts_of(Kiv::FrameRate_29_97).frames_per_second()                  // 29.970029970029973
//   facts_of(Kiv::FrameRate_47_952).timecode_type                       // tc_48_label_t
//   facts_of(Kiv::FrameRate_47_952).counted_as == Kiv::FrameRate_24     // true
#pragma once

#include <algorithm>
#include <functional>
#include <iterator>

#include "host/frame_rate.h"
#include "labelsbase/labelcvt/label_types.h"

namespace labelsbase {

// Everything about one frame rate.
struct rate_facts {
  Kiv::FrameRate rate;        // FrameRate_unknown for every code without a row
  double nominal_fps;         // frames per second without the 1000/1001 factor; 0 for unknown rates
  bool has_1001_factor;       // whether the rate is the nominal one / 1.001
  label_t timecode_type;      // labels media of this rate; null_label_t for unknown rates
  Kiv::FrameRate counted_as;  // the rate whose timecode labels projects and standards of this one

  // Returns frames per second as hosts print them: 30 / 1.001, which is the double after 30000.0 / 1001.
  [[nodiscard]] constexpr double frames_per_second() const noexcept {
    return has_1001_factor ? nominal_fps / 1.001 : nominal_fps;
  }
};

// Deliberate: projects at 48 and 47.952 are counted in 24 frames, though their media have 48 frame timecode.
// clang-format off
inline constexpr rate_facts all_rate_facts[] = {
//   rate                    nominal  1001    timecode type   counted as
    {Kiv::FrameRate_24,       24,     false,  tc_24_label_t,  Kiv::FrameRate_24},
    {Kiv::FrameRate_23_976,   24,     true,   tc_24_label_t,  Kiv::FrameRate_23_976},
    {Kiv::FrameRate_25,       25,     false,  pal_label_t,    Kiv::FrameRate_25},
    {Kiv::FrameRate_30,       30,     false,  ntsc_label_t,   Kiv::FrameRate_30},
    {Kiv::FrameRate_29_97,    30,     true,   ntsc_label_t,   Kiv::FrameRate_29_97},
    {Kiv::FrameRate_48,       48,     false,  tc_48_label_t,  Kiv::FrameRate_24},
    {Kiv::FrameRate_47_952,   48,     true,   tc_48_label_t,  Kiv::FrameRate_24},
    {Kiv::FrameRate_50,       50,     false,  tc_50_label_t,  Kiv::FrameRate_50},
    {Kiv::FrameRate_60,       60,     false,  tc_60_label_t,  Kiv::FrameRate_60},
    {Kiv::FrameRate_59_94,    60,     true,   tc_60_label_t,  Kiv::FrameRate_59_94},
    {Kiv::FrameRate_12,       12,     false,  tc_12_label_t,  Kiv::FrameRate_12},
    {Kiv::FrameRate_11_988,   12,     true,   tc_12_label_t,  Kiv::FrameRate_11_988},
    {Kiv::FrameRate_12_5,     12.5,   false,  tc_12_label_t,  Kiv::FrameRate_12_5},
    {Kiv::FrameRate_15,       15,     false,  tc_15_label_t,  Kiv::FrameRate_15},
    {Kiv::FrameRate_14_985,   15,     true,   tc_15_label_t,  Kiv::FrameRate_14_985},
    {Kiv::FrameRate_20,       20,     false,  tc_20_label_t,  Kiv::FrameRate_20},
    {Kiv::FrameRate_80,       80,     false,  tc_80_label_t,  Kiv::FrameRate_80},
    {Kiv::FrameRate_90,       90,     false,  tc_90_label_t,  Kiv::FrameRate_90},
    {Kiv::FrameRate_100,     100,     false,  tc_100_label_t, Kiv::FrameRate_100},
    {Kiv::FrameRate_120,     120,     false,  tc_120_label_t, Kiv::FrameRate_120},
    {Kiv::FrameRate_119_88,  120,     true,   tc_120_label_t, Kiv::FrameRate_119_88},
    {Kiv::FrameRate_240,     240,     false,  tc_240_label_t, Kiv::FrameRate_240},
    {Kiv::FrameRate_239_76,  240,     true,   tc_240_label_t, Kiv::FrameRate_239_76},
};

// Deliberate: an unknown rate is counted in 24 frames.
inline constexpr rate_facts facts_of_unknown_rates =
    {Kiv::FrameRate_unknown,   0,     false,  null_label_t,   Kiv::FrameRate_24};
// clang-format on

static_assert(std::ranges::adjacent_find(all_rate_facts, std::ranges::greater_equal{}, &rate_facts::rate) ==
                  std::end(all_rate_facts),
              "the rows are in the order of the host's codes, each once");

// Returns the facts of a rate, or facts_of_unknown_rates if it has no row.
[[nodiscard]] constexpr rate_facts const& facts_of(Kiv::FrameRate rate) noexcept {
  auto const* const row = std::ranges::find(all_rate_facts, rate, &rate_facts::rate);
  return row == std::end(all_rate_facts) ? facts_of_unknown_rates : *row;
}

}  // namespace labelsbase
