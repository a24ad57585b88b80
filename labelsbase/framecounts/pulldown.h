// Film frames and video frames across a pulldown.
//
// A 2:3 pulldown shows film at 24 frames a second as video at 30 (60 fields): film frames stay for two fields and
// for three, in turn, so 4 film frames become 5 video frames.
//
//   film frame      1       2           3       4
//   field         1   1 | 2   2 | 2   3 | 3   4 | 4   4
//   video frame     1       2       3       4       5
//
// Frame counts simplify this: a cycle of N film frames becomes N + 1 video frames, and one of them is added whole.
// The phase, from 0 to N, says where: after film frame phase + 1 of the cycle, or at phase N before the first one.
// With N = 4:
//
//   phase   0              1              2              3              4
//   film    1 . 2 3 4      1 2 . 3 4      1 2 3 . 4      1 2 3 4 .      . 1 2 3 4
//   video   1 2 3 4 5      1 2 3 4 5      1 2 3 4 5      1 2 3 4 5      1 2 3 4 5
//
//   number              range
//   film, video frame   counted from 1; any int is accepted, frames before the first too
//   phase               0 to 4 for Transfer_2_3_pulldown, 0 to 24 for Transfer_24_to_25; any int is accepted
//   transfer            see labelsbase/framecounts/transfers.h
//
//   int video, film, phase;
//   film_frames_to_video_frames(2, &video, 0, -1, Transfer_2_3_pulldown)       // 1
//   video                                                                      // 3, after the added frame
//   film_frames_to_video_frames(4, &video, 3, -1, Transfer_2_3_pulldown)       // 2, the phase ends the cycle
//   video                                                                      // 4
//   video_frames_to_film_frames(3, &film, 0, &phase, Transfer_2_3_pulldown)    // 1
//   film                                                                       // 2
//   phase                                                                      // 3
//   film_frames_plus_frames(1, 0, 5, &film, &phase, Transfer_2_3_pulldown)     // 1
//   film                                                                       // 6
//   phase                                                                      // 1
//   video_frames_plus_frames(1, 3, 1, &video, &phase, Transfer_2_3_pulldown)   // 1
//   phase                                                                      // 4
//
// All functions return 0 on failure and then write nothing: for an unknown transfer, a result that does not fit an
// int, and a null pointer where there is something to write.
#pragma once

#include "labelsbase/export.h"
#include "labelsbase/framecounts/count_types.h"

// Writes the first video frame that shows a film frame. `last_phase` is the phase that the frame before was left
// with, or -1; at N its cycle has counted the added frame already, so video counts one less. Returns 2 if the
// added frame comes at the end of the cycle (phase N - 1 and above), otherwise 1.
LABELSBASE_API int film_frames_to_video_frames(int film, int* video, int phase, int last_phase,
                                               transfer_type transfer) noexcept;

// Writes the film frame that a video frame shows; for the added frame, the film frame after it. `phase_out`
// receives the phase of a cycle that starts at this video frame; without pulldown it is not written. Returns 1.
LABELSBASE_API int video_frames_to_film_frames(int video, int* film, int phase, int* phase_out,
                                               transfer_type transfer) noexcept;

// Adds `frames` film frames, or takes them off if negative, and writes the new frame and its phase. Without
// pulldown, `phase_out` is not written. Returns 1.
LABELSBASE_API int film_frames_plus_frames(int film, int phase, int frames, int* film_out, int* phase_out,
                                           transfer_type transfer) noexcept;

// Adds video frames likewise. Deliberate: unknown transfers are accepted and count as one without pulldown.
LABELSBASE_API int video_frames_plus_frames(int video, int phase, int frames, int* video_out, int* phase_out,
                                            transfer_type transfer) noexcept;
