#include "labelcheck/sums.h"

#include "labelcheck/range.h"
#include "labelsbase/labelcvt/label_cvt.h"
#include "labelsbase/labelcvt/timecode.h"

namespace labelcheck {
namespace {

// Whether the sum wrapped by whole runs of the count, if at all. Key numbers at 3 perforations a frame wrap as if
// every key had 22 frames, which no film has. So a wrapped sum is not the frame that comes next on the film.
bool wraps_by_whole_runs(labelsbase::label_facts const& facts, int sum, std::int64_t unwrapped) noexcept {
  if (facts.film.prefix_length == 0 || sum == unwrapped) return true;
  return (sum - unwrapped) % perfs_per_run(facts) == 0;
}

}  // namespace

sum add_samples(LabelPoint const& start, std::int64_t samples) {
  if (!is_sample(samples) || !is_sample(start.sample + samples))
    return {0, "leads beyond the range of samples, -2147483648 to 2147483647"};

  auto const type = start.cvt()->type();
  LabelPoint distance{type, 0};
  distance.sample = static_cast<int>(samples);
  int sample = (start + distance).sample;
  // A sum of a whole day is a span of 24 hours to the library; the label after the last of a day is the first.
  auto const* const timecode = start.cvt()->as_timecode();
  if (timecode && sample == timecode->samples_per_day()) sample = 0;
  if (!wraps_by_whole_runs(labelsbase::facts_of(type), sample, start.sample + samples))
    return {sample, "leads beyond the first or last key, where the labels do not go on"};
  return {sample, nullptr};
}

}  // namespace labelcheck
