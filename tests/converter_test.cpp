// Converters as such: the registry, the factory, the invalid converter and those of a host.

#include <thread>
#include <typeinfo>

#include "tests/testing.h"

namespace {

// All but the bases, which have no labels of their own.
bool has_labels(int t) { return t >= 5 && t < numLabelCvts && t != 9 && t != 13 && t != 17; }

TEST(Registry, HoldsTheClassOfEveryType) {
  for (int t = 0; t < numLabelCvts; ++t) {
    auto const& cvt = shared(label_t{t});
    std::string const name = cvt.type_str();
    EXPECT_EQ(typeid(cvt).name(), std::to_string(name.size()) + name);  // as compilers name the class
    EXPECT_EQ(cvt.type(), has_labels(t) ? t : dummy_label_t);
    EXPECT_EQ(get_label_type(name.c_str()), has_labels(t) ? t : 0);
    EXPECT_EQ(&cvt, get_static_label_cvt(has_labels(t) ? label_t{t} : null_label_t));
  }
}

TEST(Registry, FindsNamesInExactCase) {
  for (char const* name :
       std::initializer_list<char const*>{"TC_60_LABEL", "keycode_label", "tc_60_labels", "pal", "", nullptr})
    EXPECT_EQ(get_label_type(name), 0);
}

TEST(Registry, RefusesTypesOutOfRangeAloud) {
  for (int t : {+numLabelCvts, -1, INT_MIN, INT_MAX}) {
    auto const said = said_by([t] { EXPECT_EQ(&shared(label_t{t}), &shared(null_label_t)); });
    EXPECT_TRUE(said.starts_with("assertion failed false at labelsbase/labelcvt line ")) << said;
  }
}

TEST(Registry, AnswersThreadsAlike) {
  std::vector<std::jthread> threads;
  for (int i = 0; i < 8; ++i) threads.emplace_back([] { EXPECT_EQ(shared(pal_label_t).type(), pal_label_t); });
}

TEST(Factory, MakesConvertersThatTheCallerOwns) {
  (void)get_static_label_cvt(null_label_t);
  for (int t : {-1, 9, 32}) {
    auto const before = refhost::allocator_statistics().live_blocks;
    int const live = label_cvt::howmany;
    {
      std::unique_ptr<label_cvt> const cvt{make_any_label_cvt(label_t{t})};
      EXPECT_EQ(cvt->type(), has_labels(t) ? t : dummy_label_t);
      EXPECT_EQ(label_cvt::howmany, live + 1);
      EXPECT_GT(refhost::allocator_statistics().live_blocks, before);
      EXPECT_STREQ(cvt->get_template(true).text(), has_labels(t) ? "-29.59.59.59" : "");
    }
    EXPECT_EQ(label_cvt::howmany, live);
    EXPECT_EQ(refhost::allocator_statistics().live_blocks, before);
  }
}

TEST(InvalidConverter, TurnsEverythingIntoItsSentinels) {
  std::unique_ptr<label_cvt> const cvt{make_any_label_cvt(foot_label_t)};
  LabelPoint point{*cvt, 5};
  for (char const* text : {cvt->get_string(&point, 1), cvt->get_abs_string(&point, 1)}) EXPECT_STREQ(text, "???");
  EXPECT_STREQ(cvt->get_perfs_string(&point, 1), "??");
  EXPECT_STREQ(cvt->get_abs_perfs_string(&point, 1), "");
  EXPECT_EQ(cvt->get_smpte_string(&point, 1), 0U);
  for (int const sample : {cvt->get_sample(&point, "1"), cvt->get_sample(&point, 1), cvt->get_abs_sample("1"),
                           cvt->get_keep_sample("1"), cvt->get_abs_sample(1.0)})
    EXPECT_EQ(sample, -100'000'000);
  EXPECT_EQ(cvt->get_V2tc(1), 1e99);
}

TEST(RelativeOperations, StandOnThePoint) {
  LabelPoint point{pal_label_t, 90'000};
  auto& cvt = *point.cvt();
  EXPECT_EQ(cvt.get_sample(&point, "01:00:01.00"), 25);
  EXPECT_EQ(cvt.get_sample(&point, -1), 89'999);
  point.sample = INT_MAX;
  EXPECT_EQ(cvt.get_sample(&point, 1), INT_MIN);
}

TEST(NullPoint, IsSampleZeroWithoutABuffer) {
  for (int t = 0; t < numLabelCvts; ++t) {
    auto& cvt = shared(label_t{t});
    SCOPED_TRACE(cvt.type_str());
    bool const labels = has_labels(t);
    EXPECT_STREQ(cvt.get_string(nullptr, 25), labels ? "" : "???");
    EXPECT_STREQ(cvt.get_abs_string(nullptr, invalid), labels ? cvt.get_invalid_string(nullptr, invalid) : "???");
    EXPECT_STREQ(cvt.get_abs_perfs_string(nullptr, 0), "");
    EXPECT_EQ(cvt.get_sample(nullptr, nullptr), cvt.get_abs_sample(nullptr));
    EXPECT_EQ(cvt.get_abs_sample(nullptr), cvt.get_abs_sample(""));
    bool const has_one_template = std::string{cvt.get_template(false).text()} == cvt.get_template(true).text();
    EXPECT_NE(has_one_template, cvt.has_prefix());
    EXPECT_EQ(cvt.get_abs_smpte_string(nullptr, cvt.UserType() == User_timecode ? invalid : 25), 0U);
  }
  EXPECT_EQ(shared(pal_label_t).get_sample(nullptr, "00:00:01.00"), 25);
  EXPECT_EQ(shared(pal_label_t).get_smpte_string(nullptr, 25), 0x100U);
}

TEST(Conversions, AllocateNothing) {
  LabelPoint points[] = {
      {pal_label_t, 1234}, {keycode_353_label_t, 1234}, {foot_35_label_t, 1234}, {ink_16_label_t, 1234}};
  auto const before = refhost::allocator_statistics();
  for (auto& point : points)
    for (int sample : {0, -1, invalid, INT_MIN, INT_MAX}) {
      point.sample = sample;
      LabelPoint copy = point;
      (void)point.cvt()->get_abs_sample(copy.get_string());
      (void)point.cvt()->get_abs_smpte_string(&point, sample);
    }
  EXPECT_EQ(refhost::allocator_statistics(), before);
}

// A type of the host's own.
struct counting_label : variable_label {
  counting_label() : variable_label{10, 2} {}
  char const* get_abs_string(LabelPoint*, int sample) override { return sample == 3 ? "three" : "another"; }
};

TEST(HostConverter, DerivesFromTheLibrarysAndReturnsToItsAllocator) {
  auto const before = refhost::allocator_statistics().live_blocks;
  std::unique_ptr<label_cvt> const cvt = std::make_unique<counting_label>();
  EXPECT_EQ(refhost::allocator_statistics().live_blocks, before + 1);
  LabelPoint point{*cvt, 2};
  EXPECT_STREQ(cvt->get_string(&point, 1), "three");
  unsigned packed = 0x00000105;
  bool drop = false;
  EXPECT_EQ(cvt->get_samples_from_SMPTETc(packed, drop), (10 + 5) * 2);
  EXPECT_EQ(cvt->get_abs_sample("5"), 0);
}

}  // namespace
