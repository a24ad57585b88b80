// Results of the frame counts: nothing is written unless all of it fits.
#pragma once

#include <cstdint>
#include <utility>

namespace labelsbase {

// Writes a result and gives its status: 0 when it does not fit or has nowhere to go, else 1.
constexpr int put_count(int* out, std::int64_t value) noexcept {
  if (!out || !std::in_range<int>(value)) return 0;
  *out = static_cast<int>(value);
  return 1;
}

// Both or none.
constexpr int put_count(int* frame_out, std::int64_t frame, int* phase_out, std::int64_t phase) noexcept {
  if (!frame_out || !std::in_range<int>(frame) || !put_count(phase_out, phase)) return 0;
  return put_count(frame_out, frame);
}

}  // namespace labelsbase
