// The table of speeds: what a timecode counts on which medium.
#pragma once

#include <algorithm>
#include <iterator>
#include <span>

#include "labelsbase/MediumRoll/medium.h"
#include "labelsbase/labelcvt/label_types.h"

namespace labelsbase {

struct pitch_row {
  label_t type;
  double pitch;                          // seconds per sample on most media
  std::span<MediumRollMedium const> at;  // the media at another speed
  double pitch_there;
  bool film_at_24;  // whether the type counts 24 frames a second on film
  int sound_fps;    // frames a second that sound in sync is labelled at
};

// Media at whole rates, where most run slower by 1000/1001, and the other way round.
inline constexpr MediumRollMedium at_30[] = {
    Medium_audio,   Medium_src_30p,  Medium_src_30i,  Medium_src_60p,  Medium_out_30p,  Medium_out_30i,
    Medium_out_60p, Medium_src_120p, Medium_src_240p, Medium_out_120p, Medium_out_240p,
};
inline constexpr MediumRollMedium at_60[] = {Medium_audio, Medium_src_60p, Medium_out_60p};
inline constexpr MediumRollMedium at_47_952[] = {Medium_src_48pb};  // deliberate: not its output
inline constexpr MediumRollMedium at_11_988[] = {Medium_src_12pb};
inline constexpr MediumRollMedium at_14_985[] = {Medium_src_15pb};
inline constexpr MediumRollMedium at_23_976[] = {Medium_src_2398p, Medium_src_2398i, Medium_out_2398p,
                                                 Medium_out_2398i};
inline constexpr MediumRollMedium at_119_88[] = {Medium_src_120pb, Medium_out_120pb};
inline constexpr MediumRollMedium at_239_76[] = {Medium_src_240pb, Medium_out_240pb};

// Deliberate: 120 and 240 frame timecode keeps its rate on film, and 24 frame timecode has the same there anyway.
// clang-format off
inline constexpr pitch_row pitch_rows[] = {
//  type                    pitch           at         pitch there     film at 24  sound fps
    {pal_label_t,           1.0 / 25,       {},        0.0,            true,       25},
    {ntsc_label_t,          1001.0 / 30000, at_30,     1.0 / 30,       true,       30},
    {ntsc_drop_label_t,     1001.0 / 30000, at_30,     1.0 / 30,       true,       30},
    {tc_24_label_t,         1.0 / 24,       at_23_976, 1001.0 / 24000, false,      24},
    {tc_48_label_t,         1.0 / 48,       at_47_952, 1001.0 / 48000, true,       24},
    {tc_50_label_t,         1.0 / 50,       {},        0.0,            true,       50},
    {tc_60_label_t,         1001.0 / 60000, at_60,     1.0 / 60,       true,       60},
    {tc_50_duration_label_t,1.0 / 50,       {},        0.0,            true,       50},
    {tc_60_duration_label_t,1001.0 / 60000, at_60,     1.0 / 60,       true,       60},
    {tc_12_label_t,         1.0 / 12,       at_11_988, 1001.0 / 12000, true,       24},
    {tc_15_label_t,         1.0 / 15,       at_14_985, 1001.0 / 15000, true,       24},
    {tc_120_label_t,        1.0 / 120,      at_119_88, 1001.0 / 120000, false,     24},
    {tc_240_label_t,        1.0 / 240,      at_239_76, 1001.0 / 240000, false,     24},
};
// clang-format on

// The row of a type; null for types whose pitch no medium changes.
[[nodiscard]] constexpr pitch_row const* pitch_row_of(label_t type) noexcept {
  auto const* const row = std::ranges::find(pitch_rows, type, &pitch_row::type);
  return row == std::end(pitch_rows) ? nullptr : row;
}

}  // namespace labelsbase
