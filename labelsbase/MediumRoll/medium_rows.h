// The table of media.
#pragma once

#include <algorithm>
#include <iterator>
#include <string_view>

#include "labelsbase/MediumRoll/medium.h"
#include "labelsbase/labelcvt/rate_facts.h"
#include "labelsbase/support/enumerators.h"

namespace labelsbase {

// What a medium is for.
enum class medium_role { general, source, output };

struct medium_row {
  MediumRollMedium medium;
  char const* name;  // that of the enumerator without "Medium_"; "" for values without a meaning
  medium_role role;
  Kiv::FrameRate rate;  // FrameRate_unknown for general media
  bool progressive;     // a sample is a frame, not a field
  char const* user_word;
};

namespace medium_table {

using enum medium_role;
inline constexpr auto no_rate = Kiv::FrameRate_unknown;
inline constexpr char const* no_word = "med?";

// clang-format off
inline constexpr medium_row rows[] = {
//   medium             name          role     rate                    progr. user word
    {Medium_none,       "none",       general, no_rate,                false, no_word},
    {Medium_any,        "any",        general, no_rate,                false, no_word},
    {Medium_film,       "film",       general, no_rate,                false, "film"},
    {Medium_video,      "video",      general, no_rate,                false, "video"},
    {Medium_audio,      "audio",      general, no_rate,                false, "audio"},
    {Medium_reserved_5, "",           general, no_rate,                false, no_word},
    {Medium_reserved_6, "",           general, no_rate,                false, no_word},
    {Medium_clock,      "clock",      general, no_rate,                false, no_word},
    {Medium_output,     "output",     general, no_rate,                false, no_word},
    {Medium_reserved_9, "",           general, no_rate,                false, no_word},
    {Medium_ink,        "ink",        general, no_rate,                false, "ink"},
    {Medium_lab,        "lab",        general, no_rate,                false, "Lab"},
    {Medium_cel,        "cel",        general, no_rate,                false, no_word},
    {Medium_film24,     "film24",     general, no_rate,                false, "24p"},
    {Medium_film24_out, "film24_out", general, no_rate,                false, no_word},
    {Medium_src_24p,    "src_24p",    source,  Kiv::FrameRate_24,      true,  "24p"},
    {Medium_src_2398p,  "src_2398p",  source,  Kiv::FrameRate_23_976,  true,  "24p"},
    {Medium_src_24i,    "src_24i",    source,  Kiv::FrameRate_24,      false, "24i"},
    {Medium_src_2398i,  "src_2398i",  source,  Kiv::FrameRate_23_976,  false, "24i"},
    {Medium_src_25p,    "src_25p",    source,  Kiv::FrameRate_25,      true,  "25p"},
    {Medium_src_25i,    "src_25i",    source,  Kiv::FrameRate_25,      false, "25i"},
    {Medium_src_30p,    "src_30p",    source,  Kiv::FrameRate_30,      true,  "30p"},
    {Medium_src_2997p,  "src_2997p",  source,  Kiv::FrameRate_29_97,   true,  "30p"},
    {Medium_src_30i,    "src_30i",    source,  Kiv::FrameRate_30,      false, "30i"},
    {Medium_src_2997i,  "src_2997i",  source,  Kiv::FrameRate_29_97,   false, "30i"},
    {Medium_src_50p,    "src_50p",    source,  Kiv::FrameRate_50,      true,  "50p"},
    {Medium_src_60p,    "src_60p",    source,  Kiv::FrameRate_60,      true,  "60p"},
    {Medium_src_5994p,  "src_5994p",  source,  Kiv::FrameRate_59_94,   true,  "60p"},
    {Medium_out_24p,    "out_24p",    output,  Kiv::FrameRate_24,      true,  no_word},
    {Medium_out_2398p,  "out_2398p",  output,  Kiv::FrameRate_23_976,  true,  no_word},
    {Medium_out_24i,    "out_24i",    output,  Kiv::FrameRate_24,      false, no_word},
    {Medium_out_2398i,  "out_2398i",  output,  Kiv::FrameRate_23_976,  false, no_word},
    {Medium_out_25p,    "out_25p",    output,  Kiv::FrameRate_25,      true,  no_word},
    {Medium_out_25i,    "out_25i",    output,  Kiv::FrameRate_25,      false, no_word},
    {Medium_out_30p,    "out_30p",    output,  Kiv::FrameRate_30,      true,  no_word},
    {Medium_out_2997p,  "out_2997p",  output,  Kiv::FrameRate_29_97,   true,  no_word},
    {Medium_out_30i,    "out_30i",    output,  Kiv::FrameRate_30,      false, no_word},
    {Medium_out_2997i,  "out_2997i",  output,  Kiv::FrameRate_29_97,   false, no_word},
    {Medium_out_50p,    "out_50p",    output,  Kiv::FrameRate_50,      true,  no_word},
    {Medium_out_60p,    "out_60p",    output,  Kiv::FrameRate_60,      true,  no_word},
    {Medium_out_5994p,  "out_5994p",  output,  Kiv::FrameRate_59_94,   true,  no_word},
    {Medium_src_48p,    "src_48p",    source,  Kiv::FrameRate_48,      true,  no_word},
    {Medium_src_48pb,   "src_48pb",   source,  Kiv::FrameRate_47_952,  true,  no_word},
    {Medium_out_48p,    "out_48p",    output,  Kiv::FrameRate_48,      true,  no_word},
    {Medium_out_48pb,   "out_48pb",   output,  Kiv::FrameRate_47_952,  true,  no_word},
    {Medium_src_12p,    "src_12p",    source,  Kiv::FrameRate_12,      true,  "12p"},
    {Medium_src_12pb,   "src_12pb",   source,  Kiv::FrameRate_11_988,  true,  "12p"},
    {Medium_src_125p,   "src_125p",   source,  Kiv::FrameRate_12_5,    true,  "12.5p"},
    {Medium_src_15p,    "src_15p",    source,  Kiv::FrameRate_15,      true,  "15p"},
    {Medium_src_15pb,   "src_15pb",   source,  Kiv::FrameRate_14_985,  true,  "15p"},
    {Medium_src_20p,    "src_20p",    source,  Kiv::FrameRate_20,      true,  "20p"},
    {Medium_src_80p,    "src_80p",    source,  Kiv::FrameRate_80,      true,  "80p"},
    {Medium_src_90p,    "src_90p",    source,  Kiv::FrameRate_90,      true,  "90p"},
    {Medium_src_100p,   "src_100p",   source,  Kiv::FrameRate_100,     true,  "100p"},
    {Medium_src_120p,   "src_120p",   source,  Kiv::FrameRate_120,     true,  "120p"},
    {Medium_src_120pb,  "src_120pb",  source,  Kiv::FrameRate_119_88,  true,  "120p"},
    {Medium_src_240p,   "src_240p",   source,  Kiv::FrameRate_240,     true,  "240p"},
    {Medium_src_240pb,  "src_240pb",  source,  Kiv::FrameRate_239_76,  true,  "240p"},
    {Medium_out_12p,    "out_12p",    output,  Kiv::FrameRate_12,      true,  no_word},
    {Medium_out_12pb,   "out_12pb",   output,  Kiv::FrameRate_11_988,  true,  no_word},
    {Medium_out_125p,   "out_125p",   output,  Kiv::FrameRate_12_5,    true,  no_word},
    {Medium_out_15p,    "out_15p",    output,  Kiv::FrameRate_15,      true,  no_word},
    {Medium_out_15pb,   "out_15pb",   output,  Kiv::FrameRate_14_985,  true,  no_word},
    {Medium_out_20p,    "out_20p",    output,  Kiv::FrameRate_20,      true,  no_word},
    {Medium_out_80p,    "out_80p",    output,  Kiv::FrameRate_80,      true,  no_word},
    {Medium_out_90p,    "out_90p",    output,  Kiv::FrameRate_90,      true,  no_word},
    {Medium_out_100p,   "out_100p",   output,  Kiv::FrameRate_100,     true,  no_word},
    {Medium_out_120p,   "out_120p",   output,  Kiv::FrameRate_120,     true,  no_word},
    {Medium_out_120pb,  "out_120pb",  output,  Kiv::FrameRate_119_88,  true,  no_word},
    {Medium_out_240p,   "out_240p",   output,  Kiv::FrameRate_240,     true,  no_word},
    {Medium_out_240pb,  "out_240pb",  output,  Kiv::FrameRate_239_76,  true,  no_word},
};
// clang-format on

}  // namespace medium_table

// The table by medium: the row of medium `m` is medium_rows[m].
inline constexpr auto const& medium_rows = medium_table::rows;

// Returns the row of a medium, or that of Medium_none for a value out of range.
[[nodiscard]] constexpr medium_row const& row_of(MediumRollMedium medium) noexcept {
  return medium_rows[is_medium(medium) ? medium : Medium_none];
}

namespace medium_table {

// Returns whether the output plays what the source holds: "out_2997i" and "src_2997i".
[[nodiscard]] constexpr bool is_output_of(medium_row const& a, medium_row const& b) {
  return a.role == output && b.role == source && a.rate == b.rate && a.progressive == b.progressive &&
         std::string_view{a.name}.substr(3) == std::string_view{b.name}.substr(3);
}

// Returns the first medium whose row is missing or out of order, or the number behind the last row.
[[nodiscard]] consteval MediumRollMedium first_without_row() {
  int medium = 0;
  while (medium < static_cast<int>(std::size(rows)) && rows[medium].medium == medium) ++medium;
  return static_cast<MediumRollMedium>(medium);
}

// Returns the first source without its output, or output without its source, or Medium_none.
[[nodiscard]] consteval MediumRollMedium first_without_counterpart() {
  for (auto const& a : rows) {
    auto const counterpart = [&](medium_row const& b) { return is_output_of(a, b) || is_output_of(b, a); };
    if (a.role != general && std::ranges::count_if(rows, counterpart) != 1) return a.medium;
  }
  return Medium_none;
}

// Returns the first source or output at a rate that has no facts, or the first general medium with a rate.
[[nodiscard]] consteval MediumRollMedium first_without_known_rate() {
  for (auto const& row : rows)
    if ((row.role == general) != (row.rate == no_rate) || facts_of(row.rate).rate != row.rate) return row.medium;
  return Medium_none;
}

// Returns the first rate without a progressive source, or FrameRate_unknown. Its output is proven above.
[[nodiscard]] consteval Kiv::FrameRate first_rate_without_source() {
  for (auto const& facts : all_rate_facts) {
    auto const is_its_source = [&](medium_row const& row) {
      return row.role == source && row.rate == facts.rate && row.progressive;
    };
    if (std::ranges::count_if(rows, is_its_source) != 1) return facts.rate;
  }
  return no_rate;
}

static_assert(has_no_name<first_without_row()>,
              "this medium lacks its row in the table, or its row is out of order");
static_assert(std::size(rows) == medium_count, "medium_count is one more than the last medium");
static_assert(is_null<first_without_known_rate()>, "the rate of this medium lacks its row in rate_facts.h");
static_assert(is_null<first_without_counterpart()>,
              "this medium lacks its counterpart: a source and an output of one rate, scan and name");
static_assert(is_null<first_rate_without_source()>,
              "this rate lacks its progressive source and output in the table of media");

}  // namespace medium_table
}  // namespace labelsbase
