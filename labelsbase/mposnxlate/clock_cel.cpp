#include "labelsbase/mposnxlate/clock_cel.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "host/current_project.h"
#include "labelsbase/counts/integers.h"
#include "labelsbase/mposnxlate/translation_params.h"
#include "labelsbase/samples.h"

using namespace labelsbase;

namespace {

constexpr double whole_number_tolerance = 0.0001;  // samples
constexpr double ntsc_slowdown = 1.001;
constexpr double film_fps = 24.0;
constexpr int unset_sequence = -1;

// What clock and cel time depend on.
struct playout {
  Kiv::FrameRate project_rate;
  Kiv::FrameRate output_rate;
  bool output_1001;
  bool output_pulled_down;
};

playout playout_of(MPosn_Xlate_Params const& p) noexcept {
  return {p.project_rate, p.output_rate, p.output_1001, p.output_pulled_down};
}

// The current project, played out at a gearing: as MPosn_Xlate_Params{gearing}, which asks the host for more.
playout playout_of(Kiv::OutputGearing const& gearing) {
  auto const project_rate = Kiv::CurrentProject::getFrameRate(0);
  auto const output_rate = gearing.getFrameRate();
  return {project_rate, output_rate, Kiv::has1001Factor(output_rate), gearing.getUsePulldown()};
}

// Projects whose frames play one for one if there is no pulldown.
struct film_project_row {
  Kiv::FrameRate project_rate;
  bool clock_to_cel;
  bool cel_to_clock;
};

// Codes 31 and 34 are film rates of the host's own. Deliberate: the 1001 rates are film in one direction only.
// clang-format off
constexpr film_project_row film_project_rows[] = {
//   project                  clock to cel  cel to clock
    {Kiv::FrameRate_24,           true,         true },
    {Kiv::FrameRate_23_976,       true,         false},
    {Kiv::FrameRate_48,           true,         true },
    {Kiv::FrameRate_47_952,       true,         false},
    {Kiv::FrameRate{31},          true,         true },
    {Kiv::FrameRate{34},          true,         true },
};
// clang-format on

struct film_output_row {
  Kiv::FrameRate output_rate;
  double fps;              // film frames a second without the 1001 factor
  bool cel_to_clock_1001;  // cel to clock puts back the factor that clock to cel takes out
};

// clang-format off
constexpr film_output_row film_output_rows[] = {
//   output              film frames/s  1001 back
    {Kiv::FrameRate_25,       25.0,      false},
    {Kiv::FrameRate_50,       25.0,      false},
    {Kiv::FrameRate_30,       30.0,      true },
    {Kiv::FrameRate_29_97,    30.0,      true },
    {Kiv::FrameRate_60,       30.0,      true },
    {Kiv::FrameRate_59_94,    30.0,      true },
};
// clang-format on

// Returns the output of film in this direction, or null if the project or the output is not one for film.
film_output_row const* film_output(playout const& p, bool film_project_row::*direction) noexcept {
  auto const* const project =
      std::ranges::find(film_project_rows, p.project_rate, &film_project_row::project_rate);
  if (project == std::end(film_project_rows) || !(project->*direction)) return nullptr;
  auto const* const output = std::ranges::find(film_output_rows, p.output_rate, &film_output_row::output_rate);
  return output == std::end(film_output_rows) ? nullptr : output;
}

double clock_to_cel(double seconds, playout const& p) {
  auto const* const film = film_output(p, &film_project_row::clock_to_cel);
  if (!film) {
    double const output_frames = seconds / Kiv::getFrameDuration(p.output_rate);
    double const project_frames =
        output_frames / Kiv::getEditResolutionFrameGearing(p.project_rate, p.output_rate);
    return project_frames * Kiv::getCelResolution(p.project_rate);
  }
  if (p.output_1001) seconds /= ntsc_slowdown;
  return p.output_pulled_down ? seconds : seconds * (film->fps / film_fps);
}

double cel_to_clock(double seconds, playout const& p) {
  auto const* const film = film_output(p, &film_project_row::cel_to_clock);
  if (!film) {
    double const project_frames = seconds / Kiv::getCelResolution(p.project_rate);
    double const output_frames =
        project_frames * Kiv::getEditResolutionFrameGearing(p.project_rate, p.output_rate);
    return output_frames * Kiv::getFrameDuration(p.output_rate);
  }
  if (p.output_1001 && film->cel_to_clock_1001) seconds *= ntsc_slowdown;
  return p.output_pulled_down ? seconds : seconds * (film_fps / film->fps);
}

// Hosts translate all other media.
constexpr bool is_translated(MediumRollMedium from, MediumRollMedium to) noexcept {
  return (from == Medium_clock && to == Medium_cel) || (from == Medium_cel && to == Medium_clock);
}

double translated(double posn, MediumRollMedium from, MediumRollMedium to, playout const& p) {
  if (!is_translated(from, to)) return invalid_posn;
  if (posn == invalid_posn) return posn;
  double const seconds = std::abs(posn);
  double const there = to == Medium_cel ? clock_to_cel(seconds, p) : cel_to_clock(seconds, p);
  return std::signbit(posn) ? -there : there;
}

Kiv::OutputGearing current_gearing() { return Kiv::OutputGearing{1}; }

}  // namespace

double mround(double x) noexcept { return std::floor(x + whole_number_tolerance); }

double sampleNr_to_CelPosn(int n) { return n * Kiv::CurrentProject::getCelResolution(); }

int celPosn_to_SampleNr(double c) { return to_int(mround(c / Kiv::CurrentProject::getCelResolution())); }

double mPosn_Xlate(double posn, MediumRollMedium from, MediumRollMedium to, MPosn_Xlate_Params& params) {
  if (params.sequence == unset_sequence && is_translated(from, to)) params.sequence = 0;
  return translated(posn, from, to, playout_of(params));
}

double mPosn_Xlate(double posn, MediumRollMedium from, MediumRollMedium to) {
  return translated(posn, from, to, playout_of(current_gearing()));
}

double mPosn_Xlate_ClockToCel(double t, MPosn_Xlate_Params& p) {
  return mPosn_Xlate(t, Medium_clock, Medium_cel, p);
}

double mPosn_Xlate_ClockToCel(double t, Kiv::OutputGearing const& g) {
  return translated(t, Medium_clock, Medium_cel, playout_of(g));
}

double mPosn_Xlate_ClockToCel(double t) { return mPosn_Xlate_ClockToCel(t, current_gearing()); }

double mPosn_Xlate_CelToClock(double c, MPosn_Xlate_Params& p) {
  return mPosn_Xlate(c, Medium_cel, Medium_clock, p);
}

double mPosn_Xlate_CelToClock(double c, Kiv::OutputGearing const& g) {
  return translated(c, Medium_cel, Medium_clock, playout_of(g));
}

double mPosn_Xlate_CelToClock(double c) { return mPosn_Xlate_CelToClock(c, current_gearing()); }

int getTRSVelocityForCurrentUTR(double& velocity, MediumRollMedium, bool, transfer_type, Kiv::FrameRate rate) {
  if (rate == Kiv::FrameRate_unknown) static_cast<void>(Kiv::CurrentProject::getOutputImageKIVFrameRate());
  velocity = 1.0;
  return 0;
}
