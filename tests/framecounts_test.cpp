// Film and video frames across a pulldown, and their texts.

#include <tuple>

#include "tests/testing.h"

namespace {

struct cadence {
  transfer_type transfer;
  int film_cycle, video_cycle;
};
constexpr cadence cadences[] = {{Transfer_2_3_pulldown, 4, 5}, {Transfer_24_to_25, 24, 25}};

// The cadence laid out frame by frame, from well before frame -200 to well after 200.
struct laid_out {
  std::map<int, int> video_of_film, film_of_video;

  laid_out(cadence const& c, int phase) {
    int film = 1 - 10 * 24, video = 1 - 10 * 24 / c.film_cycle * c.video_cycle;  // a cycle starts there
    while (film < 300)
      for (int position = 0; position < c.film_cycle; ++position) {
        if (position == 0 && phase == c.film_cycle) film_of_video[video++] = film;  // added before the first
        video_of_film[film] = video;
        film_of_video[video++] = film++;
        if (position == phase) film_of_video[video++] = film;  // added: counts as the frame after it
      }
  }
};

TEST(Pulldown, IsTheCadenceLaidOutFrameByFrame) {
  for (auto const& c : cadences) {
    std::vector<laid_out> by_phase;
    for (int phase = 0; phase <= c.film_cycle; ++phase) by_phase.emplace_back(c, phase);
    for (int phase = 0; phase <= c.film_cycle; ++phase) {
      auto const& expected = by_phase[static_cast<std::size_t>(phase)];
      for (int frame = -200; frame <= 200; ++frame) {
        int video = 0, film = 0, phase_here = 0;
        ASSERT_EQ(film_frames_to_video_frames(frame, &video, phase, -1, c.transfer),
                  phase < c.film_cycle - 1 ? 1 : 2);
        ASSERT_EQ(video, expected.video_of_film.at(frame)) << "film " << frame << " phase " << phase;
        ASSERT_EQ(video_frames_to_film_frames(frame, &film, phase, &phase_here, c.transfer), 1);
        ASSERT_EQ(film, expected.film_of_video.at(frame)) << "video " << frame << " phase " << phase;

        // A cycle of the phase found, started here, adds its frames where this one does.
        auto const& rest = by_phase.at(static_cast<std::size_t>(phase_here));
        for (int ahead = 1; ahead <= c.video_cycle; ++ahead)
          ASSERT_EQ(rest.film_of_video.at(1 + ahead) - rest.film_of_video.at(1 + ahead - 1),
                    expected.film_of_video.at(frame + ahead) - expected.film_of_video.at(frame + ahead - 1));
      }
    }
  }
}

TEST(Pulldown, FilmToVideoAndBack) {
  constexpr auto to_30 = Transfer_2_3_pulldown;
  // clang-format off
  struct { transfer_type transfer; int film, phase, last_phase, status, video; } const cases[] = {
      {Transfer_one_to_one, INT_MAX, 9, 4, 1, INT_MAX}, {Transfer_24_to_25, INT_MAX, 0, -1, 0, 99},
      {to_30, INT_MIN, 0, -1, 0, 99}, {to_30, 2, 0, -1, 1, 3},
      {to_30, 2, 0, 4, 1, 2},  // the frame before was left at the end of its cycle
      {to_30, 4, -9, -1, 1, 5}, {to_30, 1, -1, -1, 1, 2}, {to_30, 3, INT_MAX, -1, 2, 3},  // phases that no cycle has
  };
  // clang-format on
  for (auto const& c : cases) {
    int video = 99;
    EXPECT_EQ(film_frames_to_video_frames(c.film, &video, c.phase, c.last_phase, c.transfer), c.status) << c.film;
    EXPECT_EQ(video, c.video) << c.film;
  }

  int video = 0, film = 99, phase = 99;  // labels have no frame before
  char text[] = "00000000";
  EXPECT_EQ(filmtc_to_video_frames(&video, text, 4, to_30) * video, 4);
  EXPECT_EQ(keycode_to_video_frames(&video, text, 0, nullptr, 4, Label_keycode_frames, to_30, 16) * video, 4);
  EXPECT_EQ(video_frames_to_film_frames(10, &film, 0, nullptr, Transfer_none) * film, 10);
  EXPECT_EQ(video_frames_to_film_frames(5, &film, -9, &phase, to_30) * film, 3);
  EXPECT_EQ(video_frames_to_film_frames(6, nullptr, 0, &phase, to_30), 0);
  EXPECT_EQ(phase, -8);
}

TEST(PlusFrames, MovesThePhaseRoundTheCycle) {
  for (auto const& c : cadences)
    for (bool const is_film : {true, false}) {
      auto* const plus = is_film ? film_frames_plus_frames : video_frames_plus_frames;
      int const last = is_film ? c.film_cycle - 1 : c.film_cycle;  // film has no phase N
      for (int start = 0; start <= c.film_cycle; ++start)
        for (int frames = -600; frames < 60; ++frames) {  // 600: whole cycles
          int sum = 0, phase = -1;
          ASSERT_EQ(plus(7, start, frames, &sum, &phase, c.transfer), 1);
          ASSERT_EQ(sum, 7 + frames);
          ASSERT_EQ(phase, (std::min(start, last) + frames + 600) % (last + 1)) << start << " + " << frames;
        }
    }

  int sum = 99, phase = 99;
  EXPECT_EQ(film_frames_plus_frames(INT_MAX, 0, 1, &sum, &phase, Transfer_none), 0);
  EXPECT_EQ(video_frames_plus_frames(INT_MIN, 0, -1, &sum, &phase, Transfer_24_to_25), 0);
  EXPECT_EQ(video_frames_plus_frames(1, 0, 1, &sum, nullptr, Transfer_24_to_25), 0);
  EXPECT_EQ(sum, 99);
  for (auto transfer : {Transfer_none, Transfer_one_to_one, Transfer_project_rate, transfer_type{-5}})
    EXPECT_EQ(video_frames_plus_frames(40, 3, 2, &sum, &phase, transfer) * sum, 42);
  EXPECT_EQ(phase, 99);
}

TEST(CountText, TimecodeMovesIntoItsDayOnce) {
  constexpr auto pal = Label_timecode_25, ntsc = Label_timecode_30;  // 2,160,000 and 2,589,408 frames a day
  constexpr auto refused = "before!!";
  // clang-format off
  std::tuple<label_type, int, int, char const*> const cases[] = {
      {pal, 1, 1, "00000000"}, {pal, 0, 90'001, "01000000"}, {pal, 1, 2'160'000, "23595924"}, {pal, 0, 0, "23595924"},
      {pal, 0, -2'159'999, "00000000"}, {pal, 0, -2'160'000, refused},    {pal, 0, 2'160'001, "00000000"},
      {pal, 0, 4'320'001, "24000000"},  {pal, 0, 11'160'000, "99595924"}, {pal, 0, 11'160'001, refused},
      {ntsc, 1, 1801, "00010002"},      {ntsc, 1, 0, "23595929"},         {ntsc, 1, 2'589'409, "00000000"},
      {ntsc, 1, 13'378'608, "99595929"}, {ntsc, 1, 13'378'609, refused},  {ntsc, 0, 1801, "00010000"},
      {pal, 0, INT_MIN, refused},       {pal, 0, INT_MAX, refused},       {Label_timecode_60, 1, 3601, "00010000"},
  };
  // clang-format on
  for (auto const& [label, drop, video, expected] : cases) {
    char text[] = "before!!";
    EXPECT_EQ(video_frames_to_timecode(video, text, label, drop), expected != refused) << video;
    EXPECT_STREQ(text, expected) << video;
  }
}

TEST(CountText, TimecodeIsReadTolerantly) {
  std::tuple<label_type, char const*, int> const cases[] = {
      {Label_timecode_30, "00010002", 1801},
      {Label_timecode_30, "00010000", 1799},  // does not exist: as 00005928
      {Label_timecode_30, "00-90000", 1 - 9 * 1798},
      {Label_timecode_25, "00010000", 1501}};
  for (auto const& [label, digits, expected] : cases) {
    std::string text = digits;
    int frame = 0;
    EXPECT_EQ(timecode_to_video_frames(&frame, text.data(), label, 1) * frame, expected) << digits;
    EXPECT_EQ(text, digits);
  }
  int frame = 0;
  EXPECT_EQ(filmtc_to_film_frames(&frame, nullptr) * frame, 1);
}

// Keys of 21, 21 and 22 frames, one after the other.
TEST(KeyText, ThreePerfAgreesWithCountingFrames) {
  for (int first_phase = 1; first_phase <= 3; ++first_phase)
    for (int film = 1, phase = first_phase, key = 0; key < 300; ++key, phase = phase % 3 + 1)
      for (int frame = 0; frame < (phase == 3 ? 22 : 21); ++frame, ++film) {
        char text[9], expected[32];
        std::snprintf(expected, sizeof expected, "%06d%02d", key, frame);
        int written = 0, read_phase = 0, read = 0;
        ASSERT_EQ(film_frames_to_keycode(film, text, first_phase, &written, Label_keycode_3perf, 0, 0x3C), 1);
        ASSERT_STREQ(text, expected) << first_phase;
        ASSERT_EQ(written, phase);
        ASSERT_EQ(keycode_to_film_frames(&read, text, phase, &read_phase, Label_keycode_3perf, 0), 1);
        ASSERT_EQ(std::pair(read, read_phase), std::pair(film, first_phase)) << text;
      }
}

TEST(KeyText, IsRead) {
  constexpr auto frames = Label_keycode_frames;
  // clang-format off
  struct { label_type label; char const* text; int per_key, status, film; char const* text_after; } const cases[] = {
      {Label_keycode_perfs, "000108", 64, 1, 19, "000108"},   {frames, "1 3407", 0, 0, 99, "1 3407"},
      {frames, "1234507", 16, 1, 197'528, "1234507"},         {frames, "         9", 16, 1, 1, "00000000 9"},
      {Label_keycode_frames_c, "12345607", 20, 1, 2'469'128, "12345607"},
      {frames, "99999999", INT_MAX, 0, 99, "99999999"},       {frames, "\t1234 7", 16, 1, 197'448, "\t123407"},
      {frames, "123456789", 16, 1, 19'801, "123456789"},      {frames, "12345", 16, 1, 19'750, "12345"},
  };
  // clang-format on
  for (auto const& c : cases) {
    std::string text = c.text;
    int film = 99, phase = 99;
    EXPECT_EQ(keycode_to_film_frames(&film, text.data(), 0, &phase, c.label, c.per_key), c.status) << c.text;
    EXPECT_EQ(std::tuple(film, text, phase), std::tuple(c.film, c.text_after, 99));
  }
}

TEST(KeyText, IsWritten) {
  constexpr auto frames = Label_keycode_frames, three_perf = Label_keycode_3perf;
  constexpr auto refused = "before!!";
  // clang-format off
  struct { label_type label; int film, phase, per_key; unsigned char digits; char const* text; } const cases[] = {
      {frames, 19'752, 0, 16, 0x3C, "00123407"}, {Label_keycode_perfs, 19, 0, 64, 0x3C, "00000108"},
      {frames, 160'001, 0, 16, 0x3C, "00000000"}, {frames, 160'001, 0, 16, 0x7C, "01000000"},
      {frames, 17, 0, 16, 0xF8, "00000000"},  // one key, without bit 2
      {frames, 0, 0, 16, 0xBF, "00999915"}, {frames, -170'000, 0, 16, 0x3C, refused},
      {frames, INT_MAX, 0, 16, 0xFC, refused}, {frames, 101, 0, 120, 0xFC, refused},
      {three_perf, 0, 1, 0, 0x3C, "00999920"}, {three_perf, 0, 3, 0, 0x3C, "00999921"},
  };
  // clang-format on
  for (auto const& c : cases) {
    char text[] = "before!!";
    int phase = 99, status = film_frames_to_keycode(c.film, text, c.phase, &phase, c.label, c.per_key, c.digits);
    EXPECT_EQ(status, c.text != refused) << c.film;
    EXPECT_STREQ(text, c.text) << c.film;
  }
}

// A label, transfer or null pointer that is refused leaves the outputs alone.
TEST(FrameCounts, RefuseWhatIsNotTheirs) {
  std::set<int> const timecode{1, 3, 22, 25, 42, 2, 5, 7, 21, 36, 39, 37, 40, 38, 41, 43}, film_timecode{4, 6, 34};
  for (int value = -5; value <= 60; ++value) {
    label_type const label{value};
    transfer_type const transfer{value};
    bool const is_timecode = timecode.contains(value), is_key = std::set{8, 9, 11, 12, 26, 27}.contains(value);
    bool const is_transfer = value >= 0 && value <= 3, is_phase = value >= 1 && value <= 3;
    int frame = 99, phase = 99;
    char text[] = "before!!", in[] = " 1 2 3 4";

    // After each call: whether it answered as it should, with outputs to match.
    auto const check = [&](int status, bool expected, char const* call) {
      bool const untouched = frame == 99 && phase == 99 && !std::strcmp(text, "before!!");
      EXPECT_TRUE((status != 0) == expected && untouched == !expected) << call << ' ' << value;
      frame = phase = 99;
      std::strcpy(text, "before!!");
      std::strcpy(in, " 1 2 3 4");
    };
#define CHECK(call, expected) check(call, expected, #call)
    CHECK(timecode_to_video_frames(&frame, in, label, 1), is_timecode);
    CHECK(video_frames_to_timecode(5, text, label, 1), is_timecode || film_timecode.contains(value));
    CHECK(keycode_to_film_frames(&frame, in, 1, &phase, label, 16), is_key);
    CHECK(film_frames_to_keycode(5, text, 1, &phase, label, 16, 0x3C), is_key);
    CHECK(film_frames_to_video_frames(5, &frame, 0, -1, transfer), is_transfer);
    CHECK(video_frames_to_film_frames(5, &frame, 0, &phase, transfer), is_transfer);
    CHECK(video_frames_to_filmtc(5, text, 0, transfer), is_transfer);
    CHECK(film_frames_to_timecode(5, text, 0, -1, Label_timecode_30, 1, transfer), is_transfer);
    CHECK(keycode_to_video_frames(&frame, in, 1, &phase, 0, Label_keycode_3perf, transfer, 16), is_transfer);
    CHECK(video_frames_to_keycode(5, text, 1, &phase, 0, Label_keycode_3perf, transfer, 16, 0x3C), is_transfer);
    CHECK(keycode_to_film_frames(nullptr, in, 1, &phase, Label_keycode_frames, 16), false);
    CHECK(film_frames_to_keycode(5, nullptr, 1, &phase, Label_keycode_frames, 16, 0x3C), false);
    CHECK(keycode_to_film_frames(&frame, in, 1, nullptr, Label_keycode_3perf, 16), false);
    CHECK(film_frames_to_keycode(5, text, 1, nullptr, Label_keycode_3perf, 16, 0x3C), false);
    CHECK(keycode_to_film_frames(&frame, in, value, &phase, Label_keycode_3perf, 16), is_phase);
    CHECK(keycode_to_film_frames(&frame, in, 1, &phase, Label_keycode_frames, value), value > 0);
    CHECK(film_frames_to_keycode(0, text, 1, &phase, Label_keycode_frames, value, 0x3C), value > 0);
    CHECK(timecode_to_video_frames(nullptr, in, Label_timecode_25, 0), false);
    CHECK(video_frames_to_timecode(5, nullptr, Label_timecode_25, 0), false);
    CHECK(filmtc_to_film_frames(nullptr, in), false);
#undef CHECK
  }
}

}  // namespace
