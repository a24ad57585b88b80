#include "labelcheck/timecode.h"

#include "labelcheck/timecode_label.h"
#include "labelsbase/labelcvt/label_cvt.h"
#include "labelsbase/labelcvt/registry.h"

namespace labelcheck {

std::variant<reading, refusal> explain_timecode(labelsbase::label_facts const& facts, std::string_view text) {
  auto const form = form_of(facts);
  explaining_parser in{text};
  int sample = 0;
  if (take_timecode(in, form, sample)) return reading{sample, {}};
  bool const is_slow = facts.timecode.setting && get_static_label_cvt(facts.type)->isSpecialSlowTC();
  return refuse_text(facts.type, in.found(), nearest_timecode(form, is_slow, text));
}

}  // namespace labelcheck
