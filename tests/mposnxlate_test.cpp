#include "labelsbase/mposnxlate.h"

#include <gtest/gtest.h>

#include <cfenv>
#include <climits>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <set>
#include <tuple>

#include "refhost/refhost.h"

namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();

// Rates of the catalogue, and codes that are unknown or the host's own.
constexpr int rate_codes[] = {1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 35, 36, 37, 38,      39,
                              40, 41, 42, 43, 44, 45, 46, 47, 31, 34, 0,  -1, 11, INT_MAX, INT_MIN};

Kiv::FrameRate rate(int code) { return static_cast<Kiv::FrameRate>(code); }

// Seconds of cel time per second of clock time by the rule of film; nothing where the host's gearing decides.
std::optional<double> film_speed(MPosn_Xlate_Params const& p, bool to_cel) {
  bool const film =
      std::set{1, 6, 31, 34}.contains(p.project_rate) || (to_cel && (p.project_rate == 2 || p.project_rate == 7));
  bool const at_30 = std::set{4, 5, 9, 10}.contains(p.output_rate);
  bool const at_25 = std::set{3, 8}.contains(p.output_rate);
  if (!film || !(at_30 || at_25)) return {};
  double const speed = p.output_pulled_down ? 1.0 : at_30 ? 1.25 : 1.0416666666666667;
  return p.output_1001 && (at_30 || to_cel) ? speed / 1.001 : speed;
}

// Else the nominal rates cancel out, and the 1001 factors of project and output are left.
double speed(MPosn_Xlate_Params const& p, bool to_cel) {
  double const general = (Kiv::has1001Factor(p.project_rate) ? 1.001 : 1.0) /  //
                         (Kiv::has1001Factor(p.output_rate) ? 1.001 : 1.0);
  return film_speed(p, to_cel).value_or(general);
}

template <typename Check>
void for_all_params(Check check) {
  for (int const project : rate_codes)
    for (int const output : rate_codes)
      for (int const flags : {0, 1, 2, 3}) {
        SCOPED_TRACE(testing::Message() << project << " to " << output << ", flags " << flags);
        MPosn_Xlate_Params params;
        params.initOutputFormat(rate(project), rate(output), flags & 1);
        params.output_1001 = flags & 2;
        check(params);
      }
}

void expect_close(double value, double expected) {
  EXPECT_LE(std::abs(value - expected), 1e-12 * std::abs(expected)) << value << " for " << expected;
}

TEST(ClockCel, RunsAtTheSpeedOfFilmOrOfTheGearing) {
  for_all_params([](MPosn_Xlate_Params p) {
    for (double const seconds : {1.0 / 3, 3600.0, 1e12, -7.25, 0.0}) {
      expect_close(mPosn_Xlate_ClockToCel(seconds, p), seconds * speed(p, true));
      expect_close(mPosn_Xlate_CelToClock(seconds, p), seconds / speed(p, false));
    }
    EXPECT_EQ(mPosn_Xlate_ClockToCel(1e99, p), 1e99);
    EXPECT_EQ(mPosn_Xlate_CelToClock(1e99, p), 1e99);
  });
}

TEST(ClockCel, GoesThereAndBackWhereOneRuleHolds) {
  int one_way = 0;
  for_all_params([&](MPosn_Xlate_Params p) {
    bool const one_rule = film_speed(p, true) == film_speed(p, false);
    one_way += !one_rule;
    double const back = mPosn_Xlate_CelToClock(mPosn_Xlate_ClockToCel(0.04, p), p);
    expect_close(back, one_rule ? 0.04 : 0.04 * speed(p, true) / speed(p, false));
  });
  // The two 1001 film rates at the six outputs of film; the other four at 25 and 50 with a 1001 factor.
  EXPECT_EQ(one_way, 2 * 6 * 4 + 4 * 2 * 2);
}

// A host may trap floating-point errors. -1e99 is a number like any other.
TEST(ClockCel, RaisesNoFloatingPointError) {
  std::feclearexcept(FE_ALL_EXCEPT);
  for_all_params([](MPosn_Xlate_Params p) {
    expect_close(mPosn_Xlate_ClockToCel(-1e99, p), -1e99 * speed(p, true));
    expect_close(mPosn_Xlate_CelToClock(-1e99, p), -1e99 / speed(p, false));
    EXPECT_TRUE(std::isnan(mPosn_Xlate_ClockToCel(nan, p)));
  });
  EXPECT_EQ(std::fetestexcept(FE_DIVBYZERO | FE_INVALID | FE_OVERFLOW), 0);
}

