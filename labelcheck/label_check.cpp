#include "labelcheck/label_check.h"

#include <utility>

#include "labelcheck/timecode_check.h"

namespace labelcheck {
namespace {

refusal refuse_type(label_t type) {
  std::string const name = labelsbase::label_type_name(type);
  auto rule = name.empty() ? "there is no label type " + std::to_string(type) : name + " texts cannot be checked";
  return {field::whole, 0, std::move(rule), ""};
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
    case field::whole:
      break;
  }
  return "label";
}

std::optional<refusal> check(label_t type, std::string_view text) {
  if (!labelsbase::is_label_type(type)) return refuse_type(type);
  auto const& cvt = *get_static_label_cvt(type);
  if (cvt.UserType() == User_timecode) return check_timecode(cvt, text);
  return refuse_type(type);
}

}  // namespace labelcheck
