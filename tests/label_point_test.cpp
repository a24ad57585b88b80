#include "tests/testing.h"

namespace {

// Read before main, while static objects are still being built.
std::string const early_text = LabelPoint{invalid_label_point}.get_string();
double const early_pitch = Label::get_natural_pitch(pal_label_t);

TEST(InvalidPoint, IsThereBeforeMain) {
  EXPECT_EQ(early_text, "???");
  EXPECT_EQ(early_pitch, 0.04);
  EXPECT_EQ(invalid_label_point.cvt(), get_static_label_cvt(null_label_t));
  EXPECT_STREQ(invalid_label_point.label_template.text(), "");
  EXPECT_TRUE(LabelPoint{} == invalid_label_point && invalid_label_point.sample == 0);
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
  LabelPoint const pal{pal_label_t, 5}, later{pal_label_t, 6}, ntsc{ntsc_label_t, 5};
  LabelPoint other = pal;
  other.removePadding();
  std::strcpy(other.prefix, "AB");
  EXPECT_TRUE(pal == other);  // neither template nor, for timecode, prefix counts
  EXPECT_TRUE(pal != later && pal != ntsc);

  LabelPoint film{keycode_35_label_t, 5}, same_film = film;
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
  assigned = *&assigned;
  EXPECT_STREQ(assigned.text, " 00:00:00.01");
  EXPECT_TRUE(assigned == copy);
  point.prefix[0] = '\0';
  assigned = point;
  EXPECT_STREQ(assigned.prefix, "");
}

TEST(LabelPoint, SplitsTimecodeOnly) {
  short h = 9, m = 9, s = 9, f = 9;
  EXPECT_EQ(LabelPoint(ntsc_drop_label_t, 107'892 + 1800).get_hmsf(h, m, s, f), 2);
  EXPECT_TRUE(h == 1 && m == 1 && s == 0 && f == 2) << h << ' ' << m << ' ' << s << ' ' << f;
  EXPECT_EQ(LabelPoint{}.get_hmsf(h, m, s, f), 0);
  EXPECT_TRUE(h == 0 && m == 0 && s == 0 && f == 0);
}

TEST(LabelPoint, MovesNegativeTimecodeUpADay) {
  for (auto const& [sample, constrained] :
       std::map<int, int>{{-1, 2'589'407}, {0, 0}, {-4'000'000, -1'410'592}, {INT_MIN, INT_MIN + 2'589'408}}) {
    LabelPoint point{ntsc_drop_label_t, 0};
    point.sample = sample;
    point.constrain_positive();
    EXPECT_EQ(point.sample, constrained) << sample;
  }
}

TEST(LabelPoint, LosesItsSignColumnWhenPositive) {
  LabelPoint point{tc_24_label_t, 24};
  point.sample = -24;
  point.removePadding();
  EXPECT_STREQ(point.get_string(), "-00:00:01+00");
  point.sample = 0;
  for (int removed = 0; removed < 2; ++removed) {
    point.removePadding();
    EXPECT_STREQ(point.get_string(), "00:00:00+00");
    EXPECT_STREQ(point.label_template.text(), "29.59.59.29");
  }
  point.sample = -100'000'000;
  EXPECT_STREQ(point.get_string(), "??.??.??.??");
}

}  // namespace
