#include <tuple>

#include "host/tokeniser.h"
#include "tests/testing.h"

namespace {

using ident = std::pair<int, int>;

MediumRollIdent make(ident const& values) {
  return {MediumRollMedium{values.first}, MediumRollGeneration{values.second}};
}
ident numbers(MediumRollIdent const& i) { return {i.medium, i.generation}; }

// What a medium accepts besides itself.
std::set<int> accepted_by(int asking) {
  std::pair<std::set<int>, std::set<int>> const rows[] = {
      {{13, 15, 17}, {15, 17}}, {{14, 28, 30}, {14, 28, 30}}, {{16, 18}, {16, 18}},     {{19, 20}, {19, 20}},
      {{21, 23}, {21, 23}},     {{22, 24}, {22, 24}},         {{29, 31}, {28, 29, 31}}, {{32, 33}, {32, 33}},
      {{34, 36}, {34, 36}},     {{35, 37}, {35, 37}}};
  for (auto const& [media, accepted] : rows)
    if (media.contains(asking)) return accepted;
  return {};
}

TEST(Identifier, FitsByMediumAndGeneration) {
  for (int a = 0; a <= labelsbase::medium_count; ++a)
    for (int b = 0; b <= labelsbase::medium_count; ++b) {
      bool const media_fit = a && b && (a == 1 || a == b || accepted_by(a).contains(b));
      for (auto const& [asked, other] : {ident{1, 2}, {2, 2}, {2, 3}, {0, 1}, {1, 0}}) {
        bool const fits = media_fit && asked && other && (asked == 1 || asked == other);
        ASSERT_EQ(make({a, asked}).MediumRollId_fits_this(make({b, other})), fits ? 1 : 0)
            << a << ',' << asked << ' ' << b << ',' << other;
      }
    }
}

// As a scan of "%2d,%1d" reads it.
TEST(Identifier, IsRead) {
  auto const last = std::to_string(labelsbase::medium_count - 1);
  auto const behind_the_last = std::to_string(labelsbase::medium_count);
  // clang-format off
  std::tuple<char const*, UserLabelType, ident> const cases[] = {
      {"28,1", User_none, {28, 1}},  {" +7,5", User_none, {7, 5}},    {"47, 2", User_ink, {47, 2}},
      {"3", User_none, {3, 2}},      {"4,0", User_none, {4, 3}},      {"1,x", User_keycode, {1, 1}},
      {"4", User_ink, {10, 3}},      {"2,-1", User_ink, {10, 1}},     {"28,12", User_none, {28, 1}},
      {"047,2", User_none, {4, 3}},  {"1 ,2", User_none, {1, 1}},     {"28,6", User_none, {0, 0}},
      {last.c_str(), User_none, {labelsbase::medium_count - 1, 1}},   {"0,1", User_none, {0, 0}},
      {behind_the_last.c_str(), User_none, {0, 0}},
      {"99", User_ink, {0, 0}},      {"", User_ink, {0, 0}},          {"-1,1", User_none, {0, 0}},
      {nullptr, User_ink, {0, 0}},   {",1", User_none, {0, 0}},       {"28,-5", User_none, {28, 1}},
  };
  // clang-format on
  for (auto const& [text, family, values] : cases) {
    auto out = make({77, 77});
    MediumRollId_from_string(text, out, family);
    EXPECT_EQ(numbers(out), values) << (text ? text : "null");
  }
}

TEST(Identifier, IsWritten) {
  for (auto const& [medium, generation] : {ident{28, 1}, {0, 0}, {-1, 5}, {INT_MIN, INT_MIN}, {INT_MAX, 5}}) {
    auto const expected = std::to_string(medium) + "," + std::to_string(generation);
    std::unique_ptr<char[]> const text{new char[labelsbase::identifier_text_size]};
    EXPECT_EQ(MediumRollId_to_string(text.get(), make({medium, generation})), expected.size());
    EXPECT_EQ(text.get(), expected);
  }
  EXPECT_EQ(MediumRollId_to_string(nullptr, make({28, 1})), 4);
}

TEST(Identifier, IsTakenFromTokens) {
  tokeniser tokens{"28,2 x 3", " "};
  for (ident const& expected : {ident{28, 2}, {0, 0}, {3, 2}, {0, 0}}) {
    auto out = make({77, 77});
    MediumRollId_from_tokens(tokens, out);
    EXPECT_EQ(numbers(out), expected);
  }
}

TEST(Identifier, HasAUserText) {
  std::pair<ident, char const*> const cases[] = {
      {{13, 2}, "24p,1stGen"},      {{28, 1}, "med?,anyGen"}, {{47, 3}, "12.5p,2ndGen"}, {{11, 4}, "Lab,3rdGen"},
      {{3, 5}, "video,4thGen"},     {{2, 0}, "film,gen?"},    {{4, 6}, "audio,gen?"},    {{10, 1}, "ink,anyGen"},
      {{-1, INT_MIN}, "med?,gen?"}, {{1, 1}, "med?,anyGen"}};
  for (auto const& [values, text] : cases) EXPECT_STREQ(MediumRollId_to_UserString(make(values)), text);
}

TEST(Roll, IsReadFromTheStoredText) {
  // clang-format off
  struct { char const* text; ident values; char const* reel; } const cases[] = {
      {"REV: 1 MediumRollId: 28,1 reelid: A001", {28, 1}, "A001"},
      {" :REV::1x  MediumRollId 28 reelid A B", {28, 1}, "A"}, {"REV 1 MediumRollId 99 reelid A", {0, 0}, "A"},
      {"REV 1 MediumRollId 28,1 Reelid A", {28, 1}, "old"},    {"REV 2 MediumRollId 28,1 reelid A", {4, 4}, "old"},
      {"rev 1 MediumRollId 28,1 reelid A", {4, 4}, "old"},     {"REV 1 28,1 reelid A", {4, 4}, "old"},
      // Each token missing from the end, in turn.
      {"REV 1 MediumRollId 28,1 reelid", {28, 1}, "old"},      {"REV 1 MediumRollId 28,1", {28, 1}, "old"},
      {"REV 1 MediumRollId", {4, 4}, "old"}, {"REV 1", {4, 4}, "old"}, {"REV", {4, 4}, "old"}, {"", {4, 4}, "old"},
  };
  // clang-format on
  for (auto const& c : cases) {
    MediumRoll roll{make({4, 4})};
    roll.set_reelid("old");
    roll.fill_from_string(nullptr);
    roll.fill_from_string(c.text);
    EXPECT_EQ(numbers(roll.ident), c.values) << c.text;
    EXPECT_STREQ(roll.reelid.c_str(), c.reel) << c.text;
  }
}

TEST(Roll, IsLookedUpInTheConfiguration) {
  auto& config = refhost::configuration();
  std::string const reel(960, 'r');
  refhost::config_guard const stored{"MediumRoll28,1", "REV 1 MediumRollId 15,2 reelid " + reel};
  refhost::config_guard const odd{"MediumRoll-2147483648,-2147483648", "REV 1 MediumRollId 2,1"};
  refhost::config_guard const damaged{"MediumRoll28,2", "REV 2 MediumRollId 15,2 reelid A"};

  MediumRoll const roll{make({28, 1}), &config};
  EXPECT_EQ(numbers(roll.ident), ident(15, 2));  // what is stored, not the key
  EXPECT_EQ(roll.reelid.c_str(), reel);
  EXPECT_EQ(numbers(MediumRoll(make({INT32_MIN, INT32_MIN}), &config).ident), ident(2, 1));
  for (ident const& key : {ident{28, 2}, {28, 3}, {0, 0}})
    EXPECT_EQ(numbers(MediumRoll(make(key), &config).ident), ident(0, 0));
  EXPECT_EQ(numbers(MediumRoll(make({28, 1}), nullptr).ident), ident(0, 0));
}

TEST(Roll, EqualsWhereItFitsAndTheReelIsOneBuffer) {
  MediumRoll const bare{Medium_out_24p, Gen_any}, slower{Medium_out_2398p, Gen_any};
  EXPECT_TRUE(MediumRoll{bare} == bare && !(bare != bare));
  EXPECT_TRUE(slower == bare && bare != slower);  // as they fit, so not the other way
  EXPECT_FALSE(invalid_MediumRoll() == invalid_MediumRoll());

  MediumRoll a = bare, b = bare;
  a.set_reelid("A001");
  b.set_reelid("A001");
  a.set_reelid(a.reelid);
  MediumRoll const copy = a;
  EXPECT_TRUE(a == a);
  EXPECT_FALSE(a == copy || a == b || a == bare);
  EXPECT_TRUE(a.reelid == copy.reelid && a.reelid.capacity() == copy.reelid.capacity());
  b.set_reelid(a.reelid);
  EXPECT_TRUE(a == b);
  b.set_reelid({"A\0B", 3});
  EXPECT_TRUE(MediumRoll{b}.reelid == b.reelid);  // by length
  b = copy;
  EXPECT_TRUE(b == copy);
}

TEST(Roll, LivesInTheHostsMemory) {
  auto const before = refhost::allocator_statistics();
  std::unique_ptr<MediumRoll> roll{new (std::nothrow) MediumRoll{"REV 1 MediumRollId 28,1 reelid A001"}};
  EXPECT_EQ(refhost::allocator_statistics().live_blocks, before.live_blocks + 2);
  roll.reset();
  EXPECT_EQ(refhost::allocator_statistics().live_blocks, before.live_blocks);
  static_assert(sizeof(MediumRollIdent) == 8 && sizeof(MediumRoll) == 3 * sizeof(void*) + 8);
}

// Static objects of the program, built before anything else, may use the invalid ones.
[[gnu::init_priority(101)]] MediumRoll const early{invalid_MediumRoll()};

TEST(Roll, HasAnInvalidOneFromTheStart) {
  EXPECT_EQ(numbers(early.ident), ident(0, 0));
  EXPECT_EQ(numbers(get_invalid_MediumRollIdent()), ident(0, 0));
  EXPECT_TRUE(invalid_MediumRoll().reelid.empty());
}

}  // namespace
