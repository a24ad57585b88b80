#include <cfenv>
#include <tuple>

#include "tests/testing.h"

namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
// Rates of the catalogue, and codes that are unknown or the host's own.
constexpr int rate_codes[] = {1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 35, 36, 37, 38,      39,
                              40, 41, 42, 43, 44, 45, 46, 47, 31, 34, 0,  -1, 11, INT_MAX, INT_MIN};

void expect_close(double value, double expected) {
  EXPECT_LE(std::abs(value - expected), 1e-12 * std::abs(expected)) << value << " for " << expected;
}

// Film runs 24 frames a second through a pulldown, else as many as the output; other material at nominal rates.
TEST(ClockCel, RunsAtTheSpeedOfFilmOrOfTheGearing) {
  // clang-format off
  // Clock and cel are those of 24 seconds of the other.
  struct { int project, output, pulldown, output_1001; double cel, clock; } const cases[] = {
      {1, 4, 0, 0, 30, 19.2},  {6, 9, 0, 0, 30, 19.2},  {31, 5, 0, 1, 30 / 1.001, 19.2 * 1.001},
      {1, 3, 0, 0, 25, 23.04}, {6, 8, 0, 0, 25, 23.04}, {34, 10, 0, 1, 30 / 1.001, 19.2 * 1.001},
      {1, 3, 1, 0, 24, 24},    {1, 6, 0, 0, 24, 24},    {1, 4, 1, 1, 24 / 1.001, 24 * 1.001},
      {3, 4, 0, 0, 24, 24},    {-1, 5, 0, 0, 24 / 1.001, 24 * 1.001}, {4, 5, 0, 1, 24 / 1.001, 24 * 1.001},
      {1, 8, 0, 1, 25 / 1.001, 23.04},                  {5, 4, 1, 0, 24 * 1.001, 24 / 1.001},
      {34, 3, 1, 1, 24 / 1.001, 24},  // deliberate: at 25 the factor is not put back
      {2, 4, 0, 0, 30, 24 / 1.001}, {7, 3, 0, 1, 25 / 1.001, 24 / 1.001},  // deliberate: film one way only
  };
  // clang-format on
  for (auto const& c : cases) {
    SCOPED_TRACE(testing::Message() << c.project << " to " << c.output << ' ' << c.pulldown << c.output_1001);
    MPosn_Xlate_Params params;
    params.initOutputFormat(Kiv::FrameRate{c.project}, Kiv::FrameRate{c.output}, c.pulldown != 0);
    params.output_1001 = c.output_1001 != 0;
    for (double const times : {1.0, 1.0 / 3, 1e12, -7.25, 0.0}) {
      expect_close(mPosn_Xlate_ClockToCel(24 * times, params), c.cel * times);
      expect_close(mPosn_Xlate_CelToClock(24 * times, params), c.clock * times);
    }
  }
}

// A host may trap floating-point errors. -1e99 is a number like any other.
TEST(ClockCel, RaisesNoFloatingPointError) {
  std::feclearexcept(FE_ALL_EXCEPT);
  for (int const project : rate_codes)
    for (int const output : rate_codes) {
      MPosn_Xlate_Params params;
      params.initOutputFormat(Kiv::FrameRate{project}, Kiv::FrameRate{output}, false);
      EXPECT_EQ(mPosn_Xlate_ClockToCel(1e99, params), 1e99);
      EXPECT_EQ(mPosn_Xlate_CelToClock(1e99, params), 1e99);
      expect_close(mPosn_Xlate_ClockToCel(-1e99, params), -1e99 * mPosn_Xlate_ClockToCel(1, params));
      expect_close(mPosn_Xlate_CelToClock(-1e99, params), -1e99 * mPosn_Xlate_CelToClock(1, params));
      EXPECT_TRUE(std::isnan(mPosn_Xlate_ClockToCel(nan, params)));
    }
  EXPECT_EQ(std::fetestexcept(FE_DIVBYZERO | FE_INVALID | FE_OVERFLOW), 0);
}

TEST(ClockCel, LeavesOtherMediaToTheHost) {
  MPosn_Xlate_Params params{Kiv::OutputGearing{Kiv::FrameRate_30, false}};
  for (int from = -1; from <= labelsbase::medium_count; ++from)
    for (int to = -1; to <= labelsbase::medium_count; ++to) {
      params.sequence = -1;
      double const posn = mPosn_Xlate(4.0, MediumRollMedium{from}, MediumRollMedium{to}, params);
      bool const known = (from == 7 && to == 12) || (from == 12 && to == 7);
      EXPECT_EQ(posn, !known ? 1e99 : from == 7 ? 5.0 : 3.2) << from << " to " << to;
      EXPECT_EQ(params.sequence, known ? 0 : -1) << from << " to " << to;
    }
}

