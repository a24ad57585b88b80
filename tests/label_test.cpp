#include "tests/testing.h"

namespace {

constexpr int past_end = 100'000'001, before_start = 100'000'002;

Label range(label_t type, int start, int length) {
  Label label{type};
  label.start.sample = start;
  label.length = length;
  return label;
}

TEST(Label, IsMadeOfATypeAConverterOrAPoint) {
  Label const typed = pal_label_t;
  EXPECT_EQ(typed.cmp(100'000'000), 0);
  EXPECT_EQ(typed.cmp(100'000'001), past_end);
  EXPECT_EQ(typed.pitch, 0.04);

  tc_24_label cvt{15};
  for (Label const& open : std::initializer_list<Label>{cvt, LabelPoint{tc_24_label_t, 48}}) {
    EXPECT_EQ(open.length, 100'000'000);
    EXPECT_EQ(open.pitch, 1.0 / 24);
    EXPECT_TRUE(open.bounded == 0 && open.contains(INT_MIN) && open.cmp(INT_MIN) == 0);
  }
  EXPECT_EQ(Label{cvt}.start.cvt(), &cvt);
  EXPECT_TRUE(get_invalid_label().start == invalid_label_point);

  LabelPoint unterminated{ink_35_label_t, 0};
  std::memset(unterminated.prefix, '9', sizeof unterminated.prefix);
  std::strcpy(unterminated.text, "ABCDEFGHIJK");
  EXPECT_STREQ(Label{unterminated}.start.prefix, "99999999");  // nothing of the text behind it
}

TEST(Label, ReportsATypeOutOfRange) {
  for (int const type : {-1, numLabelCvts}) {
    auto const said = said_by([type] { EXPECT_EQ(Label{label_t{type}}.start.cvt()->type(), dummy_label_t); });
    EXPECT_TRUE(said.starts_with("assertion failed false at labelsbase/labelcvt")) << said;
  }
}

TEST(Label, CopiesAllButTheRevision) {
  Label original = range(keycode_35_label_t, 640, 64);
  original.set_prefix("KJ1234560010+00");
  original.revision = 2;
  original.bounded = 7;

  Label const copy{original};
  EXPECT_TRUE(copy == original && copy.bounded == 7 && copy.revision == 1);

  Label assigned{pal_label_t};
  assigned.revision = 5;
  assigned = original;
  assigned = *&assigned;
  EXPECT_TRUE(assigned == original && assigned.bounded == 7 && assigned.revision == 5);
  original.set_prefix("KJ1234560099+05");
  assigned = original;
  EXPECT_STREQ(assigned.start.prefix, "KJ1234560010");  // with the count of the label, not of that text

  tc_24_label own{15};
  assigned = Label{own};
  EXPECT_EQ(assigned.start.cvt(), get_static_label_cvt(tc_24_label_t));

  // A start without a sample leaves its placeholder as the prefix, in the shape of a template of its own.
  Label blank = range(ink_35_label_t, past_end, 0);
  blank.start.label_template.set("99999999+19");
  assigned = std::move(blank);
  EXPECT_STREQ(assigned.start.prefix, ">>>>>>>>");
  EXPECT_STREQ(assigned.start.label_template.text(), Label{ink_35_label_t}.start.label_template.text());
}

TEST(Label, AnswersForOffsetsAndSamples) {
  Label label = range(pal_label_t, 90'000, 250);
  // clang-format off
  struct { int offset; char const *text, *perfs; int point_sample; unsigned packed; double posn; } const cases[] = {
      {0, " 01:00:00.00", "", 90'000, 0x01000000, 3600.0}, {250, " 01:00:10.00", "", 90'250, 0x01001000, 3610.0},
      {251, ">>>>>>", ">>", past_end, 5, 1e99},            {-1, "<<<<<<", "<<", before_start, 5, 1e99},
      {invalid, ">>>>>>", ">>", past_end, 5, 1e99},
  };
  // clang-format on
  for (auto const& c : cases) {
    EXPECT_STREQ(label.get_string(c.offset), c.text);
    EXPECT_STREQ(label.get_perfs_string(c.offset), c.perfs);
    EXPECT_EQ(label.get_label_point(c.offset).sample, c.point_sample);
    unsigned packed = 5;
    EXPECT_EQ(label.get_smpte(c.offset, packed), label.get_smpte_string(c.offset) != nullptr);
    EXPECT_EQ(packed, c.packed);
    EXPECT_DOUBLE_EQ(label.get_abs_posn(c.offset), c.posn);
  }
  EXPECT_TRUE(label.get_sample(90'100) == 100 && label.get_sample(89'999) == invalid);
  EXPECT_EQ(label.get_unbounded_label_point(-90'001).sample, 2'159'999);
  EXPECT_DOUBLE_EQ(label.get_abs_posn_extrapolate(-90'000), 0.0);

  label.set_end(90'010);
  EXPECT_EQ(label.length, 10);
  label.start.sample = INT_MAX;
  EXPECT_EQ(label.get_end(), INT_MIN + 9);

  bool drop = false;
  EXPECT_TRUE(label.samples_from_SMPTE(0x01000040, drop) == 90'000 && drop);
  label.get_samples_from_SMPTETc(0, drop);
  EXPECT_FALSE(drop);
}

TEST(Label, MapsSecondsToSamples) {
  Label perfs = range(keycode_35_label_t, 0, 1000);
  perfs.pitch = 1.0 / 24;  // a slow machine: 24 perforations a second
  // clang-format off
  struct { double posn; int of_frame, exact; } const cases[] = {
      {1.0, 24, 24},   {0.99, 20, 23}, {1.0 - 1.0 / 24 / 300, 24, 23}, {1.0 - 1.0 / 24 / 600, 24, 24},
      {-0.01, -4, -1}, {0.0, 0, 0},    {1e99, invalid, invalid},       {1e12, invalid, invalid},
      {-1e300, invalid, invalid},      {std::nan(""), invalid, invalid},
  };
  // clang-format on
  for (auto const& c : cases) {
    EXPECT_EQ(perfs.posn_to_sample(c.posn), c.of_frame) << c.posn;
    EXPECT_EQ(perfs.abs_posn_to_sample(c.posn), c.exact) << c.posn;
  }
  for (double pitch : {0.0, HUGE_VAL, std::nan("")}) {
    perfs.pitch = pitch;
    EXPECT_TRUE(perfs.posn_to_sample(1.0) == invalid && perfs.abs_posn_to_sample(1.0) == invalid) << pitch;
  }
  EXPECT_EQ(perfs.sample_to_posn(invalid), 1e99);
}

TEST(Label, PositionsOfSamplesReadBackExactly) {
  for (auto const type : {ntsc_drop_label_t, keycode_35_label_t, foot_353_label_t, film_frames_label_t}) {
    Label const label{type};
    int const unit = label.start.cvt()->samples_per_unit();
    for (int sample = 0; sample < 600'000; sample += 311) {
      ASSERT_EQ(label.abs_posn_to_sample(label.sample_to_posn(sample)), sample) << type;
      ASSERT_EQ(label.posn_to_sample(label.sample_to_posn(sample)), sample - sample % unit) << type;
    }
  }
}

TEST(Label, ContainsLabelsOfItsRollAndRange) {
  auto const film = [](char const* prefix, int start, int length, int bounded = 1) {
    Label label = range(keycode_35_label_t, start, length);
    label.set_prefix(prefix);
    label.bounded = bounded;
    return label;
  };
  Label const outer = film("KJ123456", 100, 100), open = film("KJ123456", 100, 100, 0);
  // clang-format off
  struct { Label inner; bool contained; } const cases[] = {
      {film("kj123456", 100, 100), true}, {film("KJ123456", 150, 50), true}, {film("KJ123456", 150, 51), false},
      {film("KJ123457", 150, 10), false}, {film("KJ123456", 99, 1), false},  {film("KJ123456", 150, -50), true},
      {film("KJ123456", 201, 0, 0), false}, {film("KJ123456", 150, 9'999, 0), true},
      {film("KJ123456", 150, INT_MAX), false},
  };
  // clang-format on
  for (auto const& c : cases) {
    EXPECT_EQ(outer.contains(c.inner), c.contained) << c.inner.get_start() << " " << c.inner.length;
    EXPECT_EQ(open.contains(c.inner), c.inner.start.prefix[7] == '6') << "the same roll";
  }

  // A label without a prefix has the one that its converter read last: here that of the roll.
  Label roll{keycode_35_label_t};
  roll.set_prefix("AB123456");
  Label{keycode_35_label_t}.set_prefix("ZZ999999");
  EXPECT_TRUE(roll.contains(Label{keycode_35_label_t}));

  EXPECT_TRUE(range(pal_label_t, 0, 10).contains(range(ntsc_label_t, 5, 5)));  // deliberate: types do not count
}

TEST(Label, EqualityHoldsStartsAndEndsTogether) {
  Label const label = range(pal_label_t, 100, 50);
  Label other = label;
  other.pitch = 7;
  EXPECT_TRUE(label == other && label != range(pal_label_t, 100, 49));

  // Deliberate: the start as it stands against a normalised one.
  Label const beyond = range(pal_label_t, 2'160'100, 50);
  EXPECT_FALSE(beyond == beyond);
  EXPECT_TRUE(label == range(pal_label_t, 2'160'100, 50));
}

TEST(Label, TakesANewType) {
  Label label = range(pal_label_t, 100, 50);
  label.set_type(keycode_16_label_t);
  EXPECT_TRUE(label.pitch == 1.0 / 24 && label.start.sample == 100);
  EXPECT_STREQ(label.start.label_template.text(), "????????9999+19");
  label.init();
  EXPECT_TRUE(label.pitch == 0.0 && label.bounded == 0 && label.length == 50);
}

TEST(FilmProject, RunsAt24Or48) {
  for (int code = -1; code < 50; ++code) {
    refhost::project_guard const project{{.frame_rate = Kiv::FrameRate{code}}};
    EXPECT_EQ(is_film_project(), code == 1 || code == 6) << code;
  }
}

}  // namespace
