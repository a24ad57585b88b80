// Any label text as a frame number and back, and label texts moved by frames or by time.
//
// The label type and the edit choose a function of count_text.h. A film edit counts film frames, a video edit
// video frames:
//
//   label type                      film edit                   video edit
//   timecode of 25, 30, 50, 60      timecode_to_film_frames     timecode_to_video_frames
//   timecode of 24 and 48           filmtc_to_film_frames       filmtc_to_video_frames
//   key number and frame            keycode_to_film_frames      keycode_to_video_frames
//
// Deliberate: timecode of 24 and of 48 frames a second are both counted as film timecode, at 24. Key numbers with
// perforations and any other edit are refused.
//
//   argument                        meaning
//   phase, last_phase, transfer     the pulldown: see pulldown.h
//   key_phase, per_key, digits      key numbers: see count_text.h
//   drop                            other than 0 for drop-frame: see count_text.h
//
// For 25 frame timecode in a video edit:
//
//   int frames, phase, key_phase;
//   char text[] = "00000200";
//   constexpr auto tc = Label_timecode_25;
//   label_to_frames(text, 1, &key_phase, 0, &phase, &frames, tc, 0, Transfer_none, Edit_video, 16)   // 1
//   frames   // 51
//   frames_to_label(text, 1, &key_phase, 0, -1, 26, tc, 0, Transfer_none, Edit_video, 16, 0x3C)   // 1
//   text   // "00000100"
//   label_plus_frames(text, &key_phase, &phase, text, 1, 0, 5, tc, 0, 16, 0x3C, Transfer_none, Edit_video)  // 1
//   text   // "00000105"
//   get_frame_rate(Material_29_97, Edit_video)   // 29.970029970029973
//
// Text formats and return values: see count_text.h.
#pragma once

#include "labelsbase/export.h"
#include "labelsbase/framecounts/count_types.h"

// Reads a label text. `phase_out` is always written: the pulldown phase if timecode was read across a pulldown,
// otherwise -1. A null `phase_out` is refused.
LABELSBASE_API int label_to_frames(char* text, int key_phase, int* key_phase_out, int phase, int* phase_out,
                                   int* frames, label_type label, int drop, transfer_type transfer, edit_type edit,
                                   int per_key) noexcept;

// Writes the label text of a frame number.
LABELSBASE_API int frames_to_label(char* text, int key_phase, int* key_phase_out, int phase, int last_phase,
                                   int frames, label_type label, int drop, transfer_type transfer, edit_type edit,
                                   int per_key, unsigned char digits) noexcept;

// Adds `count` frames: film_frames_plus_frames for a film edit, video_frames_plus_frames for a video edit.
LABELSBASE_API int frames_plus_frames(int frames, int phase, int count, int* frames_out, int* phase_out,
                                      transfer_type transfer, edit_type edit) noexcept;

// Writes the label `count` frames after the one in `in_text`. The two texts may be one buffer. `phase_out`
// receives the pulldown phase there, which is `phase` without a pulldown; `key_phase_out` the phase of the key,
// which is `key_phase` for all labels but Label_keycode_3perf. If the new frame has no label, `phase_out` may
// still be written.
LABELSBASE_API int label_plus_frames(char* out_text, int* key_phase_out, int* phase_out, char* in_text,
                                     int key_phase, int phase, int count, label_type label, int drop, int per_key,
                                     unsigned char digits, transfer_type transfer, edit_type edit) noexcept;

// Returns frames a second: 24 for a film edit, otherwise those of the material: 30 / 1.001, 30, or 25 for
// Material_25 and every other number.
[[nodiscard]] LABELSBASE_API double get_frame_rate(material_type material, edit_type edit) noexcept;

// Advances the label by `seconds`, rounded down to whole frames with a tolerance of 0.01 frame. A time of more
// frames than an int holds is refused, and so is NaN.
LABELSBASE_API int label_plus_time(char* out_text, int* key_phase_out, int* phase_out, char* in_text,
                                   int key_phase, int phase, double seconds, label_type label, int drop,
                                   int per_key, material_type material, transfer_type transfer, edit_type edit,
                                   unsigned char digits) noexcept;
