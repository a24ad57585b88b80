#include <clocale>
#include <cstdlib>

#include "tests/testing.h"

namespace {

std::string kept(Label const& label) {
  std::array<char, Label::keep_string_size> buffer{};
  EXPECT_EQ(label.make_keep_string(buffer.data()), buffer.data());
  return buffer.data();
}

TEST(KeepString, IsWrittenFieldByField) {
  Label pal{pal_label_t};
  pal.length = 250;
  EXPECT_EQ(kept(pal), "LABEL_REV:1 pal_label  00:00:00.00 250 0.0400000000 1");

  Label film{keycode_35_label_t};
  film.start.sample = 123 * 64 + 28;
  film.length = 10;
  film.bounded = -2;
  film.set_prefix("K J 34560000+00");
  EXPECT_EQ(kept(film), "LABEL_REV:1 keycode_35_label K_J_34560123+07 2 0.0416666667 -2");
  EXPECT_STREQ(film.make_keep_string(nullptr), kept(film).c_str());
}

// A host's converter.
class odd_label : public variable_label {
 public:
  odd_label(char const* text, int samples_per_unit) : variable_label{1, samples_per_unit}, text_{text} {}
  char const* get_abs_string(LabelPoint*, int) override { return text_; }

 private:
  char const* text_;
};

TEST(KeepString, HasAllItsFieldsWithAnyConverter) {
  struct {
    char const* start;
    int samples_per_unit;
    char const* text;
  } const cases[] = {
      {"", 2, "LABEL_REV:1 variable_label ? 5 2.0000000000 0"},
      {"  \t", 2, "LABEL_REV:1 variable_label ? 5 2.0000000000 0"},
      {"x", 0, "LABEL_REV:1 variable_label x 10 1.0000000000 0"},
      {"x", -4, "LABEL_REV:1 variable_label x 10 1.0000000000 0"},
  };
  for (auto const& c : cases) {
    odd_label cvt{c.start, c.samples_per_unit};
    Label label{cvt};
    label.length = 10;
    EXPECT_EQ(kept(label), c.text);
  }
}

// Bounded and not, with several lengths and prefixes, for every type.
TEST(KeepString, BringsEveryTypeBack) {
  for (int t = 0; t < numLabelCvts; ++t)
    for (int sample : {7, 64 * 123 + 61})
      for (int length : {250, -5})
        for (int bounded : {0, 1})
          for (char const* prefix : {"KJ1234560123+07", "eh_56x0000000000"}) {
            Label label{label_t{t}};
            label.start.sample = sample;
            label.set_prefix(prefix);
            label.length = length;
            label.bounded = bounded;
            int const unit = label.start.cvt()->samples_per_unit();
            bool const names_perfs = unit == 3;

            std::string const text = kept(label);
            Label const read{text.c_str()};
            ASSERT_EQ(read.start.cvt(), label.start.cvt()) << text;
            ASSERT_EQ(read.revision, 1) << text;
            bool const has_labels = label.start.cvt()->UserType() != User_none;
            ASSERT_EQ(read.start.sample, !has_labels   ? -100'000'000
                                         : names_perfs ? sample
                                                       : sample - sample % unit)
                << text;
            ASSERT_EQ(read.length, length / unit * unit) << text;
            ASSERT_EQ(read.bounded, bounded) << text;
            ASSERT_NEAR(read.pitch, label.pitch, 1e-10) << text;
            if (label.start.cvt()->has_prefix()) {
              auto const length_of_prefix = static_cast<std::size_t>(read.start.cvt()->get_prefix_length());
              ASSERT_EQ(std::strncmp(read.start.prefix, label.start.prefix, length_of_prefix), 0) << text;
            }
          }
}

TEST(KeepString, IsReadByRevision) {
  // clang-format off
  struct { char const* header; int revision; bool read; } const cases[] = {
      {"LABEL_REV:1", 1, true},  {"LABEL_REV:2", 2, true},  {"LABEL_REV:-1", -1, true},
      {"LABEL_REVX1", 1, true},  {"LABEL_REV:0", 0, false}, {"LABEL_REV:3", 3, false},
      {"LABEL_REV:", 0, false},  {"LABEL_REV", 0, false},   {"LABEL_RE:1", 1, false},
      {"LABEL_REV:x", 0, false}, {"label_rev:1", 1, false}, {"LABEL_REV:4294967297", 1, true},
  };
  // clang-format on
  for (auto const& c : cases) {
    Label const label{(std::string{c.header} + " pal_label 01:00:00.00 250 0.04 1").c_str()};
    EXPECT_EQ(label.revision, c.revision) << c.header;
    EXPECT_EQ(label.start.cvt()->type(), c.read ? pal_label_t : dummy_label_t) << c.header;
    EXPECT_EQ(label.start.sample, c.read ? 90'000 : 0);
    EXPECT_EQ(label.length, c.read ? 250 : 0);
  }
}

TEST(KeepString, MayEndAfterAnyField) {
  // clang-format off
  struct { char const* text; int type, sample, length, bounded; double pitch; } const cases[] = {
      {"LABEL_REV:1", 3, 0, 0, 0, 0.0}, {"LABEL_REV:1 pal_label", 5, 0, 0, 0, 0.0}, {"", 3, 0, 0, 0, 0.0},
      {"   ", 3, 0, 0, 0, 0.0},         {nullptr, 3, 0, 0, 0, 0.0},
      {"LABEL_REV:1 pal_label 01:00:00.00", 5, 90'000, 0, 0, 0.0},
      {"LABEL_REV:1 pal_label 01:00:00.00 250", 5, 90'000, 250, 0, 0.0},
      {"LABEL_REV:1  pal_label   01:00:00.00  250 0.04", 5, 90'000, 250, 0, 0.04},
      {"LABEL_REV:1 keycode_35_label KJ1234560001+00 2 4 1 MediumRollId 2,1", 10, 64, 8, 1, 1.0},
      {"LABEL_REV:1 no_such_label 01:00:00.00 250 0.04 1", 3, -100'000'000, 250, 1, 0.04},
      {"LABEL_REV:1 pal_label nothing x y z", 5, -100'000'000, 0, 0, 0.0},
      {"LABEL_REV:1 pal_label 01:00:00.00 250 -1e400 1", 5, 90'000, 250, 1, -HUGE_VAL},
      {"LABEL_REV:1 pal_label 01:00:00.00 250 +0x1p-1 1", 5, 90'000, 250, 1, 0.5},
      {"LABEL_REV:1 pal_label 01:00:00.00 250 --1 1", 5, 90'000, 250, 1, 0.0},
      {"LABEL_REV:1 keycode_35_label KJ1234560001+00 1073741825 1e-400 1", 10, 64, 4, 1, 0.0},
      {"LABEL_REV:1 pal_label 01:00:00.00 250 0x-5 1", 5, 90'000, 250, 1, 0.0},
      {"LABEL_REV:1 pal_label 01:00:00.00 250 0.2e886 1", 5, 90'000, 250, 1, HUGE_VAL},
  };
  // clang-format on
  for (auto const& c : cases) {
    Label const label = c.text;
    SCOPED_TRACE(c.text ? c.text : "null");
    EXPECT_EQ(label.start.cvt()->type(), c.type);
    EXPECT_EQ(label.start.sample, c.sample);
    EXPECT_EQ(label.length, c.length);
    EXPECT_EQ(label.pitch, c.pitch);
    EXPECT_EQ(label.bounded, c.bounded);
  }
}

TEST(KeepString, DoesNotFollowTheLocale) {
  std::string const before = std::setlocale(LC_ALL, nullptr);
  ::setenv("LOCPATH", LABELS_TEST_LOCALES, 1);
  ASSERT_TRUE(std::setlocale(LC_ALL, "de_DE.UTF-8"));
  ASSERT_STREQ(std::localeconv()->decimal_point, ",");
  Label label{pal_label_t};
  std::string const text = kept(label);
  Label const read{text.c_str()};
  std::setlocale(LC_ALL, before.c_str());
  EXPECT_NE(text.find(" 0.0400000000 "), std::string::npos) << text;
  EXPECT_EQ(read.pitch, 0.04);
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
