// The timecode of the host's frame rates.

#include "host/current_project.h"
#include "labelsbase/labelcvt/label_facts.h"
#include "labelsbase/labelcvt/label_types.h"
#include "labelsbase/labelcvt/rate_facts.h"
#include "labelsbase/support/enumerators.h"

using namespace labelsbase;

namespace {

constexpr bool has_row(Kiv::FrameRate rate) noexcept { return facts_of(rate).rate == rate; }

// 12.5 frames a second are counted in 12.
consteval Kiv::FrameRate first_without_timecode() {
  for (auto const& row : all_rate_facts) {
    bool const counts_its_frames =
        facts_of(row.timecode_type).timecode.frames_per_second == static_cast<int>(row.nominal_fps);
    if (!counts_its_frames || !has_row(row.counted_as)) return row.rate;
  }
  return Kiv::FrameRate_unknown;
}

consteval label_t first_without_standard() {
  for (auto const& row : all_rate_facts)
    if (facts_of(facts_of(row.timecode_type).standard_rate).timecode_type != row.timecode_type)
      return row.timecode_type;
  return null_label_t;
}

static_assert(has_no_name<first_enumerator_without<Kiv::FrameRate, 256>(has_row)>,
              "this rate lacks its row in rate_facts.h");
static_assert(
    is_null<first_without_timecode()>,
    "this rate needs a timecode type that counts its nominal frames, and a rate with a row to be counted as");
static_assert(is_null<first_without_standard()>,
              "this label type needs a standard rate in label_facts.h whose timecode is this type");

}  // namespace

label_t TvStd_to_label_type(TCInf const& standard) noexcept {
  bool const is_known = standard.frame_rate != Kiv::FrameRate_unknown && has_row(standard.frame_rate);
  label_t const type = is_known ? getDefaultLabelTypeforFrameRate(standard.frame_rate) : ntsc_label_t;
  return type == ntsc_label_t && standard.drop_frame ? ntsc_drop_label_t : type;
}

double getDefaultTimecodeFrameRate(Kiv::FrameRate rate) noexcept {
  return facts_of(facts_of(rate).counted_as).frames_per_second();
}

label_t getDefaultLabelTypeforFrameRate(Kiv::FrameRate rate) noexcept {
  return facts_of(facts_of(rate).counted_as).timecode_type;
}

label_t getDefaultLabelTypeForProject() {
  auto const rate = Kiv::CurrentProject::getFrameRate();
  bool const drop_frame = Kiv::CurrentProject::getUseDropFrameTimecode();
  return TvStd_to_label_type({rate, drop_frame});
}
