// The settings of the host's current project.
#pragma once

#include "host/frame_rate.h"
#include "host/output.h"

namespace Kiv {

// The library asks at every use and stores no answer, so a change of project takes effect at once. (The pitch of
// the PAL and NTSC types is kept; it comes from getFramesPerSecond, not from here.)
class CurrentProject {
 public:
  // Returns the project's frame rate. Revision 0 is the current one; the library asks for no other.
  static FrameRate getFrameRate(int revision = 0);

  // Returns true if 29.97 material is labelled in drop-frame timecode (SMPTE ST 12-1).
  static bool getUseDropFrameTimecode();

  // Returns seconds of cel time per sample: getCelResolution of the project's rate. Positive and finite.
  static double getCelResolution();

  // Returns the rate at which the film camera ran.
  static FrameRate getInCameraFilmSpeed();

  // Returns the output picture. The reference must stay valid until the project changes. Revision 0 is the current
  // one; the library asks for no other.
  static OutputFormat::Details const& getOutputImageFormat(int revision = 0);

  // Returns the frame rate of the output picture.
  static FrameRate getOutputImageKIVFrameRate();

  // Returns true if sound in sync with a video project runs pulled down: slower by 1000/1001.
  static bool vidprojAudSyncIsPulledDown();

  // Returns true if film frames reach the output through a pulldown.
  static bool outputFormatIsPulledDown();
};

}  // namespace Kiv
