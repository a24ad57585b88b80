// Any label text as a frame number and back, and moved on.

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <limits>
#include <ostream>
#include <random>
#include <set>
#include <string>

#include "labelsbase/framecounts.h"

namespace {

// Phases and the rest, other than each other.
constexpr int phase = 2, last_phase = 4, key_phase = 3, per_key = 16, drop = 1;
constexpr unsigned char digits = 0x3C;
constexpr auto transfer = Transfer_2_3_pulldown;

struct outcome {
  int status = 0, frames = 99, phase = 99, key_phase = 99;
  std::string text = "before!!";
  bool operator==(outcome const&) const = default;
};

std::ostream& operator<<(std::ostream& out, outcome const& o) {
  return out << o.status << ' ' << o.frames << ' ' << o.phase << ' ' << o.key_phase << ' ' << o.text;
}

TEST(LabelStrings, AskTheFunctionOfTheirClassAndEdit) {
  std::set<int> const timecode{1, 2, 3, 5, 7, 21, 22, 25, 36, 37, 39, 40, 42}, film_timecode{4, 6, 34, 38, 41, 43},
      keycode{8, 11, 26, 27};
  std::string in = "00021612";
  for (int number = -5; number <= 60; ++number) {
    for (int edit_number = -5; edit_number <= 60; ++edit_number) {
      auto const label = static_cast<label_type>(number);
      auto const edit = static_cast<edit_type>(edit_number);
      bool const film = edit == Edit_film, known = film || edit == Edit_video;
      outcome read, expected_read{.phase = -1}, written, expected, moved;
      auto& [status, frames, phase_out, key_out, text] = expected_read;
      if (known && timecode.contains(number)) {
        status = film ? timecode_to_film_frames(&frames, in.data(), phase, &phase_out, label, drop, transfer)
                      : timecode_to_video_frames(&frames, in.data(), label, drop);
        expected.status =
            film ? film_frames_to_timecode(4711, expected.text.data(), phase, last_phase, label, drop, transfer)
                 : video_frames_to_timecode(4711, expected.text.data(), label, drop);
      } else if (known && film_timecode.contains(number)) {
        status = film ? filmtc_to_film_frames(&frames, in.data())
                      : filmtc_to_video_frames(&frames, in.data(), phase, transfer);
        expected.status = film ? film_frames_to_filmtc(4711, expected.text.data())
                               : video_frames_to_filmtc(4711, expected.text.data(), phase, transfer);
      } else if (known && keycode.contains(number)) {
        status = film ? keycode_to_film_frames(&frames, in.data(), key_phase, &key_out, label, per_key)
                      : keycode_to_video_frames(&frames, in.data(), key_phase, &key_out, phase, label, transfer,
                                                per_key);
        expected.status = film
                              ? film_frames_to_keycode(4711, expected.text.data(), key_phase, &expected.key_phase,
                                                       label, per_key, digits)
                              : video_frames_to_keycode(4711, expected.text.data(), key_phase, &expected.key_phase,
                                                        phase, label, transfer, per_key, digits);
      }
      read.status = label_to_frames(in.data(), key_phase, &read.key_phase, phase, &read.phase, &read.frames, label,
                                    drop, transfer, edit, per_key);
      ASSERT_EQ(read, expected_read) << number << ' ' << edit;
      written.status = frames_to_label(written.text.data(), key_phase, &written.key_phase, phase, last_phase, 4711,
                                       label, drop, transfer, edit, per_key, digits);
      ASSERT_EQ(written, expected) << number << ' ' << edit;
      moved.status = label_plus_time(moved.text.data(), &moved.key_phase, &moved.phase, in.data(), key_phase,
                                     phase, 1.0, label, drop, per_key, Material_25, transfer, edit, digits);
      ASSERT_EQ(moved == outcome{}, status == 0) << number << ' ' << edit;
      if (known) continue;
      moved.status = frames_plus_frames(1, phase, 1, &moved.frames, &moved.phase, transfer, edit);
      ASSERT_EQ(moved, outcome{});
    }
  }
  int frames = 99, out = 99;
  EXPECT_EQ(
      label_to_frames(in.data(), 1, &out, 0, nullptr, &frames, Label_timecode_25, 0, transfer, Edit_video, 1), 0);
  EXPECT_EQ(label_to_frames(in.data(), 1, &out, 0, &out, nullptr, Label_timecode_25, 0, transfer, Edit_video, 1),
            0);
  EXPECT_EQ(out, -1);
}

TEST(LabelStrings, MoveOnByFrames) {
  struct {
    int label, transfer, edit;
    char const* text;
    int key_phase, phase, count, status;
    char const* text_out;
    int key_phase_out, phase_out;
  } const cases[] = {
      {1, 0, 1, "00005929", 7, 3, 1, 1, "00010002", 7, 3},  // without pulldown, phases pass
      {1, 7, 1, "00005929", 7, 3, 1, 1, "00010002", 7, 3},  // and an unknown transfer only adds
      {1, 1, 0, "00000000", 7, 4, 4, 2, "00000004", 7, 3},  // found phase 4: the added frame was counted
      {1, 7, 0, "00000000", 7, 0, 1, 0, "before!!", 99, 99},
      {2, 3, 1, "00000000", 7, 3, -1, 1, "23595924", 7, 3},
      {4, 2, 1, "00000100", 7, 0, 25, 1, "00000200", 7, 0},
      {8, 0, 0, " 1 2 3 4", 7, 3, 12, 1, "00020400", 7, 3},  // past key 9999: once round
      {26, 0, 0, "00000020", 3, 5, 2, 1, "00000100", 1, 5},
      {26, 1, 0, "00000221", 3, 0, 1, 1, "00000300", 1, 1},
      {26, 0, 0, "00000020", 0, 5, 2, 0, "before!!", 99, 99},
      {8, 0, 0, "00000000", 7, 3, INT_MAX, 0, "before!!", 99, 99},    // no such frame
      {8, 0, 0, "00000000", 7, 3, 99'999'999, 0, "before!!", 99, 3},  // no such label: the phase was out already
  };
  for (auto const& c : cases) {
    std::string in = c.text;
    char text[] = "before!!";
    int key_out = 99, phase_out = 99;
    EXPECT_EQ(label_plus_frames(text, &key_out, &phase_out, in.data(), c.key_phase, c.phase, c.count,
                                static_cast<label_type>(c.label), drop, per_key, digits,
                                static_cast<transfer_type>(c.transfer), static_cast<edit_type>(c.edit)),
              c.status)
        << c.label << ' ' << c.text;
    EXPECT_STREQ(text, c.text_out) << c.label << ' ' << c.text;
    EXPECT_EQ(key_out, c.key_phase_out) << c.label << ' ' << c.text;
    EXPECT_EQ(phase_out, c.phase_out) << c.label << ' ' << c.text;
  }
}

TEST(LabelStrings, MoveOnByTime) {
  EXPECT_EQ(get_frame_rate(Material_25, Edit_film), 24.0);
  EXPECT_DOUBLE_EQ(get_frame_rate(Material_29_97, Edit_video), 29.97002997002997);
  EXPECT_EQ(get_frame_rate(Material_30, static_cast<edit_type>(9)), 30.0);
  EXPECT_EQ(get_frame_rate(static_cast<material_type>(-9), Edit_video), 25.0);

  constexpr double infinity = std::numeric_limits<double>::infinity();
  struct {
    material_type material;
    double seconds;
    char const* text;  // null: refused
  } const cases[] = {
      {Material_29_97, 1, "00000029"},      {Material_29_97, 10, "00000929"},  {Material_30, 10, "00001000"},
      {Material_25, 0.9996, "00000025"},    {Material_25, 0.9995, "00000024"}, {Material_25, -0.04, "23595929"},
      {Material_25, 1e8, nullptr},          {Material_25, -1e9, nullptr},      {Material_25, infinity, nullptr},
      {Material_25, std::nan(""), nullptr},
  };
  for (auto const& c : cases) {
    char text[] = "00000000";  // in and out
    int key_out = 0, phase_out = 0;
    EXPECT_EQ(label_plus_time(text, &key_out, &phase_out, text, 1, 0, c.seconds, Label_timecode_30, 0, per_key,
                              c.material, Transfer_none, Edit_video, digits),
              c.text != nullptr)
        << c.seconds;
    EXPECT_STREQ(text, c.text ? c.text : "00000000") << c.seconds;
  }
}

// Any bytes and numbers: texts are read as sscanf reads them, and nothing is written past 9 characters.
TEST(LabelStrings, TakeAnyBytesAndNumbers) {
  std::mt19937 random{3};
  auto const any_int = [&] {
    constexpr int corners[] = {INT_MIN, INT_MIN + 1, -1, 0, 1, 3, 4, 16, 24, 25, 64, INT_MAX - 1, INT_MAX};
    switch (random() % 4) {
      case 0:
        return corners[random() % std::size(corners)];
      case 1:
        return static_cast<int>(random());
      case 2:
        return static_cast<int>(random() % 70) - 6;
      default:
        return static_cast<int>(random() % 6'000'000) - 3'000'000;
    }
  };
  std::string const alphabet = "0123456789  +-\t:x";
  for (int i = 0; i < 200'000; ++i) {
    std::string bytes;
    for (auto length = random() % 12; length > 0; --length)
      bytes += random() % 8 ? alphabet[random() % alphabet.size()] : static_cast<char>(random());
    bytes = bytes.c_str();

    int frame = 0, h = 0, m = 0, s = 0, f = 0, key = 0, rest = 0;
    std::string in = bytes;
    ASSERT_EQ(timecode_to_video_frames(&frame, in.data(), Label_timecode_50, 1), 1);
    std::sscanf(bytes.c_str(), "%2d%2d%2d%2d", &h, &m, &s, &f);
    ASSERT_EQ(frame, ((h * 60 + m) * 60 + s) * 50 + f + 1) << '"' << bytes << '"';

    ASSERT_EQ(keycode_to_film_frames(&frame, in.data(), 0, nullptr, Label_keycode_frames, 100), 1);
    std::sscanf(in.c_str(), in.size() == 7 ? "%5d%2d" : in.size() == 8 ? "%6d%2d" : "%4d%2d", &key, &rest);
    ASSERT_EQ(frame, key * 100 + rest + 1) << '"' << bytes << '"';

    char text[] = "before!!guard";
    int out = any_int(), key_out = any_int();
    int const status = label_plus_frames(
        text, &key_out, &out, random() % 8 ? in.data() : nullptr, any_int(), any_int(), any_int(),
        static_cast<label_type>(random() % 44), any_int(), any_int(), static_cast<unsigned char>(random()),
        static_cast<transfer_type>(random() % 5), static_cast<edit_type>(random() % 2));
    ASSERT_TRUE(status >= 0 && status <= 2);
    ASSERT_STREQ(text + 9, "uard");
    ASSERT_EQ(std::strlen(text), status ? 8U : 13U);

    in = bytes;
    int frames = 0;
    label_to_frames(in.data(), any_int(), &key_out, any_int(), &out, &frames, static_cast<label_type>(any_int()),
                    any_int(), static_cast<transfer_type>(random() % 4), static_cast<edit_type>(random() % 3),
                    any_int());
    video_frames_to_film_frames(any_int(), &frames, any_int(), &out, static_cast<transfer_type>(random() % 3));
    film_frames_to_video_frames(any_int(), &frames, any_int(), any_int(),
                                static_cast<transfer_type>(random() % 3));
  }
}

}  // namespace
