// Threads side by side: shared converters, the registry, counters, copies of values. The thread sanitizer runs it,
// too.

#include <barrier>
#include <thread>

#include "tests/testing.h"

namespace {

constexpr int thread_count = 4;

// Does `work(number of the thread)` on several threads, which begin together.
void together(auto const& work) {
  std::barrier start{thread_count};
  std::vector<std::jthread> threads;
  for (int thread = 0; thread < thread_count; ++thread)
    threads.emplace_back([&, thread] {
      start.arrive_and_wait();
      work(thread);
    });
}

// All that a converter says of a sample. The texts stand without the prefix.
struct said {
  std::string text, perfs, keep;
  unsigned packed_bcd;
  int read, read_packed, frames;
  std::array<short, 4> fields;

  bool operator==(said const&) const = default;

  friend std::ostream& operator<<(std::ostream& out, said const& all) {
    return out << '"' << all.text << "\" reads as " << all.read << ", perforation " << all.perfs << ", kept as "
               << all.keep << ", BCD " << all.packed_bcd << ", packed reads as " << all.read_packed << ", frame "
               << all.frames;
  }
};

std::string packed_digits(std::string text) {
  std::erase_if(text, [](char c) { return c < '0' || c > '9'; });
  return text;
}

said said_of(LabelPoint& point, int sample) {
  auto& cvt = *point.cvt();
  auto const prefix = static_cast<std::size_t>(cvt.get_prefix_length());
  auto const behind_prefix = [&](std::string const& text) { return text.substr(std::min(prefix, text.size())); };
  said all{};
  std::string const text = cvt.get_abs_string(&point, sample);
  all.text = behind_prefix(text);
  EXPECT_TRUE(all.text.size() < 5 || text.starts_with("NEG") || text.starts_with('?') ||
              text.compare(0, prefix, point.prefix, prefix) == 0)
      << text;
  all.read = cvt.get_abs_sample(text.c_str());
  all.perfs = cvt.get_abs_perfs_string(&point, sample);
  all.keep = behind_prefix(cvt.get_keep_string(&point, sample));
  all.packed_bcd = cvt.get_abs_smpte_string(&point, sample);
  all.read_packed = cvt.has_prefix() ? 0 : cvt.get_abs_sample_from_packed_string(packed_digits(text).c_str());
  point.sample = sample;
  auto& [hours, minutes, seconds, frames] = all.fields;
  all.frames = point.get_hmsf(hours, minutes, seconds, frames);
  return all;
}

// Samples that take every way through a converter: within the day or roll, beyond it, below zero, special.
std::vector<int> all_kinds_of_samples() {
  std::mt19937 random{7};
  std::vector<int> samples{0, 1, -1, INT_MIN, INT_MAX, invalid};
  for (int const span : {100, 100'000, 2'000'000, INT_MAX})
    for (int i = 0; i < 100; ++i)
      samples.push_back(static_cast<int>(random() % static_cast<unsigned>(span)) * (i % 3 ? 1 : -1));
  std::ranges::shuffle(samples, random);
  return samples;
}

// Several threads share `cvt`, each with a point and a prefix of its own; `alone` is such a converter that none
// shares.
void expect_the_same(label_cvt& cvt, label_cvt& alone) {
  auto const samples = all_kinds_of_samples();
  LabelPoint point{alone, 0};
  alone.set_prefix(&point, "AB000000");
  std::vector<said> expected;
  for (int const sample : samples) expected.push_back(said_of(point, sample));

  together([&](int thread) {
    LabelPoint own{cvt, 0};
    cvt.set_prefix(&own, (std::string(3, static_cast<char>('A' + thread)) + "00000").c_str());
    for (int round = 0; round < 4; ++round)
      for (std::size_t i = 0; i < samples.size(); ++i) {
        auto const at = (i + static_cast<std::size_t>(thread) * 97) % samples.size();
        auto const got = said_of(own, samples[at]);
        ASSERT_EQ(got, expected[at]) << cvt.type_str() << ' ' << samples[at];
      }
  });
}

TEST(Threads, ConvertThroughOneConverter) {
  for (int type = 0; type < numLabelCvts; ++type) {
    std::unique_ptr<label_cvt> const alone{make_any_label_cvt(label_t{type})};
    if (alone->type() == type) expect_the_same(shared(label_t{type}), *alone);
  }
}

TEST(Threads, ConvertSlowTimecode) {
  refhost::config_guard const slow{"60p_timecode_type", "2"};
  std::unique_ptr<label_cvt> const cvt{make_any_label_cvt(tc_60_label_t)},
      alone{make_any_label_cvt(tc_60_label_t)};
  ASSERT_TRUE(cvt->isSpecialSlowTC());
  expect_the_same(*cvt, *alone);
}

// The first use of labels in this process: threads wait for the one that builds the converters.
TEST(Threads, ShareTheRegistryAndItsCounters) {
  int const labels = EditLabel::howmany;
  std::atomic<int> registered{0};
  together([&](int) {
    for (int type = 0; type < numLabelCvts; ++type) {
      registered += shared(label_t{type}).type() == type;
      std::unique_ptr<label_cvt> const own{make_any_label_cvt(label_t{type})};
      EXPECT_EQ(own->type(), shared(label_t{type}).type());
      EXPECT_EQ(get_label_type(own->type_str()), own->type() == dummy_label_t ? 0 : type);
      EXPECT_STREQ(own->get_template(true).text(), shared(label_t{type}).get_template(true).text());
    }
    EditLabel const label{Label{ntsc_label_t}, {Medium_src_24p, Gen_1st}};
    EXPECT_DOUBLE_EQ(label.pitch, Label::get_natural_pitch(ntsc_label_t));
    EXPECT_EQ(EditLabel{label}.get_end(), labelsbase::default_label_length);
  });
  constexpr int with_labels = 44;
  EXPECT_EQ(registered, thread_count * (with_labels + 1)) << "and the invalid converter";
  EXPECT_EQ(label_cvt::howmany, with_labels + 1);
  EXPECT_EQ(EditLabel::howmany, labels);
}

TEST(Threads, CopyAndKeepValues) {
  auto const blocks = [] { return refhost::allocator_statistics().live_blocks; };
  (void)shared(pal_label_t);
  auto const before = blocks();
  {
    Label film{keycode_35_label_t};
    film.set_prefix("KJ123456");
    Label const& source = film;
    MediumRoll const roll{"REV: 1 MediumRollId: 28,1 reelid: A001"};
    together([&](int thread) {
      for (int i = 0; i < 200; ++i) {
        Label copy = source;
        copy.start.sample = 64 * thread;
        copy.length = 64;
        Label assigned{pal_label_t};
        assigned = copy;
        std::string const keep = assigned.make_keep_string(nullptr);
        ASSERT_NE(keep.find("KJ123456000" + std::to_string(thread) + "+00 16 "), std::string::npos) << keep;
        ASSERT_EQ(Label{keep.c_str()}.start.sample, copy.start.sample);
        ASSERT_TRUE(copy.contains(64 * thread + 1));
        MediumRoll const same = roll;
        ASSERT_TRUE(same.reelid == roll.reelid);
        auto const generation = thread % 2 ? Gen_2nd : Gen_1st;
        ASSERT_EQ(MediumRollId_to_UserString({Medium_src_24p, generation}),
                  thread % 2 ? std::string{"24p,2ndGen"} : "24p,1stGen");
      }
    });
  }
  EXPECT_EQ(blocks(), before);
}

}  // namespace
