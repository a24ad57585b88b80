// The table of the host's frame rates.
#pragma once

#include <algorithm>
#include <cstdint>
#include <iterator>

#include "host/frame_rate.h"

namespace refhost {

// A rate as a fraction: 24000 frames in 1001 seconds.
struct frame_rate_row {
  Kiv::FrameRate rate;
  std::int32_t frames;
  std::int32_t seconds;

  [[nodiscard]] constexpr bool has_1001_factor() const noexcept { return seconds == 1001; }
  [[nodiscard]] constexpr double frames_per_second() const noexcept {
    return static_cast<double>(frames) / seconds;
  }

  // Returns frames per second without the 1000/1001 factor.
  [[nodiscard]] constexpr double nominal_frames_per_second() const noexcept {
    return static_cast<double>(frames) / (has_1001_factor() ? 1000 : seconds);
  }
};

// Codes without a row have the facts of the first.
// clang-format off
inline constexpr frame_rate_row frame_rate_rows[] = {
    //          code          frames  seconds
    {Kiv::FrameRate_24,           24,    1},
    {Kiv::FrameRate_23_976,    24000, 1001},
    {Kiv::FrameRate_25,           25,    1},
    {Kiv::FrameRate_30,           30,    1},
    {Kiv::FrameRate_29_97,     30000, 1001},
    {Kiv::FrameRate_48,           48,    1},
    {Kiv::FrameRate_47_952,    48000, 1001},
    {Kiv::FrameRate_50,           50,    1},
    {Kiv::FrameRate_60,           60,    1},
    {Kiv::FrameRate_59_94,     60000, 1001},
    {Kiv::FrameRate_12,           12,    1},
    {Kiv::FrameRate_11_988,    12000, 1001},
    {Kiv::FrameRate_12_5,         25,    2},
    {Kiv::FrameRate_15,           15,    1},
    {Kiv::FrameRate_14_985,    15000, 1001},
    {Kiv::FrameRate_20,           20,    1},
    {Kiv::FrameRate_80,           80,    1},
    {Kiv::FrameRate_90,           90,    1},
    {Kiv::FrameRate_100,         100,    1},
    {Kiv::FrameRate_120,         120,    1},
    {Kiv::FrameRate_119_88,   120000, 1001},
    {Kiv::FrameRate_240,         240,    1},
    {Kiv::FrameRate_239_76,   240000, 1001},
};
// clang-format on

static_assert(std::ranges::adjacent_find(frame_rate_rows, std::ranges::greater_equal{}, &frame_rate_row::rate) ==
              std::end(frame_rate_rows));

[[nodiscard]] constexpr frame_rate_row const& row_of(Kiv::FrameRate rate) noexcept {
  auto const* row = std::ranges::find(frame_rate_rows, rate, &frame_rate_row::rate);
  return row != std::end(frame_rate_rows) ? *row : frame_rate_rows[0];
}

}  // namespace refhost
