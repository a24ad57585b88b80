// Clock time and cel time, in seconds.
//
// Cel time is the project's internal timeline. Clock time is what a stopwatch shows while the edit plays. They
// differ if film plays at a video rate without a pulldown, which runs faster, and by the 1000/1001 factor of the
// output:
//
//   24 frame project                    cel seconds in one second of clock time
//   at 30, without pulldown             1.25
//   at 29.97, without pulldown          1.25 / 1.001
//   at 25, without pulldown             25 / 24
//   at any of them, with pulldown       1 (29.97: 1 / 1.001)
//
// Positions are doubles. 1e99 means "no position" and stays as it is. A negative position becomes the negative of
// its counterpart. Nothing is rounded but where it says so.
//
//   Kiv::OutputGearing const at_30{Kiv::FrameRate_30, false};
//   mPosn_Xlate_ClockToCel(4.0, at_30)     // 5.0, in a 24 frame project
//   mPosn_Xlate_CelToClock(5.0, at_30)     // 4.0
//   mround(2.99995)                        // 3.0
#pragma once

#include "host/frame_rate.h"
#include "host/output.h"
#include "labelsbase/MediumRoll/medium.h"
#include "labelsbase/export.h"
#include "labelsbase/framecounts/count_types.h"

struct MPosn_Xlate_Params;

// Rounds down to a whole number, with a tolerance of 0.0001. Serves positions in samples that become a sample.
[[nodiscard]] LABELSBASE_API double mround(double x) noexcept;

// Returns the cel position, in seconds, of a sample of the current project.
[[nodiscard]] LABELSBASE_API double sampleNr_to_CelPosn(int n);

// Returns the sample of the current project at a cel position, by mround, or invalid_sample if the result does not
// fit an int (1e99 and NaN included).
[[nodiscard]] LABELSBASE_API int celPosn_to_SampleNr(double c);

// Translates a position from Medium_clock to Medium_cel, or back. Returns 1e99 for any other two media: hosts
// translate those themselves. A sequence of -1 (not set) becomes 0 in the parameters; nothing else in them
// changes.
[[nodiscard]] LABELSBASE_API double mPosn_Xlate(double posn, MediumRollMedium from, MediumRollMedium to,
                                                MPosn_Xlate_Params& params);

// The same for the current project at its output gearing.
[[nodiscard]] LABELSBASE_API double mPosn_Xlate(double posn, MediumRollMedium from, MediumRollMedium to);

// Translates clock time to cel time, in seconds, by given parameters.
[[nodiscard]] LABELSBASE_API double mPosn_Xlate_ClockToCel(double t, MPosn_Xlate_Params& p);

// Translates clock time to cel time, in seconds, for the current project at a gearing.
[[nodiscard]] LABELSBASE_API double mPosn_Xlate_ClockToCel(double t, Kiv::OutputGearing const& g);

// Translates clock time to cel time, in seconds, for the current project at its output gearing.
[[nodiscard]] LABELSBASE_API double mPosn_Xlate_ClockToCel(double t);

// Translates cel time to clock time, in seconds, by given parameters. Deliberate: this is not the exact inverse.
// Projects at 23.976 and 47.952 count as film only from clock to cel, and a 1000/1001 factor of an output at 25 or
// 50 is not put back.
[[nodiscard]] LABELSBASE_API double mPosn_Xlate_CelToClock(double c, MPosn_Xlate_Params& p);

// Translates cel time to clock time, in seconds, for the current project at a gearing.
[[nodiscard]] LABELSBASE_API double mPosn_Xlate_CelToClock(double c, Kiv::OutputGearing const& g);

// Translates cel time to clock time, in seconds, for the current project at its output gearing.
[[nodiscard]] LABELSBASE_API double mPosn_Xlate_CelToClock(double c);

// Sets `velocity` to 1.0 and returns 0, whatever the arguments. Deliberate: hosts rely on the velocity staying 1.
// For rate 0 it asks the host for the rate of the output picture and ignores the answer.
LABELSBASE_API int getTRSVelocityForCurrentUTR(double& velocity, MediumRollMedium medium, bool,
                                               transfer_type transfer, Kiv::FrameRate rate);
