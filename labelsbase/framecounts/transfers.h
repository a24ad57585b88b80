// The transfers from film to video that frame counts know: one table, one row a transfer.
//
//   find_transfer(Transfer_2_3_pulldown)->video_cycle   // 5
//   find_transfer(Transfer_project_rate)                // nullptr
#pragma once

#include <algorithm>
#include <functional>
#include <iterator>

#include "labelsbase/framecounts/count_types.h"

namespace labelsbase {

// A transfer repeats its pattern after a cycle: `film_cycle` film frames become `video_cycle` video frames.
struct transfer_facts {
  transfer_type transfer;  // the transfer that the row describes
  int film_cycle;          // film frames of a cycle
  int video_cycle;         // video frames of a cycle

  // Whether the transfer adds a video frame to every cycle.
  [[nodiscard]] constexpr bool has_pulldown() const noexcept { return film_cycle != video_cycle; }
};

// All transfers that frame counts know.
// clang-format off
inline constexpr transfer_facts all_transfer_facts[] = {
//   transfer              film  video frames
    {Transfer_none,           1,   1},
    {Transfer_2_3_pulldown,   4,   5},
    {Transfer_24_to_25,      24,  25},
    {Transfer_one_to_one,     1,   1},
};
// clang-format on

static_assert(std::ranges::adjacent_find(all_transfer_facts, std::ranges::greater_equal{},
                                         &transfer_facts::transfer) == std::end(all_transfer_facts),
              "the rows are in the order of the numbers, each once");
static_assert(std::ranges::all_of(all_transfer_facts,
                                  [](transfer_facts const& facts) {
                                    return facts.video_cycle == facts.film_cycle + facts.has_pulldown();
                                  }),
              "a pulldown adds one frame to a cycle; the phase says where");

// Returns the facts of a transfer, or null for one that frame counts do not know.
[[nodiscard]] constexpr transfer_facts const* find_transfer(transfer_type transfer) noexcept {
  auto const* const row = std::ranges::find(all_transfer_facts, transfer, &transfer_facts::transfer);
  return row == std::end(all_transfer_facts) ? nullptr : row;
}

}  // namespace labelsbase
