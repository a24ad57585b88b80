// Key numbers of every gauge.

#include "tests/testing.h"

namespace {

// Hands every perforation of some keys to `check`: of the first three, of the last three and of three at random
// places, for every type whose frames have three perforations, or for all others.
template <typename Check>
void for_perforations(bool three_perf, Check check) {
  for (int t = 0; t < numLabelCvts; ++t) {
    LabelPoint point{label_t{t}, 0};
    auto& cvt = *point.cvt();
    if (cvt.UserType() != User_keycode || (cvt.samples_per_unit() == 3) != three_perf) continue;
    SCOPED_TRACE(cvt.type_str());
    cvt.set_prefix(&point, "KJ123456");
    std::mt19937 random{35};
    int const per_key = three_perf ? 64 : cvt.get_modulus() * cvt.samples_per_unit();
    int const keys = cvt.get_count_length() == 4 ? 10'000 : cvt.get_count_length() == 5 ? 100'000 : 1'000'000;
    for (int round = 0; round < 12; ++round) {
      auto const at_random = static_cast<int>(random() % static_cast<unsigned>(keys - 3));
      int const key = round == 0 ? 0 : round == 1 ? keys - 3 : at_random;
      // The last two perforations of 3-perf film carry the key after the last.
      for (int perf = key * per_key; perf < (key + 3) * per_key - (three_perf ? 2 : 0); ++perf)
        check(point, perf, per_key);
    }
  }
}

TEST(Keycode, WritesAndReadsBackTheFrameOfEveryPerforation) {
  for_perforations(false, [](LabelPoint& point, int sample, int per_key) {
    auto& cvt = *point.cvt();
    int const in_key = sample % per_key, per_frame = cvt.samples_per_unit();
    char expected[48];
    std::snprintf(expected, sizeof expected, "%.*s%0*d%c%02d", cvt.get_prefix_length(), "KJ12345600",
                  cvt.get_count_length(), sample / per_key, cvt.getFrameSeparator(), in_key / per_frame);
    char const* const text = cvt.get_abs_string(&point, sample);
    ASSERT_STREQ(text, expected);
    ASSERT_EQ(cvt.get_abs_sample(text), sample - in_key % per_frame) << text;
    ASSERT_EQ(cvt.get_keep_sample(text), sample - in_key % per_frame) << text;
    ASSERT_EQ(std::stoi(cvt.get_abs_perfs_string(&point, sample)), in_key);
  });
}

TEST(Keycode353, NamesEveryPerforationExactly) {
  for_perforations(true, [](LabelPoint& point, int sample, int) {
    auto& cvt = *point.cvt();
    char const* const text = cvt.get_abs_string(&point, sample);
    ASSERT_EQ(cvt.get_abs_sample(text), sample) << text;
    ASSERT_EQ(cvt.get_keep_sample(cvt.get_keep_string(&point, sample)), sample);
  });
}

// Frames of three perforations laid end to end over keys of 64: the label of a frame's first perforation counts
// the frames that begin in its key, and its perf digit how the key lies in the frame.
TEST(Keycode353, AgreesWithLayingFramesEndToEnd) {
  keycode_353_label cvt;
  LabelPoint point{cvt, 0};
  int frames_in_key[3] = {};
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
  EXPECT_EQ(testing::PrintToString(frames_in_key), "{ 84, 84, 88 }");
}

TEST(Keycode, TextsAtTheEdges) {
  // clang-format off
  expect_written({
      {keycode_35_label_t, -1, "XX0000000000+00"}, {keycode_35_label_t, -4, "XX0000000000+-1"},
      {keycode_35_label_t, -64, "NEGATIVE"},       {keycode_353_label_t, -2, "XX0000000000+00.3"},
      {keycode_353_label_t, -3, "NEGATIVE"},       {keycode_35_label_t, 10'001 * 64, "XX0000000001+00"},
      {keycode_35_label_t, 20'000 * 64, "XX00000010000+00"},  // only once
      {keycode_353_label_t, INT_MAX, "NEGATIVE"},
      {keycode_353_label_t, INT_MAX - 2, "XX00000033544431+21"},  // cut
      {keycode_35_label_t, invalid, "???????????????"}, {keycode_353_label_t, 100'000'001, ">>>>>>>>>>>>>>>.>"},
  });
  // clang-format on
}

TEST(Keycode, ReadsTextTolerantly) {
  // clang-format off
  read_row const cases[] = {
      {keycode_35_label_t, "AB1234560123", 123 * 64},      {keycode_35_label_t, "AB1234560123+16", invalid},
      {keycode_35_label_t, "AB1234560123+123", invalid},   {keycode_35_label_t, "AB1234560123+", invalid},
      {keycode_35_label_t, "AB1234560123&07", 7'900},      {keycode_35_label_t, "AB1234560123+7", 7'900},
      {keycode_35_label_t, "AB123456__12+05", 788},        {keycode_35_label_t, "AB1234560123+5x", 7'892},
      {keycode_35_label_t, "AB123456-012+05", invalid},    {keycode_35_label_t, "AB123456", 0},
      {keycode_35_label_t, "AB1234560123...5", invalid},  // the digit stands too far out
      {keycode_35_label_t, "AB12345612", 12 * 64},         {keycode_35_label_t, "AB12345", invalid},
      {keycode_35_label_t, nullptr, invalid},              {keycode_353_label_t, "AB1234560001.2", 63},
      {keycode_353_label_t, "AB1234560001+00.1", 64},      {keycode_353_label_t, "AB1234560001+00.3", 62},
      {keycode_353_label_t, "AB1234560001+22.1", invalid}, {keycode_353_label_t, "AB1234560001+00.x", invalid},
      {keycode_353_label_t, "AB12345.1", invalid},         {keycode_353_label_t, "1", invalid},
      {keycode_353_label_t, nullptr, invalid},             {keycode_353_label_t, "AB1234560001+21.9", 119},
  };
  // clang-format on
  for (auto const& c : cases) {
    expect_read({c});
    EXPECT_EQ(shared(c.type).get_abs_sample_from_packed_string(c.text), c.sample);
  }
  auto& cvt = shared(keycode_35_label_t);
  EXPECT_EQ(cvt.get_sample_span_from_packed_strings("AB1234560001", "AB1234560000"), 9'999 * 64);
}

TEST(Prefix, OfAPointComesBeforeTheOneRemembered) {
  std::unique_ptr<label_cvt> const cvt{make_any_label_cvt(keycode_35_label_t)};
  LabelPoint bare{*cvt, 64}, marked{*cvt, 64};
  EXPECT_STREQ(cvt->get_prefix(&bare), "XX000000");
  cvt->set_prefix(&marked, "KJ1234560099+05");
  EXPECT_STREQ(marked.prefix, "KJ1234560099");  // prefix and count
  EXPECT_STREQ(bare.get_string(), "KJ1234560001+00");
  cvt->set_prefix(&bare, "EH000001");
  EXPECT_STREQ(LabelPoint{marked}.get_string(), "KJ1234560001+00");
  EXPECT_STREQ(bare.get_string(), "EH0000010001+00");

  cvt->set_prefix(&marked, "short");
  EXPECT_STREQ(marked.prefix, "KJ1234560099");
  LabelPoint third{*cvt, 0};
  cvt->set_prefix(&third, nullptr);
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
