// What the translation of positions between media goes by: the project's rates, its output and the transfer.
//
// Both records are plain values. What they take from the current project holds as of then; later changes of the
// project do not reach them.
#pragma once

#include <cstdint>

#include "host/cookie.h"
#include "host/frame_rate.h"
#include "host/output.h"
#include "labelsbase/MediumRoll/medium.h"
#include "labelsbase/export.h"
#include "labelsbase/framecounts/count_types.h"

struct LABELSBASE_API MPosn_Xlate_Params {
  transfer_type transfer;         // between media at film rate and at video rate
  int sequence;                   // phase of the pulldown cycle at position 0, in video frames; -1: not set
  Kiv::FrameRate video_rate;      // of the video side of the transfer
  MediumRollMedium video_medium;  // the one that Medium_video stands for
  Cookie cookie;                  // the material that is translated
  Kiv::FrameRate project_rate;    // that the project is edited at
  double cel_resolution;          // seconds of cel time per sample of the project
  bool output_1001;               // the output rate has the 1000/1001 factor
  Kiv::FrameRate output_rate;     // that it is played out at
  bool audio_sync_pulled_down;    // sound in sync with a video project runs slower by 1000/1001
  bool reserved_flag;             // for translations of the host's own; false
  double film_fps;                // speed of the film camera, frames per second
  bool output_pulled_down;        // film reaches the output through a pulldown
  std::int64_t reserved;          // 0

  MPosn_Xlate_Params();

  // The current project, played out at this gearing.
  MPosn_Xlate_Params(Kiv::OutputGearing const& gearing);

  // The current project and its output picture, film and video one to one, no material.
  void init();

  // init, and then a transfer to the output's rate, in the source medium that matches the output picture.
  void init_for_labelgroup(transfer_type labels_transfer, int first_sequence);

  // Film and video at this rate as the configuration has it ("default_film_video_conversion_pulldown"), from phase
  // 0, in the medium that projects of the rate are edited in. The project's rate and cel resolution are taken
  // anew; the rest stays.
  void init_to_default_filmvid_conversion(Kiv::FrameRate rate);

  // Phase 0, output through a pulldown; the rest stays.
  void init_to_default_playout_generation();

  // init, and then a project and an output that need not be the current ones.
  void initOutputFormat(Kiv::FrameRate project, Kiv::FrameRate output, bool pulledDown);

  // Moves the phase by so many video frames, for material that a play file starts at another frame. Only the
  // project's pulldown has a cycle: 25 frames for 25 and 50 frames per second, else 5. Deliberate: a negative
  // phase stays negative, -2 and not 3.
  void modify_sequence_to_playfile_std(int delta);
};

// The older record of the same. The library fills it and reads nothing of it.
struct LABELSBASE_API MPosn_Conversion_Params {
  bool adjust_sequence;  // modify_sequence_to_playfile_std takes effect
  transfer_type transfer;
  bool convert;  // film and video are converted
  std::int32_t conversion_kind;
  int sequence;  // as above
  Kiv::FrameRate rate;
  std::int32_t pulldown_kind;

  MPosn_Conversion_Params();

  // The current project's rate, converted one to one, phase 0, not to be adjusted.
  void init();

  // No conversion and no transfer.
  void init_to_playout_generation();

  // Conversion at the current project's rate, of a kind that follows from the transfer.
  void init_to_default_filmvid_conversion();

  // As above, when the phase is to be adjusted. Deliberate: here the transfer, 24 to 25, makes the cycle 25 frames
  // long, not the rate.
  void modify_sequence_to_playfile_std(int delta);
};
