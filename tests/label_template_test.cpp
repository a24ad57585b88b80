#include "tests/testing.h"

namespace {

// All that may be typed at each kind of character, and the kinds that separate.
TEST(LabelTemplate, TakesWhatItsCharactersStandFor) {
  std::string visible, capitals = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
  for (char c = '!'; c <= '~'; ++c) visible += c;
  std::string const to_c = capitals + "[\\]^_`abc";
  // clang-format off
  struct { char shape; std::string typed; bool separates; } const cases[] = {
      {'?', visible, false},      {'-', " +-", false}, {'0', "0", false},   {'5', "012345", false},
      {'9', "0123456789", false}, {'A', "A", false},   {'C', "ABC", false}, {'Z', capitals, false},
      {'c', to_c, false},         {' ', "", false},    {'~', "", false},    {'+', "", true},
      {':', "", true},            {'.', "", true},     {'@', "", true},     {'\xE9', "", true},
  };
  // clang-format on
  for (auto const& c : cases) {
    LabelTemplate const shape{{std::string(3, c.shape).c_str(), 3}};
    for (unsigned pos : {0U, 2U, 3U, 4U}) {
      EXPECT_EQ(shape.isAtSeparator(pos), pos < 3 && c.separates) << c.shape << " at " << pos;
      std::string typed;
      for (int character = 0; character < 256; ++character)
        if (char const tried = static_cast<char>(character); shape.isValidChar(tried, pos)) typed += tried;
      EXPECT_EQ(typed, pos < 3 ? c.typed : "") << c.shape << " at " << pos;
    }
  }
}

TEST(LabelTemplate, EveryConverterTakesTheLabelsThatItWrites) {
  for (int t = 0; t < numLabelCvts; ++t) {
    std::unique_ptr<label_cvt> const cvt{make_any_label_cvt(label_t{t})};
    LabelPoint point{*cvt, 12'345};
    if (cvt->UserType() == User_none || cvt->UserType() == User_film_frames)
      continue;  // "012345" has no sign column
    std::string const text = point.get_string();
    LabelTemplate const& shape = point.label_template;
    ASSERT_EQ(text.size(), std::strlen(shape.text())) << text;
    for (unsigned pos = 0; pos < text.size(); ++pos)
      EXPECT_TRUE(shape.isAtSeparator(pos) || shape.isValidChar(text[pos], pos)) << text << " at " << pos;
  }
}

TEST(LabelTemplate, FillsItsFieldsForLabelsThatCannotBeShown) {
  // clang-format off
  struct { char const* shape; int sample; char const* text; } const cases[] = {
      {"-29.59.59.29", -100'000'000, "???.??.??.??"}, {"-29.59.59.29", 100'000'001, ">>>.>>.>>.>>"},
      {"-29.59.59.29", 100'000'002, "<<<.<<.<<.<<"},  {"????????9999+19", 0, "???????????????"},
      {"~~~~9999+29.3", 42, "~~~~???????.?"},         {"#: zZ9/", 0, "#: ??" "?/"},
      {"", 100'000'001, ""}, {"\xE9", 0, "\xE9"},
  };
  // clang-format on
  for (auto const& c : cases) EXPECT_STREQ(LabelTemplate{c.shape}.getInvalidString(c.sample), c.text) << c.shape;
}

TEST(LabelTemplate, PlaceholdersStayUntilTheTextChanges) {
  LabelTemplate shape{"-29.59"};
  LabelTemplate const copy = shape;
  EXPECT_EQ(copy.getInvalidString(7), shape.getInvalidString(invalid));  // copies share buffers

  shape.set("9");
  EXPECT_STREQ(shape.getInvalidString(7), "?");
  EXPECT_STREQ(shape.text(), "9");
  EXPECT_STREQ(copy.getInvalidString(7), "???.??");
  shape = *&shape;
  EXPECT_STREQ(shape.text(), "9");
}

}  // namespace
