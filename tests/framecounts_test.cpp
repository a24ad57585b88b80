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
    while (film < 300) {
      for (int position = 0; position < c.film_cycle; ++position) {
        if (position == 0 && phase == c.film_cycle) film_of_video[video++] = film;  // added before the first
        video_of_film[film] = video;
        film_of_video[video++] = film++;
        if (position == phase) film_of_video[video++] = film;  // added: counts as the frame after it
      }
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
  // clang-format off
  struct { transfer_type transfer; int film, phase, last_phase, status, video; } const cases[] = {
      {Transfer_one_to_one, INT_MAX, 9, 4, 1, INT_MAX}, {Transfer_2_3_pulldown, 2, 0, -1, 1, 3},
      {Transfer_2_3_pulldown, 2, 0, 4, 1, 2},  // the frame before was left at the end of its cycle
      {Transfer_2_3_pulldown, 4, -9, -1, 1, 5},  // phases that no cycle has
      {Transfer_2_3_pulldown, 1, -1, -1, 1, 2},       {Transfer_2_3_pulldown, 3, INT_MAX, -1, 2, 3},
      {Transfer_2_3_pulldown, INT_MIN, 0, -1, 0, 99}, {Transfer_24_to_25, INT_MAX, 0, -1, 0, 99},
  };
  // clang-format on
  for (auto const& c : cases) {
    int video = 99;
    EXPECT_EQ(film_frames_to_video_frames(c.film, &video, c.phase, c.last_phase, c.transfer), c.status) << c.film;
    EXPECT_EQ(video, c.video) << c.film;
  }

  int video = 0, film = 99, phase = 99;  // labels have no frame before
  char text[] = "00000000";
  EXPECT_EQ(filmtc_to_video_frames(&video, text, 4, Transfer_2_3_pulldown) * video, 4);
  EXPECT_EQ(keycode_to_video_frames(&video, text, 0, nullptr, 4, Label_keycode_frames, Transfer_2_3_pulldown, 16),
            2);
  EXPECT_EQ(video, 2);
  EXPECT_EQ(video_frames_to_film_frames(10, &film, 0, nullptr, Transfer_none) * film, 10);
  EXPECT_EQ(video_frames_to_film_frames(5, &film, -9, &phase, Transfer_2_3_pulldown) * film, 3);
  EXPECT_EQ(phase, -8);
  EXPECT_EQ(video_frames_to_film_frames(6, &film, 0, nullptr, Transfer_2_3_pulldown), 0);
  EXPECT_EQ(video_frames_to_film_frames(6, nullptr, 0, &phase, Transfer_2_3_pulldown), 0);
  EXPECT_EQ(film_frames_to_video_frames(5, nullptr, 0, 0, Transfer_none), 0);
  EXPECT_EQ(film - phase, 3 + 8);
}

