// Converters of a host's own classes, made with any argument, and what conversions leave behind in them.

#include <new>

#include "tests/testing.h"

namespace {

constexpr int odd_numbers[] = {INT_MIN, INT_MIN + 1, -1, 0, 1, 2, 100, 1'000'000'000, INT_MAX - 4, INT_MAX};

void exercise(label_cvt& cvt) {
  cvt.build_template();
  LabelPoint point{cvt, 1};
  cvt.set_prefix(&point, "AB1234567890+01");
  for (int const sample : {INT_MIN, -1, 0, 63, 640'001, INT_MAX}) {
    (void)std::string{cvt.get_abs_string(&point, sample)};
    (void)std::string{cvt.get_keep_string(&point, sample)};
    (void)cvt.normalise_sample_unit(sample);
  }
  for (char const* text : {"", "AB1234567890+01", "2147483647:2147483647:59:99", "-1+1"})
    (void)cvt.get_abs_sample(text);
}

struct own_prefix : prefix_label {
  own_prefix(int modulus, int perfs, int length, unsigned digits) : prefix_label{modulus, perfs, length} {
    set_count_len(digits);
  }
  char const* get_abs_string(LabelPoint* point, int sample) override {
    return write_label(point, wrap_to_counts(sample), typed_frames(), '+', 3);
  }
  int get_abs_sample(char const* text) override {
    return read_count(text, std::char_traits<char>::length(text), '_');
  }
  using variable_label::get_abs_sample;
};

TEST(HostClass, TakesAnyConstructorArgument) {
  for (int const a : odd_numbers)
    for (int const b : odd_numbers) {
      for (unsigned const digits : {0U, 4U, 19U, 0x7FFF'FFFEU, 0xFFFF'FFFFU}) {
        own_prefix prefix{a, b, a, digits};
        exercise(prefix);
        keycode_35 key{digits};
        exercise(key);
      }
      foot_label feet{a, b, b};
      exercise(feet);
      ink_label ink{a, b};
      exercise(ink);
      timecode_label timecode{a, b};
      exercise(timecode);
    }
}

TEST(HostClass, OfATypeWithoutFactsCountsPlainly) {
  struct odd_timecode : timecode_label {
    explicit odd_timecode(label_t type) : timecode_label{type, Format_full} {}
  };
  for (auto const type :
       {null_label_t, foot_35_label_t, timecode_label_t, label_t{numLabelCvts}, label_t{INT_MIN}}) {
    odd_timecode timecode{type};
    EXPECT_EQ(timecode.get_abs_sample("00:00:01.00"), 25);
    keycode_label key{type, 4};
    EXPECT_EQ(key.get_abs_sample("XX0000000001+01"), 68) << type;
  }
}

TEST(HostClass, KeepsToTheColumnsOfItsCount) {
  EXPECT_EQ((own_prefix{16, 4, 8, 4}.get_abs_sample("ABCD 1234")), 123);
  own_prefix wide{16, 4, 100, 92};
  wide.build_template();
  EXPECT_EQ((LabelPoint{wide, 0}.label_template.text()), std::string(8, '?') + std::string(55, '9'));
}

// Film whose frames are twice as long.
template <class Film>
struct long_frames : Film {
  int samples_per_unit() const override { return 8; }
};

TEST(HostClass, MayOverrideTheSamplesOfAFrame) {
  long_frames<ink_35_label> ink;
  LabelPoint point{ink, 0};
  EXPECT_STREQ(ink.get_abs_string(&point, 8 * 17), "XXXX0001+01");
  EXPECT_EQ(ink.get_abs_sample("XXXX0001+01"), 8 * 17);
  EXPECT_EQ(ink.normalise_sample_unit(-1), 10'000 * 16 * 8 - 1);
  EXPECT_EQ(long_frames<keycode_35_label>{}.normalise_sample_unit(-1), 10'000 * 16 * 8 - 1);
}

// A class below the library's is asked for everything. Both find the same labels, whole and odd ones.
template <class Film>
void expect_the_labels_of_the_shared_one() {
  struct : Film {
  } own;
  auto& common = shared(Film::kind);
  for (char const* prefix : {"KJ1234560000+00",
                             "K\xE9\x01\x80\xFF"
                             "456",
                             "AB", ""}) {
    LabelPoint a{own, 0}, b{common, 0};
    for (auto* point : {&a, &b}) std::strncpy(point->prefix, prefix, LabelPoint::prefix_length);
    for (std::int64_t sample = INT_MIN; sample <= INT_MAX;
         sample += std::abs(sample) < 800'000 ? 4'999 : 99'999'991) {
      a.sample = b.sample = static_cast<int>(sample);
      std::string const text = a.get_string();
      ASSERT_EQ(b.get_string(), text) << own.type_str() << ' ' << sample;
      for (std::size_t at = 0; at <= text.size(); ++at)
        for (char const c : {'\0', '9', ' ', '-', '_'}) {
          auto changed = text;
          if (at < text.size())
            changed[at] = c;
          else
            changed += c;
          ASSERT_EQ(common.get_abs_sample(changed.c_str()), own.get_abs_sample(changed.c_str())) << changed;
        }
    }
  }
}

TEST(HostClass, FindsTheLabelsOfTheSharedConverter) {
  expect_the_labels_of_the_shared_one<keycode_35_label>();
  expect_the_labels_of_the_shared_one<keycode_353_label_5>();
  expect_the_labels_of_the_shared_one<keycode_16_label_6>();
  expect_the_labels_of_the_shared_one<ink_16_label>();
}

TEST(Registers, HoldTheLastConversion) {
  LabelPoint point{pal_label_t, 0};
  for (auto const type : {pal_label_t, ntsc_drop_label_t, tc_240_label_t}) {
    auto& cvt = static_cast<timecode_label&>(shared(type));
    bool field = false;
    auto const holds = [&](int sample) {
      EXPECT_EQ(cvt.hmsf_to_sample(), sample) << cvt.type_str();
      cvt.sample_to_hmsf(1, field);
    };
    (void)cvt.get_abs_string(&point, 90'000);
    holds(90'000);
    (void)cvt.get_abs_smpte_string(&point, 17'982);
    holds(17'982);
    holds(cvt.get_abs_sample("01:02:03:04"));
    holds(cvt.get_abs_sample("1:2:3:4"));
    holds(cvt.get_abs_sample_from_packed_string("010203004"));
  }
}

TEST(Registers, OfKeyNumbersSurviveUnreadableText) {
  auto& cvt = static_cast<keycode_label&>(shared(keycode_35_label_t));
  for (char const* text : {"AB1234569999+", "AB1234560009+x", "AB1234560009+123", "", "AB123456-001"}) {
    cvt.get_counts(100);
    EXPECT_EQ(cvt.get_abs_sample(text), -100'000'000) << text;
    EXPECT_EQ(cvt.get_perfs(), 100) << text;
  }
}

TEST(HostClass, IsMadeInEveryFormOfNew) {
  struct alignas(128) wide_label : pal_label {
    using pal_label::pal_label;
  };
  std::unique_ptr<label_cvt> const plain{new (std::nothrow) pal_label(15)};
  std::unique_ptr<label_cvt> const wide{new wide_label(15)};
  std::unique_ptr<label_cvt> const also_wide{new (std::nothrow) wide_label(15)};
  std::unique_ptr<foot_35_label[]> const feet{new foot_35_label[3]};
  for (auto const* cvt : {wide.get(), also_wide.get()}) EXPECT_EQ(reinterpret_cast<std::uintptr_t>(cvt) % 128, 0U);
  EXPECT_EQ(plain->get_abs_sample("00:00:01:00") + feet[2].get_abs_sample("1+0"), 25 + 64);
}

}  // namespace
