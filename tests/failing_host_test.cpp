// A host that fails: its memory ends at any call, its configuration, tokens and rates are nonsense. Nothing
// crashes or leaks, and values are whole: what a failure takes away is a converter or a text, as docs/host.md
// says.

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cfloat>
#include <climits>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "host/config.h"
#include "host/cookie.h"
#include "host/current_project.h"
#include "host/print.h"
#include "host/tokeniser.h"
#include "labelsbase/framecounts.h"
#include "labelsbase/labels.h"
#include "labelsbase/mposnxlate.h"

namespace {

// What the host answers.
constinit int calls_until_failure = INT_MAX;  // of the allocator
constinit bool fails_for_good = false;        // or only once
constinit bool has_failed = false;
constinit int live_blocks = 0;
constinit int setting = 1;
constinit double rate = 25;
constinit int code = Kiv::FrameRate_25;
std::vector<char const*> const* tokens = nullptr;  // instead of those of the text

class failing_services final : public Kiv::OperatingServices, Kiv::Allocator, Kiv::ReferenceCounts {
 public:
  Kiv::Allocator& allocator() noexcept override { return *this; }
  Kiv::ReferenceCounts& reference_counts() noexcept override { return *this; }

 private:
  void* allocate(std::size_t bytes) noexcept override {
    if (calls_until_failure == 0) {
      has_failed = true;
      if (!fails_for_good) calls_until_failure = INT_MAX;
      return nullptr;
    }
    --calls_until_failure;
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

constinit failing_services services;

// The text that a label without its template has: no sign column.
std::string without_sign(std::string const& text) { return text.starts_with(' ') ? text.substr(1) : text; }

// Uses a label of a type by every operation that copies it. Compares with the text that it has when no memory is
// lacking.
void expect_whole(label_cvt& cvt, std::string const& text) {
  LabelPoint point{cvt, 6'400};
  cvt.set_prefix(&point, "KJ123456");
  bool const has_template = *point.label_template.text() != '\0';
  ASSERT_TRUE(has_template || has_failed || cvt.type() == dummy_label_t);
  ASSERT_TRUE(point.get_string() == text || (!has_template && point.get_string() == without_sign(text))) << text;
  LabelPoint const copy = point;
  LabelPoint other{pal_label_t, 1};
  other = copy;
  other.removePadding();
  std::swap(other, point);
  ASSERT_EQ(without_sign(point.get_string()), without_sign(text));
  ASSERT_TRUE(point == copy);
  other.modify_count_length(6);

  EditLabel label{Label{copy}, {Medium_src_24p, Gen_1st}};
  label.length = 640;
  EditLabel assigned{Label{ntsc_drop_label_t}, {}};
  assigned = label;
  EditLabel const moved{std::move(assigned)};
  auto const& shared = *get_static_label_cvt(cvt.type());
  EXPECT_TRUE(moved.length == 640 && moved.medium_roll.medium == Medium_src_24p);
  EXPECT_TRUE(moved.start.sample == copy.sample && moved.start.cvt() == &shared);
  std::string const shown = shared.type() == cvt.type() ? text : "???";
  auto const prefix = static_cast<std::size_t>(shared.get_prefix_length());
  EXPECT_EQ(without_sign(moved.get_string(0) + prefix), without_sign(shown.substr(prefix)));
  char keep[Label::keep_string_size];
  EditLabel const kept{label.make_keep_string(keep)};
  EXPECT_EQ(kept.start.cvt(), &shared);
  EXPECT_EQ(kept.start.sample, kept.start.cvt()->get_keep_sample(text.c_str())) << keep;
  EXPECT_EQ(kept.medium_roll.generation, Gen_1st);
}

// Texts by type, made when no memory is lacking.
std::vector<std::string> all_texts() {
  std::vector<std::string> texts;
  for (int type = 0; type < numLabelCvts; ++type) {
    std::unique_ptr<label_cvt> const cvt{make_any_label_cvt(label_t{type})};
    LabelPoint point{*cvt, 6'400};
    cvt->set_prefix(&point, "KJ123456");
    texts.emplace_back(point.get_string());
  }
  return texts;
}

void use_rolls() {
  MediumRoll roll{"REV: 1 MediumRollId: 28,1 reelid: A001"};
  MediumRoll const copy = roll;
  for (auto const* each : {&std::as_const(roll), &copy}) {
    EXPECT_TRUE(each->ident.medium == Medium_out_24p && each->ident.generation == Gen_any);
    EXPECT_TRUE(std::strcmp(each->reelid.c_str(), "A001") == 0 || (has_failed && each->reelid.empty()));
  }
  LightweightString<char> shared = roll.reelid;
  char* const own = shared.detach();
  EXPECT_TRUE(own ? std::strcmp(own, "A001") == 0 : shared.empty());
  roll = copy;
  LabelTemplate shape{"-29:59"}, same = shape;
  same.set(LightweightString<char>{"A-99"});
  std::swap(shape, same);
  EXPECT_TRUE(*same.text() == '-' || (has_failed && !*same.text()));
}

// Lets the allocator fail at every call of a scenario in turn: once, and for good. Returns how many calls there
// were.
int fail_at_every_call(auto scenario) {
  for (int call = 0;; ++call)
    for (bool const for_good : {false, true}) {
      SCOPED_TRACE(call);
      int const before = live_blocks;
      calls_until_failure = call;
      fails_for_good = for_good;
      has_failed = false;
      scenario();
      calls_until_failure = INT_MAX;
      EXPECT_EQ(live_blocks, before);
      if (testing::Test::HasFailure() || !has_failed) return call;
    }
}

// Runs a scenario in a process of its own, in which no label has been used.
void expect_passes_anew(auto scenario) {
  auto const child = fork();
  if (child == 0) {
    scenario();
    std::_Exit(testing::Test::HasFailure());
  }
  int status = 0;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << status;
}

TEST(FailingHost, LacksMemoryForSharedConverters) {
  bool is_enough = false;
  for (int call = 0; !is_enough && !HasFailure(); ++call) {
    int to_parent[2];
    ASSERT_EQ(pipe(to_parent), 0);
    expect_passes_anew([&] {
      calls_until_failure = call;
      (void)get_static_label_cvt(null_label_t);
      calls_until_failure = INT_MAX;
      auto const texts = all_texts();
      int invalid = 0;
      for (int type = 0; type < numLabelCvts; ++type) {
        auto& cvt = *get_static_label_cvt(label_t{type});
        bool const is_right = cvt.type() == type;
        invalid += !is_right && std::string{"???"} != texts[static_cast<std::size_t>(type)];
        expect_whole(cvt, is_right ? texts[static_cast<std::size_t>(type)] : "???");
      }
      EXPECT_LE(invalid, has_failed) << "one type lacks its converter";
      EXPECT_TRUE(has_failed || write(to_parent[1], "!", 1) == 1);
    });
    close(to_parent[1]);
    char mark = 0;
    is_enough = read(to_parent[0], &mark, 1) == 1;
    close(to_parent[0]);
  }
}

TEST(FailingHost, LacksMemoryForLabelsAndRolls) {
  auto const texts = all_texts();
  (void)get_static_label_cvt(null_label_t);
  for (int type = 0; type < numLabelCvts; ++type) {
    int const calls = fail_at_every_call([&] {
      std::unique_ptr<label_cvt> const cvt{make_any_label_cvt(label_t{type})};
      EXPECT_TRUE(cvt || has_failed);
      if (cvt) expect_whole(*cvt, texts[static_cast<std::size_t>(type)]);
    });
    EXPECT_GT(calls, 0);
    if (HasFailure()) return;
  }
  EXPECT_GT(fail_at_every_call(use_rolls), 4);
}

constexpr int odd_numbers[] = {INT_MIN, -1, 0, 1, 2, 3, 4, INT_MAX};

TEST(FailingHost, ConfiguresNonsense) {
  for (int const odd : odd_numbers) {
    setting = odd;
    for (auto const type : {tc_50_label_t, tc_60_label_t}) {
      std::unique_ptr<label_cvt> const cvt{make_any_label_cvt(type)};
      EXPECT_EQ(cvt->type(), type);
      for (int const sample : odd_numbers) {
        LabelPoint point{*cvt, sample};
        EXPECT_NE(cvt->get_abs_sample(point.get_string()), INT_MAX);
      }
    }
    MPosn_Xlate_Params params;
    params.init_to_default_filmvid_conversion(Kiv::FrameRate{odd});
    params.modify_sequence_to_playfile_std(odd);
  }
  setting = 1;

  struct unending final : configb {
    int in(LightweightString<char> const&, char* buffer) const override {
      std::memset(buffer, 'x', text_size);
      return 0;
    }
  } config;
  EXPECT_TRUE((MediumRoll{{Medium_out_24p, Gen_any}, &config}.reelid.empty()));
}

TEST(FailingHost, GivesNonsenseForTokens) {
  std::string const endless(5'000, '7');
  std::vector<std::vector<char const*>> const nonsense{
      {},
      {""},
      {"LABEL_REV"},
      {"LABEL_REV:1", ""},
      {"LABEL_REV:1", "keycode_35_label", ""},
      {"LABEL_REV:1", "keycode_353_label", endless.c_str(), endless.c_str(), endless.c_str(), endless.c_str()},
      {"LABEL_REV:1", "pal_label", "\xff\x80", "-2147483648", "nan", "\x01"},
      {"LABEL_REV:1", "ink_16_label", "-", "2147483647", "-inf", ""},
      {"REV", ""},
      {"REV", "1", "MediumRollId", ""},
      {"REV", "1", "MediumRollId", endless.c_str(), "reelid", ""},
      {"REV", "1", "MediumRollId", "\xff", "reelid", endless.c_str()},
  };
  for (auto const& given : nonsense) {
    tokens = &given;
    EditLabel label{"any text"};
    EXPECT_TRUE(label.start.cvt());
    char keep[Label::keep_string_size];
    EXPECT_LT(std::strlen(label.make_keep_string(keep)), sizeof keep);
    for (int const odd : odd_numbers) (void)label.get_string(odd);
    MediumRoll const roll{"any text"};
    EXPECT_TRUE(roll.reelid.empty() || roll.reelid.c_str() == endless);
    EXPECT_EQ(roll.ident.medium, Medium_none);
  }
  tokens = nullptr;
}

// Each rate in a process of its own, since natural pitches are kept.
TEST(FailingHost, AnswersNonsenseForRates) {
  constexpr auto inf = std::numeric_limits<double>::infinity();
  constexpr auto nan = std::numeric_limits<double>::quiet_NaN();
  constexpr double odd_rates[] = {0.0, -0.0, -25, inf, -inf, nan, DBL_TRUE_MIN, DBL_MIN, DBL_MAX, -DBL_MAX};
  for (double const odd : odd_rates)
    expect_passes_anew([&] {
      SCOPED_TRACE(odd);
      rate = odd;
      for (int const each : {INT_MIN, -1, 0, 1, 3, 5, 6, 33, 99, INT_MAX}) {
        code = each;
        for (int type = 0; type < numLabelCvts; ++type) {
          EditLabel label{Label{label_t{type}}, {Medium_audio, Gen_1st}};
          for (double const pitch : {label.pitch, 1 / rate, rate}) {
            label.pitch = pitch;
            for (int const sample : odd_numbers) {
              double const posn = label.sample_to_posn(sample);
              for (double const at : {posn, rate, -rate, 1e99})
                EXPECT_TRUE(std::isfinite(at) || label.posn_to_sample(at) == labelsbase::invalid_sample);
              (void)label.abs_posn_to_sample(posn);
            }
            char keep[Label::keep_string_size];
            EXPECT_LT(std::strlen(label.make_keep_string(keep)), sizeof keep);
            (void)EditLabel{keep};
          }
          label.fix_audio_label_pitch(Transfer_project_rate, Medium_src_24p);
        }
        EXPECT_EQ(LabelPoint(pal_label_t, 90'000).get_string(), std::string{" 01:00:00.00"})
            << "texts are not affected";
        for (double const seconds : {0.0, 1.0, -1.0, rate, 1e99}) {
          (void)mPosn_Xlate_CelToClock(mPosn_Xlate_ClockToCel(seconds));
          (void)sampleNr_to_CelPosn(celPosn_to_SampleNr(seconds));
        }
        for (int medium = -1; medium <= labelsbase::medium_count; ++medium)
          (void)getSampleDurationFromMedium(MediumRollMedium{medium});
        MPosn_Xlate_Params params;
        params.init_for_labelgroup(Transfer_2_3_pulldown, each);
        EXPECT_EQ(label_t_to_duration_label_t(tc_60_label_t), tc_60_duration_label_t);
        (void)getDefaultLabelTypeForProject();
        (void)is_film_project();
      }
    });
}

}  // namespace

// --- the host ---

Kiv::OperatingServices& OS() noexcept { return services; }
int config_int(char const*, int) { return setting; }
constinit Cookie const invalid_cookie{};
void diagnostic_print(char const*, ...) {}

struct tokeniser::state {
  std::string text, separators;
  char* rest;
  std::size_t given;
};

tokeniser::tokeniser(char const* text, char const* separators) : state_{new state{text, separators, nullptr, 0}} {
  state_->rest = state_->text.data();
}
tokeniser::~tokeniser() { delete state_; }
char const* tokeniser::next() {
  if (!tokens) return strtok_r(nullptr, state_->separators.c_str(), &state_->rest);
  return state_->given < tokens->size() ? (*tokens)[state_->given++] : nullptr;
}

namespace Kiv {

double getFramesPerSecond(FrameRate) { return rate; }
double getFrameDuration(FrameRate) { return rate; }
double getCelResolution(FrameRate) { return rate; }
double getEditResolutionFrameGearing(FrameRate, FrameRate) { return rate; }
FrameRate getNonDecimatedFrameRate(FrameRate) { return FrameRate{code}; }
bool has1001Factor(FrameRate) { return code == 5; }

FrameRate CurrentProject::getFrameRate(int) { return FrameRate{code}; }
bool CurrentProject::getUseDropFrameTimecode() { return code == 5; }
double CurrentProject::getCelResolution() { return rate; }
FrameRate CurrentProject::getInCameraFilmSpeed() { return FrameRate{code}; }
FrameRate CurrentProject::getOutputImageKIVFrameRate() { return FrameRate{code}; }
bool CurrentProject::vidprojAudSyncIsPulledDown() { return code == 5; }
bool CurrentProject::outputFormatIsPulledDown() { return code == 5; }
OutputGearing::OutputGearing(int) : rate_{code}, use_pulldown_{code == 5} {}

OutputFormat::Details const& CurrentProject::getOutputImageFormat(int) {
  static struct : OutputFormat::Details {
    Image::ScanMode getScanMode() const override { return Image::ScanMode{code}; }
    FrameRate getFrameRate() const override { return FrameRate{code}; }
  } const output;
  return output;
}

}  // namespace Kiv
