#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <set>
#include <string>
#include <vector>

#include "labelsbase/labels.h"
#include "refhost/refhost.h"

namespace {

MediumRollIdent roll(int medium, int generation) {
  return {static_cast<MediumRollMedium>(medium), static_cast<MediumRollGeneration>(generation)};
}

EditLabel on(int type, int medium, int generation = 1) {
  return EditLabel{Label{static_cast<label_t>(type)}, roll(medium, generation)};
}

bool is_in(std::set<int> const& numbers, int number) { return numbers.count(number) != 0; }

// The speeds, stated once more: frames per second over 1 or 1.001, 0 for types without a rule.
double expected_pitch(int type, int medium) {
  auto const at = [](double fps) { return 1.0 / fps; };
  auto const slower = [](int fps) { return 1001.0 / (fps * 1000); };
  if (medium == 2 && is_in({5, 6, 7, 20, 31, 32, 42, 43, 44, 45}, type)) return at(24);
  switch (type) {
    case 5:
      return at(25);
    case 6:
    case 7:
      return is_in({4, 21, 23, 26, 34, 36, 39, 54, 56, 67, 69}, medium) ? at(30) : slower(30);
    case 8:
      return is_in({16, 18, 29, 31}, medium) ? slower(24) : at(24);
    case 20:
      return medium == 42 ? slower(48) : at(48);
    case 31:
    case 42:
      return at(50);
    case 32:
    case 43:
      return is_in({4, 26, 39}, medium) ? at(60) : slower(60);
    case 44:
      return medium == 46 ? slower(12) : at(12);
    case 45:
      return medium == 49 ? slower(15) : at(15);
    case 50:
      return is_in({55, 68}, medium) ? slower(120) : at(120);
    case 51:
      return is_in({57, 70}, medium) ? slower(240) : at(240);
    default:
      return 0;
  }
}

TEST(Pitch, OfEveryTypeOnEveryMedium) {
  for (int type = 0; type < numLabelCvts; ++type)
    for (int medium = 0; medium <= 71; ++medium) {
      double const expected = expected_pitch(type, medium);
      EditLabel label = on(type, 71);
      label.pitch = 7.0;
      label.pitch_fixed = false;
      label.medium_roll = roll(medium, 1);
      label.fixup_pitch();
      ASSERT_EQ(label.pitch, expected == 0 ? 7.0 : expected) << type << " on " << medium;
      ASSERT_EQ(label.pitch_fixed, expected != 0);
    }
}

TEST(Pitch, OfSoundInSyncWithPicture) {
  for (int speed : {1, 3, 4, 5}) {
    refhost::project_guard const project{{.film_speed = static_cast<Kiv::FrameRate>(speed)}};
    for (int type : {5, 6, 7, 8, 20, 31, 32, 42, 43, 44, 50, 10, 30})
      for (int transfer = -1; transfer <= 8; ++transfer)
        for (int generation : {0, 1, 2, 3})
          for (int picture = 0; picture <= 71; ++picture) {
            double const fps = type == 5                  ? 25
                               : type == 6 || type == 7   ? 30
                               : type == 31 || type == 42 ? 50
                               : type == 32 || type == 43 ? 60
                                                          : 24;
            double expected = 1 / fps;
            bool applies = true;
            if (transfer == 3 || transfer == 7) {
              if (generation == 2) {
                if (is_in({21, 22, 23, 24, 26, 27}, picture)) {
                  if (transfer == 3 && speed != 4) expected = 1 / fps * 30 / 24;
                } else if (is_in({19, 20, 25}, picture)) {
                  if (transfer == 3 && speed != 3) expected = 1 / fps * 25 / 24;
                } else {
                  applies = is_in({15, 16, 17, 18}, picture);
                }
              }
            } else if (is_in({16, 18, 22, 24, 27}, picture)) {
              expected = 1 / fps * 1.001;
            }
            EditLabel label = on(type, 4, generation);
            double const fixed_up = label.pitch;
            label.fix_audio_label_pitch(static_cast<transfer_type>(transfer),
                                        static_cast<MediumRollMedium>(picture));
            ASSERT_EQ(label.pitch, applies ? expected : fixed_up)
                << type << " transfer " << transfer << " generation " << generation << " picture " << picture;

            EditLabel elsewhere = on(type, 15, generation);
            elsewhere.pitch = 7.0;
            elsewhere.fix_audio_label_pitch(static_cast<transfer_type>(transfer),
                                            static_cast<MediumRollMedium>(picture));
            ASSERT_EQ(elsewhere.pitch, 7.0);
            ASSERT_FALSE(elsewhere.pitch_fixed);
          }
  }
}

TEST(EditLabel, FollowsItsRoll) {
  EditLabel label = on(6, 4);
  EXPECT_EQ(label.pitch, 1.0 / 30);
  EXPECT_FALSE(label.pitch_fixed);
  label.pitch = 7.0;
  label.set_MediumRoll(roll(4, 1));  // the same: nothing happens
  EXPECT_EQ(label.pitch, 7.0);
  EXPECT_FALSE(label.pitch_fixed);
  label.set_MediumRoll(roll(40, 1));
  EXPECT_EQ(label.pitch, 1001.0 / 30000);
  EXPECT_TRUE(label.pitch_fixed);
  label.set_type(pal_label_t);
  EXPECT_EQ(label.pitch, 1.0 / 25);
  label.init(roll(2, 2));
  EXPECT_EQ(label.pitch, 1.0 / 24);
  EXPECT_FALSE(label.pitch_fixed);
  EXPECT_EQ(label.get_MediumRoll().medium, Medium_film);
}

TEST(EditLabel, ComparesAndCopiesItsRoll) {
  EditLabel const label = on(5, 20, 2);
  EXPECT_TRUE(label == on(5, 20, 2));
  EXPECT_TRUE(label != on(5, 20, 3));
  EXPECT_TRUE(label != on(5, 19, 2));
  EditLabel other = on(6, 4);
  other.set_MediumRoll(roll(40, 1));
  other = label;
  EXPECT_TRUE(other == label);
  EXPECT_TRUE(other.pitch_fixed);  // not copied
  EXPECT_FALSE(EditLabel{other}.pitch_fixed);
}

TEST(EditLabel, IsValidWithATypeAMediumAndAGeneration) {
  EXPECT_TRUE(on(5, 20, 2).is_valid());
  EXPECT_FALSE(on(5, 0, 2).is_valid());
  EXPECT_FALSE(on(5, 20, 0).is_valid());
  EXPECT_FALSE(on(0, 20, 2).is_valid());
  EXPECT_FALSE(invalid_edit_label().is_valid());
}

TEST(EditLabel, CountsLiveObjects) {
  (void)invalid_edit_label();
  int const before = EditLabel::howmany;
  {
    EditLabel first = on(5, 20);
    EditLabel const second = first;
    EditLabel const third{"LABEL_REV:1"};
    EXPECT_EQ(EditLabel::howmany, before + 3);
    first.init(roll(1, 1));
    first = second;
    EXPECT_EQ(EditLabel::howmany, before + 3);
  }
  EXPECT_EQ(EditLabel::howmany, before);
}

TEST(EditLabel, IsKeptWithItsRoll) {
  std::array<char, Label::keep_string_size> buffer{};
  for (int medium = 1; medium <= 70; ++medium)
    for (int generation = 1; generation <= 5; ++generation) {
      EditLabel label = on(5, medium, generation);
      label.length = 250;
      std::string const text = label.make_keep_string(buffer.data());
      EditLabel const read{text.c_str()};
      ASSERT_EQ(read.medium_roll.medium, medium) << text;
      ASSERT_EQ(read.medium_roll.generation, generation) << text;
      ASSERT_NEAR(read.pitch, label.pitch, 1e-10);
      ASSERT_EQ(text, label.make_keep_string(nullptr));
    }
  EXPECT_STREQ(on(5, 20, 2).make_keep_string(buffer.data()),
               "LABEL_REV:1 pal_label  00:00:00.00 100000000 0.0400000000 1 MediumRollId 20,2");
}

TEST(EditLabel, ReadsWhatItCanOfARoll) {
  struct {
    char const* text;
    int medium, generation;
    double pitch;
  } const cases[] = {
      {"LABEL_REV:1 pal_label 01:00:00.00 250 0.5 1", 1, 1, 0.5},  // the pitch that was kept, whatever the medium
      {"LABEL_REV:1 pal_label 01:00:00.00 250 0.5 1 MediumRollId 3", 3, 2, 0.5},
      {"LABEL_REV:1 ink_35_label AB121234+05 2 4 1 MediumRollId 15", 10, 1, 1.0},
      {"LABEL_REV:1 pal_label 01:00:00.00 250 0.5 1 MediumRollId 71,1", 0, 0, 0.5},
      {"LABEL_REV:1 pal_label 01:00:00.00 250 0.5 1 MediumRollId", 0, 0, 0.5},
      {"MediumRollId 15,2", 15, 2, 0.0},
      {"", 1, 1, 0.0},
      {nullptr, 1, 1, 0.0},
  };
  for (auto const& c : cases) {
    EditLabel const label{c.text};
    SCOPED_TRACE(c.text ? c.text : "null");
    EXPECT_EQ(label.medium_roll.medium, c.medium);
    EXPECT_EQ(label.medium_roll.generation, c.generation);
    EXPECT_EQ(label.pitch, c.pitch);
    EXPECT_FALSE(label.pitch_fixed);
  }
}

TEST(EditLabel, WarnsOnceOfBetaLabels) {
  std::vector<std::string> said;
  refhost::diagnostic_guard const listen{[&](std::string_view text) { said.emplace_back(text); }};
  EditLabel const current{"LABEL_REV:1 pal_label 01:00:00.00 250 0.04 1 MediumRollId 20,2"};
  EXPECT_TRUE(said.empty());
  EditLabel const beta{"LABEL_REV:2 pal_label 01:00:00.00 250 0.04 1"};
  ASSERT_EQ(said.size(), 1U);
  EXPECT_EQ(said[0], "WARNING: Beta labels. Sometime, run FIXLABEL (call us if confused).\n");
}

TEST(Rolls, AreOneForPlayoutOrForTheGenerationBefore) {
  std::vector<std::set<int>> const playout{{28, 30}, {29, 31}, {32, 33}, {34, 36}, {35, 37}, {38}, {39}, {40}};
  std::vector<std::set<int>> const before{{21, 22, 23, 24, 26, 27}, {19, 20, 25}, {13, 15, 16, 17, 18}};
  auto const together = [](std::vector<std::set<int>> const& groups, int a, int b) {
    return std::any_of(groups.begin(), groups.end(),
                       [&](auto const& group) { return is_in(group, a) && is_in(group, b); });
  };
  for (int a = 0; a <= 71; ++a)
    for (int b = 0; b <= 71; ++b) {
      EditLabel const first = on(5, a, 3), second = on(5, b, 1);
      ASSERT_EQ(first.equivalentPlayoutLabelMediumRolls(second), together(playout, a, b)) << a << " " << b;
      ASSERT_EQ(first.equivalentPreviousGenerationMediumRolls(second), together(before, a, b)) << a << " " << b;
      ASSERT_FALSE(first.equivalentPreviousGenerationMediumRolls(on(5, b, 2)));
      ASSERT_FALSE(on(5, a, 2).equivalentPreviousGenerationMediumRolls(second));
    }
}

TEST(ClockAndCel, FollowTheCurrentProject) {
  refhost::project_guard const fast{{.frame_rate = Kiv::FrameRate_24, .gearing_rate = Kiv::FrameRate_30}};
  EXPECT_DOUBLE_EQ(transform_KIVtime_to_CELtime(4.0), 5.0);
  EXPECT_DOUBLE_EQ(transform_CELtime_to_KIVtime(5.0), 4.0);
  EXPECT_EQ(transform_KIVtime_to_CELtime(1e99), 1e99);
}

}  // namespace
