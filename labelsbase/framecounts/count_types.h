// The vocabulary of the frame counts. Hosts store the numbers, so they never change. Callers may hand in any
// 32-bit value.
#pragma once

#include <cstdint>

#include "host/language.h"

// How film frames become video frames.
enum transfer_type : std::int32_t {
  Transfer_none = 0,          // a film frame is a video frame
  Transfer_2_3_pulldown = 1,  // 4 film frames become 5 video frames, 24 to 30 frames a second
  Transfer_24_to_25 = 2,      // 24 film frames become 25 video frames: one frame is added every second
  Transfer_one_to_one = 3,    // a film frame is a video frame, as with none
  Transfer_project_rate = 7,  // the pulldown of the project's rates; frame counts do not know it
};

// What is being edited, which decides what is counted.
enum edit_type : std::int32_t {
  Edit_film = 0,   // film frames, 24 a second
  Edit_video = 1,  // video frames, at the rate of the material
};

// The video frames a second of the material.
enum material_type : std::int32_t {
  Material_29_97 = 0,  // 30 / 1.001
  Material_30 = 1,
  Material_25 = 2,
};

// The text form of a label. Several numbers with one form serve hosts to tell tracks of labels apart. Numbers from
// 1 to 43 without a name here belong to hosts; frame counts refuse them.
enum label_type : std::int32_t {
  Label_timecode_30 = 1,  // drop-frame if the caller asks for it
  Label_timecode_30_b = 3,
  Label_timecode_30_c = 22,
  Label_timecode_30_d = 25,
  Label_timecode_30_e = 42,

  Label_timecode_25 = 2,
  Label_timecode_25_b = 5,
  Label_timecode_25_c = 7,
  Label_timecode_25_d = 21,

  Label_timecode_24 = 4,
  Label_timecode_24_b = 6,
  Label_timecode_24_c = 34,

  Label_timecode_48 = 38,
  Label_timecode_48_b = 41,
  Label_timecode_48_c = 43,

  Label_timecode_50 = 36,
  Label_timecode_50_b = 39,

  Label_timecode_60 = 37,
  Label_timecode_60_b = 40,

  Label_keycode_frames = 8,  // key number and frame
  Label_keycode_frames_b = 11,
  Label_keycode_frames_c = 27,

  Label_keycode_perfs = 9,  // key number and perforation, 4 to the frame
  Label_keycode_perfs_b = 12,

  Label_keycode_3perf = 26,  // key number and frame of 35 mm film at 3 perforations a frame
};
