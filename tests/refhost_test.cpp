#include "host/cookie.h"
#include "host/os.h"
#include "host/print.h"
#include "host/tokeniser.h"
#include "tests/testing.h"

namespace {

TEST(FrameRates, OfUnknownCodesAre24) {
  for (int const code : {INT_MIN, -1, 0, 11, 34, code_behind_the_last, INT_MAX}) {
    Kiv::FrameRate const rate{code};
    EXPECT_EQ(Kiv::getFramesPerSecond(rate), 24) << code;
    EXPECT_EQ(Kiv::getCelResolution(rate), 1 / 24.0) << code;
    EXPECT_FALSE(Kiv::has1001Factor(rate)) << code;
    EXPECT_EQ(Kiv::getNonDecimatedFrameRate(rate), code);
    EXPECT_EQ(Kiv::getEditResolutionFrameGearing(rate, Kiv::FrameRate_59_94), 2.5) << code;
  }
  // The doubles that hosts print and compare.
  EXPECT_EQ(Kiv::getFramesPerSecond(Kiv::FrameRate_23_976), 23.976023976023978);
  EXPECT_EQ(Kiv::getFramesPerSecond(Kiv::FrameRate_59_94), 59.94005994005994);
  EXPECT_EQ(Kiv::getFramesPerSecond(Kiv::FrameRate_239_76), 239.76023976023976);
}

TEST(Project, OutputAndGearingFollowItUnlessSet) {
  auto const before = refhost::project();
  {
    refhost::project_guard const guard{
        {.frame_rate = Kiv::FrameRate_25, .drop_frame = true, .gearing_pulldown = true}};
    EXPECT_TRUE(Kiv::CurrentProject::getUseDropFrameTimecode());
    EXPECT_EQ(Kiv::CurrentProject::getOutputImageKIVFrameRate(), Kiv::FrameRate_25);
    EXPECT_EQ(Kiv::OutputGearing{1}.getFrameRate(), Kiv::FrameRate_25);
    EXPECT_TRUE(Kiv::OutputGearing{1}.getUsePulldown() && !Kiv::OutputGearing{2}.getUsePulldown());
  }
  EXPECT_EQ(refhost::project(), before);
  EXPECT_FALSE(before.gearing_pulldown || before.output_pulled_down || before.audio_sync_pulled_down);
}

TEST(Configuration, ReadsStrictWholeNumbers) {
  for (int const number : {2, -3, 0, INT_MAX, INT_MIN}) {
    refhost::config_guard const guard{"number", std::to_string(number)};
    EXPECT_EQ(config_int("number", 99), number);
  }
  for (char const* text : {"", " 2", "2 ", "2147483648", "+2", "-", "0x10", "two"}) {
    refhost::config_guard const guard{"number", text};
    EXPECT_EQ(config_int("number", 99), 99) << '"' << text << '"';
  }
  for (char const* key : {"number", static_cast<char const*>(nullptr)}) EXPECT_EQ(config_int(key, 99), 99);
}

TEST(Configuration, GuardRestoresTextsAndAbsence) {
  refhost::config_guard const outer{"key", "first"};
  {
    refhost::config_guard const changed{"key", "second"};
    EXPECT_EQ(refhost::config_text("key"), "second");
    refhost::config_guard const gone{"key", std::nullopt};
    EXPECT_EQ(refhost::config_text("key"), std::nullopt);
  }
  EXPECT_EQ(refhost::config_text("key"), "first");
  { refhost::config_guard const fresh{"other", ""}; }
  EXPECT_EQ(refhost::config_text("other"), std::nullopt);
}

TEST(Configuration, CopiesTextsIntoTheBuffer) {
  for (std::size_t length : {0U, 1022U, 1023U, 1024U, 5000U}) {
    refhost::config_guard const guard{"text", std::string(length, 'x')};
    std::array<char, configb::text_size + 1> buffer{};
    buffer.fill('#');
    ASSERT_EQ(refhost::configuration().in("text", buffer.data()), 0);
    EXPECT_EQ(std::strlen(buffer.data()), std::min<std::size_t>(length, 1023));
    EXPECT_EQ(buffer.back(), '#') << "past the buffer";
  }
  char untouched[] = "as it was";
  EXPECT_NE(refhost::configuration().in("text", untouched), 0);
  EXPECT_STREQ(untouched, "as it was");
}

TEST(Tokeniser, SplitsAtRunsOfSeparators) {
  // clang-format off
  struct { char const *text, *separators; std::vector<std::string> tokens; } const cases[] = {
      {"  a   b ", " ", {"a", "b"}}, {"::a: :b", ": ", {"a", "b"}}, {"a b", "", {"a b"}}, {" : ", ": ", {}},
      {"", " ", {}},                 {"\xE9t\xE9\xFF\x80 \x81", " \x80", {"\xE9t\xE9\xFF", "\x81"}},
  };
  // clang-format on
  auto const before = refhost::allocator_statistics();
  for (auto const& c : cases) {
    std::string text = c.text;
    tokeniser splitter{text.c_str(), c.separators};
    text.assign(text.size(), '!');  // the tokeniser has a copy
    for (auto const& token : c.tokens) EXPECT_EQ(splitter.next(), token) << c.text;
    for (int i = 0; i < 2; ++i) EXPECT_EQ(splitter.next(), nullptr) << "stays at the end";
  }
  EXPECT_EQ(refhost::allocator_statistics().live_blocks, before.live_blocks);
}

TEST(Tokeniser, AllocatesOnlyWhatOneKeepStringDoesNotNeed) {
  auto const before = refhost::allocator_statistics();
  tokeniser outer{"LABEL_REV:1 pal_label 01:00:00.00 250 0.0400000000 1", " "};
  EXPECT_STREQ(outer.next(), "LABEL_REV:1");
  EXPECT_EQ(refhost::allocator_statistics(), before);
  {
    std::string const word(5'000, 'x');
    tokeniser nested{"a b", " "}, longer{word.c_str(), " "};
    EXPECT_STREQ(nested.next(), "a");
    EXPECT_EQ(longer.next(), word);
  }
  EXPECT_STREQ(outer.next(), "pal_label");
  EXPECT_EQ(refhost::allocator_statistics().live_blocks, before.live_blocks);
}

TEST(Allocator, CountsBlocks) {
  auto& allocator = OS().allocator();
  auto const before = refhost::allocator_statistics();
  void *empty = allocator.allocate(0), *block = allocator.allocate(100);
  EXPECT_NE(empty, nullptr);
  auto const during = refhost::allocator_statistics();
  EXPECT_EQ(during, (refhost::allocator_counts{before.live_blocks + 2, before.allocations + 2}));
  for (void* each : {empty, block, static_cast<void*>(nullptr)}) allocator.free(each);
  EXPECT_EQ(refhost::allocator_statistics(),
            (refhost::allocator_counts{before.live_blocks, before.allocations + 2}));
}

TEST(Cookie, OfNoMaterialIsNotTheDefaultOne) { EXPECT_NE(invalid_cookie, Cookie{}); }

TEST(DiagnosticPrint, GoesToTheSinkOfTheInnermostGuard) {
  std::string outer, inner;
  refhost::diagnostic_guard const capture{[&](std::string_view text) { outer += text; }};
  diagnostic_print("%d of %s\n", 1, "2");
  {
    refhost::diagnostic_guard const nested{[&](std::string_view text) { inner += text; }};
    diagnostic_print("%s", std::string(5000, 'x').c_str());
  }
  diagnostic_print("!");
  EXPECT_EQ(outer, "1 of 2\n!");
  EXPECT_EQ(inner, std::string(5000, 'x'));

  refhost::diagnostic_guard const standard_error{nullptr};
  testing::internal::CaptureStderr();
  diagnostic_print("WARNING: %d%%\n", 100);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "WARNING: 100%\n");
}

}  // namespace
