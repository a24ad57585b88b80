#include "host/lightweight_string.h"

#include <thread>

#include "tests/testing.h"

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
  for (auto const& [length, capacity] : {std::pair{1U, 2U}, {3U, 4U}, {4U, 8U}, {1024U, 2048U}}) {
    std::string const source(length, 'x');
    text const t{source.c_str()};
    EXPECT_EQ(t.capacity(), capacity);
    EXPECT_EQ(t.c_str(), source);
    EXPECT_EQ(live_blocks(), blocks_before_ + 1) << "header and characters are one block";
  }
}

TEST_F(LightweightStrings, NullAndEmptyTextsHaveNoBuffer) {
  text empties[] = {{}, nullptr, "", {"abc", 0}, {nullptr, 3}, {"abc", std::size_t{1} << 31}};
  for (auto& t : empties) {
    EXPECT_STREQ(t.c_str(), "");
    EXPECT_TRUE(t.empty() && t.capacity() == 0 && t.references() == 0 && t.detach() == nullptr);
    EXPECT_TRUE(t == empties[0] && t.shares_buffer_with(empties[0]));
  }
  EXPECT_EQ(live_blocks(), blocks_before_);
}

TEST_F(LightweightStrings, CopiesShareUntilDetached) {
  text first{"AB1234"};
  text second{first};
  EXPECT_TRUE(first.shares_buffer_with(second));
  EXPECT_EQ(first.references(), 2);

  second.detach()[0] = 'X';
  EXPECT_STREQ(second.c_str(), "XB1234");
  EXPECT_STREQ(first.c_str(), "AB1234");
  EXPECT_EQ(first.references() + second.references(), 2);
  auto const* characters = second.c_str();
  EXPECT_EQ(second.detach(), characters) << "the only owner keeps its buffer";

  first = *&first;
  EXPECT_STREQ(first.c_str(), "AB1234");
  first = second;
  EXPECT_EQ(live_blocks(), blocks_before_ + 1);
  first = second;  // the same buffer once more
  EXPECT_EQ(second.references(), 2);
  first = text{};
  EXPECT_EQ(second.references(), 1);
}

TEST_F(LightweightStrings, BorrowABufferThatAnotherCounts) {
  text owner{"old"}, borrower{"older"};
  text::set_in_one_buffer({&owner, &borrower}, "shape", 5)[owner.capacity()] = 'S';
  EXPECT_EQ(live_blocks(), blocks_before_ + 1);
  text own = borrower;
  own.detach()[0] = 'X';
  EXPECT_EQ(std::string{owner.c_str()} + borrower.c_str() + own.c_str(), "shapeShapeXhape");
}

TEST_F(LightweightStrings, AreEqualByText) {
  EXPECT_EQ(text{"A001"}, text("A001B", 4));
  EXPECT_FALSE(text{"A001"}.shares_buffer_with("A001"));
  EXPECT_NE(text{"A001"}, text{"A002"});
  EXPECT_NE(text{"A00"}, text{"A001"});
  EXPECT_NE(text("A\0B", 3), text("A\0C", 3));
}

// Either owner may be the one that finds itself alone, while the other is still letting go.
TEST_F(LightweightStrings, OwnersInTwoThreadsLoseNoCount) {
  for (int round = 0; round < 200; ++round) {
    text mine{"shared"};
    auto const copy = [](text const& from) {
      for (int i = 0; i < 500; ++i) EXPECT_STREQ(text{from}.c_str(), "shared");
    };
    std::thread other{[theirs = mine, copy] { copy(theirs); }};
    copy(mine);
    mine.detach()[0] = 'X';
    other.join();
    EXPECT_STREQ(mine.c_str(), "Xhared");
    EXPECT_EQ(mine.references(), 1);
  }
}

}  // namespace
