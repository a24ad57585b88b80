#include "tests/testing.h"

namespace {

MediumRollIdent roll(int medium, int generation) {
  return {MediumRollMedium{medium}, MediumRollGeneration{generation}};
}

EditLabel on(int type, int medium, int generation = 1) {
  return EditLabel{Label{label_t{type}}, roll(medium, generation)};
}

// The speeds, stated once more: on most media, and on those where the factor of 1001/1000 is the other way round.
double expected_pitch(int type, int medium) {
  // clang-format off
  struct { std::set<int> types; int fps; bool slower; std::set<int> otherwise_on; } const speeds[] = {
      {{5}, 25, false, {}},               {{31, 42}, 50, false, {}},    {{32, 43}, 60, true, {4, 26, 39}},
      {{8}, 24, false, {16, 18, 29, 31}}, {{20}, 48, false, {42}},      {{44}, 12, false, {46}},
      {{45}, 15, false, {49}},            {{50}, 120, false, {55, 68}}, {{51}, 240, false, {57, 70}},
      {{6, 7}, 30, true, {4, 21, 23, 26, 34, 36, 39, 54, 56, 67, 69}},
  };
  // clang-format on
  bool const on_film = medium == Medium_film && type != tc_24_label_t && type < tc_120_label_t;
  for (auto const& s : speeds) {
    if (!s.types.contains(type)) continue;
    if (on_film) return 1.0 / 24;
    return s.slower != s.otherwise_on.contains(medium) ? 1001.0 / (s.fps * 1000) : 1.0 / s.fps;
  }
  return 0;  // no rule
}

TEST(Pitch, OfEveryTypeOnEveryMedium) {
  for (int type = 0; type < numLabelCvts; ++type)
    for (int medium = 0; medium <= labelsbase::medium_count; ++medium) {
      double const expected = expected_pitch(type, medium);
      EditLabel label = on(type, medium);
      label.pitch = 7.0;
      label.fixup_pitch();
      ASSERT_EQ(label.pitch, expected == 0 ? 7.0 : expected) << type << " on " << medium;
      ASSERT_EQ(label.pitch_fixed, expected != 0);
    }
}

// Sound in sync with picture: at the speed of its label, of the picture's 1001 factor, or, at the first
// generation, as much faster as film runs through the telecine.
double expected_sound(double fps, int transfer, int generation, int picture, int film_speed, double unchanged) {
  double const pitch = 1 / fps;
  if (transfer != 3 && transfer != 7)
    return std::set{16, 18, 22, 24, 27}.contains(picture) ? pitch * 1.001 : pitch;
  if (generation != 2) return pitch;
  bool const changes = transfer == 3;
  if (std::set{21, 22, 23, 24, 26, 27}.contains(picture))
    return changes && film_speed != 4 ? pitch * 30 / 24 : pitch;
  if (std::set{19, 20, 25}.contains(picture)) return changes && film_speed != 3 ? pitch * 25 / 24 : pitch;
  return picture >= 15 && picture <= 18 ? pitch : unchanged;
}

TEST(Pitch, OfSoundInSyncWithPicture) {
  std::map<int, double> const fps_of_type{{5, 25},  {6, 30},  {7, 30},  {8, 24},  {10, 24}, {20, 24}, {30, 24},
                                          {31, 50}, {32, 60}, {42, 50}, {43, 60}, {44, 24}, {50, 24}, {51, 24}};
  for (int const speed : {1, 3, 4}) {
    refhost::project_guard const project{{.film_speed = Kiv::FrameRate{speed}}};
    for (auto const& [type, fps] : fps_of_type)
      for (int const transfer : {0, 2, 3, 7})
        for (int const generation : {1, 2})
          for (int picture = 0; picture <= labelsbase::medium_count; ++picture) {
            EditLabel label = on(type, Medium_audio, generation);
            double const expected = expected_sound(fps, transfer, generation, picture, speed, label.pitch);
            label.fix_audio_label_pitch(transfer_type{transfer}, MediumRollMedium{picture});
            ASSERT_EQ(label.pitch, expected)
                << type << " transfer " << transfer << " generation " << generation << " picture " << picture;
          }
  }
  EditLabel elsewhere = on(pal_label_t, Medium_src_24p);
  elsewhere.pitch = 7.0;
  elsewhere.fix_audio_label_pitch(Transfer_none, Medium_src_2398p);
  EXPECT_EQ(elsewhere.pitch, 7.0);
}

TEST(EditLabel, FollowsItsRoll) {
  EditLabel label = on(6, 4);
  auto const expect = [&label](double pitch, bool is_fixed) {
    EXPECT_EQ(label.pitch, pitch);
    EXPECT_EQ(label.pitch_fixed, is_fixed) << pitch;
  };
  expect(1.0 / 30, false);
  label.pitch = 7.0;
  label.set_MediumRoll(roll(4, 1));  // the same: nothing happens
  expect(7.0, false);
  label.set_MediumRoll(roll(40, 1));
  expect(1001.0 / 30000, true);
  label.set_type(pal_label_t);
  expect(1.0 / 25, true);
  label.init(roll(2, 2));
  expect(1.0 / 24, false);
  EditLabel film = on(keycode_35_label_t, 2);
  film.set_MediumRoll(roll(15, 2));
  EXPECT_TRUE(film.pitch_fixed) << "also where the type has no rule";
}

TEST(EditLabel, ComparesAndCopiesItsRoll) {
  EditLabel const label = on(5, 20, 2);
  EXPECT_TRUE(label == on(5, 20, 2) && label != on(5, 20, 3) && label != on(5, 19, 2));
  EditLabel other = on(6, 4);
  other.set_MediumRoll(roll(40, 1));
  other = label;
  EXPECT_TRUE(other == label && other.pitch_fixed) << "that flag is not copied";
  other.reserved_flag = 7;
  EditLabel const copy{other};
  EXPECT_FALSE(copy.pitch_fixed);
  EXPECT_EQ(copy.reserved_flag, 7);
  EXPECT_EQ((other = label).reserved_flag, 7);
}

TEST(EditLabel, IsValidWithATypeAMediumAndAGeneration) {
  EXPECT_TRUE(on(5, 20, 2).is_valid());
  for (auto const& label : {on(5, 0, 2), on(5, 20, 0), on(0, 20, 2), invalid_edit_label()})
    EXPECT_FALSE(label.is_valid()) << label.medium_roll.medium << ',' << label.medium_roll.generation;
}

TEST(EditLabel, CountsLiveObjects) {
  int const before = EditLabel::howmany;
  EXPECT_GE(before, 1);  // the invalid one, made or not
  (void)invalid_edit_label();
  {
    EditLabel first = on(5, 20);
    EditLabel const second = first, third{"LABEL_REV:1"};
    first = second;
    EXPECT_EQ(EditLabel::howmany, before + 3);
    first.init(roll(1, 1));
  }
  EXPECT_EQ(EditLabel::howmany, before + 1);  // deliberate: init counts as a constructor does
}

TEST(EditLabel, IsKeptWithItsRoll) {
  std::array<char, Label::keep_string_size> buffer{};
  for (auto const& [medium, generation] : {std::pair{1, 1}, {20, 2}, {70, 5}}) {
    EditLabel label = on(5, medium, generation);
    std::string const text = label.make_keep_string(buffer.data());
    auto const ident = std::to_string(medium) + ',' + std::to_string(generation);
    EXPECT_EQ(text, "LABEL_REV:1 pal_label  00:00:00.00 100000000 0.0400000000 1 MediumRollId " + ident);
    EXPECT_EQ(text, label.make_keep_string(nullptr));
    EXPECT_TRUE(EditLabel{text.c_str()} == label) << text;
  }
}

TEST(EditLabel, ReadsWhatItCanOfARoll) {
  std::string const no_medium = "LABEL_REV:1 pal_label 01:00:00.00 250 0.5 1 MediumRollId " +
                                std::to_string(labelsbase::medium_count) + ",1";
  // clang-format off
  struct { char const* text; int medium, generation; double pitch; } const cases[] = {
      {"LABEL_REV:1 pal_label 01:00:00.00 250 0.5 1", 1, 1, 0.5},  // the pitch that was kept, whatever the medium
      {"MediumRollId 15,2", 15, 2, 0.0}, {"", 1, 1, 0.0}, {nullptr, 1, 1, 0.0},
      {"LABEL_REV:1 pal_label 01:00:00.00 250 0.5 1 MediumRollId 3", 3, 2, 0.5},
      {"LABEL_REV:1 ink_35_label AB121234+05 2 4 1 MediumRollId 15", 10, 1, 1.0},
      {no_medium.c_str(), 0, 0, 0.5},
      {"LABEL_REV:1 pal_label 01:00:00.00 250 0.5 1 MediumRollId", 0, 0, 0.5},
  };
  // clang-format on
  for (auto const& c : cases) {
    EditLabel const label = c.text;
    SCOPED_TRACE(c.text ? c.text : "null");
    EXPECT_EQ(label.medium_roll.medium, c.medium);
    EXPECT_EQ(label.medium_roll.generation, c.generation);
    EXPECT_TRUE(label.pitch == c.pitch && !label.pitch_fixed) << label.pitch;
  }
}

TEST(EditLabel, WarnsOnceOfBetaLabels) {
  std::vector<std::string> said;
  refhost::diagnostic_guard const listen{[&](std::string_view text) { said.emplace_back(text); }};
  for (char const* revision : {"LABEL_REV:1", "LABEL_REV:2", "LABEL_REV:3"}) EditLabel const label{revision};
  EXPECT_EQ(said,
            std::vector<std::string>{"WARNING: Beta labels. Sometime, run FIXLABEL (call us if confused).\n"});
}

TEST(Rolls, AreOneForPlayoutOrForTheGenerationBefore) {
  std::vector<std::set<int>> const playout{{28, 30}, {29, 31}, {32, 33}, {34, 36}, {35, 37}, {38}, {39}, {40}};
  std::vector<std::set<int>> const before{{21, 22, 23, 24, 26, 27}, {19, 20, 25}, {13, 15, 16, 17, 18}};
  auto const together = [](auto const& groups, int a, int b) {
    return std::ranges::any_of(groups, [&](auto const& group) { return group.contains(a) && group.contains(b); });
  };
  for (int a = 0; a <= labelsbase::medium_count; ++a)
    for (int b = 0; b <= labelsbase::medium_count; ++b) {
      EditLabel const first = on(5, a, 3), second = on(5, b, 1);
      ASSERT_EQ(first.equivalentPlayoutLabelMediumRolls(second), together(playout, a, b)) << a << " " << b;
      ASSERT_EQ(first.equivalentPreviousGenerationMediumRolls(second), together(before, a, b)) << a << " " << b;
    }
  for (auto const& [a, b] : {std::pair{3, 2}, {2, 1}})  // neither may be the first
    EXPECT_FALSE(on(5, 21, a).equivalentPreviousGenerationMediumRolls(on(5, 22, b)));
}

TEST(ClockAndCel, FollowTheCurrentProject) {
  refhost::project_guard const fast{{.frame_rate = Kiv::FrameRate_24, .gearing_rate = Kiv::FrameRate_30}};
  EXPECT_DOUBLE_EQ(transform_KIVtime_to_CELtime(4.0), 5.0);
  EXPECT_DOUBLE_EQ(transform_CELtime_to_KIVtime(5.0), 4.0);
}

}  // namespace
