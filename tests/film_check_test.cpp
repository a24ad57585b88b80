// The strict reader of key numbers, ink numbers, feet and film frames.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <random>
#include <string>

#include "labelsbase/labelcvt/label_facts.h"
#include "tests/refusals.h"

namespace {

using labelcheck::field;
using labelcheck::reason;

TEST(FilmCheck, SaysWhatIsWrongWhereAndWhatIsNearest) {
  refusal_case const cases[] = {
      // clang-format off
      {keycode_35_label_t,   "KJ1234560123+16",      field::frames,      reason::range,         13, "KJ1234560123+15", "frames run from 00 to 15"},
      {foot_353_label_t,     "-0002+22.2",           field::frames,      reason::range,         6,  "-0002+21.3"},
      {keycode_35_label_t,   "KJ1234560123+7",       field::frames,      reason::digit_count,   14, "KJ1234560123+07"},
      {keycode_35_label_t,   "KJ1234560123+007",     field::frames,      reason::digit_count,   15, "KJ1234560123+07", "frames must have 2 digits"},
      {keycode_35_label_t,   "KJ1234560123+",        field::frames,      reason::missing,       13, "KJ1234560123+00"},
      {keycode_353_label_t,  "KJ1234560123+07.3x",   field::whole,       reason::trailing,      17, "KJ1234560123+07.3", "nothing may follow the perforation"},
      {keycode_35_label_t,   "KJ1234560123&07",      field::separator,   reason::separator,     12, "KJ1234560123+07"},
      {keycode_35_label_t,   "KJ1234560123;07",      field::separator,   reason::separator,     12, "KJ1234560123+07"},
      {keycode_16_label_t,   "KJ1234560123+07",      field::separator,   reason::separator,     12, "KJ1234560123&07", "expected \"&\" before the frames"},
      {keycode_35_label_t,   "KJ123456012307",       field::separator,   reason::separator,     12, "KJ1234560123+07"},
      {keycode_353_label_t,  "KJ1234560123+07+3",    field::separator,   reason::separator,     15, "KJ1234560123+07.3", "expected \".\" before the perforation"},
      {keycode_353_label_t,  "KJ1234560123+07",      field::perforation, reason::missing,       15, "KJ1234560123+07.1", "the perforation is missing"},
      {keycode_353_label_t,  "KJ1234560123+07.4",    field::perforation, reason::range,         16, "KJ1234560123+07.3", "perforations run from 1 to 3"},
      {keycode_353_label_t,  "KJ1234560123+07.0",    field::perforation, reason::range,         16, "KJ1234560123+07.1"},
      {keycode_353_label_t,  "KJ1234560123+21.1",    field::perforation, reason::perforation,   16, "KJ1234560123+21.3", "frame 21 has only perforation 3: the next key"},
      {foot_353_label_t,     "0000+00.3",            field::perforation, reason::perforation,   8,  "0000+00.1", "frame 00 of foot 0 has only perforation 1"},
      {foot_353_label_t,     "-0000+00.1",           field::sign,        reason::signed_zero,   0,  "0000+00.1", "zero has no sign"},
      {film_frames_label_t,  "-000000",              field::sign,        reason::signed_zero,   0,  "000000"},
      {foot_35_label_t,      "+0064+01",             field::sign,        reason::positive_sign, 0,  "0064+01"},
      {film_frames_label_t,  " 000024",              field::sign,        reason::sign_column,   0,  "000024", "no sign column"},
      {keycode_35_label_t,   "KJ12345612345+07",     field::count,       reason::length,        12, "KJ1234569999+07", "8 characters and the count 4 digits; this count has 5"},
      {keycode_35_label_t,   "KJ123456+07",          field::count,       reason::length,        8,  "KJ1234560000+07", "this label has no count"},
      {keycode_35_label_t,   "KJ123456O123+07",      field::count,       reason::digit_count,   8,  "KJ1234560123+07", "the count must have 4 digits"},
      {keycode_35_label_t,   "0123+07",              field::prefix,      reason::length,        0,  "XX0000000123+07", "this label has no prefix"},
      {keycode_35_label_t,   "KJ10123+07",           field::prefix,      reason::length,        3,  "KJ1000000123+07"},
      {keycode_35_label_t,   "KJ123456AB0123+07",    field::prefix,      reason::length,        8,  "KJ1234560123+07"},
      {keycode_35_label_t,   "02-12-KJ-123456-1234+10", field::prefix,  reason::blank_or_dash, 2,  "KJ1234561234+10"},
      {ink_35_label_t,       "AB12-1234+05",         field::count,       reason::blank_or_dash, 4,  "AB121234+05", "without blanks or dashes"},
      {keycode_16_label_t,   "KJ 12 3456 0123 07",   field::prefix,      reason::blank_or_dash, 2,  "KJ1234560123&07"},
      {keycode_35_label_t,   "KJ1234560123\x01\x02", field::count,       reason::unprintable,   12, "KJ1234560123+00", "must be printable"},
      {foot_35_label_t,      "64+01",                field::feet,        reason::too_few_digits, 2, "0064+01", "feet must have at least 4 digits"},
      {foot_35_label_t,      "00064+01",             field::feet,        reason::leading_zero,  0,  "0064+01", "feet of more than 4 digits"},
      {foot_35_label_t,      "-100000+00",           field::feet,        reason::range,         1,  "-99999+00", "feet run up to 99999"},
      {foot_353_label_t,     "100001+00.2",          field::feet,        reason::range,         0,  "100000+00.2"},
      {film_frames_label_t,  std::string(999, '9'),  field::frames,      reason::range,         0,  "2147483647", "frames run up to 2147483647"},
      {film_frames_label_t,  "-2147483649",          field::frames,      reason::range,         1,  "-2147483648", "frames run down to -2147483648"},
      {film_frames_label_t,  "100000001",            field::frames,      reason::reserved,      0,  "100000000", "100000001 and 100000002 are reserved"},
      {film_frames_label_t,  "100000002",            field::frames,      reason::reserved,      0,  "100000003"},
      {film_frames_label_t,  "-100000000",           field::frames,      reason::reserved,      0,  "-100000001"},
      {keycode_35_label_t,   "01:00:00:00",          field::whole,       reason::unrecognised,  0,  "", "not a key number; expected a label like XX0000000000+00"},
      {ink_35_label_t,       "NEGATIVE",             field::whole,       reason::unrecognised,  0,  "", "not an ink number; expected a label like XXXX0000+00"},
      {foot_353_label_t,     "",                     field::whole,       reason::unrecognised,  0,  "", "feet and frames; expected a label like 0000+00.1"},
      {film_frames_label_t,  "x24",                  field::whole,       reason::unrecognised,  0,  "", "count of frames; expected a label like 000000"},
      // clang-format on
  };
  expect_refused(cases);
}

TEST(FilmCheck, ReturnsThePrefixOfTheText) {
  std::string const text = "K-1234999999+21.3";
  auto const label = std::get<labelcheck::reading>(labelcheck::read(keycode_353_label_6_t, text));
  EXPECT_TRUE(label.prefix == "K-1234" && label.prefix.data() == text.data());
}

// The rule by another way: a text is a label when its sample writes it, with its own prefix.
bool writes_it(LabelPoint& point, std::string const& text) {
  auto const length = static_cast<std::size_t>(point.cvt()->get_prefix_length());
  auto const prefix = text.substr(0, length);
  if (prefix.size() < length || std::ranges::any_of(prefix, [](char c) { return c < '!' || c > '~'; }))
    return false;
  std::strcpy(point.prefix, prefix.c_str());
  return is_written(point, text);
}

std::string some_label(LabelPoint& point, std::mt19937& random) {
  bool const has_prefix = point.cvt()->has_prefix();
  std::strcpy(point.prefix, has_prefix ? "KJ123456" : "");
  int const magnitude = static_cast<int>(random() % (random() % 2 ? 200 : 6'500'000));
  point.sample = has_prefix     ? point.cvt()->normalise_sample_unit(static_cast<int>(random() >> 1))
                 : random() % 4 ? magnitude
                                : -magnitude;
  std::string const text = point.get_string();
  return text.substr(text.starts_with(' ') && random() % 2);
}

TEST(FilmCheck, ReadsWhatTheTypeWritesAndNothingElse) {
  for (auto const& facts : labelsbase::all_label_facts)
    if (facts.is_film())
      expect_only_written(facts.type, "012345678901234567890123+++&..- xK", some_label, writes_it);
}

}  // namespace
