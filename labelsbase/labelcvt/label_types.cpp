#include "labelsbase/labelcvt/label_types.h"

#include "host/current_project.h"
#include "labelsbase/labelcvt/label_rows.h"

using labelsbase::row_of;

namespace labelsbase {

char const* label_type_name(label_t type) noexcept { return row_of(type).name; }
UserLabelType user_label_type(label_t type) noexcept { return row_of(type).family; }

}  // namespace labelsbase

label_t label_t_to_foot_label_t(label_t type) noexcept { return row_of(type).foot; }
label_t label_t_to_ink_label_t(label_t type) noexcept { return row_of(type).ink; }
label_t label_t_to_key_label_t(label_t type) noexcept { return row_of(type).key; }

label_t label_t_to_duration_label_t(label_t type) {
  if (type == tc_50_label_t) return tc_50_duration_label_t;
  if (type == tc_60_label_t) return tc_60_duration_label_t;
  if (type != ntsc_label_t && type != ntsc_drop_label_t) return type;
  return Kiv::has1001Factor(Kiv::CurrentProject::getOutputImageKIVFrameRate()) ? ntsc_drop_label_t : ntsc_label_t;
}

TCInf label_type_to_TvStd(label_t type) noexcept {
  auto const& row = row_of(type);
  return {row.tv_rate, row.tv_drop};
}

double get_vid_fps(label_t type) {
  auto const& row = row_of(type);
  return row.samples_per_second == 0 ? Kiv::getFramesPerSecond(row.tv_rate) : 1.0;
}
