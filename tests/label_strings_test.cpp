// Any label text as a frame number and back, and moved on.

#include <sstream>

#include "tests/testing.h"

namespace {

// Phases and the rest, other than each other.
constexpr int phase = 2, last_phase = 4, key_phase = 3, per_key = 16, drop = 1;
constexpr unsigned char digits = 0x3C;
constexpr auto transfer = Transfer_2_3_pulldown;

// A label read: frame and phases; frame 4711 as a label: text and key phase; the label a second on: text and
// phases. Before them their three statuses.
std::string answers(label_type label, edit_type edit) {
  std::string in = "00021612", written = "before!!", moved = written;
  int frame = 99, read_phase = 99, read_key = 99, written_key = 99, moved_phase = 99, moved_key = 99;
  int const read_status = label_to_frames(in.data(), key_phase, &read_key, phase, &read_phase, &frame, label, drop,
                                          transfer, edit, per_key);
  int const written_status = frames_to_label(written.data(), key_phase, &written_key, phase, last_phase, 4711,
                                             label, drop, transfer, edit, per_key, digits);
  int const moved_status = label_plus_time(moved.data(), &moved_key, &moved_phase, in.data(), key_phase, phase,
                                           1.0, label, drop, per_key, Material_25, transfer, edit, digits);
  std::ostringstream out;
  out << read_status << written_status << moved_status << ' ' << frame << ' ' << read_phase << ' ' << read_key
      << ' ' << written << ' ' << written_key << ' ' << moved << ' ' << moved_phase << ' ' << moved_key;
  return out.str();
}

TEST(LabelStrings, CountAsTheirClassDoes) {
  constexpr auto refused = "000 99 -1 99 before!! 99 before!! 99 99";
  // clang-format off
  struct { std::set<int> labels; char const *film, *video; } const classes[] = {
      {{2, 5, 7, 21}, "111 2731 0 99 00035511 99 00021717 2 3", "111 3413 -1 99 00030810 99 00021712 2 3"},
      {{1, 3, 22, 25, 42}, "111 3272 4 99 00031612 99 00021712 2 3", "111 4089 -1 99 00023704 99 00021707 2 3"},
      {{36, 39}, "111 5451 0 99 00015736 99 00021642 2 3", "111 6813 -1 99 00013410 99 00021637 2 3"},
      {{37, 40}, "111 6539 0 99 00013806 99 00021642 2 3", "111 8173 -1 99 00011830 99 00021637 2 3"},
      // Deliberate: timecode of 48 frames counts as film's 24.
      {{4, 6, 34, 38, 41, 43}, "111 3277 -1 99 00031606 99 00021712 2 3", "111 4096 -1 99 00023700 99 00021708 2 3"},
      {{8, 11, 27}, "111 3469 -1 99 00029406 99 00021804 2 3", "111 4336 -1 99 00023508 99 00021800 2 3"},
      {{26}, "111 4621 -1 3 00022016 1 00021714 2 1", "111 5776 -1 3 00017613 2 00021710 2 1"},
  };
  // clang-format on
  for (int number = -5; number <= 60; ++number) {
    auto const label = label_type{number};
    auto const* const known =
        std::ranges::find_if(classes, [&](auto const& c) { return c.labels.contains(number); });
    bool const is_known = known != std::end(classes);
    EXPECT_EQ(answers(label, Edit_film), is_known ? known->film : refused) << number;
    EXPECT_EQ(answers(label, Edit_video), is_known ? known->video : refused) << number;
    if (number == Edit_film || number == Edit_video) continue;
    auto const edit = edit_type{number};
    EXPECT_EQ(answers(Label_timecode_25, edit), refused) << number;
    int frame = 99, out = 99;
    EXPECT_EQ(frames_plus_frames(1, phase, 1, &frame, &out, transfer, edit) + frame + out, 2 * 99);
  }
  std::string in = "00021612";
  int frame = 99, out = 99;
  constexpr auto label = Label_timecode_25;
  EXPECT_EQ(label_to_frames(in.data(), 1, &out, 0, nullptr, &frame, label, 0, transfer, Edit_video, 1), 0);
  EXPECT_EQ(label_to_frames(in.data(), 1, &out, 0, &out, nullptr, label, 0, transfer, Edit_video, 1), 0);
  EXPECT_EQ(std::pair(frame, out), std::pair(99, -1));
}

TEST(LabelStrings, MoveOnByFrames) {
  // clang-format off
  // Expected: status, text, phases of key and pulldown.
  struct { int label, transfer, edit; char const* text; int key, phase, count; char const* expected; } const cases[] = {
      {1, 0, 1, "00005929", 7, 3, 1, "1 00010002 7 3"},  // without pulldown, phases pass
      {1, 7, 1, "00005929", 7, 3, 1, "1 00010002 7 3"},  // and an unknown transfer only adds
      {1, 1, 0, "00000000", 7, 4, 4, "2 00000004 7 3"},  // found phase 4: the added frame was counted
      {1, 7, 0, "00000000", 7, 0, 1, "0 before!! 99 99"},   {2, 3, 1, "00000000", 7, 3, -1, "1 23595924 7 3"},
      {4, 2, 1, "00000100", 7, 0, 25, "1 00000200 7 0"},    {26, 1, 0, "00000221", 3, 0, 1, "1 00000300 1 1"},
      {26, 0, 0, "00000020", 3, 5, 2, "1 00000100 1 5"},    {26, 0, 0, "00000020", 0, 5, 2, "0 before!! 99 99"},
      {8, 0, 0, " 1 2 3 4", 7, 3, 12, "1 00020400 7 3"},    // past key 9999: once round
      {8, 0, 0, "00000000", 7, 3, INT_MAX, "0 before!! 99 99"},    // no such frame
      {8, 0, 0, "00000000", 7, 3, 99'999'999, "0 before!! 99 3"},  // no such label: the phase was out already
  };
  // clang-format on
  for (auto const& c : cases) {
    std::string in = c.text;
    char text[] = "before!!";
    int key_out = 99, phase_out = 99;
    int const status =
        label_plus_frames(text, &key_out, &phase_out, in.data(), c.key, c.phase, c.count, label_type{c.label},
                          drop, per_key, digits, transfer_type{c.transfer}, edit_type{c.edit});
    std::ostringstream out;
    out << status << ' ' << text << ' ' << key_out << ' ' << phase_out;
    EXPECT_EQ(out.str(), c.expected) << c.label << ' ' << c.text;
  }
}

TEST(LabelStrings, MoveOnByTime) {
  EXPECT_EQ(get_frame_rate(Material_29_97, Edit_video), 29.970029970029973);
  EXPECT_EQ(get_frame_rate(Material_30, edit_type{9}), 30.0);
  EXPECT_EQ(get_frame_rate(material_type{-9}, Edit_video), 25.0);

  constexpr auto pal = Material_25;
  constexpr auto refused = "00000000";
  // clang-format off
  std::tuple<material_type, double, char const*> const cases[] = {
      {Material_29_97, 1, "00000029"}, {Material_29_97, 10, "00000929"}, {Material_30, 10, "00001000"},
      {pal, 0.9996, "00000025"}, {pal, 0.9995, "00000024"}, {pal, -0.04, "23595929"},
      {pal, 1e8, refused}, {pal, -HUGE_VAL, refused}, {pal, std::nan(""), refused}};
  // clang-format on
  for (auto const& [material, seconds, expected] : cases) {
    char text[] = "00000000";  // in and out
    int key_out = 0, phase_out = 0;
    EXPECT_EQ(label_plus_time(text, &key_out, &phase_out, text, 1, 0, seconds, Label_timecode_30, 0, per_key,
                              material, Transfer_none, Edit_video, digits),
              expected != refused);
    EXPECT_STREQ(text, expected) << seconds;
  }
}

}  // namespace
