// The transfers that frame counts know.
#pragma once

#include <algorithm>
#include <iterator>

#include "labelsbase/framecounts/count_types.h"

namespace labelsbase {

struct transfer_row {
  transfer_type transfer;
  int film_cycle;   // film frames of a cycle
  int video_cycle;  // video frames that they become

  [[nodiscard]] constexpr bool has_pulldown() const noexcept { return film_cycle != video_cycle; }
};

// clang-format off
inline constexpr transfer_row transfer_rows[] = {
//  transfer               film  video
    {Transfer_none,           1,   1},
    {Transfer_2_3_pulldown,   4,   5},
    {Transfer_24_to_25,      24,  25},
    {Transfer_one_to_one,     1,   1},
};
// clang-format on

// Every pulldown adds one frame to a cycle: the phase says where.
static_assert(std::ranges::all_of(transfer_rows, [](transfer_row const& row) {
  return row.video_cycle == row.film_cycle + row.has_pulldown();
}));

// Null for a transfer that frame counts do not know.
[[nodiscard]] constexpr transfer_row const* find_transfer(transfer_type transfer) noexcept {
  auto const* const row = std::ranges::find(transfer_rows, transfer, &transfer_row::transfer);
  return row == std::end(transfer_rows) ? nullptr : row;
}

}  // namespace labelsbase
