#include <clocale>
#include <cstdlib>
#include <tuple>

#include "tests/testing.h"

namespace {

std::string kept(Label const& label) {
  std::array<char, Label::keep_string_size> buffer{};
  EXPECT_EQ(label.make_keep_string(buffer.data()), buffer.data());
  return buffer.data();
}

TEST(KeepString, IsWrittenFieldByFieldInAnyLocale) {
  std::string const before = std::setlocale(LC_ALL, nullptr);
  ::setenv("LOCPATH", LABELS_TEST_LOCALES, 1);
  ASSERT_TRUE(std::setlocale(LC_ALL, "de_DE.UTF-8"));
  ASSERT_STREQ(std::localeconv()->decimal_point, ",");
  Label pal{pal_label_t};
  pal.length = 250;
  std::string const text = kept(pal);
  Label const read{text.c_str()};
  std::setlocale(LC_ALL, before.c_str());
  EXPECT_EQ(text, "LABEL_REV:1 pal_label  00:00:00.00 250 0.0400000000 1");
  EXPECT_EQ(read.pitch, 0.04);

  Label film{keycode_35_label_t};
  film.start.sample = 123 * 64 + 28;
  film.length = 10;
  film.bounded = -2;
  film.set_prefix("K J 34560000+00");
  EXPECT_EQ(kept(film), "LABEL_REV:1 keycode_35_label K_J_34560123+07 2 0.0416666667 -2");
  EXPECT_STREQ(film.make_keep_string(nullptr), kept(film).c_str());
}

// A host's converter.
struct odd_label : variable_label {
  odd_label(char const* label_text, int samples_per_unit)
      : variable_label{1, samples_per_unit}, text{label_text} {}
  char const* get_abs_string(LabelPoint*, int) override { return text; }
  char const* text;
};

TEST(KeepString, HasAllItsFieldsWithAnyConverter) {
  std::tuple<char const*, int, char const*> const cases[] = {{"", 2, "? 5 2.0000000000 0"},
                                                             {"  \t", 2, "? 5 2.0000000000 0"},
                                                             {"x", 0, "x 10 1.0000000000 0"},
                                                             {"x", -4, "x 10 1.0000000000 0"}};
  for (auto const& [start, samples_per_unit, text] : cases) {
    odd_label cvt{start, samples_per_unit};
    Label label{cvt};
    label.length = 10;
    EXPECT_EQ(kept(label), std::string{"LABEL_REV:1 variable_label "} + text);
  }
}

TEST(KeepString, BringsEveryTypeBack) {
  for (int t = 0; t < numLabelCvts; ++t)
    for (auto const& [sample, length, bounded, prefix] :
         {std::tuple{7, 250, 0, "KJ1234560123+07"}, {64 * 123 + 61, -5, 1, "eh_56x0000000000"}}) {
      Label label{label_t{t}};
      label.start.sample = sample;
      label.set_prefix(prefix);
      label.length = length;
      label.bounded = bounded;
      auto& cvt = *label.start.cvt();
      int const unit = cvt.samples_per_unit();
      bool const has_labels = cvt.UserType() != User_none, names_perfs = unit == 3;

      std::string const text = kept(label);
      SCOPED_TRACE(text);
      Label const read{text.c_str()};
      ASSERT_EQ(read.start.cvt(), &cvt);
      EXPECT_EQ(read.start.sample, !has_labels ? invalid : names_perfs ? sample : sample - sample % unit);
      EXPECT_EQ(std::pair(read.length, read.bounded), std::pair(length / unit * unit, bounded));
      EXPECT_NEAR(read.pitch, label.pitch, 1e-10);
      auto const prefix_length = static_cast<std::size_t>(cvt.has_prefix() ? cvt.get_prefix_length() : 0);
      EXPECT_EQ(std::strncmp(read.start.prefix, label.start.prefix, prefix_length), 0);
    }
}

TEST(KeepString, IsReadByRevisionAndMayEndAfterAnyField) {
  // clang-format off
  struct { char const* text; int revision, type, sample, length, bounded; double pitch; } const cases[] = {
      {"LABEL_REV:2 pal_label", 2, 5, 0, 0, 0, 0.0},   {"LABEL_REV:-1 pal_label", -1, 5, 0, 0, 0, 0.0},
      {"LABEL_REVX1 pal_label", 1, 5, 0, 0, 0, 0.0},   {"LABEL_REV:0 pal_label 1 2", 0, 3, 0, 0, 0, 0.0},
      {"LABEL_REV: pal_label 1 2", 0, 3, 0, 0, 0, 0.0}, {"LABEL_REV:3 pal_label 1 2", 3, 3, 0, 0, 0, 0.0},
      {"LABEL_REV pal_label 1 2", 0, 3, 0, 0, 0, 0.0}, {"LABEL_RE:1 pal_label", 1, 3, 0, 0, 0, 0.0},
      {"LABEL_REV:x pal_label", 0, 3, 0, 0, 0, 0.0},   {"label_rev:1 pal_label", 1, 3, 0, 0, 0, 0.0},
      {"LABEL_REV:4294967297 pal_label", 1, 5, 0, 0, 0, 0.0}, {nullptr, 1, 3, 0, 0, 0, 0.0},
      {"LABEL_REV:1", 1, 3, 0, 0, 0, 0.0}, {"   ", 1, 3, 0, 0, 0, 0.0}, {"", 1, 3, 0, 0, 0, 0.0},
      {"LABEL_REV:1 pal_label 01:00:00.00", 1, 5, 90'000, 0, 0, 0.0},
      {"LABEL_REV:1 pal_label 01:00:00.00 250", 1, 5, 90'000, 250, 0, 0.0},
      {"LABEL_REV:1  pal_label   01:00:00.00  250 0.04", 1, 5, 90'000, 250, 0, 0.04},
      {"LABEL_REV:1 keycode_35_label KJ1234560001+00 2 4 1 MediumRollId 2,1", 1, 10, 64, 8, 1, 1.0},
      {"LABEL_REV:1 no_such_label 01:00:00.00 250 0.04 1", 1, 3, invalid, 250, 1, 0.04},
      {"LABEL_REV:1 pal_label nothing x y z", 1, 5, invalid, 0, 0, 0.0},
      {"LABEL_REV:1 pal_label 01:00:00.00 250 -1e400 1", 1, 5, 90'000, 250, 1, -HUGE_VAL},
      {"LABEL_REV:1 pal_label 01:00:00.00 250 +0x1p-1 1", 1, 5, 90'000, 250, 1, 0.5},
      {"LABEL_REV:1 pal_label 01:00:00.00 250 --1 1", 1, 5, 90'000, 250, 1, 0.0},
      {"LABEL_REV:1 keycode_35_label KJ1234560001+00 1073741825 1e-400 1", 1, 10, 64, 4, 1, 0.0},
      {"LABEL_REV:1 pal_label 01:00:00.00 250 0x-5 1", 1, 5, 90'000, 250, 1, 0.0},
      {"LABEL_REV:1 pal_label 01:00:00.00 250 0.2e886 1", 1, 5, 90'000, 250, 1, HUGE_VAL},
  };
  // clang-format on
  for (auto const& c : cases) {
    Label const label = c.text;
    SCOPED_TRACE(c.text ? c.text : "null");
    EXPECT_EQ(label.revision, c.revision);
    EXPECT_EQ(std::tuple(label.start.cvt()->type(), label.start.sample), std::tuple(c.type, c.sample));
    EXPECT_EQ(std::tuple(label.length, label.bounded, label.pitch), std::tuple(c.length, c.bounded, c.pitch));
  }
}

TEST(KeepString, IsCutToItsBuffer) {
  Label label{keycode_35_label_t};
  label.pitch = -1e307;
  label.length = INT_MIN;
  std::array<char, Label::keep_string_size + 8> buffer;
  buffer.fill('!');
  label.make_keep_string(buffer.data());
  EXPECT_EQ(std::strlen(buffer.data()), Label::keep_string_size - 1);
  EXPECT_EQ(buffer[Label::keep_string_size], '!');
  EXPECT_GT(std::strlen(label.make_keep_string(nullptr)), 320U);
}

}  // namespace
