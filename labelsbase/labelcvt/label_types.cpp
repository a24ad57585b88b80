#include "labelsbase/labelcvt/label_types.h"

#include "host/current_project.h"
#include "labelsbase/labelcvt/label_facts.h"

using labelsbase::facts_of;

char const* labelsbase::label_type_name(label_t type) noexcept { return facts_of(type).name; }
UserLabelType labelsbase::user_label_type(label_t type) noexcept { return facts_of(type).family; }

label_t label_t_to_foot_label_t(label_t type) noexcept { return facts_of(type).siblings.feet; }
label_t label_t_to_ink_label_t(label_t type) noexcept { return facts_of(type).siblings.ink; }
label_t label_t_to_key_label_t(label_t type) noexcept { return facts_of(type).siblings.key; }

bool UserType_matches(UserLabelType a, UserLabelType b) noexcept {
  if (a == User_any || b == User_any) return true;
  if (a == User_none || b == User_none) return false;
  return a == b;
}

// Asks the host for every type except 50 and 60 frame timecode.
label_t label_t_to_duration_label_t(label_t type) {
  if (type == tc_50_label_t) return tc_50_duration_label_t;
  if (type == tc_60_label_t) return tc_60_duration_label_t;
  bool const drops_frames = Kiv::has1001Factor(Kiv::CurrentProject::getOutputImageKIVFrameRate());
  if (type != ntsc_label_t && type != ntsc_drop_label_t) return type;
  return drops_frames ? ntsc_drop_label_t : ntsc_label_t;
}

TCInf label_type_to_TvStd(label_t type) noexcept {
  auto const& facts = facts_of(type);
  return {facts.standard_rate, facts.timecode.drop_frame};
}

double get_vid_fps(label_t type) {
  auto const& facts = facts_of(type);
  return facts.timecode.at_host_speed ? Kiv::getFramesPerSecond(facts.standard_rate) : 1.0;
}
