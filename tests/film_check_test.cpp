// The strict reader of key numbers, ink numbers, feet and film frames.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "labelcheck/label_check.h"
#include "labelsbase/labels.h"
#include "tests/refusals.h"

namespace {

using labelcheck::check;
using labelcheck::field;

std::vector<label_t> film_types() {
  std::vector<label_t> types;
  for (int number = 0; number < numLabelCvts; ++number) {
    auto const type = static_cast<label_t>(number);
    auto const& cvt = *get_static_label_cvt(type);
    if (cvt.type() == type && cvt.UserType() >= User_keycode) types.push_back(type);
  }
  return types;
}

TEST(FilmCheck, SaysWhatIsWrongWhereAndWhatIsNearest) {
  refusal_case const cases[] = {
      // clang-format off
      {keycode_35_label_t,      "KJ1234560123+16",      field::frames,      13, "frames run from 00 to 15",         "KJ1234560123+15"},
      {keycode_16_label_t,      "KJ1234560123&20",      field::frames,      13, "frames run from 00 to 19",         "KJ1234560123&19"},
      {keycode_352_label_t,     "KJ1234560123+32",      field::frames,      13, "frames run from 00 to 31",         "KJ1234560123+31"},
      {keycode_6515_120_label_t,"KJ1234560123+08",      field::frames,      13, "frames run from 00 to 07",         "KJ1234560123+07"},
      {ink_16_label_t,          "AB120123+20",          field::frames,      9,  "frames run from 00 to 19",         "AB120123+19"},
      {foot_16_label_t,         "0001+40",              field::frames,      5,  "frames run from 00 to 39",         "0001+39"},
      {keycode_35_label_t,      "KJ1234560123+7",       field::frames,      14, "frames take two digits",           "KJ1234560123+07"},
      {keycode_35_label_t,      "KJ1234560123+007",     field::frames,      15, "frames take two digits",           "KJ1234560123+07"},
      {keycode_35_label_t,      "KJ1234560123",         field::frames,      12, "frames are missing",               "KJ1234560123+00"},
      {keycode_35_label_t,      "KJ1234560123+",        field::frames,      13, "frames are missing",               "KJ1234560123+00"},
      {keycode_35_label_t,      "KJ1234560123+07 ",     field::whole,       15, "nothing may follow the frames",    "KJ1234560123+07"},
      {keycode_353_label_t,     "KJ1234560123+07.3x",   field::whole,       17, "nothing may follow the perf",      "KJ1234560123+07.3"},
      {keycode_35_label_t,      "KJ1234560123&07",      field::separator,   12, "\"+\" stands before the frames",   "KJ1234560123+07"},
      {keycode_16_label_t,      "KJ1234560123+07",      field::separator,   12, "\"&\" stands before the frames",   "KJ1234560123&07"},
      {keycode_35_label_t,      "KJ1234560123:07",      field::separator,   12, "\"+\" stands before the frames",   "KJ1234560123+07"},
      {keycode_35_label_t,      "KJ123456012307",       field::separator,   12, "\"+\" stands before the frames",   "KJ1234560123+07"},
      {foot_35_label_t,         "0064.01",              field::separator,   4,  "\"+\" stands before the frames",   "0064+01"},
      {keycode_353_label_t,     "KJ1234560123+07+3",    field::separator,   15, "\".\" stands before the perf",     "KJ1234560123+07.3"},
      {keycode_353_label_t,     "KJ1234560123+07",      field::perforation, 15, "the perforation is missing",       "KJ1234560123+07.1"},
      {keycode_353_label_t,     "KJ1234560123+07.",     field::perforation, 16, "the perforation is missing",       "KJ1234560123+07.1"},
      {keycode_353_label_t,     "KJ1234560123+07.4",    field::perforation, 16, "perforations run from 1 to 3",     "KJ1234560123+07.3"},
      {keycode_353_label_t,     "KJ1234560123+07.0",    field::perforation, 16, "perforations run from 1 to 3",     "KJ1234560123+07.1"},
      {keycode_353_label_t,     "KJ1234560123+21.1",    field::perforation, 16, "frame 21 has only perforation 3",  "KJ1234560123+21.3"},
      {foot_353_label_t,        "-0002+22.2",           field::frames,      6,  "frames run from 00 to 21",         "-0002+21.3"},
      {foot_353_label_t,        "0000+00.3",            field::perforation, 8,  "frame 00 has only perforation 1",  "0000+00.1"},
      {foot_353_label_t,        "-0000+00.1",           field::sign,        0,  "zero has no sign",                 "0000+00.1"},
      {foot_35_label_t,         "-0000+00",             field::sign,        0,  "zero has no sign",                 "0000+00"},
      {film_frames_label_t,     "-000000",              field::sign,        0,  "zero has no sign",                 "000000"},
      {foot_35_label_t,         "+0064+01",             field::sign,        0,  "has no sign",                      "0064+01"},
      {film_frames_label_t,     " 000024",              field::sign,        0,  "no sign column",                   "000024"},
      {keycode_35_label_t,      "KJ12345600123+07",     field::count,       12, "this count has 5",                 "KJ1234560123+07"},
      {keycode_35_label_t,      "KJ12345612345+07",     field::count,       12, "this count has 5",                 "KJ1234569999+07"},
      {keycode_35_label_t,      "KJ123456123+07",       field::count,       11, "this count has 3",                 "KJ1234560123+07"},
      {keycode_35_label_t,      "KJ123456+07",          field::count,       8,  "this label has no count",          "KJ1234560000+07"},
      {keycode_35_label_6_t,    "KJ12340123456+07",     field::count,       12, "this count has 7",                 "KJ1234123456+07"},
      {keycode_35_label_t,      "KJ123456O123+07",      field::count,       8,  "the count takes 4 digits",         "KJ1234560123+07"},
      {keycode_35_label_t,      "KJ123456__12+05",      field::count,       8,  "the count takes 4 digits",         "KJ1234560012+05"},
      {keycode_35_label_t,      "0123+07",              field::prefix,      0,  "8 characters and the count 4 digits; this label has no prefix", "XX0000000123+07"},
      {keycode_35_label_t,      "KJ10123+07",           field::prefix,      3,  "this prefix has 3",                "KJ1000000123+07"},
      {keycode_35_label_t,      "KJ123456AB0123+07",    field::prefix,      8,  "this prefix has 10",               "KJ1234560123+07"},
      {ink_35_label_t,          "1234+05",              field::prefix,      0,  "4 characters and the count 4 digits; this label has no prefix", "XXXX1234+05"},
      {ink_35_label_t,          "AB12-1234+05",         field::count,       4,  "without blanks and dashes",        "AB121234+05"},
      {keycode_35_label_t,      "KJ 12 3456 0123+07",   field::prefix,      2,  "without blanks and dashes",        "KJ1234560123+07"},
      {keycode_35_label_t,      "KJ-12-3456-0123+07",   field::prefix,      2,  "without blanks and dashes",        "KJ1234560123+07"},
      {keycode_16_label_t,      "KJ 12 3456 0123 07",   field::prefix,      2,  "without blanks and dashes",        "KJ1234560123&07"},
      {keycode_35_label_t,      " KJ1234560123+07",     field::prefix,      0,  "without blanks and dashes",        "KJ1234560123+07"},
      {keycode_35_label_t,      "KJ\xFF""234560123+07", field::whole,       0,  "expected one like XX0000000000+00", ""},
      {foot_35_label_t,         "64+01",                field::feet,        2,  "feet take at least 4 digits",      "0064+01"},
      {foot_35_label_t,         "",                     field::whole,       0,  "expected one like 0000+00",        ""},
      {foot_35_label_t,         "00064+01",             field::feet,        0,  "do not begin with 0",              "0064+01"},
      {foot_35_label_t,         "-100000+00",           field::feet,        1,  "feet run up to 99999",             "-99999+00"},
      {foot_353_label_t,        "100001+00.2",          field::feet,        0,  "feet run up to 100000",            "100000+00.2"},
      {foot_35_label_t,         "0064",                 field::frames,      4,  "frames are missing",               "0064+00"},
      {film_frames_label_t,     "24",                   field::frames,      2,  "frames take at least 6 digits",    "000024"},
      {film_frames_label_t,     "0000024",              field::frames,      0,  "do not begin with 0",              "000024"},
      {film_frames_label_t,     "2147483648",           field::frames,      0,  "frames run up to 2147483647",      "2147483647"},
      {film_frames_label_t,     "-2147483649",          field::frames,      1,  "frames run down to -2147483648",   "-2147483648"},
      {film_frames_label_t,     "100000001",            field::frames,      0,  "stand for no frame",               "100000000"},
      {film_frames_label_t,     "100000002",            field::frames,      0,  "stand for no frame",               "100000003"},
      {film_frames_label_t,     "-100000000",           field::frames,      0,  "stand for no frame",               "-100000001"},
      {film_frames_label_t,     std::string(999, '9'),  field::frames,      0,  "frames run up to",                 "2147483647"},
      {keycode_35_label_t,      "NEGATIVE",             field::whole,       0,  "this is no key number",            ""},
      {keycode_35_label_t,      "01:00:00:00",          field::whole,       0,  "this is no key number",            ""},
      {ink_35_label_t,          "01:00:00:00",          field::whole,       0,  "no ink number; expected one like XXXX0000+00", ""},
      {foot_353_label_t,        "01:00:00:00",          field::whole,       0,  "expected one like 0000+00.1",      ""},
      {film_frames_label_t,     "x24",                  field::whole,       0,  "expected one like 000000",         ""},
      // clang-format on
  };
  expect_refused(cases);
}

TEST(FilmCheck, LeavesTheRememberedPrefixAlone) {
  LabelPoint marked{keycode_35_label_t, 0}, bare{keycode_35_label_t, 64};
  marked.cvt()->set_prefix(&marked, "EH000001");
  EXPECT_FALSE(check(keycode_35_label_t, "KJ1234560123+07"));
  EXPECT_TRUE(check(keycode_35_label_t, "KJ1234560123+17"));
  EXPECT_STREQ(bare.get_string(), "EH0000010001+00");
}

// The rule by another way: a text is a label when its sample writes it, with its own prefix.
bool writes_it(LabelPoint& point, std::string const& text) {
  auto const length = static_cast<std::size_t>(point.cvt()->get_prefix_length());
  auto const prefix = text.substr(0, length);
  if (prefix.size() < length || std::ranges::any_of(prefix, [](char c) { return c < '!' || c > '~'; }))
    return false;
  std::strcpy(point.prefix, prefix.c_str());
  point.sample = point.cvt()->get_abs_sample(text.c_str());
  std::string const written = point.get_string();
  return text == written || ' ' + text == written;
}

int some_sample(LabelPoint const& point, std::mt19937& random) {
  if (point.cvt()->has_prefix()) return point.cvt()->normalise_sample_unit(static_cast<int>(random() >> 1));
  int const magnitude = static_cast<int>(random() % (random() % 2 ? 200 : 6'500'000));
  return random() % 4 ? magnitude : -magnitude;
}

TEST(FilmCheck, TakesWhatTheTypeWritesAndNothingElse) {
  std::mt19937 random{5};
  constexpr std::string_view alphabet = "012345678901234567890123+++&..- xK";
  for (label_t const type : film_types()) {
    LabelPoint point{type, 0};
    int taken = 0;
    for (int i = 0; i < 10'000; ++i) {
      std::strcpy(point.prefix, point.cvt()->has_prefix() ? "KJ123456" : "");
      point.sample = some_sample(point, random);
      std::string text = point.get_string();
      if (text.starts_with(' ') && random() % 2) text.erase(0, 1);
      damage(text, alphabet, 4, random);

      auto const refused = check(type, text);
      ASSERT_EQ(!refused, writes_it(point, text)) << point.cvt()->type_str() << " \"" << text << '"';
      taken += !refused;
      if (!refused) continue;
      EXPECT_LE(refused->position, text.size()) << text;
      ASSERT_TRUE(names_a_label(type, *refused)) << text << " -> " << refused->nearest;
    }
    EXPECT_GT(taken, 2'500) << point.cvt()->type_str();
    EXPECT_LT(taken, 9'000) << point.cvt()->type_str();
  }
}

TEST(FilmCheck, TakesAnyBytes) { expect_any_bytes_taken(film_types(), "0123456789012+&.:- KJ", 40, 8); }

}  // namespace