TEST(ClockCel, LeavesOtherMediaToTheHost) {
  MPosn_Xlate_Params params{Kiv::OutputGearing{Kiv::FrameRate_30, false}};
  for (int from = -1; from <= 71; ++from)
    for (int to = -1; to <= 71; ++to) {
      params.sequence = -1;
      double const posn = mPosn_Xlate(4.0, MediumRollMedium{from}, MediumRollMedium{to}, params);
      bool const known = (from == 7 && to == 12) || (from == 12 && to == 7);
      EXPECT_EQ(posn, !known ? 1e99 : from == 7 ? 5.0 : 3.2) << from << " to " << to;
      EXPECT_EQ(params.sequence, known ? 0 : -1) << from << " to " << to;
    }
}

TEST(ClockCel, TakesTheOutputGearingOfTheMoment) {
  struct {
    int gearing_rate;
    bool pulldown;
    double cel;
  } const cases[] = {{4, false, 5.0}, {4, true, 4.0}, {5, false, 5.0 / 1.001}, {3, false, 25.0 / 6}};
  for (auto const& [code, pulldown, cel] : cases) {
    // The picture's own rate and pulldown do not matter.
    refhost::project_guard const project{{.output_rate = Kiv::FrameRate_12,
                                          .gearing_rate = rate(code),
                                          .gearing_pulldown = pulldown,
                                          .output_pulled_down = !pulldown}};
    Kiv::OutputGearing const gearing{rate(code), pulldown};
    EXPECT_DOUBLE_EQ(mPosn_Xlate_ClockToCel(4.0), cel);
    EXPECT_DOUBLE_EQ(mPosn_Xlate_ClockToCel(4.0, gearing), cel);
    EXPECT_DOUBLE_EQ(mPosn_Xlate(4.0, Medium_clock, Medium_cel), cel);
    EXPECT_DOUBLE_EQ(mPosn_Xlate_CelToClock(cel), 4.0);
    EXPECT_DOUBLE_EQ(mPosn_Xlate_CelToClock(cel, gearing), 4.0);
    EXPECT_DOUBLE_EQ(mPosn_Xlate(cel, Medium_cel, Medium_clock), 4.0);

    double velocity = 7.5;
    EXPECT_EQ(getTRSVelocityForCurrentUTR(velocity, Medium_film, pulldown, Transfer_24_to_25, rate(code % 5)), 0);
    EXPECT_EQ(velocity, 1.0);
  }
}

TEST(ClockCel, TurnsSamplesIntoCelTimeAndBack) {
  struct {
    double x, rounded;
  } const cases[] = {{2.99995, 3.0}, {2.9998, 2.0}, {-0.5, -1.0}, {-0.00005, 0.0}, {-2e18, -2e18}};
  for (auto const& c : cases) EXPECT_EQ(mround(c.x), c.rounded) << c.x;

  for (int const code : rate_codes) {
    refhost::project_guard const project{{.frame_rate = rate(code)}};
    double const fps = Kiv::getFramesPerSecond(rate(code));
    for (std::int64_t i = INT_MIN; i <= INT_MAX; i += 65'537) {  // INT_MAX is the last
      int const sample = static_cast<int>(i);
      expect_close(sampleNr_to_CelPosn(sample), sample / fps);
      ASSERT_EQ(celPosn_to_SampleNr(sampleNr_to_CelPosn(sample)), sample) << code;
    }
    for (double const beyond : {2147483648.0 / fps, -2147483650.0 / fps, 1e99, -1e99, HUGE_VAL, nan})
      EXPECT_EQ(celPosn_to_SampleNr(beyond), -100'000'000) << beyond << " at " << code;
  }
}

// transfer, sequence, video rate and medium, project rate, cel resolution, 1001, output rate, sound pulled down,
// film speed, output pulled down
using row = std::tuple<int, int, int, int, int, double, bool, int, bool, double, bool>;

row row_of(MPosn_Xlate_Params const& p) {
  EXPECT_TRUE(p.cookie == invalid_cookie && !p.reserved_flag && p.reserved == 0);
  return {p.transfer,          p.sequence,    p.video_rate,  p.video_medium,           p.project_rate,
          p.cel_resolution,    p.output_1001, p.output_rate, p.audio_sync_pulled_down, p.film_fps,
          p.output_pulled_down};
}

