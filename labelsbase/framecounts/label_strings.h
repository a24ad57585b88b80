// Any label text as a frame number and back, and label texts moved on by frames or by time.
//
// The label type and the edit say which of the functions of count_text.h is asked: film frames for a film edit,
// video frames for a video edit. Deliberate: timecode of 24 and 48 frames a second is film timecode here, both
// counted at 24, and key numbers with perforations are refused, as is any other edit.
//
// `phase`, `last_phase` and `transfer` are those of the pulldown (pulldown.h); `key_phase`, `per_key` and `digits`
// those of key numbers, and `drop` that of timecode (count_text.h). Texts, results and failures are as there.
#pragma once

#include "labelsbase/export.h"
#include "labelsbase/framecounts/count_types.h"

// `phase_out` receives the phase found by a reader of timecode across a pulldown, else -1: even when this fails.
LABELSBASE_API int label_to_frames(char* text, int key_phase, int* key_phase_out, int phase, int* phase_out,
                                   int* frames, label_type label, int drop, transfer_type transfer, edit_type edit,
                                   int per_key) noexcept;

LABELSBASE_API int frames_to_label(char* text, int key_phase, int* key_phase_out, int phase, int last_phase,
                                   int frames, label_type label, int drop, transfer_type transfer, edit_type edit,
                                   int per_key, unsigned char digits) noexcept;

// film_frames_plus_frames or video_frames_plus_frames, `count` frames on.
LABELSBASE_API int frames_plus_frames(int frames, int phase, int count, int* frames_out, int* phase_out,
                                      transfer_type transfer, edit_type edit) noexcept;

// The label `count` frames on. The two texts may be one. `phase_out` receives the phase there, which without a
// pulldown is `phase`; `key_phase_out` that of the key, which is `key_phase` but for film at 3 perforations a
// frame. When the new frame has no label, `phase_out` may be written all the same.
LABELSBASE_API int label_plus_frames(char* out_text, int* key_phase_out, int* phase_out, char* in_text,
                                     int key_phase, int phase, int count, label_type label, int drop, int per_key,
                                     unsigned char digits, transfer_type transfer, edit_type edit) noexcept;

// Frames a second: 24 for a film edit, else those of the material.
[[nodiscard]] LABELSBASE_API double get_frame_rate(material_type material, edit_type edit) noexcept;

// The label so many seconds on: by the whole frames that they have, where 0.01 of a frame may be missing. A time
// of more frames than an int holds is refused.
LABELSBASE_API int label_plus_time(char* out_text, int* key_phase_out, int* phase_out, char* in_text,
                                   int key_phase, int phase, double seconds, label_type label, int drop,
                                   int per_key, material_type material, transfer_type transfer, edit_type edit,
                                   unsigned char digits) noexcept;
