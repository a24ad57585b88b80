#include "labelcheck/label_check.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "tests/refusals.h"

namespace {

using labelcheck::check;
using labelcheck::field;

constexpr label_t timecode_types[] = {
    pal_label_t,   ntsc_label_t,  ntsc_drop_label_t,      tc_24_label_t,          tc_48_label_t, tc_50_label_t,
    tc_60_label_t, tc_12_label_t, tc_50_duration_label_t, tc_60_duration_label_t, tc_15_label_t, tc_20_label_t,
    tc_80_label_t, tc_90_label_t, tc_100_label_t,         tc_120_label_t,         tc_240_label_t};

TEST(LabelCheck, SaysWhatIsWrongWhereAndWhatIsNearest) {
  refusal_case const cases[] = {
      // clang-format off
      {pal_label_t,       "99:99:99:99",       field::hours,     0,  "hours run from 00 to 23",      "23:59:59.24"},
      {pal_label_t,       "24:00:00:00",       field::hours,     0,  "hours run from 00 to 23",      "23:00:00.00"},
      {pal_label_t,       " 00:60:00.00",      field::minutes,   4,  "minutes run from 00 to 59",    "00:59:00.00"},
      {pal_label_t,       "-00:00:61:00",      field::seconds,   7,  "seconds run from 00 to 59",    "-00:00:59.00"},
      {pal_label_t,       "00:00:00:25",       field::frames,    9,  "frames run from 00 to 24",     "00:00:00.24"},
      {tc_24_label_t,     "00:00:00+24",       field::frames,    9,  "frames run from 00 to 23",     "00:00:00+23"},
      {tc_240_label_t,    "00:00:00.240",      field::frames,    9,  "frames run from 000 to 239",   "00:00:00.239"},
      {tc_120_label_t,    "00:00:00.00",       field::frames,    11, "frames take three digits",     "00:00:00.000"},
      {tc_100_label_t,    "00:00:00.000",      field::frames,    11, "frames take two digits",       "00:00:00.00"},
      {pal_label_t,       "1:2:3:4",           field::hours,     1,  "hours take two digits",        "01:02:03.04"},
      {pal_label_t,       "01:0x:00:00",       field::minutes,   4,  "minutes take two digits",      "01:00:00.00"},
      {pal_label_t,       "  01:00:00.00",     field::hours,     1,  "hours take two digits",        "01:00:00.00"},
      {pal_label_t,       "01:00",             field::seconds,   5,  "seconds are missing",          "01:00:00.00"},
      {pal_label_t,       "01:00:00",          field::frames,    8,  "frames are missing",           "01:00:00.00"},
      {pal_label_t,       "01:00:00:",         field::frames,    9,  "frames are missing",           "01:00:00.00"},
      {pal_label_t,       "01.00.00.00",       field::separator, 2,  "\":\" stands before the min",  "01:00:00.00"},
      {pal_label_t,       "01:00:00;00",       field::separator, 8,  "\";\" means drop-frame",       "01:00:00.00"},
      {ntsc_drop_label_t, "01:00:00.00",       field::separator, 8,  "\";\" or \":\" stands before", "01:00:00;00"},
      {pal_label_t,       "+01:00:00:00",      field::sign,      0,  "has no sign",                  "01:00:00.00"},
      {ntsc_drop_label_t, "-00:00:01;00",      field::sign,      0,  "never negative",               "00:00:00;00"},
      {ntsc_drop_label_t, "00:01:00;00",       field::frames,    9,  "leaves out frames 00 and 01",  "00:01:00;02"},
      {ntsc_drop_label_t, " 23:59:00:01",      field::frames,    10, "leaves out frames 00 and 01",  "23:59:00;02"},
      {ntsc_drop_label_t, "00:71:00;00",       field::minutes,   3,  "minutes run from 00 to 59",    "00:59:00;02"},
      {pal_label_t,       "01:00:00:00 ",      field::whole,     11, "nothing may follow",           "01:00:00.00"},
      {pal_label_t,       {"01:00:00:00\0", 12}, field::whole,   11, "nothing may follow",           "01:00:00.00"},
      {pal_label_t,       std::string(1'000, '9'), field::hours, 2,  "hours take two digits",        "23:00:00.00"},
      {pal_label_t,       "",                  field::whole,     0,  "expected hh:mm:ss.ff",         ""},
      {pal_label_t,       "-",                 field::whole,     0,  "expected hh:mm:ss.ff",         ""},
      {tc_120_label_t,    "\xFF\xFE""1:2",     field::whole,     0,  "expected hh:mm:ss.fff",        ""},
      {pal_label_t,       "001  AX  V  C  01:00:00:00", field::whole, 0, "expected hh:mm:ss.ff",     ""},
      {keycode_label_t,   "01:00:00:00",       field::whole,     0,  "keycode_label",                ""},
      {null_label_t,      "01:00:00:00",       field::whole,     0,  "no label type 0",              ""},
      {label_t{-7},       "01:00:00:00",       field::whole,     0,  "no label type -7",             ""},
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
  point.sample = point.cvt()->get_abs_sample(text.c_str());
  std::string const written = point.get_string();
  if (text == written || ' ' + text == written) return true;
  bool const has_colon = text.size() > frame_digits && text[text.size() - frame_digits - 1] == ':';
  return has_colon && as_in_lists(text, frame_digits) == as_in_lists(written, frame_digits);
}

TEST(LabelCheck, TakesWhatTheTypeWritesAndNothingElse) {
  std::mt19937 random{2};
  constexpr std::string_view alphabet = "0123456789012345:;.+- x";
  for (label_t const type : timecode_types) {
    LabelPoint point{type, 0};
    std::size_t const frame_digits = point.cvt()->get_modulus() > 100 ? 3 : 2;
    auto const day = static_cast<unsigned>(point.cvt()->get_modulus() * 86'400 - 3'000);
    int taken = 0;
    for (int i = 0; i < 20'000; ++i) {
      point.sample = static_cast<int>(random() % day) * (random() % 8 == 0 ? -1 : 1);
      std::string text = point.get_string();
      if (random() % 2) text = as_in_lists(text, frame_digits);
      damage(text, alphabet, 7, random);

      auto const refused = check(type, text);
      ASSERT_EQ(!refused, writes_it(point, text, frame_digits)) << point.cvt()->type_str() << " \"" << text << '"';
      taken += !refused;
      if (!refused) continue;
      EXPECT_LE(refused->position, text.size()) << text;
      ASSERT_TRUE(names_a_label(type, *refused)) << text << " -> " << refused->nearest;
    }
    EXPECT_GT(taken, 4'000);
    EXPECT_LT(taken, 16'000);
  }
}

TEST(LabelCheck, TakesAnyBytes) { expect_any_bytes_taken(timecode_types, "0123456789:;.+- ", 24, 4); }

}  // namespace