TEST(TranslationParams, ComeFromTheProject) {
  refhost::project_guard const project{{.frame_rate = Kiv::FrameRate_25,
                                        .film_speed = Kiv::FrameRate_48,
                                        .output_scan = Kiv::Image::ScanMode_interlaced_upper_first,
                                        .output_rate = Kiv::FrameRate_29_97,
                                        .gearing_rate = Kiv::FrameRate_50,
                                        .audio_sync_pulled_down = true,
                                        .output_pulled_down = true}};
  MPosn_Xlate_Params params{Kiv::OutputGearing{Kiv::FrameRate_50, false}};
  EXPECT_EQ(row_of(params), (row{3, 0, 0, 0, 3, 0.04, false, 8, true, 48.0, false}));
  params.initOutputFormat(Kiv::FrameRate_50, Kiv::FrameRate_23_976, false);
  EXPECT_EQ(row_of(params), (row{3, 0, 0, 0, 8, 0.02, true, 2, true, 48.0, false}));
  params.init_for_labelgroup(Transfer_2_3_pulldown, 4);
  EXPECT_EQ(row_of(params), (row{1, 4, 5, 24, 3, 0.04, true, 5, true, 48.0, true}));
  params.output_pulled_down = false;
  params.init_to_default_playout_generation();
  EXPECT_EQ(row_of(params), (row{1, 0, 5, 24, 3, 0.04, true, 5, true, 48.0, true}));

  params.cookie.low = 5;
  params.reserved_flag = true;
  params.reserved = 6;
  params.output_rate = Kiv::FrameRate_25;  // whose 1001 factor does not count any more
  params.init();
  EXPECT_EQ(row_of(params), (row{3, 0, 0, 0, 3, 0.04, true, 5, true, 48.0, true}));
  EXPECT_EQ(row_of({}), row_of(params));
}

TEST(TranslationParams, ConvertFilmAndVideoAsConfigured) {
  MPosn_Xlate_Params params;
  params.initOutputFormat(Kiv::FrameRate_60, Kiv::FrameRate_60, true);
  refhost::project_guard const project{{.frame_rate = Kiv::FrameRate_25}};
  params.sequence = 9;
  params.init_to_default_filmvid_conversion(Kiv::FrameRate_25);
  EXPECT_EQ(row_of(params), (row{3, 0, 3, 20, 3, 0.04, false, 9, false, 24.0, true}));
  refhost::config_guard const config{"default_film_video_conversion_pulldown", "1"};
  params.init_to_default_filmvid_conversion(Kiv::FrameRate_29_97);
  EXPECT_EQ(row_of(params), (row{7, 0, 5, 23, 3, 0.04, false, 9, false, 24.0, true}));
}

TEST(TranslationParams, MoveThePhaseOfThePulldown) {
  struct {
    int phase, delta, in_5, in_25;
  } const cases[] = {
      {4, 7, 1, 11},
      {0, -7, -2, -7},
      {-3, 1, -2, -2},
      {INT_MAX, INT_MAX, 4, 19},    // 4294967294
      {INT_MIN, INT_MIN, -1, -21},  // -4294967296
  };
  for (auto const& c : cases)
    for (int const transfer : {0, 1, 2, 3, 7})
      for (int const code : rate_codes) {
        SCOPED_TRACE(testing::Message() << c.phase << " + " << c.delta << ", " << transfer << " at " << code);
        MPosn_Xlate_Params params;
        params.transfer = transfer_type{transfer};
        params.video_rate = rate(code);
        params.sequence = c.phase;
        params.modify_sequence_to_playfile_std(c.delta);
        EXPECT_EQ(params.sequence, transfer != 7 ? c.phase : code == 3 || code == 8 ? c.in_25 : c.in_5);

        MPosn_Conversion_Params older;
        older.transfer = transfer_type{transfer};
        older.rate = rate(code);
        older.sequence = c.phase;
        older.modify_sequence_to_playfile_std(c.delta);
        EXPECT_EQ(older.sequence, c.phase);
        older.adjust_sequence = true;
        older.modify_sequence_to_playfile_std(c.delta);
        EXPECT_EQ(older.sequence, transfer == 2 ? c.in_25 : c.in_5);
      }
}

TEST(ConversionParams, ComeFromTheProject) {
  auto const expect = [](MPosn_Conversion_Params const& p, int transfer, bool convert, int pulldown_kind) {
    EXPECT_EQ(p.transfer, transfer);
    EXPECT_EQ(p.convert, convert);
    EXPECT_EQ(p.pulldown_kind, pulldown_kind);
    EXPECT_TRUE(!p.adjust_sequence && p.conversion_kind == 1 && p.sequence == 0 && p.rate == Kiv::FrameRate_25);
  };
  MPosn_Conversion_Params params;
  params.adjust_sequence = true;
  params.sequence = params.conversion_kind = 6;
  refhost::project_guard const project{{.frame_rate = Kiv::FrameRate_25}};
  params.init();
  expect(params, 3, true, 0);
  params.init_to_default_filmvid_conversion();
  expect(params, 3, true, 2);
  params.init_to_playout_generation();
  expect(params, 0, false, 2);
  params.init_to_default_filmvid_conversion();
  expect(params, 0, true, 1);
}

}  // namespace
