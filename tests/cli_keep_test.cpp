// Keep strings, speeds and label choices in the tool.

#include "tests/tool.h"

namespace {

TEST_F(Tool, ExplainsTheKeepStringsThatItWrites) {
  struct {
    char const* line;
    char const* kept;
    char const* explained;
  } const cases[] = {
      {"labels keep --write 25f --start 01:00:00.00 --length 250 --roll 20,2",
       "LABEL_REV:1 pal_label  01:00:00.00 250 0.0400000000 1 MediumRollId 20,2\n",
       "revision          1\n"
       "type              pal_label\n"
       "start             01:00:00.00, sample 90000\n"
       "length            250, samples 250\n"
       "seconds per unit  0.04, natural 0.04\n"
       "bounded           yes\n"
       "medium and roll   20,2, 25i,1stGen\n"},
      {"labels keep --write F353 --start KJ1234560001+00.1 --length 16 --pitch 0.05 --unbounded",
       "LABEL_REV:1 keycode_353_label KJ1234560001+00.1 16 0.0500000000 0\n",
       "revision          1\n"
       "type              keycode_353_label\n"
       "start             KJ1234560001+00.1, sample 64\n"
       "length            16, samples 48\n"
       "seconds per unit  0.05, natural 0.041666666666666664\n"
       "bounded           no\n"
       "medium and roll   1,1, med?,anyGen (none kept)\n"},
  };
  for (auto const& c : cases) {
    EXPECT_EQ(run(c.line).out, c.kept);
    auto const [out, err, exit_code] = run(std::string{c.line} + " | labels keep");
    EXPECT_EQ(out, c.explained);
    EXPECT_EQ(err, "");
    EXPECT_EQ(exit_code, 0);
  }
}

TEST_F(Tool, SaysWhichFieldOfAKeepStringIsWrong) {
  struct {
    char const* text;
    char const* wrong;
  } const cases[] = {
      {"LABEL_REV:3 pal_label 01:00:00.00 250 0.04 1", "revision \"LABEL_REV:3\": expected LABEL_REV:1"},
      {"LABEL_REV:1 pal 01:00:00.00 250 0.04 1",
       "type \"pal\": expected a class name, as 'labels types' lists them; "
       "start \"01:00:00.00\": expected a type that can read it"},
      {"LABEL_REV:1 pal_label 01:00:61.00 250 0.04 1",
       "start \"01:00:61.00\": seconds run from 00 to 59; nearest is 01:00:59.00"},
      {"LABEL_REV:1 pal_label 01:00:00.00 2x0 0.04 1", "length \"2x0\": expected a whole number"},
      {"LABEL_REV:1 pal_label 01:00:00.00 250 0,04 1", "seconds per unit \"0,04\": expected seconds, more than 0"},
      {"LABEL_REV:1 pal_label 01:00:00.00 250 0.04", "bounded is missing"},
      {"LABEL_REV:1 pal_label 01:00:00.00 250 0.04 1 MediumRoll 20,2",
       "medium and roll \"MediumRoll\": expected MediumRollId"},
      {"LABEL_REV:1 film_frames_label 000001 1 1 1 MediumRollId 2 x", "surplus \"x\": expected the end"},
      {"", "revision is missing"},
  };
  for (auto const& c : cases) {
    auto const [out, err, exit_code] = run(std::string{"labels keep '"} + c.text + "'");
    EXPECT_EQ(err, std::string{"labels: argument 1: \""} + c.text + "\": " + c.wrong + "\n");
    EXPECT_NE(out.find("? "), std::string::npos) << out;
    EXPECT_EQ(exit_code, 1);
  }
}

TEST_F(Tool, WritesNoKeepStringOfWhatIsWrong) {
  for (char const* line :
       {"labels keep --write 25f --start 99:00:00:00", "labels keep --write 25f --length -1",
        "labels keep --write 25f --length 100000001", "labels keep --write 25f --pitch 0",
        "labels keep --write 25f --roll 71", "labels keep --write no", "labels keep --start 01:00:00:00"}) {
    auto const [out, err, exit_code] = run(line);
    EXPECT_EQ(out, "") << line;
    EXPECT_EQ(err.find("labels: "), 0U) << line;
    EXPECT_EQ(exit_code, 2) << line;
  }
}

TEST_F(Tool, SaysHowFastALabelRuns) {
  EXPECT_EQ(run("labels pitch 30f-drop src_2997p | tail -n 4").out,
            "seconds per sample  0.03336666666666667\n"
            "samples per second  29.970029970029966\n"
            "natural             0.03336666666666667\n"
            "why                 the medium runs slower than the labels count, by 1000/1001\n");
  EXPECT_EQ(run("labels pitch 240f film | tail -n 1").out,
            "why                 the medium runs as the labels count\n");
  EXPECT_EQ(run("labels pitch 25f 2 | tail -n 1").out, "why                 film runs at 24 frames a second\n");
  EXPECT_EQ(run("labels pitch F35 2 | tail -n 1").out,
            "why                 no medium changes the speed of this type\n");
  EXPECT_EQ(run("labels pitch 25f 71").exit_code, 2);
}

TEST_F(Tool, ListsTheLabelChoices) {
  EXPECT_EQ(run("labels choices | tr -s ' ' | sed 's/^ //' | grep -E '^(5|13|32|34) '").out,
            "5 1st_Gen_Audio_Timecode 12836 timecode 4,3 audio,2ndGen\n"
            "13 lab_reel 12847 - 10,1 ink,anyGen\n"
            "32 name 13081 - - -\n"
            "34 cd 13876 - - -\n");
  EXPECT_EQ(run("labels choices | wc -l").out, "36\n");
}

}  // namespace
