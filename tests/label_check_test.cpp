// The strict reader of timecode.

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "labelsbase/labelcvt/label_facts.h"
#include "tests/refusals.h"

namespace {

using labelcheck::field;
using labelcheck::reason;

TEST(LabelCheck, SaysWhatIsWrongWhereAndWhatIsNearest) {
  refusal_case const cases[] = {
      // clang-format off
      {pal_label_t,       "99:99:99:99",       field::hours,     reason::range,       0,  "23:59:59.24", "hours run from 00 to 23"},
      {pal_label_t,       "-00:60:00.00",      field::minutes,   reason::range,       4,  "-00:59:00.00", "minutes run from 00 to 59"},
      {tc_240_label_t,    "00:00:00.240",      field::frames,    reason::range,       9,  "00:00:00.239", "frames run from 000 to 239"},
      {tc_120_label_t,    "00:00:00.00",       field::frames,    reason::digit_count, 11, "00:00:00.000", "frames must have 3 digits"},
      {pal_label_t,       "1:2:3:4",           field::hours,     reason::digit_count, 1,  "01:02:03.04"},
      {pal_label_t,       "01000000",          field::hours,     reason::digit_count, 2,  "01:00:00.00"},
      {ntsc_drop_label_t, "-1000229",          field::sign,      reason::negative_drop_frame, 0, "00:00:00;00"},
      {tc_120_label_t,    " 010203119 ",       field::hours,     reason::digit_count, 3,  "01:02:03.119"},
      {pal_label_t,       "1000000",           field::hours,     reason::digit_count, 2,  "01:00:00.00"},
      {pal_label_t,       "100000",            field::hours,     reason::digit_count, 2,  "23:00:00.00"},
      {pal_label_t,       "01:0x:00:00",       field::minutes,   reason::digit_count, 4,  "01:00:00.00"},
      {pal_label_t,       "  01:00:00.00",     field::hours,     reason::digit_count, 1,  "01:00:00.00"},
      {pal_label_t,       "01:00",             field::seconds,   reason::missing,     5,  "01:00:00.00", "seconds are missing"},
      {pal_label_t,       "01.00.00.00",       field::separator, reason::separator,   2,  "01:00:00.00", "expected \":\" before the minutes"},
      {ntsc_drop_label_t, "01:00:00.00",       field::separator, reason::separator,   8,  "01:00:00;00", "expected \";\" or \":\" before the frames"},
      {pal_label_t,       "01:00:00;00",       field::separator, reason::drop_frame_separator, 8, "01:00:00.00", "frames; \";\" means drop-frame"},
      {pal_label_t,       "+01:00:00:00",      field::sign,      reason::positive_sign, 0, "01:00:00.00", "a positive label has no sign"},
      {ntsc_drop_label_t, "-00:00:01;00",      field::sign,      reason::negative_drop_frame, 0, "00:00:00;00", "never negative"},
      {ntsc_drop_label_t, " 23:59:00:01",      field::frames,    reason::left_out,    10, "23:59:00;02", "drop-frame leaves out frames 00 and 01"},
      {ntsc_drop_label_t, "00:71:00;00",       field::minutes,   reason::range,       3,  "00:59:00;02"},
      {pal_label_t,       {"01:00:00:00\0", 12}, field::whole,   reason::trailing,    11, "01:00:00.00", "nothing may follow the frames"},
      {pal_label_t,       std::string(1'000, '9'), field::hours, reason::digit_count, 2,  "23:00:00.00"},
      {pal_label_t,       "-",                 field::whole,     reason::unrecognised, 0, "", "not a timecode; expected hh:mm:ss.ff"},
      {tc_120_label_t,    "\xFF\xFE""1:2",     field::whole,     reason::unrecognised, 0, "", "expected hh:mm:ss.fff"},
      {pal_label_t,       "001  AX  V  C  01:00:00:00", field::whole, reason::unrecognised, 0, ""},
      {keycode_label_t,   "01:00:00:00",       field::whole,     reason::no_labels,   0,  "", "keycode_label has no labels"},
      {label_t{-7},       "01:00:00:00",       field::whole,     reason::no_labels,   0,  "", "there is no label type -7"},
      // clang-format on
  };
  expect_refused(cases);
}

// What a list may hold for what the type writes: without the blank of the sign column, and ":" before the frames.
std::string as_in_lists(std::string text, std::size_t frame_digits) {
  if (text.starts_with(' ')) text.erase(0, 1);
  if (text.size() > frame_digits) text[text.size() - frame_digits - 1] = ':';
  return text;
}

// The rule by another way: a text is a label when its sample writes it.
bool writes_it(LabelPoint& point, std::string const& text, std::size_t frame_digits) {
  if (text.starts_with('-') && point.cvt()->type() == ntsc_drop_label_t) return false;
  if (text.starts_with("-00:00:00") && text.find_first_not_of("0:.+-") == std::string::npos)
    return writes_it(point, ' ' + text.substr(1), frame_digits);  // minus one day is written so
  if (is_written(point, text)) return true;
  bool const has_colon = text.size() > frame_digits && text[text.size() - frame_digits - 1] == ':';
  return has_colon && as_in_lists(text, frame_digits) == as_in_lists(point.text, frame_digits);
}

TEST(LabelCheck, NamesAnyFieldWithoutANameAsTheWhole) {
  EXPECT_STREQ(field_name(field{static_cast<int>(field::whole) + 1}), "label");
  EXPECT_STREQ(field_name(field{-1}), "label");
}

TEST(LabelCheck, ReadsWhatTheTypeWritesAndNothingElse) {
  for (auto const& facts : labelsbase::all_label_facts) {
    if (!facts.is_timecode()) continue;
    std::size_t const digits = facts.timecode.frames_per_second > 100 ? 3 : 2;
    auto const day = static_cast<unsigned>(facts.timecode.frames_per_second * 86'400 - 3'000);
    auto const some_label = [&](LabelPoint& point, std::mt19937& random) -> std::string {
      point.sample = static_cast<int>(random() % day) * (random() % 8 == 0 ? -1 : 1);
      return random() % 2 ? point.get_string() : as_in_lists(point.get_string(), digits);
    };
    expect_only_written(
        facts.type, "0123456789012345:;.+- x", some_label,
        [&](LabelPoint& point, std::string const& text) { return writes_it(point, text, digits); });
  }
}

}  // namespace
