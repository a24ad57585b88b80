// Keep strings and speeds in the tool.

#include "tests/tool.h"

namespace {

TEST_F(Tool, ExplainsTheKeepStringsThatItWrites) {
  expect({
      {"labels keep --write 25f --start 01:00:00.00 --length 250 --pitch 0.05 --roll 20,2 | tee keep; labels keep "
       "<keep",
       "LABEL_REV:1 pal_label  01:00:00.00 250 0.0500000000 1 MediumRollId 20,2\n"
       "revision          1\n"
       "type              pal_label\n"
       "start             01:00:00.00, sample 90000\n"
       "length            250, samples 250\n"
       "seconds per unit  0.05, natural 0.04\n"
       "bounded           yes\n"
       "medium and roll   20,2, 25i,1stGen\n"},
      {"labels keep --write F353 --start KJ1234560001+00.1 --length 16 --pitch 0.05 --unbounded | tee keep;"
       " labels keep <keep",
       "LABEL_REV:1 keycode_353_label KJ1234560001+00.1 16 0.0500000000 0\n"
       "revision          1\n"
       "type              keycode_353_label\n"
       "start             KJ1234560001+00.1, sample 64\n"
       "length            16, samples 48\n"
       "seconds per unit  0.05, natural 0.041666666666666664\n"
       "bounded           no\n"
       "medium and roll   1,1, med?,anyGen (none kept)\n"},
  });
}

TEST_F(Tool, NamesTheWrongFieldOfAKeepString) {
  struct {
    char const* text;
    char const* wrong;
  } const cases[] = {
      {"LABEL_REV:3 pal_label 01:00:00.00 250 0.04 1", "revision \"LABEL_REV:3\": expected LABEL_REV:1"},
      {"LABEL_REV:1 pal 01:00:00.00 250 0.04 1",
       "type \"pal\": unknown label type; expected a class name from 'labels types'; "
       "start \"01:00:00.00\": cannot be read without a valid type"},
      {"LABEL_REV:1 pal_label 01:00:61.00 250 0.04 1",
       "start \"01:00:61.00\": seconds run from 00 to 59 (column 7); nearest is 01:00:59.00"},
      {"LABEL_REV:1 pal_label 01:00:00.00 2x0 0.04 1", "length \"2x0\": expected a whole number"},
      {"LABEL_REV:1 pal_label 01:00:00.00 250 0,04 1", "seconds per unit \"0,04\": expected seconds, more than 0"},
      {"LABEL_REV:1 pal_label 01:00:00.00 250 0 1", "seconds per unit \"0\": expected seconds, more than 0"},
      {"LABEL_REV:1 pal_label 01:00:00.00 250 0.04", "bounded is missing"},
      {"LABEL_REV:1 pal_label 01:00:00.00 250 0.04 1 MediumRoll 20,2",
       "medium and roll \"MediumRoll\": expected MediumRollId"},
      {"LABEL_REV:1 film_frames_label 000001 1 1 1 MediumRollId 2 x", "surplus \"x\": expected the end"},
      {"garbage", "not a keep string; expected one that begins with LABEL_REV:1"},
      {"", "not a keep string; expected one that begins with LABEL_REV:1"},
  };
  for (auto const& [text, wrong] : cases) {
    auto const [out, err, exit_code] = run(std::string{"labels keep '"} + text + "'");
    EXPECT_EQ(err, std::string{"labels: argument 1: \""} + text + "\": " + wrong + "\n");
    EXPECT_EQ(out.find("? ") == std::string::npos, std::string_view{wrong}.starts_with("not")) << out;
    EXPECT_EQ(out.empty(), std::string_view{wrong}.starts_with("not")) << out;
    EXPECT_EQ(exit_code, 1);
  }
}

TEST_F(Tool, WritesNoKeepStringFromInvalidArguments) {
  expect({{"labels keep --write 25f --start 99:00:00:00", "", "--start \"99:00:00:00\": hours", 2},
          {"labels keep --write 25f --length -1", "", "--length \"-1\": expected a whole number from 0 to", 2},
          {"labels keep --write 25f --length 100000001", "", "from 0 to 100000000\n", 2},
          {"labels keep --write 25f --pitch 0", "", "--pitch \"0\"", 2},
          {"labels keep --write 25f --roll 999", "", "--roll \"999\"", 2},
          {"labels keep --write no", "", "--write \"no\"", 2},
          {"labels keep --write 25 --format csv", "", "leave out --format\n", 2},
          {"labels keep --start 01:00:00:00", "", "--start requires --write", 2}});
}

TEST_F(Tool, ShowsHowFastALabelRuns) {
  expect({{"labels pitch 30f-drop src_2997p | tail -n 4",
           "seconds per sample  0.03336666666666667\n"
           "samples per second  29.970029970029966\n"
           "natural             0.03336666666666667\n"
           "why                 the medium runs slower than the labels count, by 1000/1001\n"},
          {"labels pitch 240f film | tail -n 1; labels pitch 25f 2 | tail -n 1",
           "why                 the medium runs as the labels count\n"
           "why                 film runs at 24 frames a second\n"},
          {"labels pitch F35 2 | tail -n 1", "why                 no medium changes the speed of this type\n"},
          {"labels pitch nope 2", "", "TYPE \"nope\": unknown label type", 2},
          {"labels pitch 25f 999", "", "MEDIUM \"999\": unknown medium", 2}});
}

}  // namespace
