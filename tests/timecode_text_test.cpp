// Texts and packed digits of timecode.

#include "tests/testing.h"

namespace {

TEST(TimecodeText, IsWritten) {
  // clang-format off
  expect_written({
      {pal_label_t, 25, " 00:00:01.00"},           {pal_label_t, -25, "-00:00:01.00"},
      {pal_label_t, 2'160'000, " 00:00:00.00"},    {ntsc_drop_label_t, -1800, "-00:01:00;02"},
      {tc_24_label_t, 864'000, " 10:00:00+00"},    {tc_100_label_t, 99, " 00:00:00.99"},
      {tc_120_label_t, 239, " 00:00:01.119"},      {tc_240_label_t, -1, "-00:00:00.001"},
      {pal_label_t, -100'000'000, "???.??.??.??"}, {tc_240_label_t, 100'000'001, ">>>.>>.>>.>>>"},
      {pal_label_t, 100'000'002, "<<<.<<.<<.<<"},  {pal_label_t, 100'000'003, " 07:06:40.03"},
      {pal_label_t, INT_MAX, " 04:55:45.22"},
      {pal_label_t, INT_MIN, "--23836:-55:-45.-23"},  // its own negative
  });
  // clang-format on
}

TEST(TimecodeText, WithoutASignColumnCountsBackFromMidnight) {
  std::set<std::string> places;
  for (auto const& row : std::map<label_t, char const*>{
           {pal_label_t, "23:59:59.24"}, {tc_120_label_t, "23:59:59.119"}, {tc_240_label_t, "23:59:59.239"}}) {
    LabelPoint point{row.first, 0};
    point.removePadding();
    auto const said = said_by([&] { EXPECT_STREQ(point.cvt()->get_abs_string(&point, -1), row.second); });
    EXPECT_TRUE(said.starts_with("assertion failed abs_sample >= 0 at labelsbase/labelcvt line ")) << said;
    EXPECT_EQ(said.find('\n'), said.size() - 1);
    places.insert(said);
  }
  EXPECT_EQ(places.size(), 3U) << "each from a line of its own";
}

TEST(TimecodeText, FormatsLeaveFieldsOut) {
  // clang-format off
  struct { int format, sample; char const* text; } const cases[] = {
      {0, 3, " "},       {8, 3, " .03"},      {0, 25, " 1.00"},      {4, 3, " 00.03"},           {0, -3, "-"},
      {4, 275, " 11.00"}, {2, 3, " 00:00.03"}, {0, 1500, " 1:00.00"}, {2, 90'000, " 1:00:00.00"},
      {1, 3, " 00:00:00.03"}, {8, 900'000, " 10:00:00.00"},          {31, 3, " 00:00:00:01"},
  };
  // clang-format on
  for (auto const& c : cases) {
    pal_label cvt{c.format};
    LabelPoint point{cvt, 0};
    EXPECT_STREQ(cvt.get_abs_string(&point, c.sample), c.text) << c.format;
  }
}

TEST(TimecodeText, FormatsExpectTheFieldsThatTheyWrite) {
  // clang-format off
  struct { int format; char const* text; int sample; } const cases[] = {
      {2, "-01:02.03", -1553}, {2, "01.03", -100'000'000}, {4, "62.03", 1553}, {6, "01:02.03", 1553},
      {4, "-1 3", -28},        {0, "1.00", -100'000'000},  {8, "-1.00", 100'000'000},
  };
  // clang-format on
  for (auto const& c : cases) EXPECT_EQ(pal_label{c.format}.get_abs_sample(c.text), c.sample) << c.text;
  EXPECT_EQ(ntsc_drop_label{4}.get_abs_sample("00:01:00;02"), 1800);  // drop-frame always reads all fields
  EXPECT_EQ(ntsc_drop_label{4}.get_abs_sample("02;02"), -100'000'000);
  pal_label seconds{4};
  LabelPoint point{seconds, 0};
  EXPECT_STREQ(seconds.get_abs_string(&point, 91'500), " 1:01:00.00");
  EXPECT_EQ(seconds.get_abs_sample("01.00"), 25) << "the hour and minute before are forgotten";
}

TEST(TimecodeText, IsReadTolerantly) {
  // clang-format off
  expect_read({
      {ntsc_drop_label_t, "-00:00:01.00", 0}, {ntsc_drop_label_t, "nothing", -100'000'000},
      {ntsc_drop_label_t, "-", 0},            {pal_label_t, "00:00:4294967297.00", 25},
  });
  // clang-format on
}

TEST(PackedText, IsReadTwoCharactersAField) {
  // clang-format off
  read_row const cases[] = {
      {pal_label_t, " 1 0 0 3", 90'003}, {ntsc_drop_label_t, "00010002", 1800}, {pal_label_t, "0100000", 90'000},
      {tc_240_label_t, "000000239", 239}, {pal_label_t, "01000000xyz", 90'000},
      {pal_label_t, "010000", invalid}, {pal_label_t, nullptr, invalid},
  };
  // clang-format on
  for (auto const& c : cases) EXPECT_EQ(shared(c.type).get_abs_sample_from_packed_string(c.text), c.sample);
  EXPECT_EQ(shared(pal_label_t).get_sample_span_from_packed_strings("00000100", "00000000"), 2'159'975);
  EXPECT_EQ(shared(pal_label_t).get_sample_span_from_packed_strings("00000000", "24000000"), 2'160'000);
}

TEST(PackedBcd, IsWrittenAsCounted) {
  // clang-format off
  struct { label_t type; int sample; unsigned packed; } const cases[] = {
      {ntsc_drop_label_t, 1800, 0x00010042}, {pal_label_t, 2'159'999, 0x23595924}, {pal_label_t, -1, 0},
      {tc_240_label_t, 239, 0x179},  // 23 tens and 9, joined to no seconds: 0x170 | 9
      {pal_label_t, 100'000'001, 0}, {pal_label_t, 2'160'001, 1}, {dummy_label_t, 5, 0},
  };
  // clang-format on
  for (auto const& c : cases)
    EXPECT_EQ(shared(c.type).get_abs_smpte_string(nullptr, c.sample), c.packed) << c.sample;
}

TEST(PackedBcd, IsReadWithoutDropFrameCorrection) {
  // clang-format off
  struct { label_t type; unsigned packed; int sample; bool drop; } const cases[] = {
      {tc_48_label_t, 0x00000029, 29, false},      {ntsc_drop_label_t, 0x00010042, 1802, true},
      {tc_50_label_t, 0x00000124, 50 + 48, false}, {tc_60_duration_label_t, 0x00000029, 58, false},
      {pal_label_t, 0xFFFFFFFF, ((45 * 60 + 85) * 60 + 85) * 25 + 45, true},
  };
  // clang-format on
  for (auto const& c : cases) {
    unsigned packed = c.packed;
    bool drop = !c.drop;
    EXPECT_EQ(shared(c.type).get_samples_from_SMPTETc(packed, drop), c.sample) << std::hex << c.packed;
    EXPECT_EQ(drop, c.drop);
  }
}

// A converter of the host's own, whose day begins an hour late.
struct late_label : pal_label {
  using pal_label::pal_label;
  using timecode_label::hours_;
  void sample_to_hmsf(int sample, bool& second_field) override {
    pal_label::sample_to_hmsf(sample, second_field);
    ++hours_;
  }
  int hmsf_to_sample() override { return pal_label::hmsf_to_sample() - 90'000; }
};

TEST(HostConverter, KeepsItsOwnArithmetic) {
  late_label late{15};
  LabelPoint point{late, 25};
  EXPECT_STREQ(point.get_string(), " 01:00:01.00");
  EXPECT_EQ(late.get_abs_sample("01:00:01.00"), 25);
  EXPECT_EQ(late.get_abs_smpte_string(&point, 25), 0x01000100U);
  EXPECT_EQ(late.get_abs_sample("07:08"), labelsbase::invalid_sample);
  EXPECT_EQ(late.hours_, 7);  // what could be read
}

TEST(HostConverter, CountsAnyRate) {
  // clang-format off
  struct { int fps, sample; char const* text; } const cases[] = {
      {1, 3'601, " 01:00:01.00"}, {1000, 1'999, " 00:00:01.999"},      {INT_MAX, 5, " 00:00:00.05"},
      {0, 61, " 00:01:01.00"},    {-7, INT_MIN, "--596499:-14:-8.00"},
  };
  // clang-format on
  for (auto const& c : cases) {
    timecode_label cvt{c.fps, 15};
    LabelPoint point{cvt, 0};
    std::string const text = cvt.get_abs_string(&point, c.sample);
    EXPECT_EQ(text, c.text) << c.fps;
    (void)cvt.normalise_sample_unit(c.sample);
  }
}

}  // namespace
