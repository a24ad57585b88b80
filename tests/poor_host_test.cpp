// A host that asks for labels while they are being built, and whose memory runs out. Nothing throws or leaks: what
// cannot be built becomes null or the invalid converter.

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>

#include "host/config.h"
#include "labelsbase/labels.h"

namespace {

constinit int blocks_left = 1'000'000;
constinit int live_blocks = 0;
constinit bool asked_while_building = false;

class poor_services final : public Kiv::OperatingServices, Kiv::Allocator, Kiv::ReferenceCounts {
 public:
  Kiv::Allocator& allocator() noexcept override { return *this; }
  Kiv::ReferenceCounts& reference_counts() noexcept override { return *this; }

 private:
  void* allocate(std::size_t bytes) noexcept override {
    if (blocks_left == 0) return nullptr;
    --blocks_left;
    ++live_blocks;
    return std::malloc(bytes);
  }
  void free(void* block) noexcept override {
    live_blocks -= block != nullptr;
    std::free(block);
  }
  void increment(std::int32_t& count) noexcept override { ++count; }
  bool decrement(std::int32_t& count) noexcept override { return --count == 0; }
};

constinit poor_services services;

TEST(PoorHost, GetsWhatItsMemoryAllows) {
  blocks_left = 250;  // for the types before those of 65 mm film
  EXPECT_STREQ(get_static_label_cvt(null_label_t)->type_str(), "dummy_label");
  EXPECT_TRUE(asked_while_building);
  EXPECT_EQ(get_static_label_cvt(pal_label_t)->type(), pal_label_t);
  EXPECT_EQ(get_static_label_cvt(tc_240_label_t), get_static_label_cvt(null_label_t)) << "for want of memory";

  int const kept = live_blocks;
  for (int blocks = 0; blocks < 12; ++blocks) {
    blocks_left = blocks;
    label_cvt* const cvt = make_any_label_cvt(keycode_353_label_t);
    EXPECT_EQ(cvt == nullptr, blocks == 0);
    delete cvt;
    EXPECT_EQ(live_blocks, kept);
  }
  // The converter and two templates of a text and three placeholders: nothing is built twice.
  EXPECT_EQ(blocks_left, 11 - 9);
}

}  // namespace

Kiv::OperatingServices& OS() noexcept { return services; }

int config_int(char const*, int default_value) {
  asked_while_building |= get_static_label_cvt(pal_label_t)->type() == dummy_label_t;
  return default_value;
}
