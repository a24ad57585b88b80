// What is to be converted into what: two tracks of labels, how they belong together, and how to round.
#pragma once

#include <optional>
#include <string_view>

#include "host/frame_rate.h"
#include "labelsbase/framecounts/count_types.h"
#include "labelsbase/labelcvt/label_types.h"

namespace labelconvert {

// A track of labels: their type, and the speed at which their material runs. 23.976 and 24 have the same labels.
struct track {
  label_t type = null_label_t;                   // how its labels count and look
  Kiv::FrameRate rate = Kiv::FrameRate_unknown;  // frames a second
};

// What labels of both tracks have in common.
enum class shared {
  time,   // the instant, counted from the sync point: a second is a second
  frame,  // the frame, counted from the sync point: a frame is a frame, whatever the rates
};

// Where an instant lies between two frames.
enum class rounding {
  down,  // to the frame before
  near,  // to the nearest one; halfway, to the one after
  up,    // to the frame after
};

// One instant in both tracks, as samples of their types.
struct sync_point {
  int from = 0;  // sample of the track that is converted
  int to = 0;    // sample of the track that it is converted to
};

// A conversion that is asked for.
struct request {
  track from{};                     // the track that is converted
  track to{};                       // the track that it is converted to
  std::optional<shared> by{};       // what they share; if missing, usual_share
  sync_point sync{};                // where they meet; if not set, at sample 0 of both
  rounding round = rounding::near;  // of instants between two frames

  // Film to video or back: Transfer_2_3_pulldown between film or 24 frame timecode and 30 frame timecode,
  // Transfer_24_to_25 with 25 frame timecode. Frames go through the pulldown, whatever the rates; `by` is not
  // used.
  transfer_type transfer = Transfer_none;
  int phase = 0;  // of the pulldown at the sync point: see labelsbase/framecounts/pulldown.h
};

// The film frame that a cycle of a 2:3 pulldown begins with, by phase. The pulldown makes AA BB BC CD DD of the
// film frames A B C D. Frame counts add the video frame BC whole. So a cycle that begins at A has its added frame
// after its second film frame, which is phase 1.
inline constexpr std::string_view frames_by_phase = "BADC";

// Returns what labels of two tracks usually have in common:
//
//   timecode  timecode             time
//   film      film                 frame
//   film      timecode of 24, 25   frame: such film is transferred frame by frame
//   film      other timecode       nothing: that depends on how the film was transferred
[[nodiscard]] std::optional<shared> usual_share(track const& from, track const& to) noexcept;

// Why a request cannot be met.
enum class obstacle {
  none,
  no_labels,            // a type without labels, such as timecode_label_t
  unknown_rate,         // a rate without a number of frames a second
  no_usual_share,       // film and timecode for which `by` or `transfer` has to say what they share
  transfer_needs_film,  // neither track, or each, is film or 24 frame timecode
  transfer_needs_30,    // the video track of a 2:3 pulldown does not count 30 frames
  transfer_needs_25,    // the video track of a 24:25 pulldown does not count 25 frames
  unknown_transfer,     // frame counts do not know the transfer
  unknown_phase,        // the transfer has no such phase
};

// Returns the first obstacle of a request.
[[nodiscard]] obstacle find_obstacle(request const& asked) noexcept;

// Returns the obstacle in words: "a 2:3 pulldown leads to timecode of 30 frames". Empty for none.
[[nodiscard]] std::string_view explain(obstacle found) noexcept;

}  // namespace labelconvert
