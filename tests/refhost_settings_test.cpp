#include <sstream>

#include "tests/testing.h"

namespace {

std::vector<refhost::settings_error> load(std::string const& text) {
  std::istringstream in{text};
  return refhost::load_settings(in);
}

TEST(SettingsFile, SetsEveryKey) {
  refhost::project_guard const project{{}};
  refhost::config_guard const number{"50p_timecode_type", std::nullopt};
  refhost::config_guard const roll{"MediumRoll28,1", std::nullopt};
  // clang-format off
  auto const errors = load(
      "\xEF\xBB\xBF# an NTSC project\r\n" "\r\n" "project-rate=29.97\r\n"
      "  drop-frame  =  Yes  \n" "\tfilm-speed = 25\n" "output-scan = lower-first\n"
      "output-rate = 60000/1001\n" "gearing-rate = 24\n" "gearing-rate = code:99\n" "gearing-pulldown = true\n"
      "audio-sync-pulled-down = 1\n" "output-pulled-down = no\n" "config.50p_timecode_type = 2\n"
      "config.MediumRoll28,1 = REV: 1 MediumRollId: 28,1 reelid: A=1#2");
  // clang-format on
  ASSERT_TRUE(errors.empty()) << errors.front().message;
  EXPECT_EQ(refhost::project(),
            (refhost::project_settings{Kiv::FrameRate_29_97, true, Kiv::FrameRate_25,
                                       Kiv::Image::ScanMode_interlaced_lower_first, Kiv::FrameRate_59_94,
                                       Kiv::FrameRate{99}, true, true, false}));
  EXPECT_EQ(config_int("50p_timecode_type", 1), 2);
  EXPECT_EQ(refhost::config_text("MediumRoll28,1"), "REV: 1 MediumRollId: 28,1 reelid: A=1#2");
}

TEST(SettingsFile, ReportsEveryWrongLineAndChangesNothing) {
  refhost::project_guard const project{{}};
  auto const before = refhost::project();
  // clang-format off
  auto const errors = load(
      "project-rate = 25\n" "drop-frame = maybe\n" "# no = comment\n" "speed\n" "frame-rate = 25\n"
      "config.new_key = 1\n" "config. = 1\n" "config.long = " + std::string(1024, 'x') + "\n" "film-speed =");
  struct { int line; char const *value, *expected; } const cases[] = {
      {2, "drop-frame: 'maybe'", "expected yes, no, true, false, 1 or 0"},
      {4, "'speed' has no '='", "expected key = value"},
      {5, "unknown setting 'frame-rate'", "expected project-rate, drop-frame,"},
      {7, "'config.'", "expected config.KEY"},
      {8, "config.long: 'xxx", "expected at most 1023 characters"},
      {9, "film-speed: ''", "expected a frame rate (24, 23.976,"},
  };
  // clang-format on
  ASSERT_EQ(errors.size(), std::size(cases));
  for (std::size_t i = 0; i < errors.size(); ++i) {
    auto const& [line, message] = errors[i];
    EXPECT_EQ(line, cases[i].line);
    EXPECT_TRUE(message.starts_with(cases[i].value) && message.find(cases[i].expected) != message.npos) << message;
    EXPECT_LT(message.size(), 300U) << "a long value is cut";
  }
  EXPECT_EQ(refhost::project(), before);
  EXPECT_EQ(refhost::config_text("new_key"), std::nullopt);
}

TEST(SettingsFile, ReportsAnUnreadableStream) {
  std::istringstream in{"project-rate = 25\n"};
  in.setstate(std::ios::badbit);
  EXPECT_EQ(refhost::load_settings(in).size(), 1U);
}

TEST(SetOption, ReadsRatesAsPeopleWriteThem) {
  constexpr int refused = -1;
  // clang-format off
  std::pair<char const*, int> const cases[] = {
      {"24.000", 1}, {"23.98", 2}, {"29.970", 5}, {"29.970029970029973", 5}, {"47.95", 7}, {"120.", 44},
      {"25/2", 37}, {"48000/2002", 2}, {"code:5", 5}, {"CODE:-7", -7}, {"code:0", 0}};
  // clang-format on
  for (auto const& [text, code] : cases) {
    refhost::project_guard const project{{.frame_rate = Kiv::FrameRate{refused}}};
    EXPECT_EQ(refhost::set_option("project-rate", text), std::nullopt) << text;
    EXPECT_EQ(refhost::project().frame_rate, code) << text;
  }
  for (char const* text : {"", "23", "24.003", "119.9", "0", "-24", "nan", "2.4e1", "24fps", ".", "24 ", "0/0",
                           "24/0", "24/", "-24/-1", "code:", "code:99999999999", "project", "24..5"}) {
    refhost::project_guard const project{{.frame_rate = Kiv::FrameRate{refused}}};
    EXPECT_NE(refhost::set_option("project-rate", text), std::nullopt) << text;
    EXPECT_EQ(refhost::project().frame_rate, refused) << text;
  }
}

TEST(SetOption, ReadsTruthInWordsAndDigits) {
  for (char const* text : {"yes", "no", "TRUE", "false", "1", "0"}) {
    bool const truth = *text == 'y' || *text == 'T' || *text == '1';
    refhost::project_guard const project{{.drop_frame = !truth}};
    EXPECT_EQ(refhost::set_option("drop-frame", text), std::nullopt);
    EXPECT_EQ(refhost::project().drop_frame, truth) << text;
  }
}

TEST(SetOption, ReadsScanModesAndTheProjectsRate) {
  refhost::project_guard const project{{.output_rate = Kiv::FrameRate_25}};
  std::pair<char const*, int> const cases[] = {
      {"upper-first", 1}, {"lower-first", 2}, {"Progressive", 3}, {"segmented", 4}, {"code:17", 17}};
  for (auto const& [text, mode] : cases) {
    EXPECT_EQ(refhost::set_option("output-scan", text), std::nullopt);
    EXPECT_EQ(refhost::project().output_scan, mode);
  }
  EXPECT_NE(refhost::set_option("output-scan", "interlaced"), std::nullopt);
  EXPECT_EQ(refhost::set_option("output-rate", "project"), std::nullopt);
  EXPECT_EQ(refhost::project().output_rate, std::nullopt);
}

TEST(SetOption, RefusesTextWithItsKeyForEverySettingListed) {
  refhost::project_guard const project{{}};
  for (auto const& known : refhost::setting_list()) {
    EXPECT_EQ(refhost::set_option(known.key, "?"),
              std::string{known.key} + ": '?' is wrong; expected " + known.expected);
  }
}

}  // namespace
