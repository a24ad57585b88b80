#include "labelsbase/framecounts/pulldown.h"

#include <cstdint>

#include "labelsbase/framecounts/put_count.h"
#include "labelsbase/framecounts/transfers.h"

using namespace labelsbase;

namespace {

// Returns how many whole cycles to add to a frame to bring it to frame 1 or later.
constexpr std::int64_t cycles_before_first(int frame, int cycle) noexcept {
  return frame > 0 ? 0 : (std::int64_t{cycle} - frame) / cycle;
}

// Returns the remainder of a step within a cycle, from 0 up.
constexpr int step_in_cycle(int frames, int cycle) noexcept {
  int const step = frames % cycle;
  return step < 0 ? step + cycle : step;
}

}  // namespace

int film_frames_to_video_frames(int film, int* video, int phase, int last_phase, transfer_type transfer) noexcept {
  auto const* const row = find_transfer(transfer);
  if (!row) return 0;
  if (!row->has_pulldown()) return put_count(video, film);

  int const cycle = row->film_cycle;
  auto const cycles = cycles_before_first(film, cycle);
  auto const frame = film + cycles * cycle;
  auto const position = frame % cycle;  // in the cycle, from 1; 0 for its last frame

  auto result = frame + frame / cycle - cycles * row->video_cycle;
  if (position == 0)
    result -= phase == cycle - 1;
  else
    result += position - 1 > phase || phase == cycle;
  result -= last_phase == cycle;

  if (!put_count(video, result)) return 0;
  return phase < cycle - 1 ? 1 : 2;
}

int video_frames_to_film_frames(int video, int* film, int phase, int* phase_out, transfer_type transfer) noexcept {
  auto const* const row = find_transfer(transfer);
  if (!row) return 0;
  if (!row->has_pulldown()) return put_count(film, video);

  int const cycle = row->video_cycle;
  auto const cycles = cycles_before_first(video, cycle);
  auto const frame = video + cycles * cycle;
  auto const position = frame % cycle;  // in the cycle, from 1; 0 for its last frame

  auto result = frame - frame / cycle - cycles * row->film_cycle;
  result += position == 0 && phase == row->film_cycle - 1;
  result -= position - 2 > phase;
  result -= position > 1 && phase == row->film_cycle;

  auto phase_here = phase - (frame - 1) % cycle;
  if (phase_here < 0) phase_here += cycle;
  return put_count(film, result, phase_out, phase_here);
}

int film_frames_plus_frames(int film, int phase, int frames, int* film_out, int* phase_out,
                            transfer_type transfer) noexcept {
  auto const* const row = find_transfer(transfer);
  if (!row) return 0;
  auto const sum = std::int64_t{film} + frames;
  if (!row->has_pulldown()) return put_count(film_out, sum);

  int const cycle = row->film_cycle;
  // Deliberate: film has no phase N; it counts as N - 1.
  auto phase_there = std::int64_t{phase == cycle ? cycle - 1 : phase} + step_in_cycle(frames, cycle);
  if (phase_there >= cycle) phase_there -= cycle;
  return put_count(film_out, sum, phase_out, phase_there);
}

int video_frames_plus_frames(int video, int phase, int frames, int* video_out, int* phase_out,
                             transfer_type transfer) noexcept {
  auto const* const row = find_transfer(transfer);
  auto const sum = std::int64_t{video} + frames;
  if (!row || !row->has_pulldown()) return put_count(video_out, sum);

  int const cycle = row->video_cycle;
  auto phase_there = std::int64_t{phase} + step_in_cycle(frames, cycle);
  if (phase_there > row->film_cycle) phase_there -= cycle;
  return put_count(video_out, sum, phase_out, phase_there);
}
