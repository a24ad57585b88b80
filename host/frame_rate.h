// The host's frame rates: a code for each rate, and the facts that the host gives for a code.
//
// Every function below may be asked about any 32-bit code, codes without a name here included. A host answers
// those as it likes, but with finite numbers.
#pragma once

#include <cstdint>

#include "host/language.h"

namespace Kiv {

// A frame rate of the host. Projects store the numeric codes, so they never change. Codes without a name here are
// the host's own.
enum FrameRate : std::int32_t {
  FrameRate_unknown = 0,
  FrameRate_24 = 1,
  FrameRate_23_976 = 2,
  FrameRate_25 = 3,
  FrameRate_30 = 4,
  FrameRate_29_97 = 5,
  FrameRate_48 = 6,
  FrameRate_47_952 = 7,
  FrameRate_50 = 8,
  FrameRate_60 = 9,
  FrameRate_59_94 = 10,
  FrameRate_12 = 35,
  FrameRate_11_988 = 36,
  FrameRate_12_5 = 37,
  FrameRate_15 = 38,
  FrameRate_14_985 = 39,
  FrameRate_20 = 40,
  FrameRate_80 = 41,
  FrameRate_90 = 42,
  FrameRate_100 = 43,
  FrameRate_120 = 44,
  FrameRate_119_88 = 45,
  FrameRate_240 = 46,
  FrameRate_239_76 = 47,
};

// Returns frames per second, positive and finite. The library asks for codes 3 and 5 once, for the pitch of the
// PAL and NTSC types; the answers must be 25 and 30000/1001.
double getFramesPerSecond(FrameRate rate);

// Returns seconds per frame: 1 / getFramesPerSecond(rate).
double getFrameDuration(FrameRate rate);

// Returns the rate that `rate` was decimated from (every frame kept). Returns `rate` itself if it is not
// decimated.
FrameRate getNonDecimatedFrameRate(FrameRate rate);

// Returns true if the rate has the 1000/1001 factor of NTSC colour television: 23.976, 29.97, 59.94 and so on.
bool has1001Factor(FrameRate rate);

// Returns seconds of cel time (the editor's internal timeline) per sample in a project of this rate. Positive and
// finite.
double getCelResolution(FrameRate project_rate);

// Returns output frames per project frame, by nominal rates: 30 / 24 = 1.25 for FrameRate_24 and FrameRate_29_97.
// Positive and finite.
double getEditResolutionFrameGearing(FrameRate project_rate, FrameRate output_rate);

}  // namespace Kiv
