// Private: results of the frame counts: written only if all of them fit, and moved into a span.
#pragma once

#include <cstdint>
#include <utility>

namespace labelsbase {

// Writes a result. Returns 1, or 0 if it does not fit an int or `out` is null.
constexpr int put_count(int* out, std::int64_t value) noexcept {
  if (!out || !std::in_range<int>(value)) return 0;
  *out = static_cast<int>(value);
  return 1;
}

// Writes a frame and a phase, or neither.
constexpr int put_count(int* frame_out, std::int64_t frame, int* phase_out, std::int64_t phase) noexcept {
  if (!frame_out || !std::in_range<int>(frame) || !put_count(phase_out, phase)) return 0;
  return put_count(frame_out, frame);
}

// Moves a frame up to a span out of the span into it.
constexpr std::int64_t wrap_once(std::int64_t frame, std::int64_t span) noexcept {
  if (frame < 0) return frame + span;
  return frame >= span ? frame - span : frame;
}

}  // namespace labelsbase
