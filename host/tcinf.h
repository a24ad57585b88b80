// The host's description of a timecode standard.
#pragma once

#include "host/frame_rate.h"

// A timecode standard. FrameRate_unknown without drop-frame means "no standard".
struct TCInf {
  // The rate at which the material runs.
  Kiv::FrameRate frame_rate = Kiv::FrameRate_unknown;

  // Whether the timecode is drop-frame (SMPTE ST 12-1).
  bool drop_frame = false;
};
