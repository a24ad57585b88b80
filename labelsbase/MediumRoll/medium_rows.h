// The table of media.
#pragma once

#include <iterator>
#include <string_view>

#include "labelsbase/MediumRoll/medium.h"

namespace labelsbase {

enum medium_role { role_none, role_source, role_output };

struct medium_row {
  MediumRollMedium medium;
  char const* name;  // that of the enumerator; empty for values without a meaning
  medium_role role;
  Kiv::FrameRate rate;
  bool progressive;  // a sample is a frame, not a field
  bool double_rate;  // 50 or 60 frames
  label_t label_type;
  char const* user_word;  // what users read for it
};

inline constexpr char const* no_word = "med?";

// clang-format off
inline constexpr medium_row medium_rows[] = {
//   medium             name          role         rate                    progr. double label type      user word
    {Medium_none,       "none",       role_none,   Kiv::FrameRate_unknown, false, false, null_label_t,   no_word},
    {Medium_any,        "any",        role_none,   Kiv::FrameRate_unknown, false, false, null_label_t,   no_word},
    {Medium_film,       "film",       role_none,   Kiv::FrameRate_unknown, false, false, null_label_t,   "film"},
    {Medium_video,      "video",      role_none,   Kiv::FrameRate_unknown, false, false, null_label_t,   "video"},
    {Medium_audio,      "audio",      role_none,   Kiv::FrameRate_unknown, false, false, null_label_t,   "audio"},
    {Medium_reserved_5, "",           role_none,   Kiv::FrameRate_unknown, false, false, null_label_t,   no_word},
    {Medium_reserved_6, "",           role_none,   Kiv::FrameRate_unknown, false, false, null_label_t,   no_word},
    {Medium_clock,      "clock",      role_none,   Kiv::FrameRate_unknown, false, false, null_label_t,   no_word},
    {Medium_output,     "output",     role_none,   Kiv::FrameRate_unknown, false, false, null_label_t,   no_word},
    {Medium_reserved_9, "",           role_none,   Kiv::FrameRate_unknown, false, false, null_label_t,   no_word},
    {Medium_ink,        "ink",        role_none,   Kiv::FrameRate_unknown, false, false, null_label_t,   "ink"},
    {Medium_lab,        "lab",        role_none,   Kiv::FrameRate_unknown, false, false, null_label_t,   "Lab"},
    {Medium_cel,        "cel",        role_none,   Kiv::FrameRate_unknown, false, false, null_label_t,   no_word},
    {Medium_film24,     "film24",     role_none,   Kiv::FrameRate_unknown, false, false, null_label_t,   "24p"},
    {Medium_film24_out, "film24_out", role_none,   Kiv::FrameRate_unknown, false, false, null_label_t,   no_word},
    {Medium_src_24p,    "src_24p",    role_source, Kiv::FrameRate_24,      true,  false, tc_24_label_t,  "24p"},
    {Medium_src_2398p,  "src_2398p",  role_source, Kiv::FrameRate_23_976,  true,  false, tc_24_label_t,  "24p"},
    {Medium_src_24i,    "src_24i",    role_source, Kiv::FrameRate_24,      false, false, tc_24_label_t,  "24i"},
    {Medium_src_2398i,  "src_2398i",  role_source, Kiv::FrameRate_23_976,  false, false, tc_24_label_t,  "24i"},
    {Medium_src_25p,    "src_25p",    role_source, Kiv::FrameRate_25,      true,  false, pal_label_t,    "25p"},
    {Medium_src_25i,    "src_25i",    role_source, Kiv::FrameRate_25,      false, false, pal_label_t,    "25i"},
    {Medium_src_30p,    "src_30p",    role_source, Kiv::FrameRate_30,      true,  false, ntsc_label_t,   "30p"},
    {Medium_src_2997p,  "src_2997p",  role_source, Kiv::FrameRate_29_97,   true,  false, ntsc_label_t,   "30p"},
    {Medium_src_30i,    "src_30i",    role_source, Kiv::FrameRate_30,      false, false, ntsc_label_t,   "30i"},
    {Medium_src_2997i,  "src_2997i",  role_source, Kiv::FrameRate_29_97,   false, false, ntsc_label_t,   "30i"},
    {Medium_src_50p,    "src_50p",    role_source, Kiv::FrameRate_50,      true,  true,  tc_50_label_t,  "50p"},
    {Medium_src_60p,    "src_60p",    role_source, Kiv::FrameRate_60,      true,  true,  tc_60_label_t,  "60p"},
    {Medium_src_5994p,  "src_5994p",  role_source, Kiv::FrameRate_59_94,   true,  true,  tc_60_label_t,  "60p"},
    {Medium_out_24p,    "out_24p",    role_output, Kiv::FrameRate_24,      true,  false, tc_24_label_t,  no_word},
    {Medium_out_2398p,  "out_2398p",  role_output, Kiv::FrameRate_23_976,  true,  false, tc_24_label_t,  no_word},
    {Medium_out_24i,    "out_24i",    role_output, Kiv::FrameRate_24,      false, false, tc_24_label_t,  no_word},
    {Medium_out_2398i,  "out_2398i",  role_output, Kiv::FrameRate_23_976,  false, false, tc_24_label_t,  no_word},
    {Medium_out_25p,    "out_25p",    role_output, Kiv::FrameRate_25,      true,  false, pal_label_t,    no_word},
    {Medium_out_25i,    "out_25i",    role_output, Kiv::FrameRate_25,      false, false, pal_label_t,    no_word},
    {Medium_out_30p,    "out_30p",    role_output, Kiv::FrameRate_30,      true,  false, ntsc_label_t,   no_word},
    {Medium_out_2997p,  "out_2997p",  role_output, Kiv::FrameRate_29_97,   true,  false, ntsc_label_t,   no_word},
    {Medium_out_30i,    "out_30i",    role_output, Kiv::FrameRate_30,      false, false, ntsc_label_t,   no_word},
    {Medium_out_2997i,  "out_2997i",  role_output, Kiv::FrameRate_29_97,   false, false, ntsc_label_t,   no_word},
    {Medium_out_50p,    "out_50p",    role_output, Kiv::FrameRate_50,      true,  true,  tc_50_label_t,  no_word},
    {Medium_out_60p,    "out_60p",    role_output, Kiv::FrameRate_60,      true,  true,  tc_60_label_t,  no_word},
    {Medium_out_5994p,  "out_5994p",  role_output, Kiv::FrameRate_59_94,   true,  true,  tc_60_label_t,  no_word},
    {Medium_src_48p,    "src_48p",    role_source, Kiv::FrameRate_48,      true,  false, tc_48_label_t,  no_word},
    {Medium_src_48pb,   "src_48pb",   role_source, Kiv::FrameRate_47_952,  true,  false, tc_48_label_t,  no_word},
    {Medium_out_48p,    "out_48p",    role_output, Kiv::FrameRate_48,      true,  false, tc_48_label_t,  no_word},
    {Medium_out_48pb,   "out_48pb",   role_output, Kiv::FrameRate_47_952,  true,  false, tc_48_label_t,  no_word},
    {Medium_src_12p,    "src_12p",    role_source, Kiv::FrameRate_12,      true,  false, tc_12_label_t,  "12p"},
    {Medium_src_12pb,   "src_12pb",   role_source, Kiv::FrameRate_11_988,  true,  false, tc_12_label_t,  "12p"},
    {Medium_src_125p,   "src_125p",   role_source, Kiv::FrameRate_12_5,    true,  false, tc_12_label_t,  "12.5p"},
    {Medium_src_15p,    "src_15p",    role_source, Kiv::FrameRate_15,      true,  false, tc_15_label_t,  "15p"},
    {Medium_src_15pb,   "src_15pb",   role_source, Kiv::FrameRate_14_985,  true,  false, tc_15_label_t,  "15p"},
    {Medium_src_20p,    "src_20p",    role_source, Kiv::FrameRate_20,      true,  false, tc_20_label_t,  "20p"},
    {Medium_src_80p,    "src_80p",    role_source, Kiv::FrameRate_80,      true,  false, tc_80_label_t,  "80p"},
    {Medium_src_90p,    "src_90p",    role_source, Kiv::FrameRate_90,      true,  false, tc_90_label_t,  "90p"},
    {Medium_src_100p,   "src_100p",   role_source, Kiv::FrameRate_100,     true,  false, tc_100_label_t, "100p"},
    {Medium_src_120p,   "src_120p",   role_source, Kiv::FrameRate_120,     true,  false, tc_120_label_t, "120p"},
    {Medium_src_120pb,  "src_120pb",  role_source, Kiv::FrameRate_119_88,  true,  false, tc_120_label_t, "120p"},
    {Medium_src_240p,   "src_240p",   role_source, Kiv::FrameRate_240,     true,  false, tc_240_label_t, "240p"},
    {Medium_src_240pb,  "src_240pb",  role_source, Kiv::FrameRate_239_76,  true,  false, tc_240_label_t, "240p"},
    {Medium_out_12p,    "out_12p",    role_output, Kiv::FrameRate_12,      true,  false, tc_12_label_t,  no_word},
    {Medium_out_12pb,   "out_12pb",   role_output, Kiv::FrameRate_11_988,  true,  false, tc_12_label_t,  no_word},
    {Medium_out_125p,   "out_125p",   role_output, Kiv::FrameRate_12_5,    true,  false, tc_12_label_t,  no_word},
    {Medium_out_15p,    "out_15p",    role_output, Kiv::FrameRate_15,      true,  false, tc_15_label_t,  no_word},
    {Medium_out_15pb,   "out_15pb",   role_output, Kiv::FrameRate_14_985,  true,  false, tc_15_label_t,  no_word},
    {Medium_out_20p,    "out_20p",    role_output, Kiv::FrameRate_20,      true,  false, tc_20_label_t,  no_word},
    {Medium_out_80p,    "out_80p",    role_output, Kiv::FrameRate_80,      true,  false, tc_80_label_t,  no_word},
    {Medium_out_90p,    "out_90p",    role_output, Kiv::FrameRate_90,      true,  false, tc_90_label_t,  no_word},
    {Medium_out_100p,   "out_100p",   role_output, Kiv::FrameRate_100,     true,  false, tc_100_label_t, no_word},
    {Medium_out_120p,   "out_120p",   role_output, Kiv::FrameRate_120,     true,  false, tc_120_label_t, no_word},
    {Medium_out_120pb,  "out_120pb",  role_output, Kiv::FrameRate_119_88,  true,  false, tc_120_label_t, no_word},
    {Medium_out_240p,   "out_240p",   role_output, Kiv::FrameRate_240,     true,  false, tc_240_label_t, no_word},
    {Medium_out_240pb,  "out_240pb",  role_output, Kiv::FrameRate_239_76,  true,  false, tc_240_label_t, no_word},
};
// clang-format on

[[nodiscard]] constexpr bool in_order(medium_row const (&rows)[medium_count]) noexcept {
  for (int i = 0; i < medium_count; ++i)
    if (rows[i].medium != i) return false;
  return true;
}

static_assert(std::size(medium_rows) == medium_count);
static_assert(in_order(medium_rows));  // the row of medium m is medium_rows[m]

// The outputs at the end repeat the sources 13 lower, but for their user word.
[[nodiscard]] constexpr bool repeats(medium_row const& output, medium_row const& source) noexcept {
  return output.role == role_output && source.role == role_source && output.rate == source.rate &&
         output.progressive == source.progressive && output.double_rate == source.double_rate &&
         output.label_type == source.label_type && output.user_word == std::string_view{no_word} &&
         std::string_view{output.name}.substr(4) == std::string_view{source.name}.substr(4);
}

static_assert([] {
  for (int i = Medium_out_12p; i <= Medium_out_240pb; ++i)
    if (!repeats(medium_rows[i], medium_rows[i - 13])) return false;
  return true;
}());

// The row of a medium; that of Medium_none for a value out of range.
[[nodiscard]] constexpr medium_row const& row_of(MediumRollMedium medium) noexcept {
  return medium_rows[is_medium(medium) ? medium : Medium_none];
}

}  // namespace labelsbase
