// Whose memory is whose.

#include <new>

#include "tests/testing.h"

// The address sanitizer's allocator answers null too, as any allocator may.
extern "C" char const* __asan_default_options();
extern "C" char const* __asan_default_options() { return "allocator_may_return_null=1"; }

namespace {

TEST(Memory, OfTheLibraryComesFromTheHost) {
  auto const before = refhost::allocator_statistics();
  std::unique_ptr<label_cvt> cvt{make_any_label_cvt(pal_label_t)};
  auto const with_converter = refhost::allocator_statistics();
  EXPECT_GT(with_converter.live_blocks, before.live_blocks);
  cvt.reset();
  EXPECT_EQ(refhost::allocator_statistics().live_blocks, before.live_blocks);
}

TEST(Memory, OfTheProgramStaysItsOwn) {
  auto const before = refhost::allocator_statistics();
  auto const number = std::make_unique<int>(5);
  std::string const text(1000, 'x');
  std::unique_ptr<char[]> const characters{new (std::nothrow) char[100]};
  EXPECT_EQ(refhost::allocator_statistics(), before);
  EXPECT_TRUE(number && characters && text.size() == 1000);
}

TEST(Memory, ThatTheHostDoesNotHaveIsBadAlloc) {
  auto const more_than_there_is = static_cast<std::size_t>(-1) / 2;
  EXPECT_THROW((void)label_cvt::operator new(more_than_there_is), std::bad_alloc);
  static bool asked;
  auto const before = std::set_new_handler([] { asked = true, std::set_new_handler(nullptr); });
  EXPECT_THROW((void)label_cvt::operator new(more_than_there_is), std::bad_alloc);
  std::set_new_handler(before);
  EXPECT_TRUE(asked) << "the program's new-handler may find some memory";
  label_cvt::operator delete(nullptr);
}

TEST(Version, IsTheOneThatHostsAskFor) { EXPECT_STREQ(labelsBaseDllVersionStr(), "14.5.0.0"); }

}  // namespace
