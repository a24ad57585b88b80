#include "host/lightweight_string.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>

#include "refhost/refhost.h"

namespace {

using text = LightweightString<char>;

std::int64_t live_blocks() { return refhost::allocator_statistics().live_blocks; }

// Every test gives back all that it took.
class LightweightStrings : public testing::Test {
 protected:
  ~LightweightStrings() override { EXPECT_EQ(live_blocks(), blocks_before_); }
  std::int64_t blocks_before_ = live_blocks();
};

TEST_F(LightweightStrings, CapacityIsThePowerOfTwoAboveTheLength) {
  struct {
    std::uint32_t length;
    std::uint32_t capacity;
  } const cases[] = {{1, 2}, {2, 4}, {3, 4}, {4, 8}, {7, 8}, {8, 16}, {1023, 1024}, {1024, 2048}};
  for (auto const& c : cases) {
    std::string const source(c.length, 'x');
    text const t{source.c_str()};
    EXPECT_EQ(t.length(), c.length);
    EXPECT_EQ(t.capacity(), c.capacity);
    EXPECT_EQ(t.c_str(), source);
    EXPECT_EQ(live_blocks(), blocks_before_ + 1) << "header and characters are one block";
  }
}

TEST_F(LightweightStrings, NullAndEmptyTextsHaveNoBuffer) {
  text empties[] = {{}, nullptr, "", {"abc", 0}, {nullptr, 3}, {"abc", std::size_t{1} << 31}};
  for (auto& t : empties) {
    EXPECT_STREQ(t.c_str(), "");
    EXPECT_TRUE(t.empty());
    EXPECT_EQ(t.capacity(), 0U);
    EXPECT_EQ(t.references(), 0);
    EXPECT_EQ(t.detach(), nullptr);
    EXPECT_TRUE(t.shares_buffer_with(empties[0]));
    EXPECT_EQ(t, empties[0]);
  }
  EXPECT_EQ(live_blocks(), blocks_before_);
}

TEST_F(LightweightStrings, CopiesShareUntilDetached) {
  text first{"AB1234"};
  text second{first};
  text const third = second;
  EXPECT_TRUE(first.shares_buffer_with(third));
  EXPECT_EQ(first.references(), 3);
  EXPECT_EQ(live_blocks(), blocks_before_ + 1);

  second.detach()[0] = 'X';
  EXPECT_STREQ(second.c_str(), "XB1234");
  EXPECT_STREQ(first.c_str(), "AB1234");
  EXPECT_EQ(first.references(), 2);
  EXPECT_EQ(second.references(), 1);

  auto const* characters = second.c_str();
  EXPECT_EQ(second.detach(), characters) << "the only owner keeps its buffer";
}

TEST_F(LightweightStrings, AssignmentLetsTheOldTextGo) {
  text first{"first"};
  text second{"second"};
  auto const& itself = first;
  first = itself;
  EXPECT_STREQ(first.c_str(), "first");
  EXPECT_EQ(first.references(), 1);

  first = second;
  EXPECT_EQ(live_blocks(), blocks_before_ + 1);
  first = second;  // the same buffer once more
  EXPECT_EQ(second.references(), 2);
  first = text{};
  EXPECT_EQ(second.references(), 1);
  second = text{};
  EXPECT_EQ(live_blocks(), blocks_before_);
}

TEST_F(LightweightStrings, AreEqualByText) {
  EXPECT_EQ(text{"A001"}, text("A001B", 4));
  EXPECT_FALSE(text{"A001"}.shares_buffer_with("A001"));
  EXPECT_NE(text{"A001"}, text{"A002"});
  EXPECT_NE(text{"A001"}, text{"A00"});
  EXPECT_NE(text("A\0B", 3), text("A\0C", 3));
}

TEST_F(LightweightStrings, OwnersInTwoThreadsLoseNoCount) {
  text const shared{"shared"};
  auto const copy_and_change = [&shared] {
    for (int i = 0; i < 50'000; ++i) {
      text copy{shared};
      text other{copy};
      copy = other;
      if (i % 8 == 0) other.detach()[0] = 'X';
    }
  };
  std::thread one{copy_and_change};
  std::thread two{copy_and_change};
  one.join();
  two.join();
  EXPECT_EQ(shared.references(), 1);
  EXPECT_STREQ(shared.c_str(), "shared");
}

// Either owner may be the one that finds itself alone, while the other is still letting go.
TEST_F(LightweightStrings, TheLastOwnerMayWrite) {
  for (int i = 0; i < 500; ++i) {
    text mine{"shared"};
    std::thread reader{[theirs = mine] { EXPECT_STREQ(theirs.c_str(), "shared"); }};
    mine.detach()[0] = 'X';
    reader.join();
    EXPECT_STREQ(mine.c_str(), "Xhared");
  }
}

}  // namespace
