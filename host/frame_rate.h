// The host's frame rates: a code for each rate, and what the host answers about a code.
#pragma once

#include <cstdint>

namespace Kiv {

// A frame rate of the host. The numeric codes are stored in projects and are the contract; any 32-bit value
// may be handed in, and codes without a name here are the host's own.
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

// Frames per second, positive and finite for every code. The library asks for codes 3 and 5 once, for the pitch
// of the PAL and NTSC types, and must get 25 and 30000/1001.
double getFramesPerSecond(FrameRate rate);

// Seconds per frame: 1 / getFramesPerSecond.
double getFrameDuration(FrameRate rate);

// The rate whose frames are all kept, for a rate that stands for a decimated one; any other code is returned
// as it is.
FrameRate getNonDecimatedFrameRate(FrameRate rate);

// Whether the rate carries the 1000/1001 factor of colour television (23.976, 29.97, 59.94 and so on).
bool has1001Factor(FrameRate rate);

// Seconds of cel time (the editor's internal timeline) per sample in a project of this rate.
double getCelResolution(FrameRate project_rate);

// Output frames per project frame by nominal rates: 24 to 29.97 gives 30 / 24.
double getEditResolutionFrameGearing(FrameRate project_rate, FrameRate output_rate);

}  // namespace Kiv
