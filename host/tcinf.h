// The host's record of a timecode standard.
#pragma once

#include "host/frame_rate.h"

// A timecode standard: the rate that it counts at and whether it drops labels (SMPTE ST 12-1 drop-frame).
struct TCInf {
  Kiv::FrameRate frame_rate = Kiv::FrameRate_unknown;
  bool drop_frame = false;
};
