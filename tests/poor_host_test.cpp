// A host that asks for labels while they are being built, whose memory runs out, and that watches its use counts.
// Nothing throws or leaks: what cannot be built becomes null or the invalid converter.

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <utility>

#include "host/config.h"
#include "labelsbase/labels.h"

namespace {

constinit int blocks_left = 1'000'000;
constinit int live_blocks = 0;
constinit bool asked_while_building = false;
constinit int raised = 0, lowered = 0;

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
  void increment(std::int32_t& count) noexcept override { ++raised, ++count; }
  bool decrement(std::int32_t& count) noexcept override { return ++lowered, --count == 0; }
};

constinit poor_services services;

TEST(PoorHost, GetsWhatItsMemoryAllows) {
  blocks_left = 75;  // for the types before those of 65 mm film
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
  EXPECT_EQ(blocks_left, 11 - 3) << "the converter and two templates: nothing is built twice";
}

// Returns how often an act raised and lowered counts.
std::pair<int, int> changes(auto act) {
  std::pair const before{raised, lowered};
  act();
  return {raised - before.first, lowered - before.second};
}

TEST(UseCounts, ChangeOnlyForNewOwners) {
  std::pair const none{0, 0}, exchanged{1, 1};
  LightweightString<char> text{"A001"}, reel{"B002"};
  LabelTemplate shape{"29:59"}, shared{text};
  LabelPoint pal{pal_label_t, 1}, later{pal_label_t, 2}, film{keycode_35_label_t, 3};
  EditLabel label{pal, {}}, edge{film, {}};

  EXPECT_EQ(changes([&] { text = *&text, pal = later; }), none);
  EXPECT_EQ(changes([&] { pal = film; }), exchanged);
  EXPECT_EQ(changes([&] { shared.set("9"); }), std::pair(0, 4)) << "its share of the text, three placeholders";
  EXPECT_EQ(text.references(), 1);
  EXPECT_EQ(changes([&] { std::swap(text, reel), std::swap(shape, shared), std::swap(pal, later); }), none);
  EXPECT_EQ(changes([&] { std::swap(label, edge), label = std::move(edge); }), none);
  EXPECT_STREQ(text.c_str(), "B002");
  EXPECT_TRUE(*shared.text() == '2' && *label.start.label_template.text() == '-' && *pal.get_string() == ' ');
}

}  // namespace

Kiv::OperatingServices& OS() noexcept { return services; }

int config_int(char const*, int default_value) {
  asked_while_building |= get_static_label_cvt(pal_label_t)->type() == dummy_label_t;
  return default_value;
}
