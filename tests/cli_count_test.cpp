// Frame counts and cadences in the tool.

#include "tests/tool.h"

namespace {

TEST_F(Tool, CountsFramesAndBack) {
  struct {
    char const* line;
    char const* out;
  } const cases[] = {
      {"labels count 30f-drop '00:00:59;29' '00:01:00;02' 00010002 00:00:00:00", "1800\n1801\n1801\n1\n"},
      {"labels count 30f-drop --back 1800 1801 0", "00:00:59;29\n00:01:00;02\n23:59:59;29\n"},
      {"labels count 30f-nondrop --transfer 2:3 --edit film --phase 1 --phases 00:00:00.03 00:00:00.09",
       "3\tphase 3\n8\tphase 2\n"},
      {"labels count 24f --transfer 24:25 --phase 23 00:00:01:00", "26\n"},
      {"labels count F35 1234+07 123407 KJ1234561234+07", "19752\n19752\n19752\n"},
      {"labels count F16_5 '00002&07' 00002+07; labels count F16 --frames-per-key 40 --back 120",
       "48\n48\n0002&39\n"},
      {"labels count F35 --transfer 2:3 0000+01 | labels count F35 --transfer 2:3 --back", "0000+01\n"},
      {"labels count F353 --phases --key-phase 3 0002+21", "64\tkey phase 1\n"},
      {"labels count F353 --phases --back 64 65", "0002+21\tkey phase 3\n0003+00\tkey phase 1\n"},
  };
  for (auto const& c : cases) {
    auto const [out, err, exit_code] = run(c.line);
    EXPECT_EQ(out, c.out) << c.line;
    EXPECT_EQ(err, "") << c.line;
    EXPECT_EQ(exit_code, 0) << c.line;
  }
}

TEST_F(Tool, RefusesWhatCannotBeCounted) {
  struct {
    char const* line;
    int exit_code;
    char const* err;  // part of it
  } const cases[] = {
      {"labels count 30f-drop '00:01:00;00'", 1, "nearest is 00:01:00;02"},
      {"labels count 25f 99000000", 1, "\"99000000\": hours run from 00 to 23"},
      {"labels count 25f -- -00:00:00:01", 1, "below it there are none"},
      {"labels count F35 1234+16", 1, "the frames of this key run from 00 to 15"},
      {"labels count F353 0001+21", 1, "from 00 to 20 at key phase 1"},
      {"printf '12345+07\\n0\\0+1\\n' | labels count F35", 1, "line 2: \"0\\x00+1\": expected a key of 4 digits"},
      {"labels count 25f --back x", 1, "expected a frame"},
      {"labels count 25f --back -- -99999999", 1, "too far from frame 1"},
      {"labels count 48f 1", 2, "tc_48_label cannot be counted"},
      {"labels count 25f --transfer 3:2 1", 2, "\"3:2\" is no transfer; expected none, 2:3 or 24:25"},
      {"labels count 25f --transfer 2:3 --phase 5 1", 2, "the phases of 2:3 run from 0 to 4"},
      {"labels count 25f --phase 1 1", 2, "--phase 1: there are phases with"},
      {"labels count 25f --frames-per-key 9 1", 2, "--frames-per-key"},
      {"labels cadence --transfer none", 2, "has no cadence"},
      {"labels cadence --svg none/x", 2, "--svg \"none/x\": No such file"},
      {"labels cadence --svg x --key 1", 2, "--key \"1\": expected a key"},
      {"labels cadence --svg x --film 25f", 2, "has no key numbers"},
      {"labels cadence --svg x --transfer 24:25 --drop", 2, "--drop: "},
  };
  for (auto const& c : cases) {
    auto const [out, err, exit_code] = run(c.line);
    EXPECT_EQ(out, "") << c.line;
    EXPECT_NE(err.find(c.err), std::string::npos) << c.line << ": " << err;
    EXPECT_EQ(exit_code, c.exit_code) << c.line;
  }
}

TEST_F(Tool, LaysOutACadence) {
  EXPECT_EQ(run("labels cadence --frames 6").out,
            "film   1     2  3  4  5     6\n"
            "       A  +  B  C  D  A  +  B\n"
            "video  1  2  3  4  5  6  7  8\n");
  EXPECT_EQ(run("labels cadence --frames 4 --phase 4").out,
            "film      1  2  3  4\n"
            "       +  A  B  C  D\n"
            "video  1  2  3  4  5\n");
  EXPECT_EQ(run("labels cadence --transfer 24:25 --phase 23 | cut -c 76-").out, "24\n X  +\n24 25\n");
}

TEST_F(Tool, DrawsACadence) {
  auto const [out, err, exit_code] =
      run("labels cadence --frames 8 --phase 2 --drop --timecode '00:00:59;28' --key 1234+14 --svg picture.svg");
  EXPECT_EQ(out + err, "");
  EXPECT_EQ(exit_code, 0);
  EXPECT_EQ(run("grep -c 'class=\"added\"' picture.svg").out, "2\n");
  EXPECT_EQ(run("labels cadence --frames 21 --film F16 --svg 16.svg; grep -o '[01]*&amp;00' 16.svg").out,
            "0000&amp;00\n0001&amp;00\n");
  EXPECT_EQ(run("grep -o '>[0-9:]*[;+][0-9]*[0-9]<' picture.svg | tr -d '<>' | sort | tr '\\n' ' '").out,
            "00:00:59;28 00:00:59;29 00:01:00;02 00:01:00;03 00:01:00;04 00:01:00;05 00:01:00;06 00:01:00;07 "
            "00:01:00;08 00:01:00;09 1234+14 1234+15 1235+00 1235+01 1235+02 1235+03 1235+04 1235+05 ");
}

}  // namespace
