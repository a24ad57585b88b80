// Film and video frames as label texts: timecode "hhmmssff", film timecode of 24 frames a second in the same form,
// and key numbers "kkkkkkff" of key and frame (or perforation).
//
// Frames are counted from 1. Texts are 8 digits and a terminator. Readers refuse no
// text: fields are two characters wide, may be filled with blanks, and count 0 from the first that is none; a null
// text reads as an empty one. `drop` other than 0 asks for drop-frame (SMPTE ST 12-1) at 30 frames a second.
//
// All functions return 0 on failure and then write no result: for a label type or transfer that they do not know,
// a result that does not fit an int or the 8 digits, and a null pointer where there is something to write.
// Otherwise they return 1, and those that end in film_frames_to_video_frames its 1 or 2.
#pragma once

#include "labelsbase/export.h"
#include "labelsbase/framecounts/count_types.h"

namespace labelsbase {

inline constexpr int count_text_size = 9;  // characters that a text needs, the terminator included

}  // namespace labelsbase

// Timecode of 25, 30, 48, 50 and 60 frames a second. Deliberately not of 24, which is film's own.
LABELSBASE_API int timecode_to_video_frames(int* video, char* text, label_type label, int drop) noexcept;

// Timecode of all rates. A frame up to a day before the first or after the last one of the day wraps round.
LABELSBASE_API int video_frames_to_timecode(int video, char* text, label_type label, int drop) noexcept;

LABELSBASE_API int filmtc_to_film_frames(int* film, char* text) noexcept;
LABELSBASE_API int film_frames_to_filmtc(int film, char* text) noexcept;

// A key number of 4 digits and its frame; 5 in a text of 7 characters, 6 in one of 8. Blanks among the first 8
// characters of the text become zeros, in place. `per_key` is the frames of a key, or its perforations for the
// labels that count them, from 1 up; 0 and below are refused.
//
// Film at 3 perforations a frame (Label_keycode_3perf) has keys of 21, 21 and 22 frames, 64 to three keys, and
// does not look at `per_key`. `phase` says which this key is: 1 and 2 the short ones, 3 the long one. `phase_out`
// receives that of the last key at or before it that is a multiple of three. Other labels leave `phase_out` alone.
LABELSBASE_API int keycode_to_film_frames(int* film, char* text, int phase, int* phase_out, label_type label,
                                          int per_key) noexcept;

// Keys count to 10 to the number of consecutive bits set in `digits`, from bit 2 (0x04) up: 0x3C for four digits.
// A frame before the first, or after the last, wraps round once. For film at 3 perforations a frame, `phase` is
// that of key 0, and `phase_out` receives that of the key.
LABELSBASE_API int film_frames_to_keycode(int film, char* text, int phase, int* phase_out, label_type label,
                                          int per_key, unsigned char digits) noexcept;

// Across a pulldown (pulldown.h): `phase` is the phase of the pulldown, `key_phase` that of the key.
LABELSBASE_API int timecode_to_film_frames(int* film, char* text, int phase, int* phase_out, label_type label,
                                           int drop, transfer_type transfer) noexcept;
LABELSBASE_API int film_frames_to_timecode(int film, char* text, int phase, int last_phase, label_type label,
                                           int drop, transfer_type transfer) noexcept;
LABELSBASE_API int keycode_to_video_frames(int* video, char* text, int key_phase, int* key_phase_out, int phase,
                                           label_type label, transfer_type transfer, int per_key) noexcept;
LABELSBASE_API int video_frames_to_keycode(int video, char* text, int key_phase, int* key_phase_out, int phase,
                                           label_type label, transfer_type transfer, int per_key,
                                           unsigned char digits) noexcept;
LABELSBASE_API int filmtc_to_video_frames(int* video, char* text, int phase, transfer_type transfer) noexcept;
LABELSBASE_API int video_frames_to_filmtc(int video, char* text, int phase, transfer_type transfer) noexcept;
