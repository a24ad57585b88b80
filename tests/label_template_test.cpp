#include "tests/testing.h"

namespace {

LabelTemplate shaped(std::string const& text) { return LabelTemplate{{text.data(), text.size()}}; }

// The rule of what may be typed, read once more and on its own: for every template character, the characters that
// it takes as text, and whether it separates.
struct position_rule {
  std::string taken;
  bool separates;
};

std::string from_to(char first, char last) {
  std::string all;
  for (int c = first; c <= last; ++c) all += static_cast<char>(c);
  return all;
}

position_rule rule_of(char shape) {
  std::string const no_separators = " ~";
  if (shape == '?') return {from_to('!', '~'), false};
  if (shape == '-') return {"+- ", false};
  if (std::string{"0123456789"}.find(shape) != std::string::npos) return {from_to('0', shape), false};
  bool const upper = shape >= 'A' && shape <= 'Z';
  bool const lower = shape >= 'a' && shape <= 'z';
  if (upper || lower) return {from_to('A', shape), false};
  return {"", no_separators.find(shape) == std::string::npos};
}

TEST(LabelTemplate, AnswersEveryCharacterAtEveryShapeByTheRule) {
  for (int shape = 1; shape < 256; ++shape) {
    std::string const text(3, static_cast<char>(shape));
    auto const tested = shaped(text);
    auto const rule = rule_of(static_cast<char>(shape));
    for (unsigned pos = 0; pos < 5; ++pos) {
      bool const inside = pos < 3;
      EXPECT_EQ(tested.isAtSeparator(pos), inside && rule.separates) << shape << " at " << pos;
      for (int typed = 0; typed < 256; ++typed) {
        char const c = static_cast<char>(typed);
        bool const taken = inside && c != 0 && rule.taken.find(c) != std::string::npos;
        ASSERT_EQ(tested.isValidChar(c, pos), taken) << "shape " << shape << " typed " << typed << " at " << pos;
      }
    }
  }
}

TEST(LabelTemplate, EveryConverterTakesTheLabelsThatItWrites) {
  for (int t = 0; t < numLabelCvts; ++t) {
    std::unique_ptr<label_cvt> const cvt{make_any_label_cvt(static_cast<label_t>(t))};
    LabelPoint point{*cvt, 12'345};
    if (cvt->UserType() == User_none || cvt->UserType() == User_film_frames)
      continue;  // "012345" has no sign column
    std::string const text = point.get_string();
    std::string const shape = point.label_template.text();
    ASSERT_EQ(text.size(), shape.size()) << text;
    for (unsigned pos = 0; pos < text.size(); ++pos)
      EXPECT_TRUE(point.label_template.isAtSeparator(pos) || point.label_template.isValidChar(text[pos], pos))
          << text << " at " << pos << " of " << shape;
  }
}

TEST(LabelTemplate, FillsItsFieldsForLabelsThatCannotBeShown) {
  // clang-format off
  struct { char const* shape; int sample; char const* text; } const cases[] = {
      {"-29.59.59.29", -100'000'000, "???.??.??.??"},      {"-29.59.59.29", 100'000'001, ">>>.>>.>>.>>"},
      {"-29.59.59.29", 100'000'002, "<<<.<<.<<.<<"},       {"-29.59.59.29", 0, "???.??.??.??"},
      {"-29.59.59.29", 42, "???.??.??.??"},                {"????????9999+19", 0, "???????????????"},
      {"????????9999+19", 100'000'001, ">>>>>>>>>>>>>>>"}, {"~~~~9999+29.3", 0, "~~~~???????.?"},
      {"#: zZ9/", 0, "#: ??" "?/"},                        {"", 100'000'001, ""},
      {"\xE9", 0, "\xE9"},
  };
  // clang-format on
  for (auto const& c : cases) EXPECT_STREQ(LabelTemplate{c.shape}.getInvalidString(c.sample), c.text) << c.shape;
}

TEST(LabelTemplate, PlaceholdersStayUntilTheTextChanges) {
  LabelTemplate shape{"-29.59"};
  char const* const invalid = shape.getInvalidString(-100'000'000);
  EXPECT_EQ(shape.getInvalidString(7), invalid);
  LabelTemplate const copy = shape;
  EXPECT_EQ(copy.getInvalidString(7), invalid);  // copies share buffers

  shape.set("9");
  EXPECT_STREQ(shape.getInvalidString(7), "?");
  EXPECT_STREQ(shape.text(), "9");
  EXPECT_STREQ(copy.getInvalidString(7), "???.??");
  shape = *&shape;
  EXPECT_STREQ(shape.text(), "9");
}

}  // namespace
