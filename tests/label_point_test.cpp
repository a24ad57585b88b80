#include "tests/testing.h"

namespace {

// Read before main, while static objects are still being built.
std::string const early_text = LabelPoint{invalid_label_point}.get_string();
double const early_pitch = Label::get_natural_pitch(pal_label_t);

// A converter with a prefix, as film types have it.
class prefixed_label : public variable_label {
 public:
  prefixed_label() : variable_label{1, 1} {}
  bool has_prefix() const override { return true; }
};

TEST(InvalidPoint, IsThereBeforeMain) {
  EXPECT_EQ(early_text, "???");
  EXPECT_EQ(early_pitch, 0.04);
  EXPECT_EQ(invalid_label_point.cvt(), get_static_label_cvt(null_label_t));
  EXPECT_EQ(invalid_label_point.sample, 0);
  EXPECT_STREQ(invalid_label_point.label_template.text(), "");
  EXPECT_TRUE(LabelPoint{} == invalid_label_point);
}

TEST(LabelPoint, IsMadeOfATypeAndASample) {
  LabelPoint point{pal_label_t, 90'000};
  EXPECT_STREQ(point.get_string(), " 01:00:00.00");
  EXPECT_STREQ(point.get_keep_string(), " 01:00:00.00");
  EXPECT_EQ((LabelPoint{pal_label_t, 2'160'001}.sample), 1);
  EXPECT_STREQ((LabelPoint{label_t{-3}, 1}.get_string()), "???");
  point.init();
  EXPECT_TRUE(point == invalid_label_point);
  EXPECT_STREQ(point.text, "");
}

TEST(LabelPoint, ComparesTypeSampleAndPrefix) {
  LabelPoint const pal{pal_label_t, 5};
  LabelPoint other = pal;
  other.removePadding();
  std::strcpy(other.prefix, "AB");
  EXPECT_TRUE(pal == other);  // neither template nor, for timecode, prefix counts
  other.sample = 6;
  EXPECT_TRUE(pal != other);
  EXPECT_TRUE((pal != LabelPoint{ntsc_label_t, 5}));

  prefixed_label cvt;
  LabelPoint film{cvt, 5};
  LabelPoint same_film = film;
  std::strcpy(film.prefix, "KJ123456789012345678");
  std::strcpy(same_film.prefix, "KJ123456789012345679");
  EXPECT_TRUE(film != same_film);
  std::strcpy(same_film.prefix, film.prefix);
  EXPECT_TRUE(film == same_film);
}

TEST(LabelPoint, CopiesAllButTheText) {
  LabelPoint point{pal_label_t, 25};
  std::memset(point.prefix, 'x', sizeof point.prefix);
  point.template_choice = false;
  (void)point.get_string();

  LabelPoint const copy = point;
  EXPECT_STREQ(copy.text, "");
  EXPECT_EQ(std::string(copy.prefix), std::string(20, 'x'));  // terminated, whatever the source holds
  EXPECT_FALSE(copy.template_choice);

  LabelPoint assigned{ntsc_label_t, 1};
  (void)assigned.get_string();
  assigned = point;
  EXPECT_STREQ(assigned.text, " 00:00:00.01");
  EXPECT_TRUE(assigned == copy);
  assigned = *&assigned;
  EXPECT_TRUE(assigned == copy);
  point.prefix[0] = '\0';
  assigned = point;
  EXPECT_STREQ(assigned.prefix, "");
}

TEST(LabelPoint, SplitsTimecodeOnly) {
  short h = 9, m = 9, s = 9, f = 9;
  LabelPoint drop{ntsc_drop_label_t, 107'892 + 1800};
  EXPECT_EQ(drop.get_hmsf(h, m, s, f), 2);
  EXPECT_EQ((std::array<int, 4>{h, m, s, f}), (std::array<int, 4>{1, 1, 0, 2}));
  EXPECT_EQ(LabelPoint{}.get_hmsf(h, m, s, f), 0);
  EXPECT_EQ((std::array<int, 4>{h, m, s, f}), (std::array<int, 4>{0, 0, 0, 0}));
}

TEST(LabelPoint, MovesNegativeTimecodeUpADay) {
  // clang-format off
  struct { label_t type; int sample, constrained; } const cases[] = {
      {ntsc_drop_label_t, -1, 2'589'407},    {pal_label_t, -1, 2'159'999},                {pal_label_t, 0, 0},
      {pal_label_t, -4'000'000, -1'840'000}, {pal_label_t, INT_MIN, INT_MIN + 2'160'000},
  };
  // clang-format on
  for (auto const& c : cases) {
    LabelPoint point{c.type, 0};
    point.sample = c.sample;
    point.constrain_positive();
    EXPECT_EQ(point.sample, c.constrained) << c.sample;
  }
}

TEST(LabelPoint, LosesItsSignColumnWhenPositive) {
  LabelPoint point{tc_24_label_t, 24};
  point.sample = -24;
  point.removePadding();
  EXPECT_STREQ(point.get_string(), "-00:00:01+00");
  point.sample = 24;
  point.removePadding();
  EXPECT_STREQ(point.get_string(), "00:00:01+00");
  EXPECT_STREQ(point.label_template.text(), "29.59.59.29");
  point.removePadding();
  EXPECT_STREQ(point.label_template.text(), "29.59.59.29");
  point.sample = -100'000'000;
  EXPECT_STREQ(point.get_string(), "??.??.??.??");
  LabelPoint{}.removePadding();
}

}  // namespace
