#include "host/frame_rate.h"

#include "refhost/frame_rate_rows.h"

namespace Kiv {

using refhost::row_of;

double getFramesPerSecond(FrameRate rate) { return row_of(rate).frames_per_second(); }

double getFrameDuration(FrameRate rate) { return 1 / getFramesPerSecond(rate); }

// No rate of this host stands for a decimated one.
FrameRate getNonDecimatedFrameRate(FrameRate rate) { return rate; }

bool has1001Factor(FrameRate rate) { return row_of(rate).has_1001_factor(); }

double getCelResolution(FrameRate project_rate) { return getFrameDuration(project_rate); }

double getEditResolutionFrameGearing(FrameRate project_rate, FrameRate output_rate) {
  return row_of(output_rate).nominal_frames_per_second() / row_of(project_rate).nominal_frames_per_second();
}

}  // namespace Kiv
