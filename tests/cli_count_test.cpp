// Frame counts and cadences in the tool.

#include "tests/tool.h"

namespace {

TEST_F(Tool, CountsFramesAndBack) {
  expect({
      {"labels count 30f-drop '00:00:59;29' '00:01:00;02' 00010002 00:00:00:00", "1800\n1801\n1801\n1\n"},
      {"labels count 30f-drop --back 1800 1801 0", "00:00:59;29\n00:01:00;02\n23:59:59;29\n"},
      {"for i in 24 25 50 60; do labels count ${i}f 00:00:01:00; done", "25\n26\n51\n61\n"},
      {"labels count 30f-nondrop --transfer 2:3 --phase 1 --phases --edit film 00:00:00.03 00:00:00.09",
       "3\tphase 3\n8\tphase 2\n"},
      {"labels count 24f --transfer 24:25 --phase 23 00:00:01:00", "26\n"},
      {"labels count F35 1234+07 123407 KJ1234561234+07", "19752\n19752\n19752\n"},
      {"labels count F16_5 '00002&07' 00002+07; labels count F16 --frames-per-key 40 --back 120",
       "48\n48\n0002&39\n"},
      {"labels count F35 --transfer 2:3 0000+01 | labels count F35 --transfer 2:3 --back", "0000+01\n"},
      {"labels count F353 --phases --key-phase 3 0002+21", "64\tkey phase 1\n"},
      {"labels count F353 --phases --back 64 65", "0002+21\tkey phase 3\n0003+00\tkey phase 1\n"},
  });
}

TEST_F(Tool, RefusesWhatCannotBeCounted) {
  expect({
      {"labels count 30f-drop '00:01:00;00'", "?\n", "(column 10); nearest is 00:01:00;02\n", 1},
      {"labels count 25f 99000000 -- -00:00:00:01", "?\n?\n", "frames are counted from 00:00:00:00", 1},
      {"labels count F35 1234+16", "?\n", "frames of this key run from 00 to 15", 1},
      {"labels count F353 0001+21", "?\n", "from 00 to 20 at key phase 1", 1},
      {"printf '12345+07\\n0\\0+1\\n' | labels count F35", "?\n?\n",
       "line 2: \"0\\x00+1\": expected a key of 4 digits", 1},
      {"labels count 25f --back x", "?\n", "expected a frame", 1},
      {"labels count 25f --back -- -99999999", "?\n", "too far from frame 1", 1},
      {"labels count 48f 1", "", "TYPE \"48f\": tc_48_label cannot be counted", 2},
      {"labels count 25f --transfer 3:2 1", "", "--transfer \"3:2\": expected none, 2:3 or 24:25\n", 2},
      {"labels count 25f --transfer 2:3 --phase 5 1", "", "--phase \"5\": expected a phase of 2:3, from 0 to 4",
       2},
      {"labels count 25f --phase 1 1", "", "--phase \"1\": only", 2},
      {"labels count 25f --frames-per-key 9 1", "", "leave out --frames-per-key", 2},
      {"labels cadence --transfer none", "", "has no cadence", 2},
      {"labels cadence --frames 0", "", "--frames \"0\": expected a whole number from 1 to 100000\n", 2},
      {"labels cadence --svg none/x", "", "--svg \"none/x\": No such file", 2},
      {"labels cadence --svg x --key 1", "", "--key \"1\": expected a key", 2},
      {"labels cadence --svg x --film 25f", "", "expected a key-number type", 2},
      {"labels cadence --svg x --transfer 24:25 --drop", "", "leave out --drop", 2},
  });
}

TEST_F(Tool, LaysOutACadence) {
  expect({{"labels cadence --frames 6",
           "film   1     2  3  4  5     6\n"
           "       A  +  B  C  D  A  +  B\n"
           "video  1  2  3  4  5  6  7  8\n"},
          {"labels cadence --frames 4 --phase 4",
           "film      1  2  3  4\n"
           "       +  A  B  C  D\n"
           "video  1  2  3  4  5\n"},
          {"labels cadence --transfer 24:25 --phase 23 | cut -c 76-", "24\n X  +\n24 25\n"}});
}

TEST_F(Tool, DrawsACadence) {
  // The pictures of the documents are the tool's own.
  expect({{"labels cadence --phase 1 --frames 8 --timecode 01:00:00:00 --key 1234+00 --svg picture.svg;"
           " cmp picture.svg \"$LISTINGS\"/../../docs/images/cadence-2-3.svg",
           ""},
          {"labels cadence --transfer 24:25 --key 1234+00 --svg picture.svg;"
           " cmp picture.svg \"$LISTINGS\"/../../docs/images/cadence-24-25.svg",
           ""},
          {"labels cadence --frames 8 --phase 2 --drop --timecode '00:00:59;28' --key 1234+14 --svg picture.svg;"
           " grep -c 'class=\"added\"' picture.svg;"
           " grep -o '>[0-9:]*[;+][0-9]*[0-9]<' picture.svg | tr -d '<>' | sort | tr '\\n' ' '",
           "2\n00:00:59;28 00:00:59;29 00:01:00;02 00:01:00;03 00:01:00;04 00:01:00;05 00:01:00;06 00:01:00;07 "
           "00:01:00;08 00:01:00;09 1234+14 1234+15 1235+00 1235+01 1235+02 1235+03 1235+04 1235+05 "},
          {"labels cadence --frames 21 --film F16 --svg 16.svg; grep -o '[01]*&amp;00' 16.svg",
           "0000&amp;00\n0001&amp;00\n"}});
}

}  // namespace
