// Key numbers of every gauge.

#include <gtest/gtest.h>

#include <climits>
#include <cstdio>
#include <cstring>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "labelsbase/labels.h"
#include "tests/host_converters.h"

namespace {

constexpr int invalid = -100'000'000;

struct film {
  label_t type;
  int perfs_per_key, perfs_per_frame, digits;
  char separator;
  char const* shape;
};

// clang-format off
constexpr film films[] = {
    {keycode_35_label_t,          64,  4, 4, '+', "????????9999+19"},
    {keycode_16_label_t,          20,  1, 4, '&', "????????9999+19"},
    {keycode_353_label_t,         64,  3, 4, '+', "????????9999+29.3"},
    {keycode_35_label_4_t,        64,  4, 4, '+', "????????9999+19"},
    {keycode_35_label_5_t,        64,  4, 5, '+', "???????99999+19"},
    {keycode_35_label_6_t,        64,  4, 6, '+', "??????999999+19"},
    {keycode_16_label_4_t,        20,  1, 4, '&', "????????9999+19"},
    {keycode_16_label_5_t,        20,  1, 5, '&', "???????99999+19"},
    {keycode_16_label_6_t,        20,  1, 6, '&', "??????999999+19"},
    {keycode_353_label_4_t,       64,  3, 4, '+', "????????9999+29.3"},
    {keycode_353_label_5_t,       64,  3, 5, '+', "???????99999+29.3"},
    {keycode_353_label_6_t,       64,  3, 6, '+', "??????999999+29.3"},
    {keycode_352_label_t,         64,  2, 4, '+', "????????9999+39"},
    {keycode_358_label_t,         64,  8, 4, '+', "????????9999+07"},
    {keycode_655_80_label_t,      80,  5, 4, '+', "????????9999+19"},
    {keycode_658_80_label_t,      80,  8, 4, '+', "????????9999+09"},
    {keycode_6510_80_label_t,     80, 10, 4, '+', "????????9999+07"},
    {keycode_655_120_label_t,    120,  5, 4, '+', "????????9999+29"},
    {keycode_658_120_label_t,    120,  8, 4, '+', "????????9999+19"},
    {keycode_6510_120_label_t,   120, 10, 4, '+', "????????9999+19"},
    {keycode_6515_120_label_t,   120, 15, 4, '+', "????????9999+07"},
};
// clang-format on

int keys_of(film const& f) { return f.digits == 4 ? 10'000 : f.digits == 5 ? 100'000 : 1'000'000; }

// Three whole keys from the start, from the end of the count and from random keys.
std::vector<int> samples_of(film const& f) {
  std::mt19937 random{35};
  std::vector<int> samples;
  for (int round = 0; round < 40; ++round) {
    auto const at_random = static_cast<int>(random() % static_cast<unsigned>(keys_of(f) - 3));
    int const key = round == 0 ? 0 : round == 1 ? keys_of(f) - 3 : at_random;
    for (int perf = 0; perf < 3 * f.perfs_per_key; ++perf) samples.push_back(key * f.perfs_per_key + perf);
  }
  return samples;
}

TEST(Keycode, WritesAndReadsBackTheFrameOfEveryPerforation) {
  for (auto const& f : films) {
    bool const names_perfs = f.perfs_per_frame == 3;
    if (names_perfs) continue;
    LabelPoint point{f.type, 0};
    auto& cvt = *point.cvt();
    cvt.set_prefix(&point, "KJ123456");
    for (int const sample : samples_of(f)) {
      char expected[48];
      int const in_key = sample % f.perfs_per_key;
      std::snprintf(expected, sizeof expected, "%.*s%0*d%c%02d", 12 - f.digits, "KJ12345600", f.digits,
                    sample / f.perfs_per_key, f.separator, in_key / f.perfs_per_frame);
      char const* const text = cvt.get_abs_string(&point, sample);
      ASSERT_STREQ(text, expected) << cvt.type_str();
      ASSERT_EQ(cvt.get_abs_sample(text), sample - in_key % f.perfs_per_frame) << text;
      ASSERT_EQ(cvt.get_keep_sample(text), sample - in_key % f.perfs_per_frame) << text;
      ASSERT_EQ(std::stoi(cvt.get_abs_perfs_string(&point, sample)), in_key);
    }
  }
}

TEST(Keycode353, NamesEveryPerforationExactly) {
  for (auto const& f : films) {
    if (f.perfs_per_frame != 3) continue;
    LabelPoint point{f.type, 0};
    auto& cvt = *point.cvt();
    for (int const sample : samples_of(f)) {
      if (sample + 2 >= keys_of(f) * f.perfs_per_key) continue;  // the frame of the key after the last
      char const* const text = cvt.get_abs_string(&point, sample);
      ASSERT_EQ(cvt.get_abs_sample(text), sample) << text;
      ASSERT_EQ(cvt.get_keep_sample(cvt.get_keep_string(&point, sample)), sample);
    }
  }
}

// Frames of three perforations laid end to end over keys of 64: the label of a frame's first perforation counts
// the frames that begin in its key, and its perf digit how the key lies in the frame.
TEST(Keycode353, AgreesWithLayingFramesEndToEnd) {
  keycode_353_label cvt;
  LabelPoint point{cvt, 0};
  int frames_in_key[4] = {};
  int key = 0, frame = -1;
  for (int first_perf = 0; first_perf < 4 * 192; first_perf += 3) {
    // The frame over which the next key begins takes that key's number.
    bool const next_key_begins = first_perf + 2 >= (key + 1) * 64;
    key += next_key_begins;
    frame = next_key_begins ? 0 : frame + 1;
    ++frames_in_key[key % 3];
    int const perf_digit = key * 64 + 3 * frame - first_perf + 1;
    char expected[48];
    std::snprintf(expected, sizeof expected, "XX000000%04d+%02d.%d", key, frame, perf_digit);
    ASSERT_STREQ(cvt.get_abs_string(&point, first_perf), expected) << first_perf;
    ASSERT_TRUE(perf_digit >= 1 && perf_digit <= 3);
  }
  EXPECT_EQ(frames_in_key[0] + frames_in_key[1] + frames_in_key[2], 4 * 64);
  EXPECT_EQ(frames_in_key[0], 4 * 21);
  EXPECT_EQ(frames_in_key[1], 4 * 21);
  EXPECT_EQ(frames_in_key[2], 4 * 22);
}

TEST(Keycode, RowsSayWhatTheGaugeIs) {
  for (auto const& f : films) {
    auto& cvt = *get_static_label_cvt(f.type);
    bool const silent = f.type == keycode_352_label_t || f.type == keycode_358_label_t;  // deliberate
    EXPECT_EQ(cvt.perfs_per_keyKode(), silent ? 1 : f.perfs_per_key) << cvt.type_str();
    EXPECT_EQ(cvt.samples_per_unit(), f.perfs_per_frame);
    EXPECT_EQ(cvt.getFrameSeparator(), f.separator);
    EXPECT_EQ(cvt.get_count_length(), f.digits);
    EXPECT_EQ(cvt.get_prefix_length(), 12 - f.digits);
    EXPECT_STREQ(cvt.get_template(true).text(), f.shape);
    std::string const hidden =
        std::string(static_cast<std::size_t>(12 - f.digits), '~') + (f.shape + 12 - f.digits);
    EXPECT_EQ(cvt.get_template(false).text(), hidden);

    int const span = keys_of(f) * cvt.get_modulus() * f.perfs_per_frame;
    EXPECT_EQ(cvt.normalise_sample_unit(span), 0);
    EXPECT_EQ(cvt.normalise_sample_unit(-1), span - 1);
    for (int sample : {INT_MIN, INT_MAX, span + 7, -span}) {
      int const normal = cvt.normalise_sample_unit(sample);
      EXPECT_TRUE(normal >= 0 && normal < span);
      EXPECT_EQ((static_cast<long long>(sample) - normal) % span, 0);
    }
  }
}

TEST(Keycode, TextsAtTheEdges) {
  struct {
    label_t type;
    int sample;
    char const* text;
  } const cases[] = {
      {keycode_35_label_t, -1, "XX0000000000+00"},
      {keycode_35_label_t, -4, "XX0000000000+-1"},
      {keycode_35_label_t, -64, "NEGATIVE"},
      {keycode_353_label_t, -2, "XX0000000000+00.3"},
      {keycode_353_label_t, -3, "NEGATIVE"},
      {keycode_35_label_t, 10'000 * 64, "XX0000000000+00"},
      {keycode_35_label_t, 10'001 * 64, "XX0000000001+00"},
      {keycode_35_label_t, 20'000 * 64, "XX00000010000+00"},  // only once
      {keycode_35_label_t, INT_MAX, "XX00000033544431+15"},
      {keycode_353_label_t, INT_MAX, "NEGATIVE"},
      {keycode_353_label_t, INT_MAX - 2, "XX00000033544431+21"},  // cut
      {keycode_35_label_t, invalid, "???????????????"},
      {keycode_353_label_t, 100'000'001, ">>>>>>>>>>>>>>>.>"},
  };
  for (auto const& c : cases) {
    std::unique_ptr<label_cvt> const cvt{make_any_label_cvt(c.type)};
    LabelPoint point{*cvt, 0};
    std::strcpy(point.text, "untouched");
    EXPECT_STREQ(cvt->get_abs_string(&point, c.sample), c.text) << c.sample;
    EXPECT_EQ(std::string{"untouched"} == point.text,
              std::string{"NEGATIVE"} == c.text || c.text[0] == '?' || c.text[0] == '>');
  }
}

TEST(Keycode, ReadsTextTolerantly) {
  struct {
    label_t type;
    char const* text;
    int sample;
  } const cases[] = {
      {keycode_35_label_t, "AB1234560123", 123 * 64},
      {keycode_35_label_t, "AB1234560123+7", 123 * 64 + 28},
      {keycode_35_label_t, "AB1234560123&07", 123 * 64 + 28},
      {keycode_35_label_t, "AB1234560123+15", 123 * 64 + 60},
      {keycode_35_label_t, "AB1234560123+16", invalid},
      {keycode_35_label_t, "AB1234560123+123", invalid},
      {keycode_35_label_t, "AB1234560123+", invalid},
      {keycode_35_label_t, "AB123456__12+05", 12 * 64 + 20},
      {keycode_35_label_t, "AB123456-012+05", invalid},
      {keycode_35_label_t, "AB1234560123...5", invalid},  // the digit stands too far out
      {keycode_35_label_t, "AB1234560123+5x", 123 * 64 + 20},
      {keycode_35_label_t, "AB123456", 0},
      {keycode_35_label_t, "AB12345612", 12 * 64},
      {keycode_35_label_t, "AB12345", invalid},
      {keycode_35_label_t, "", invalid},
      {keycode_35_label_t, nullptr, invalid},
      {keycode_35_label_6_t, "AB1234999999+15", 999'999 * 64 + 60},
      {keycode_352_label_t, "AB1234560001+31", 64 + 62},
      {keycode_6515_120_label_t, "AB1234560001+08", invalid},
      {keycode_353_label_t, "AB1234560001+00.1", 64},
      {keycode_353_label_t, "AB1234560001+00.3", 62},
      {keycode_353_label_t, "AB1234560001+21.9", 64 + 63 - 8},
      {keycode_353_label_t, "AB1234560001+22.1", invalid},
      {keycode_353_label_t, "AB1234560001+00.x", invalid},
      {keycode_353_label_t, "AB1234560001.2", 63},
      {keycode_353_label_t, "AB12345.1", invalid},
      {keycode_353_label_t, "1", invalid},
  };
  for (auto const& c : cases) {
    auto& cvt = *get_static_label_cvt(c.type);
    EXPECT_EQ(cvt.get_abs_sample(c.text), c.sample) << c.text;
    EXPECT_EQ(cvt.get_abs_sample_from_packed_string(c.text), c.sample) << c.text;
  }
  EXPECT_EQ(get_static_label_cvt(keycode_35_label_t)
                ->get_sample_span_from_packed_strings("AB1234560001", "AB1234560000"),
            9'999 * 64);
}

TEST(Prefix, OfAPointComesBeforeTheOneRemembered) {
  std::unique_ptr<label_cvt> const cvt{make_any_label_cvt(keycode_35_label_t)};
  LabelPoint bare{*cvt, 64};
  EXPECT_STREQ(cvt->get_prefix(&bare), "XX000000");

  LabelPoint marked{*cvt, 64};
  cvt->set_prefix(&marked, "KJ1234560099+05");
  EXPECT_STREQ(marked.prefix, "KJ1234560099");  // prefix and count
  EXPECT_STREQ(bare.get_string(), "KJ1234560001+00");
  cvt->set_prefix(&bare, "EH000001");
  LabelPoint const copy = marked;
  EXPECT_STREQ(LabelPoint{copy}.get_string(), "KJ1234560001+00");
  EXPECT_STREQ(bare.get_string(), "EH0000010001+00");

  cvt->set_prefix(&marked, "short");
  EXPECT_STREQ(marked.prefix, "KJ1234560099");
  LabelPoint third{*cvt, 0};
  cvt->set_prefix(&third, nullptr);
  EXPECT_STREQ(third.prefix, "");
  EXPECT_STREQ(third.get_string(), "XX0000000000+00");  // deliberate: that made the converter forget
  cvt->set_prefix(nullptr, "KJ123456");
}

TEST(Prefix, OfAHostsConverterStaysInItsBuffers) {
  struct host_film : prefix_label {
    using prefix_label::count_maximum_;
    using prefix_label::prefix_label;
  };
  host_film film{16, 4, 40};
  EXPECT_EQ(film.get_prefix_length(), -1);
  film.build_template();
  LabelPoint point{film, 0};
  std::string const longer(60, 'p');
  for (unsigned digits : {0U, 1U, 9U, 10U, 40U, 60U}) {
    film.set_count_len(digits);
    film.build_template();
    film.set_prefix(&point, longer.c_str());
    EXPECT_EQ(std::string(point.prefix), longer.substr(0, 20));
    EXPECT_LE(std::strlen(film.get_prefix(&point)), 20U);
    EXPECT_EQ(film.count_maximum_, digits < 2 ? 9 : digits < 10 ? 999'999'999 : INT_MAX);
  }
}

}  // namespace
