#include "labelcheck/range.h"

#include <limits>

#include "labelsbase/labelcvt/registry.h"
#include "labelsbase/labelcvt/timecode.h"

namespace labelcheck {
namespace {

// Timecode covers a day, and without drop-frame the day before it. The host's setting may count two samples a
// frame.
sample_range range_of_timecode(labelsbase::label_facts const& facts) {
  auto const& converter = *get_static_label_cvt(facts.type)->as_timecode();
  auto const last = std::int64_t{converter.samples_per_day()} * (converter.isSpecialSlowTC() ? 2 : 1) - 1;
  return {facts.timecode.drop_frame ? 0 : -last, last};
}

}  // namespace

// Film labels run through their count twice: after the last one they start again at 0, but only once. Feet may be
// negative; keys and ink numbers begin at 0.
sample_range range_of(label_t type) {
  auto const& facts = labelsbase::facts_of(type);
  if (facts.is_timecode()) return range_of_timecode(facts);
  if (!counts_perforations(facts))
    return {std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()};

  auto const run = perfs_per_run(facts);
  auto const& gauge = facts.film.gauge;
  bool const is_feet = facts.family == User_feet;
  if (gauge.has_whole_frames()) {
    auto const last = 2 * run - 1;
    return is_feet ? sample_range{-last, last, run, gauge.perfs_per_frame()} : sample_range{0, last};
  }

  // At 3 perforations a frame, frame 0 begins before its key or foot, and foot 100000 does not start again at 0.
  int const before_count = gauge.perfs_per_frame() - 1;
  auto const last = 2 * run - 1 - before_count;
  auto const last_feet = last + gauge.perfs_per_count();
  return is_feet ? sample_range{-last_feet, last_feet} : sample_range{-before_count, last};
}

std::string explain_missing(label_t type, int sample) {
  auto const range = range_of(type);
  if (range.is_negative_zero(sample)) return "has no label, since it would be -0000+00, and zero has no sign";
  if (labelsbase::is_special_sample(sample)) return "has no label, since the number is reserved";
  return std::string{"has no label; "} + labelsbase::facts_of(type).name + " covers samples " +
         std::to_string(range.first) + " to " + std::to_string(range.last);
}

}  // namespace labelcheck