TEST(ClockCel, TakesTheOutputGearingOfTheMoment) {
  for (auto const& [code, pulldown, cel] : {std::tuple{4, false, 5.0}, {4, true, 4.0}, {3, false, 25.0 / 6}}) {
    Kiv::OutputGearing const gearing{Kiv::FrameRate{code}, pulldown};
    // The picture's own rate and pulldown do not matter.
    // clang-format off
    refhost::project_guard const project{{.output_rate = Kiv::FrameRate_12, .gearing_rate = Kiv::FrameRate{code},
                                          .gearing_pulldown = pulldown, .output_pulled_down = !pulldown}};
    // clang-format on
    EXPECT_DOUBLE_EQ(mPosn_Xlate_ClockToCel(4.0), cel);
    EXPECT_DOUBLE_EQ(mPosn_Xlate_ClockToCel(4.0, gearing), cel);
    EXPECT_DOUBLE_EQ(mPosn_Xlate(4.0, Medium_clock, Medium_cel), cel);
    EXPECT_DOUBLE_EQ(mPosn_Xlate_CelToClock(cel), 4.0);
    EXPECT_DOUBLE_EQ(mPosn_Xlate_CelToClock(cel, gearing), 4.0);
  }
  double velocity = 7.5;
  EXPECT_EQ(getTRSVelocityForCurrentUTR(velocity, Medium_film, true, Transfer_24_to_25, Kiv::FrameRate{0}), 0);
  EXPECT_EQ(velocity, 1.0);
}

TEST(ClockCel, TurnsSamplesIntoCelTimeAndBack) {
  for (auto const& [x, rounded] :
       {std::pair{2.99995, 3.0}, {2.9998, 2.0}, {-0.5, -1.0}, {-0.00005, 0.0}, {-2e18, -2e18}})
    EXPECT_EQ(mround(x), rounded) << x;

  for (int const code : rate_codes) {
    refhost::project_guard const project{{.frame_rate = Kiv::FrameRate{code}}};
    double const fps = Kiv::getFramesPerSecond(Kiv::FrameRate{code});
    for (std::int64_t i = INT_MIN; i <= INT_MAX; i += 655'361) {
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
  // clang-format off
  refhost::project_guard const project{{.frame_rate = Kiv::FrameRate_25, .film_speed = Kiv::FrameRate_48,
                                        .output_scan = Kiv::Image::ScanMode_interlaced_upper_first,
                                        .output_rate = Kiv::FrameRate_29_97, .gearing_rate = Kiv::FrameRate_50,
                                        .audio_sync_pulled_down = true, .output_pulled_down = true}};
  // clang-format on
  MPosn_Xlate_Params params{Kiv::OutputGearing{Kiv::FrameRate_50, false}};
  EXPECT_EQ(row_of(params), (row{3, 0, 0, 0, 3, 0.04, false, 8, true, 48.0, false}));
  params.initOutputFormat(Kiv::FrameRate_50, Kiv::FrameRate_23_976, false);
  EXPECT_EQ(row_of(params), (row{3, 0, 0, 0, 8, 0.02, true, 2, true, 48.0, false}));

  params.sequence = 9;
  params.init_to_default_filmvid_conversion(Kiv::FrameRate_25);
  EXPECT_EQ(row_of(params), (row{3, 0, 3, 20, 3, 0.04, true, 2, true, 48.0, false}));
  refhost::config_guard const config{"default_film_video_conversion_pulldown", "1"};
  params.init_to_default_filmvid_conversion(Kiv::FrameRate_29_97);
  EXPECT_EQ(row_of(params), (row{7, 0, 5, 23, 3, 0.04, true, 2, true, 48.0, false}));

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

TEST(TranslationParams, MoveThePhaseOfThePulldown) {
  // clang-format off
  struct { int transfer, rate, phase, delta, moved, older_moved; } const cases[] = {
      {7, 5, 4, 7, 1, 1},      {7, 3, 4, 7, 11, 1}, {7, 8, 0, -7, -7, -2}, {7, 9, 0, -7, -2, -2},
      {7, 0, -3, 1, -2, -2},   {0, 3, 4, 7, 4, 1},  {2, 5, 4, 7, 4, 11},   {1, 3, 4, 7, 4, 1}, {3, 8, 0, 30, 0, 0},
      {7, 5, INT_MAX, INT_MAX, 4, 4},         {2, 3, INT_MAX, INT_MAX, INT_MAX, 19},  // 4294967294
      {7, 3, INT_MIN, INT_MIN, -21, -1},      // -4294967296
  };
  // clang-format on
  for (auto const& c : cases) {
    MPosn_Xlate_Params params;
    MPosn_Conversion_Params older;
    params.transfer = older.transfer = transfer_type{c.transfer};
    params.video_rate = older.rate = Kiv::FrameRate{c.rate};
    params.sequence = older.sequence = c.phase;
    params.modify_sequence_to_playfile_std(c.delta);
    older.modify_sequence_to_playfile_std(c.delta);
    EXPECT_EQ(std::pair(params.sequence, older.sequence), std::pair(c.moved, c.phase)) << c.transfer << c.rate;
    older.adjust_sequence = true;
    older.modify_sequence_to_playfile_std(c.delta);
    EXPECT_EQ(older.sequence, c.older_moved) << c.transfer << c.rate;
  }
}

TEST(ConversionParams, ComeFromTheProject) {
  auto const expect = [](MPosn_Conversion_Params const& p, int transfer, bool convert, int pulldown_kind) {
    EXPECT_EQ(std::tuple(p.transfer, p.convert, p.pulldown_kind), std::tuple(transfer, convert, pulldown_kind));
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
