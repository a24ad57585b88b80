#include "labelcheck/timecode.h"

#include "labelcheck/parser.h"
#include "labelsbase/labelcvt/label_cvt.h"
#include "labelsbase/labelcvt/registry.h"

using labelsbase::timecode_facts;
using labelsbase::timecode_fields;

namespace labelcheck {
namespace {

// Asks the library's converter how the host's setting has 50 and 60 frame timecode count: only it knows.
timecode_form form_of(labelsbase::label_facts const& facts) {
  if (!facts.timecode.setting) return {facts.timecode, facts.timecode.frames_per_second, false};
  auto const& converter = *get_static_label_cvt(facts.type);
  return {facts.timecode, converter.get_modulus(), converter.isSpecialSlowTC()};
}

bool skip_sign(parser& in, timecode_facts const& facts) {
  if (in.is_at('+')) return in.refuse(field::sign, reason::positive_sign);
  bool const is_negative = in.is_at('-');
  if (is_negative && facts.drop_frame) return in.refuse(field::sign, reason::negative_drop_frame);
  if (is_negative || in.is_at(' ')) in.skip(1);
  return true;
}

bool frames_separator(parser& in, timecode_facts const& facts) {
  if (in.separator(field::frames, facts.separator, ':')) return true;
  return in.is_at(';') ? in.refuse_separator(field::frames, reason::drop_frame_separator) : false;
}

// (" " | "-")? dd ":" dd ":" dd (separator | ":") ff
//
// Frames `ff` have two digits, or three above 100 frames a second.
bool take_fields(parser& in, timecode_form const& form, timecode_fields& at) {
  auto const& facts = form.facts;
  return skip_sign(in, facts) &&                                                               //
         in.number(field::hours, 2, 23, at.hours) && in.separator(field::minutes, ':') &&      //
         in.number(field::minutes, 2, 59, at.minutes) && in.separator(field::seconds, ':') &&  //
         in.number(field::seconds, 2, 59, at.seconds) && frames_separator(in, facts) &&        //
         in.number(field::frames, facts.frame_digits(), form.last_frame(), at.frames);
}

bool is_counted(parser& in, timecode_form const& form, timecode_fields const& at) {
  if (!form.count().leaves_out(at)) return true;
  auto const frames = in.position() - static_cast<std::size_t>(form.facts.frame_digits());
  return in.refuse_at(frames, field::frames, reason::left_out);
}

}  // namespace

std::variant<reading, refusal> read_timecode(labelsbase::label_facts const& facts, std::string_view text) {
  auto const form = form_of(facts);
  parser in{text};
  timecode_fields at{};
  if (take_fields(in, form, at) && is_counted(in, form, at) && in.end()) {
    int const sample = form.count().join(at);
    return reading{text.starts_with('-') ? -sample : sample, {}};
  }
  return refuse_text(facts.type, in.found(), nearest_timecode(form, text));
}

}  // namespace labelcheck
