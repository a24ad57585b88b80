// The parameters of translating positions between media: the project's rates, its output and the film transfer.
//
// Both records are plain values. What they take from the current project stays as it was then.
//
//   MPosn_Xlate_Params params;                        // the current project
//   params.transfer = Transfer_project_rate;          // through the pulldown of its rates
//   params.sequence = 4;
//   params.modify_sequence_to_playfile_std(7);
//   params.sequence                                   // 1, in a cycle of 5 video frames
#pragma once

#include <cstdint>

#include "host/cookie.h"
#include "host/frame_rate.h"
#include "host/output.h"
#include "labelsbase/MediumRoll/medium.h"
#include "labelsbase/export.h"
#include "labelsbase/framecounts/count_types.h"

// What a translation between media depends on.
struct LABELSBASE_API MPosn_Xlate_Params {
  transfer_type transfer;         // between media at film rate and media at video rate
  int sequence;                   // phase of the pulldown cycle at position 0, in video frames; -1: not set
  Kiv::FrameRate video_rate;      // of the video side of the transfer
  MediumRollMedium video_medium;  // what Medium_video stands for
  Cookie cookie;                  // the material
  Kiv::FrameRate project_rate;    // that the project edits at
  double cel_resolution;          // seconds of cel time per sample of the project
  bool output_1001;               // the output rate has the 1000/1001 factor
  Kiv::FrameRate output_rate;     // that the project plays out at
  bool audio_sync_pulled_down;    // sound in sync with a video project runs slower by 1000/1001
  bool reserved_flag;             // for the host's own translations; false
  double film_fps;                // speed of the film camera, frames per second
  bool output_pulled_down;        // film reaches the output through a pulldown
  std::int64_t reserved;          // 0

  // Calls init.
  MPosn_Xlate_Params();

  // The current project, played out at this gearing.
  MPosn_Xlate_Params(Kiv::OutputGearing const& gearing);

  // Sets every field, in their order: the current project and its output picture, film and video one to one, no
  // material.
  void init();

  // Calls init, then sets a transfer to the output's rate, in the source medium that matches the output picture.
  void init_for_labelgroup(transfer_type labels_transfer, int first_sequence);

  // Sets the transfer between film and video of this rate: one to one, or the project's pulldown if
  // "default_film_video_conversion_pulldown" is not 0 in the configuration. The sequence becomes 0, the video
  // medium the one that projects of the rate edit in. Asks for the project's rate and cel resolution again; other
  // fields stay.
  void init_to_default_filmvid_conversion(Kiv::FrameRate rate);

  // Sets sequence 0 and an output through a pulldown; other fields stay.
  void init_to_default_playout_generation();

  // Calls init, then sets another project rate and another output.
  void initOutputFormat(Kiv::FrameRate project, Kiv::FrameRate output, bool pulledDown);

  // Moves the sequence by `delta` video frames within the pulldown cycle, for a play file that starts at another
  // frame. Takes effect for Transfer_project_rate only. The cycle has 25 frames for video at 25 and 50, otherwise
  // 5. Deliberate: a negative sequence stays negative: -2, not 3.
  void modify_sequence_to_playfile_std(int delta);
};

// The older, smaller record. The library fills it in but does not read it.
struct LABELSBASE_API MPosn_Conversion_Params {
  bool adjust_sequence;          // whether modify_sequence_to_playfile_std takes effect
  transfer_type transfer;        // between film and video
  bool convert;                  // film and video are converted
  std::int32_t conversion_kind;  // the host's
  int sequence;                  // phase of the pulldown cycle at position 0, in video frames
  Kiv::FrameRate rate;           // of the project
  std::int32_t pulldown_kind;    // the host's

  // Calls init.
  MPosn_Conversion_Params();

  // Sets the current project's rate, a one-to-one conversion, sequence 0, and no adjustment.
  void init();

  // Sets no conversion and no transfer.
  void init_to_playout_generation();

  // Sets a conversion at the current project's rate; `pulldown_kind` follows from the transfer.
  void init_to_default_filmvid_conversion();

  // Moves the sequence as above, if adjust_sequence is set. Deliberate: here the cycle has 25 frames for
  // Transfer_24_to_25, whatever the rate.
  void modify_sequence_to_playfile_std(int delta);
};
