// Film frames and video frames across a pulldown.
//
// Frames are counted from 1; any int is taken, frames before the first as well. A transfer with pulldown makes one
// video frame more of every cycle of N film frames: 5 of 4, or 25 of 24. The phase, from 0 to N, says where: after
// the film frame at that position of the cycle, 0 being the first. At phase N, it stands before the first one.
//
//     Transfer_2_3_pulldown, phase 0       Transfer_2_3_pulldown, phase 2
//     film    A   .   B   C   D            film    A   B   C   .   D
//     video   1   2   3   4   5            video   1   2   3   4   5
//
// All functions return 0 on failure and then write nothing: for a transfer that they do not know, a result that
// does not fit an int, and a null pointer where there is something to write.
#pragma once

#include "labelsbase/export.h"
#include "labelsbase/framecounts/count_types.h"

// The first video frame that shows a film frame. `last_phase` is the phase that the frame before was left with, -1
// for none; at N its cycle has counted the added frame already, and video counts one less. Returns 2 when the
// added frame comes at the end of the cycle (phase N - 1 and up), else 1.
LABELSBASE_API int film_frames_to_video_frames(int film, int* video, int phase, int last_phase,
                                               transfer_type transfer) noexcept;

// The film frame that a video frame shows; for the added frame, the film frame after it. `phase_out` receives the
// phase of a cycle that starts at this video frame; without pulldown it is left alone. Returns 1.
LABELSBASE_API int video_frames_to_film_frames(int video, int* film, int phase, int* phase_out,
                                               transfer_type transfer) noexcept;

// A film frame and its place in the cycle, moved on by so many film frames, or back. Without pulldown, `phase_out`
// is left alone. Returns 1.
LABELSBASE_API int film_frames_plus_frames(int film, int phase, int frames, int* film_out, int* phase_out,
                                           transfer_type transfer) noexcept;

// The same for video frames. Deliberately less strict: a transfer that it does not know has no phase and only
// adds.
LABELSBASE_API int video_frames_plus_frames(int video, int phase, int frames, int* video_out, int* phase_out,
                                            transfer_type transfer) noexcept;
