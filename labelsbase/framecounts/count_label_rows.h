// The table of the label types that frame counts know: one row a number.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <functional>
#include <iterator>

#include "labelsbase/counts/timecode_count.h"
#include "labelsbase/framecounts/count_types.h"
#include "labelsbase/support/enumerators.h"

namespace labelsbase {

enum class text_form : unsigned char { unknown, timecode, keycode };

struct count_label_row {
  label_type label{};
  text_form form = text_form::unknown;
  timecode_count count{};   // of timecode, set up here and not in every conversion
  int units_per_frame = 0;  // of a key number: 4 if it counts perforations after the key, 1 if it counts frames
};

// clang-format off
inline constexpr count_label_row count_label_rows[] = {
//   label                   form                 frames a second     units a frame
    {Label_timecode_30,      text_form::timecode, timecode_count{30}},
    {Label_timecode_25,      text_form::timecode, timecode_count{25}},
    {Label_timecode_30_b,    text_form::timecode, timecode_count{30}},
    {Label_timecode_24,      text_form::timecode, timecode_count{24}},
    {Label_timecode_25_b,    text_form::timecode, timecode_count{25}},
    {Label_timecode_24_b,    text_form::timecode, timecode_count{24}},
    {Label_timecode_25_c,    text_form::timecode, timecode_count{25}},
    {Label_keycode_frames,   text_form::keycode,  {},                 1},
    {Label_keycode_perfs,    text_form::keycode,  {},                 4},
    {Label_keycode_frames_b, text_form::keycode,  {},                 1},
    {Label_keycode_perfs_b,  text_form::keycode,  {},                 4},
    {Label_timecode_25_d,    text_form::timecode, timecode_count{25}},
    {Label_timecode_30_c,    text_form::timecode, timecode_count{30}},
    {Label_timecode_30_d,    text_form::timecode, timecode_count{30}},
    {Label_keycode_3perf,    text_form::keycode,  {},                 1},
    {Label_keycode_frames_c, text_form::keycode,  {},                 1},
    {Label_timecode_24_c,    text_form::timecode, timecode_count{24}},
    {Label_timecode_50,      text_form::timecode, timecode_count{50}},
    {Label_timecode_60,      text_form::timecode, timecode_count{60}},
    {Label_timecode_48,      text_form::timecode, timecode_count{48}},
    {Label_timecode_50_b,    text_form::timecode, timecode_count{50}},
    {Label_timecode_60_b,    text_form::timecode, timecode_count{60}},
    {Label_timecode_48_b,    text_form::timecode, timecode_count{48}},
    {Label_timecode_30_e,    text_form::timecode, timecode_count{30}},
    {Label_timecode_48_c,    text_form::timecode, timecode_count{48}},
};
// clang-format on

static_assert(std::ranges::adjacent_find(count_label_rows, std::ranges::greater_equal{},
                                         &count_label_row::label) == std::end(count_label_rows),
              "the rows are in the order of the numbers, each once");

// The rows by number, and an empty row for all numbers without one behind them.
inline constexpr auto count_label_rows_by_number = [] {
  std::array<count_label_row, static_cast<std::size_t>(std::end(count_label_rows)[-1].label) + 2> rows{};
  for (auto const& row : count_label_rows) rows[static_cast<std::size_t>(row.label)] = row;
  return rows;
}();

// Returns the row of a label type; one of unknown form for a number without a row.
[[nodiscard]] constexpr count_label_row const& count_label_row_of(label_type label) noexcept {
  constexpr auto empty_row = count_label_rows_by_number.size() - 1;
  return count_label_rows_by_number[std::min(static_cast<std::size_t>(static_cast<unsigned>(label)), empty_row)];
}

constexpr bool has_row(label_type label) noexcept { return count_label_row_of(label).form != text_form::unknown; }

static_assert(has_no_name<first_enumerator_without<label_type, 64>(has_row)>,
              "this label type lacks its row in count_label_rows.h");

}  // namespace labelsbase
