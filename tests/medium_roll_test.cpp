#include "host/tokeniser.h"
#include "tests/testing.h"

namespace {

using ident = std::pair<int, int>;

MediumRollIdent make(ident const& values) {
  return {MediumRollMedium{values.first}, MediumRollGeneration{values.second}};
}
ident numbers(MediumRollIdent const& i) { return {i.medium, i.generation}; }

ident read(char const* text, UserLabelType family = User_none) {
  auto out = make({77, 77});
  MediumRollId_from_string(text, out, family);
  return numbers(out);
}

// By medium: what it accepts besides itself.
std::set<ident> const accepted_pairs = [] {
  std::map<std::vector<int>, std::vector<int>> const rows{
      {{13, 15, 17}, {15, 17}}, {{14, 28, 30}, {14, 28, 30}}, {{16, 18}, {16, 18}},     {{19, 20}, {19, 20}},
      {{21, 23}, {21, 23}},     {{22, 24}, {22, 24}},         {{29, 31}, {28, 29, 31}}, {{32, 33}, {32, 33}},
      {{34, 36}, {34, 36}},     {{35, 37}, {35, 37}}};
  std::set<ident> pairs;
  for (auto const& [asking, accepted] : rows)
    for (int a : asking)
      for (int b : accepted) pairs.emplace(a, b);
  return pairs;
}();

TEST(Identifier, FitsByMediumAndGeneration) {
  for (int a = 0; a <= labelsbase::medium_count; ++a)
    for (int b = 0; b <= labelsbase::medium_count; ++b) {
      bool const media_fit = a && b && (a == 1 || a == b || accepted_pairs.contains({a, b}));
      for (auto const& [asked, other] : {ident{1, 2}, {2, 2}, {2, 3}, {0, 1}, {1, 0}}) {
        bool const fits = media_fit && asked && other && (asked == 1 || asked == other);
        ASSERT_EQ(make({a, asked}).MediumRollId_fits_this(make({b, other})), fits ? 1 : 0)
            << a << ',' << asked << ' ' << b << ',' << other;
      }
    }
}

// As a scan of "%2d,%1d" has it.
ident scanned(std::string const& text, UserLabelType family) {
  int medium = 0, generation = 0;
  if (std::sscanf(text.c_str(), "%2d,%1d", &medium, &generation) < 1 || medium < 1 ||
      medium >= labelsbase::medium_count)
    return {};
  if (generation == 0) {
    generation = medium == 3 ? 2 : medium == 4 ? 3 : 1;
    if (family == User_ink) medium = Medium_ink;
  }
  if (generation < 1 || generation > 5) return {};
  return {medium, generation};
}

TEST(Identifier, IsReadAsAScanWould) {
  std::string const characters = " +-,013467x";
  std::vector<std::string> texts{""};
  for (std::size_t i = 0; i < texts.size(); ++i) {
    for (auto const family : {User_none, User_ink, User_keycode})
      ASSERT_EQ(read(texts[i].c_str(), family), scanned(texts[i], family)) << '"' << texts[i] << '"';
    if (texts[i].size() < 4)
      for (char c : characters) texts.push_back(texts[i] + c);
  }
  EXPECT_EQ(read("28,6"), ident(0, 0));
  EXPECT_EQ(read(nullptr, User_ink), ident(0, 0));
}

TEST(Identifier, IsWrittenAndReadBack) {
  for (int medium = 1; medium < labelsbase::medium_count; ++medium) {
    char text[labelsbase::identifier_text_size];
    ident const values{medium, medium % 5 + 1};
    MediumRollId_to_string(text, make(values));
    EXPECT_EQ(read(text), values) << text;
  }
  for (auto const& [medium, generation] :
       {ident{28, 1}, {0, 0}, {-1, labelsbase::medium_count}, {INT32_MIN, INT32_MIN}, {INT32_MAX, 5}}) {
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
  struct {
    ident values;
    char const* text;
  } const cases[] = {
      {{15, 2}, "24p,1stGen"}, {{28, 1}, "med?,anyGen"}, {{47, 3}, "12.5p,2ndGen"},
      {{11, 4}, "Lab,3rdGen"}, {{3, 5}, "video,4thGen"}, {{2, 0}, "film,gen?"},
      {{2, 6}, "film,gen?"},   {{-1, -1}, "med?,gen?"},  {{labelsbase::medium_count, INT_MIN}, "med?,gen?"}};
  for (auto const& c : cases) EXPECT_STREQ(MediumRollId_to_UserString(make(c.values)), c.text);
}

TEST(Roll, IsReadFromTheStoredText) {
  // clang-format off
  struct { char const* text; ident values; char const* reel; } const cases[] = {
      {"REV: 1 MediumRollId: 28,1 reelid: A001",        {28, 1}, "A001"},
      {"REV 1 MediumRollId 28,1 reelid A001",           {28, 1}, "A001"},
      {" :REV::1x  MediumRollId 28 reelid A B",         {28, 1}, "A"},
      {"REV 1 MediumRollId 28,1 Reelid A",              {28, 1}, "old"},
      {"REV 1 MediumRollId 99 reelid A",                {0, 0},  "A"},
      {"REV 2 MediumRollId 28,1 reelid A",              {4, 4},  "old"},
      {"rev 1 MediumRollId 28,1 reelid A",              {4, 4},  "old"},
      {"1 MediumRollId 28,1 reelid A",                  {4, 4},  "old"},  // each token missing in turn
      {"REV MediumRollId 28,1 reelid A",                {4, 4},  "old"},
      {"REV 1 28,1 reelid A",                           {4, 4},  "old"},
      {"REV 1 MediumRollId reelid A",                   {0, 0},  "old"},
      {"REV 1 MediumRollId 28,1 A",                     {28, 1}, "old"},
      {"REV 1 MediumRollId 28,1 reelid",                {28, 1}, "old"},
      {"REV 1 MediumRollId",                            {4, 4},  "old"},
      {nullptr,                                         {4, 4},  "old"},
  };
  // clang-format on
  for (auto const& c : cases) {
    MediumRoll roll{make({4, 4})};
    roll.set_reelid("old");
    roll.fill_from_string(c.text);
    EXPECT_EQ(numbers(roll.ident), c.values) << (c.text ? c.text : "null");
    EXPECT_STREQ(roll.reelid.c_str(), c.reel) << (c.text ? c.text : "null");
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
  MediumRoll const bare{Medium_out_24p, Gen_any};
  EXPECT_TRUE(bare == bare);
  EXPECT_TRUE(MediumRoll{bare} == bare);
  EXPECT_FALSE(bare != bare);
  EXPECT_TRUE((MediumRoll{Medium_out_2398p, Gen_any} == bare));  // as they fit, so not the other way
  EXPECT_TRUE((bare != MediumRoll{Medium_out_2398p, Gen_any}));
  EXPECT_FALSE(invalid_MediumRoll() == invalid_MediumRoll());

  MediumRoll a = bare;
  a.set_reelid("A001");
  a.set_reelid(a.reelid);
  MediumRoll const copy = a;
  MediumRoll b = bare;
  b.set_reelid("A001");
  EXPECT_TRUE(a == a);
  EXPECT_FALSE(a == copy);
  EXPECT_FALSE(a == b);
  EXPECT_FALSE(a == bare);
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
  EXPECT_EQ(&invalid_MediumRoll(), &invalid_MediumRoll());
  EXPECT_TRUE(invalid_MediumRoll().reelid.empty());
}

}  // namespace
