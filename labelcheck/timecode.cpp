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
  auto const& timecode = facts.timecode;
  return {timecode,
          timecode.setting ? get_static_label_cvt(facts.type)->get_modulus() : timecode.frames_per_second};
}

bool skip_sign(auto& in, timecode_facts const& facts) {
  if (in.explains && in.is_at('+')) return in.refuse(field::sign, reason::positive_sign);
  bool const is_negative = in.is_at('-');
  if (is_negative && facts.drop_frame) return in.refuse(field::sign, reason::negative_drop_frame);
  if (is_negative || in.is_at(' ')) in.skip(1);
  return true;
}

bool frames_separator(auto& in, timecode_facts const& facts) {
  if (in.separator(field::frames, facts.separator, ':')) return true;
  return in.is_at(';') ? in.refuse_separator(field::frames, reason::drop_frame_separator) : false;
}

// (" " | "-")? dd ":" dd ":" dd (separator | ":") ff
//
// Frames `ff` have two digits, or three above 100 frames a second.
bool take_fields(auto& in, timecode_form const& form, timecode_fields& at) {
  auto const& facts = form.facts;
  int const last = form.last_frame();
  bool const has_three = facts.frame_digits() == 3;
  return skip_sign(in, facts) && in.expects(has_three ? 12 : 11) &&                            //
         in.number(field::hours, 2, 23, at.hours) && in.separator(field::minutes, ':') &&      //
         in.number(field::minutes, 2, 59, at.minutes) && in.separator(field::seconds, ':') &&  //
         in.number(field::seconds, 2, 59, at.seconds) && frames_separator(in, facts) &&        //
         in.number(field::frames, has_three ? 3 : 2, last, at.frames);
}

bool is_counted(auto& in, timecode_form const& form, timecode_fields const& at) {
  if (!form.count().leaves_out(at)) return true;
  auto const frames = in.position() - static_cast<std::size_t>(form.facts.frame_digits());
  return in.refuse_at(frames, field::frames, reason::left_out);
}

bool take_label(auto& in, timecode_form const& form, int& sample) {
  timecode_fields at{};
  if (!take_fields(in, form, at) || !is_counted(in, form, at) || !in.end()) return false;
  sample = form.count().join(at);
  if (in.whole().front() == '-') sample = -sample;
  return true;
}

// Not inlined, since the quick reading should not pay for the registers of this one.
[[gnu::noinline]] std::variant<reading, refusal> explain(labelsbase::label_facts const& facts,
                                                         std::string_view text) {
  auto const form = form_of(facts);
  explaining_parser in{text};
  int sample = 0;
  if (take_label(in, form, sample)) return reading{sample, {}};
  bool const is_slow = facts.timecode.setting && get_static_label_cvt(facts.type)->isSpecialSlowTC();
  return refuse_text(facts.type, in.found(), nearest_timecode(form, is_slow, text));
}

std::variant<reading, refusal> read_as(timecode_form const& form, labelsbase::label_facts const& facts,
                                       std::string_view text) {
  quick_parser in{text};
  int sample = 0;
  if (take_label(in, form, sample)) return reading{sample, {}};
  return explain(facts, text);
}

[[gnu::noinline]] std::variant<reading, refusal> read_by_setting(labelsbase::label_facts const& facts,
                                                                 std::string_view text) {
  return read_as(form_of(facts), facts, text);
}

}  // namespace

// Flattened, and types without a setting ask nobody, for the benchmark strict_reading/25.
[[gnu::flatten]] std::variant<reading, refusal> read_timecode(labelsbase::label_facts const& facts,
                                                              std::string_view text) {
  if (facts.timecode.setting) return read_by_setting(facts, text);
  return read_as({facts.timecode, facts.timecode.frames_per_second}, facts, text);
}

}  // namespace labelcheck
