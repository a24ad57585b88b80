#include "host/frame_rate.h"

#include "labelsbase/labelcvt/rate_facts.h"
#include "refhost/frame_rate_rows.h"

namespace {

// Returns the first rate of the library that this host has no row for or runs at another speed, or
// FrameRate_unknown.
consteval Kiv::FrameRate first_at_fault_in_the_rows() {
  for (auto const& facts : labelsbase::all_rate_facts) {
    auto const& row = refhost::row_of(facts.rate);
    bool const agrees = row.rate == facts.rate && row.nominal_frames_per_second() == facts.nominal_fps &&
                        row.has_1001_factor() == facts.has_1001_factor;
    if (!agrees) return facts.rate;
  }
  return Kiv::FrameRate_unknown;
}

// The compiler names the rate at fault as the argument of this template.
template <Kiv::FrameRate first_at_fault>
struct every_rate_has_its_row {
  static_assert(first_at_fault == Kiv::FrameRate_unknown,
                "this rate lacks its row in refhost/frame_rate_rows.h, or the row disagrees with rate_facts.h");
  static constexpr bool holds = true;
};

static_assert(every_rate_has_its_row<first_at_fault_in_the_rows()>::holds);

}  // namespace

namespace Kiv {

using refhost::row_of;

double getFramesPerSecond(FrameRate rate) { return row_of(rate).frames_per_second(); }

double getFrameDuration(FrameRate rate) { return 1 / getFramesPerSecond(rate); }

// This host has no decimated rates.
FrameRate getNonDecimatedFrameRate(FrameRate rate) { return rate; }

bool has1001Factor(FrameRate rate) { return row_of(rate).has_1001_factor(); }

double getCelResolution(FrameRate project_rate) { return getFrameDuration(project_rate); }

double getEditResolutionFrameGearing(FrameRate project_rate, FrameRate output_rate) {
  return row_of(output_rate).nominal_frames_per_second() / row_of(project_rate).nominal_frames_per_second();
}

}  // namespace Kiv
