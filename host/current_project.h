// The settings of the host's current project.
#pragma once

#include "host/frame_rate.h"
#include "host/output.h"

namespace Kiv {

// Every answer is that of the moment: the library keeps none of them, the pitch of the PAL and NTSC types apart.
class CurrentProject {
 public:
  // The project's frame rate. Revision 0 is the current one.
  static FrameRate getFrameRate(int revision = 0);

  // Whether 29.97 material is labelled in drop-frame timecode.
  static bool getUseDropFrameTimecode();

  // Seconds of cel time per sample: getCelResolution of the project's rate.
  static double getCelResolution();

  // The rate that the film camera ran at.
  static FrameRate getInCameraFilmSpeed();

  // The output picture, good until the project changes. Revision 0 is the current one.
  static OutputFormat::Details const& getOutputImageFormat(int revision = 0);

  // The frame rate of the output picture.
  static FrameRate getOutputImageKIVFrameRate();

  // Whether sound that is in sync with a video project runs pulled down (slower by 1000/1001).
  static bool vidprojAudSyncIsPulledDown();

  // Whether film frames reach the output through a pulldown.
  static bool outputFormatIsPulledDown();
};

}  // namespace Kiv
