// The table of speeds: at which rate timecode runs on which medium.
#pragma once

#include <algorithm>
#include <iterator>
#include <span>

#include "labelsbase/MediumRoll/medium.h"
#include "labelsbase/labelcvt/label_facts.h"
#include "labelsbase/labelcvt/label_types.h"
#include "labelsbase/labelcvt/rate_facts.h"
#include "labelsbase/support/enumerators.h"

namespace labelsbase {

struct pitch_row {
  label_t type;
  bool is_slow;                              // on most media it runs slower than it counts, by 1000/1001
  std::span<MediumRollMedium const> others;  // the media where that is the other way round
  bool film_at_24;                           // counts 24 frames a second on film
  bool sound_at_own_rate;                    // sound in sync counts the type's frames a second, otherwise 24

  [[nodiscard]] constexpr int frames_per_second() const noexcept {
    return facts_of(type).timecode.frames_per_second;
  }

  // Returns seconds per sample.
  [[nodiscard]] constexpr double pitch_on(MediumRollMedium medium) const noexcept {
    if (film_at_24 && medium == Medium_film) return 1.0 / 24;
    bool const is_other = std::ranges::find(others, medium) != others.end();
    return is_slow != is_other ? 1001.0 / (frames_per_second() * 1000) : 1.0 / frames_per_second();
  }
};

// The media where a type runs at its whole rate, while most run slower by 1000/1001, and the other way round.
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

// Deliberate: 120 and 240 frame timecode keeps its rate on film.
// clang-format off
inline constexpr pitch_row pitch_rows[] = {
//   type                     slow   others     film at 24  sound at own rate
    {pal_label_t,             false, {},        true,       true},
    {ntsc_label_t,            true,  at_30,     true,       true},
    {ntsc_drop_label_t,       true,  at_30,     true,       true},
    {tc_24_label_t,           false, at_23_976, false,      true},
    {tc_48_label_t,           false, at_47_952, true,       false},
    {tc_50_label_t,           false, {},        true,       true},
    {tc_60_label_t,           true,  at_60,     true,       true},
    {tc_50_duration_label_t,  false, {},        true,       true},
    {tc_60_duration_label_t,  true,  at_60,     true,       true},
    {tc_12_label_t,           false, at_11_988, true,       false},
    {tc_15_label_t,           false, at_14_985, true,       false},
    {tc_120_label_t,          false, at_119_88, false,      false},
    {tc_240_label_t,          false, at_239_76, false,      false},
};
// clang-format on

// Returns the row of a type, or null if no medium changes its pitch.
[[nodiscard]] constexpr pitch_row const* pitch_row_of(label_t type) noexcept {
  auto const* const row = std::ranges::find(pitch_rows, type, &pitch_row::type);
  return row == std::end(pitch_rows) ? nullptr : row;
}

// Returns the first type that counts a rate with the 1000/1001 factor and has no row, or null_label_t.
[[nodiscard]] consteval label_t first_without_pitch_row() {
  for (auto const& facts : all_rate_facts)
    if (facts.has_1001_factor && std::ranges::count(pitch_rows, facts.timecode_type, &pitch_row::type) == 0)
      return facts.timecode_type;
  return null_label_t;
}

static_assert(is_null<first_without_pitch_row()>,
              "this label type counts a rate with the 1000/1001 factor, but lacks its row in pitch_rows.h");

}  // namespace labelsbase
