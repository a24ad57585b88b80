#include "labelcheck/label_check.h"

#include <utility>

#include "labelcheck/film_check.h"
#include "labelcheck/timecode_check.h"

namespace labelcheck {
namespace {

refusal refuse_type(label_t type) {
  std::string const name = labelsbase::label_type_name(type);
  auto rule = name.empty() ? "there is no label type " + std::to_string(type) : name + " texts cannot be checked";
  return {field::whole, 0, std::move(rule), ""};
}

constexpr bool is_film(UserLabelType family) noexcept {
  return family == User_keycode || family == User_ink || family == User_feet || family == User_film_frames;
}

}  // namespace

char const* field_name(field f) noexcept {
  switch (f) {
    case field::sign:
      return "sign";
    case field::hours:
      return "hours";
    case field::minutes:
      return "minutes";
    case field::seconds:
      return "seconds";
    case field::separator:
      return "separator";
    case field::frames:
      return "frames";
    case field::prefix:
      return "prefix";
    case field::count:
      return "count";
    case field::feet:
      return "feet";
    case field::perforation:
      return "perforation";
    case field::whole:
      break;
  }
  return "label";
}

std::optional<refusal> check(label_t type, std::string_view text) {
  if (!labelsbase::is_label_type(type)) return refuse_type(type);
  auto& cvt = *get_static_label_cvt(type);
  if (cvt.UserType() == User_timecode) return check_timecode(cvt, text);
  if (is_film(cvt.UserType())) return check_film(cvt, text);
  return refuse_type(type);
}

}  // namespace labelcheck
