// Private: the grammar of timecode.
#pragma once

#include <cstddef>

#include "labelcheck/parser.h"
#include "labelcheck/timecode.h"

namespace labelcheck {

bool skip_sign(auto& in, labelsbase::timecode_facts const& facts) {
  if (in.explains && in.is_at('+')) return in.refuse(field::sign, reason::positive_sign);
  bool const is_negative = in.is_at('-');
  if (is_negative && facts.drop_frame) return in.refuse(field::sign, reason::negative_drop_frame);
  if (is_negative || in.is_at(' ')) in.skip(1);
  return true;
}

bool frames_separator(auto& in, labelsbase::timecode_facts const& facts) {
  if (in.separator(field::frames, facts.separator, ':')) return true;
  return in.is_at(';') ? in.refuse_separator(field::frames, reason::drop_frame_separator) : false;
}

// (" " | "-")? dd ":" dd ":" dd (separator | ":") ff
//
// Frames `ff` have two digits, or three above 100 frames a second.
bool take_fields(auto& in, timecode_form const& form, labelsbase::timecode_fields& at) {
  auto const& facts = form.facts;
  int const last = form.last_frame();
  bool const has_three = facts.frame_digits() == 3;
  return skip_sign(in, facts) && in.expects(has_three ? 12 : 11) &&                            //
         in.number(field::hours, 2, 23, at.hours) && in.separator(field::minutes, ':') &&      //
         in.number(field::minutes, 2, 59, at.minutes) && in.separator(field::seconds, ':') &&  //
         in.number(field::seconds, 2, 59, at.seconds) && frames_separator(in, facts) &&        //
         in.number(field::frames, has_three ? 3 : 2, last, at.frames);
}

bool is_counted(auto& in, timecode_form const& form, labelsbase::timecode_fields const& at) {
  if (!form.count().leaves_out(at)) return true;
  auto const frames = in.position() - static_cast<std::size_t>(form.facts.frame_digits());
  return in.refuse_at(frames, field::frames, reason::left_out);
}

// Takes a whole label, and returns whether it is one. The sample is that of the label.
bool take_timecode(auto& in, timecode_form const& form, int& sample) {
  labelsbase::timecode_fields at{};
  if (!take_fields(in, form, at) || !is_counted(in, form, at) || !in.end()) return false;
  sample = form.count().join(at);
  if (in.whole().front() == '-') sample = -sample;
  return true;
}

}  // namespace labelcheck
