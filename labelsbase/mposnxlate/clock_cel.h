// Clock time and cel time.
//
// Cel time is the project's internal timeline, clock time what a watch shows at the output. They differ where film
// is played out at a video rate without a pulldown and so runs faster, or by 1000/1001. Positions are doubles, in
// seconds; 1e99 is no position and stays as it is, and a negative position is the negative of its counterpart. No
// conversion of seconds rounds.
#pragma once

#include "host/frame_rate.h"
#include "host/output.h"
#include "labelsbase/MediumRoll/medium.h"
#include "labelsbase/export.h"
#include "labelsbase/framecounts/count_types.h"

struct MPosn_Xlate_Params;

// Rounds down; what is up to 0.0001 below a whole number counts as that number. For a position in samples that is
// to become a sample.
[[nodiscard]] LABELSBASE_API double mround(double x) noexcept;

// The cel position of a sample of the current project, and the sample at a cel position, by mround; the invalid
// sample when that is not an int, as for 1e99 and what is not a number.
[[nodiscard]] LABELSBASE_API double sampleNr_to_CelPosn(int n);
[[nodiscard]] LABELSBASE_API int celPosn_to_SampleNr(double c);

// From Medium_clock to Medium_cel or back; 1e99 for any other two media, whose translation is the host's. An unset
// sequence (-1) becomes 0 in the parameters; nothing else of them changes.
[[nodiscard]] LABELSBASE_API double mPosn_Xlate(double posn, MediumRollMedium from, MediumRollMedium to,
                                                MPosn_Xlate_Params& params);

// The same for the current project at its output gearing.
[[nodiscard]] LABELSBASE_API double mPosn_Xlate(double posn, MediumRollMedium from, MediumRollMedium to);

// Clock to cel: for given parameters, for the current project at a gearing, and at its own output gearing.
[[nodiscard]] LABELSBASE_API double mPosn_Xlate_ClockToCel(double t, MPosn_Xlate_Params& p);
[[nodiscard]] LABELSBASE_API double mPosn_Xlate_ClockToCel(double t, Kiv::OutputGearing const& g);
[[nodiscard]] LABELSBASE_API double mPosn_Xlate_ClockToCel(double t);

// Cel to clock, likewise. Deliberate: not the inverse everywhere. Projects at 23.976 and 47.952 count as film in
// the other direction only, and a 1000/1001 factor stays in for outputs at 25 and 50.
[[nodiscard]] LABELSBASE_API double mPosn_Xlate_CelToClock(double c, MPosn_Xlate_Params& p);
[[nodiscard]] LABELSBASE_API double mPosn_Xlate_CelToClock(double c, Kiv::OutputGearing const& g);
[[nodiscard]] LABELSBASE_API double mPosn_Xlate_CelToClock(double c);

// Sets `velocity` to 1.0 and returns 0, whatever it is given. Deliberate: hosts rely on the velocity staying 1.
// For rate 0 it asks the host for the output picture's rate, and has no use for the answer.
LABELSBASE_API int getTRSVelocityForCurrentUTR(double& velocity, MediumRollMedium medium, bool,
                                               transfer_type transfer, Kiv::FrameRate rate);