TEST(PlusFrames, MovesThePhaseRoundTheCycle) {
  for (auto const& c : cadences) {
    for (int start = 0; start <= c.film_cycle; ++start) {
      int film_phase = start == c.film_cycle ? c.film_cycle - 1 : start;  // film has no phase N
      int video_phase = start;
      for (int n = 0; n < 60; ++n) {
        for (int frames : {n, n - 600}) {  // 600: whole cycles
          int film = 0, video = 0, phase = -1;
          ASSERT_EQ(film_frames_plus_frames(7, start, frames, &film, &phase, c.transfer), 1);
          ASSERT_EQ(film, 7 + frames);
          ASSERT_EQ(phase, film_phase) << start << " + " << frames;
          ASSERT_EQ(video_frames_plus_frames(7, start, frames, &video, &phase, c.transfer), 1);
          ASSERT_EQ(video, 7 + frames);
          ASSERT_EQ(phase, video_phase) << start << " + " << frames;
        }
        film_phase = film_phase == c.film_cycle - 1 ? 0 : film_phase + 1;
        video_phase = video_phase == c.film_cycle ? 0 : video_phase + 1;
      }
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

TEST(CountText, TimecodeOfEveryRate) {
  std::mt19937 random{11};
  constexpr std::pair<label_type, int> rates[] = {{Label_timecode_24, 24}, {Label_timecode_25, 25},
                                                  {Label_timecode_30, 30}, {Label_timecode_48, 48},
                                                  {Label_timecode_50, 50}, {Label_timecode_60, 60}};
  for (auto const& [label, fps] : rates) {
    int const day = fps * 86'400;
    for (int i = 0; i < 3'000; ++i) {
      int const anywhere = static_cast<int>(random() % 6'000'000) * (i % 9 ? 1 : 357) - day - 5;
      int const video = i == 0 ? 124 * fps * 3600 + 1 : anywhere;  // the first that needs a ninth digit
      int const x = video - 1 < 0 ? video - 1 + day : video - 1 >= day ? video - 1 - day : video - 1;
      char expected[48], text[9] = "before!!";
      int const length = std::snprintf(expected, sizeof expected, "%.2d%.2d%.2d%.2d", x / (fps * 3600),
                                       x / (fps * 60) % 60, x / fps % 60, x % fps);
      ASSERT_EQ(video_frames_to_timecode(video, text, label, fps != 30), length == 8) << video;
      ASSERT_STREQ(text, length == 8 ? expected : "before!!");
      if (fps == 24) {
        char film_text[9] = "before!!";
        ASSERT_EQ(film_frames_to_filmtc(video, film_text), length == 8);
        ASSERT_STREQ(film_text, text);
      }
      int frame = 99;
      ASSERT_EQ(timecode_to_video_frames(&frame, expected, label, 0), fps != 24);
      if (length == 8) {
        ASSERT_EQ(frame, fps == 24 ? 99 : x + 1);
      }
    }
  }
}

TEST(CountText, TimecodeIsReadTolerantly) {
  std::tuple<label_type, int, char const*, int> const cases[] = {
      {Label_timecode_30, 1, "00010000", 1799},  // does not exist: as 00005928
      {Label_timecode_30, 1, "00-90000", 1 - 9 * 1798},
      {Label_timecode_25, 1, "00010000", 1501},
      {Label_timecode_48_c, 0, "0000010", 49},
      {Label_timecode_60, 0, "", 1}};
  for (auto const& [label, drop, digits, expected] : cases) {
    std::string text = digits;
    int frame = 0;
    EXPECT_EQ(timecode_to_video_frames(&frame, text.data(), label, drop), 1);
    EXPECT_EQ(frame, expected) << text;
    EXPECT_EQ(text, digits);
  }
  int frame = 0;
  EXPECT_EQ(filmtc_to_film_frames(&frame, nullptr) * frame, 1);
}

// Keys of 21, 21 and 22 frames, one after the other.
TEST(KeyText, ThreePerfAgreesWithCountingFrames) {
  for (int first_phase = 1; first_phase <= 3; ++first_phase) {
    int film = 1, phase = first_phase;
    for (int key = 0; key < 300; ++key) {
      for (int frame = 0; frame < (phase == 3 ? 22 : 21); ++frame, ++film) {
        char text[9], expected[32];
        std::snprintf(expected, sizeof expected, "%06d%02d", key, frame);
        int written_phase = 0, read_phase = 0, read = 0;
        ASSERT_EQ(film_frames_to_keycode(film, text, first_phase, &written_phase, Label_keycode_3perf, 0, 0x3C),
                  1);
        ASSERT_STREQ(text, expected) << first_phase;
        ASSERT_EQ(written_phase, phase);
        ASSERT_EQ(keycode_to_film_frames(&read, text, phase, &read_phase, Label_keycode_3perf, 0), 1);
        ASSERT_EQ(read, film) << text;
        ASSERT_EQ(read_phase, first_phase);
      }
      phase = phase == 3 ? 1 : phase + 1;
    }
  }
}

TEST(KeyText, IsRead) {
  // clang-format off
  struct { label_type label; char const* text; int per_key, status, film; char const* text_after; } const cases[] = {
      {Label_keycode_perfs, "000108", 64, 1, 19, "000108"}, {Label_keycode_frames, "12", 16, 1, 193, "12"},
      {Label_keycode_frames, "x", 16, 1, 1, "x"},           {Label_keycode_frames, "1 3407", 0, 0, 99, "1 3407"},
      {Label_keycode_frames, "123407", 16, 1, 19'752, "123407"},
      {Label_keycode_frames, "1234507", 16, 1, 197'528, "1234507"},
      {Label_keycode_frames_c, "12345607", 20, 1, 2'469'128, "12345607"},
      {Label_keycode_frames, "  12 7", 16, 1, 200, "001207"},
      {Label_keycode_frames, "         9", 16, 1, 1, "00000000 9"},
      {Label_keycode_frames, "\t1234 7", 16, 1, 197'448, "\t123407"},
      {Label_keycode_frames, "99999999", INT_MAX, 0, 99, "99999999"},
  };
  // clang-format on
  for (auto const& c : cases) {
    std::string text = c.text;
    int film = 99, phase = 99;
    EXPECT_EQ(keycode_to_film_frames(&film, text.data(), 0, &phase, c.label, c.per_key), c.status) << c.text;
    EXPECT_EQ(film, c.film) << c.text;
    EXPECT_EQ(text, c.text_after);
    EXPECT_EQ(phase, 99);
  }
}

TEST(KeyText, IsWritten) {
  constexpr auto frames = Label_keycode_frames, three_perf = Label_keycode_3perf;
  // clang-format off
  struct { label_type label; int film, phase, per_key, digits, status; char const* text; } const cases[] = {
      {frames, 19'752, 0, 16, 0x3C, 1, "00123407"},    {Label_keycode_perfs, 19, 0, 64, 0x3C, 1, "00000108"},
      {frames, 160'001, 0, 16, 0x3C, 1, "00000000"},   {frames, 160'001, 0, 16, 0x7C, 1, "01000000"},
      {frames, 0, 0, 16, 0xBF, 1, "00999915"},
      {frames, 17, 0, 16, 0xF8, 1, "00000000"},  // one key, without bit 2
      {frames, -170'000, 0, 16, 0x3C, 0, "before!!"},  {frames, 101, 0, 120, 0xFC, 0, "before!!"},
      {frames, INT_MAX, 0, 16, 0xFC, 0, "before!!"},   {frames, 1, 0, 0, 0xFC, 0, "before!!"},
      {frames, 9, 0, -16, 0xFC, 0, "before!!"},        {frames, INT_MIN, 0, INT_MIN, 0xFC, 0, "before!!"},
      {three_perf, 0, 1, 0, 0x3C, 1, "00999920"},      {three_perf, 0, 3, 0, 0x3C, 1, "00999921"},
  };
  // clang-format on
  for (auto const& c : cases) {
    char text[] = "before!!";
    int phase = 99;
    auto const digits = static_cast<unsigned char>(c.digits);
    EXPECT_EQ(film_frames_to_keycode(c.film, text, c.phase, &phase, c.label, c.per_key, digits), c.status);
    EXPECT_STREQ(text, c.text) << c.film;
  }
}

// A label, transfer or null pointer that is refused leaves the outputs alone. The functions across a pulldown are
// made of these.
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
      EXPECT_EQ(status != 0, expected) << call << ' ' << value;
      EXPECT_EQ(frame == 99 && phase == 99 && !std::strcmp(text, "before!!"), !expected) << call << ' ' << value;
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
    CHECK(film_frames_plus_frames(5, 0, 1, &frame, &phase, transfer), is_transfer);
    CHECK(filmtc_to_video_frames(&frame, in, 0, transfer), is_transfer);
    CHECK(video_frames_to_filmtc(5, text, 0, transfer), is_transfer);
    CHECK(timecode_to_film_frames(&frame, in, 0, &phase, Label_timecode_30, 1, transfer), is_transfer);
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
    CHECK(film_frames_to_filmtc(5, nullptr), false);
#undef CHECK
  }
}

}  // namespace
