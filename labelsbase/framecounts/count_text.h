// Film and video frames as label texts of 8 digits and a terminator.
//
//   text                 form       field      digits        range
//   timecode,            hhmmssff   hours      2             00 to 23; read and written up to 99
//   film timecode (24)              minutes    2             00 to 59
//                                   seconds    2             00 to 59
//                                   frames     2             00 to the frames a second less 1
//   key number           kkkkkkff   key        6; 4 or 5     000000 to the number of keys less 1
//                                              are read too
//                                   frame, or  2             00 to the frames (perforations) a key less 1
//                                   perf
//
// Frames are counted from 1. Readers accept any text. A field is two characters, blank-padded or not; from the
// first field that is not a number on, all fields read as 0. A null text reads as an empty one. `drop` other than
// 0 asks for drop-frame (SMPTE ST 12-1) at 30 frames a second.
//
//   int video, film;
//   char in[] = "00010002", out[9];
//   timecode_to_video_frames(&video, in, Label_timecode_30, 1)                        // 1, with drop-frame
//   video                                                                             // 1801
//   video_frames_to_timecode(1800, out, Label_timecode_30, 1)                         // 1
//   out                                                                               // "00005929"
//   filmtc_to_film_frames(&film, in)                                                  // 1
//   film                                                                              // 1443
//   film_frames_to_keycode(101, out, 0, nullptr, Label_keycode_frames, 16, 0x3C)      // 1, 16 frames a key
//   out                                                                               // "00000604"
//   timecode_to_video_frames(&video, in, Label_timecode_24, 0)                        // 0, refused
//
// All functions return 0 on failure and then write no result: for an unknown label type or transfer, a result that
// does not fit an int or the 8 digits, and a null pointer where there is something to write. Otherwise they return
// 1; those that end in film_frames_to_video_frames return its 1 or 2.
#pragma once

#include "labelsbase/export.h"
#include "labelsbase/framecounts/count_types.h"

namespace labelsbase {

inline constexpr int count_text_size = 9;  // characters that a text needs, including the terminator

}  // namespace labelsbase

// Reads timecode of 25, 30, 48, 50 and 60 frames a second. Deliberate: not of 24, which filmtc_to_film_frames
// reads.
LABELSBASE_API int timecode_to_video_frames(int* video, char* text, label_type label, int drop) noexcept;

// Writes timecode of all rates. A frame up to a day before the first or after the last one of the day moves into
// it.
LABELSBASE_API int video_frames_to_timecode(int video, char* text, label_type label, int drop) noexcept;

// Reads film timecode, 24 frames a second.
LABELSBASE_API int filmtc_to_film_frames(int* film, char* text) noexcept;

// Writes film timecode. A frame up to a day before the first or after the last one of the day moves into it.
LABELSBASE_API int film_frames_to_filmtc(int film, char* text) noexcept;

// Reads a key number: 4 digits of the key in a text of 6 characters (or of any other length), 5 in one of 7, 6 in
// one of 8; then 2 digits of the frame. Changes blanks among the first 8 characters of the text to zeros, in
// place. `per_key` is the frames of a key, or its perforations for labels that count them, from 1 up; 0 and below
// are refused.
//
// Label_keycode_3perf ignores `per_key`: its keys have 21, 21 and 22 frames, 64 in three keys. `phase` says which
// of them this key is, 1 to 3; any other phase is refused. `phase_out` receives the phase of the last key at or
// before it that is a multiple of three. Other labels do not write `phase_out`.
LABELSBASE_API int keycode_to_film_frames(int* film, char* text, int phase, int* phase_out, label_type label,
                                          int per_key) noexcept;

// Writes a key number. There are 10 to the number of consecutive bits set in `digits` keys, from bit 2 (0x04) up:
// 0x3C means four digits. A frame up to that span before the first or after the last one moves into it. For
// Label_keycode_3perf, `phase` is the phase of key 0, and `phase_out` receives the phase of the key written.
LABELSBASE_API int film_frames_to_keycode(int film, char* text, int phase, int* phase_out, label_type label,
                                          int per_key, unsigned char digits) noexcept;

// The rest reads or writes a text as above and crosses a pulldown (pulldown.h). `phase` is the phase of the
// pulldown, `key_phase` that of the key.

// Reads timecode and writes the film frame that its video frame shows. `phase_out` receives the phase there.
LABELSBASE_API int timecode_to_film_frames(int* film, char* text, int phase, int* phase_out, label_type label,
                                           int drop, transfer_type transfer) noexcept;

// Reads a key number and writes the first video frame that shows its film frame.
LABELSBASE_API int keycode_to_video_frames(int* video, char* text, int key_phase, int* key_phase_out, int phase,
                                           label_type label, transfer_type transfer, int per_key) noexcept;

// Reads film timecode and writes the first video frame that shows its film frame.
LABELSBASE_API int filmtc_to_video_frames(int* video, char* text, int phase, transfer_type transfer) noexcept;

// Writes the timecode of the first video frame that shows a film frame. `last_phase` is the phase that the frame
// before was left with, or -1: see film_frames_to_video_frames.
LABELSBASE_API int film_frames_to_timecode(int film, char* text, int phase, int last_phase, label_type label,
                                           int drop, transfer_type transfer) noexcept;

// Writes the key number of the film frame that a video frame shows.
LABELSBASE_API int video_frames_to_keycode(int video, char* text, int key_phase, int* key_phase_out, int phase,
                                           label_type label, transfer_type transfer, int per_key,
                                           unsigned char digits) noexcept;

// Writes the film timecode of the film frame that a video frame shows.
LABELSBASE_API int video_frames_to_filmtc(int video, char* text, int phase, transfer_type transfer) noexcept;
