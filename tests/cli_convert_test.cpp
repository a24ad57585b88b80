// labels convert: labels of one type to those of another.

#include "tests/tool.h"

TEST_F(Tool, ConvertsLabels) {
  expect({
      {"labels convert --from 25 --to 29.97df 01:00:00:00 00:00:00:12 00:00:01:00",
       "01:00:00;00\n00:00:00;14\n00:00:01;00\n"},
      {"labels convert --from 25 --to 29.97df --by frame 01:00:00:00", "00:50:03;00\n"},
      {"labels convert --from 23.976 --to 24 01:00:00:00; labels convert --from 23.976 --to 24 --by frame "
       "01:00:00:00",
       "01:00:03+14\n01:00:00+00\n"},
      {"labels convert --from 60 --to 30 --round down --style exchange 00:00:00:03 00:00:00:01",
       "00:00:00:01\n00:00:00:00\n"},
      {"labels convert --from 24 --to 25 --exact 00:00:01:00 00:00:00:12 00:00:00:13", "00:00:01.00\n?\n?\n",
       "labels: argument 2: \"00:00:00:12\": falls between 00:00:00.12 and 00:00:00.13\n"
       "labels: argument 3: \"00:00:00:13\": falls between 00:00:00.13 and 00:00:00.14\n",
       1},
      {"labels convert --from 24 --to 35mm --sync 01:00:00:00=KJ1234560123+07 01:00:00:10 00:59:59:23 00:50:00:00",
       "KJ1234560124+01\nKJ1234560123+06\n?\n",
       "labels: argument 3: \"00:50:00:00\": leads to sample -49700, which has no label; keycode_35_label covers "
       "samples "
       "0 to 1279999\n",
       1},
      {"labels convert --from 35mm --to feet16 --sync KJ1234560000+00=0000+00 --format csv KJ1234560002+08 "
       "0000+01 +",
       "input,label,is_exact,problem\nKJ1234560002+08,0001+00,true,\n0000+01,0000+01,true,\n"
       "+,,,not a key number; expected a label like XX0000000000+00\n",
       "argument 3: \"+\": ", 1},
  });
}

// The sync point is on frame A, B, C or D of the cadence AA BB BC CD DD.
TEST_F(Tool, ConvertsLabelsThroughAPulldown) {
  expect({
      {"for p in A B C D 1; do labels convert --from 29.97 --to frames --transfer 2:3 --phase $p --round down"
       " 00:00:00:00 00:00:00:01 00:00:00:02 00:00:00:03 00:00:00:04 00:00:00:05 | tr '\\n' ' '; echo; done",
       "000000 000001 000001 000002 000003 000004 \n"
       "000000 000000 000001 000002 000003 000004 \n"
       "000000 000001 000002 000003 000003 000004 \n"
       "000000 000001 000002 000002 000003 000004 \n"
       "000000 000001 000001 000002 000003 000004 \n"},
      {"labels convert --from feet35 --to 25 --transfer 24:25 --phase 23 0001+07 0001+08",
       "00:00:00.23\n00:00:01.00\n"},
  });
}

TEST_F(Tool, RefusesConversionsThatDoNotFitTogether) {
  tool_case const cases[] = {
      {"--from 25 --to 35mm", "",
       "--to \"35mm\": its labels begin with a prefix; give --prefix, or --sync with a"},
      {"--from 29.97 --to feet35", "",
       "--to \"feet35\": film and timecode of this rate run together in several ways; "},
      {"--from 25 --to 24 --by rate", "", "--by \"rate\": expected time or frame\n"},
      {"--from 25 --to 24 --round off", "", "--round \"off\": expected down, near or up\n"},
      {"--from 25 --to 24 --sync 01:00:00:00", "", "--sync \"01:00:00:00\": expected LABEL=LABEL, for example "},
      {"--from 25 --to 24 --sync 1=2", "", "--sync \"1=2\": \"1\": hours must have 2 digits"},
      {"--from 24 --to 25 --transfer 2:3", "",
       "--transfer \"2:3\": a 2:3 pulldown leads to timecode of 30 frames\n"},
      {"--from 24 --to 25 --transfer 24:25 --phase A", "",
       "--phase \"A\": expected a phase of 24:25, from 0 to 24\n"},
      {"--from 24 --to 30 --transfer 2:3 --phase E", "",
       "--phase \"E\": expected A, B, C or D, or a number from 0 to 4"},
      {"--from 24 --to 30 --transfer 2:3 --by time", "", "--by excludes --transfer"},
  };
  for (auto const& [options, out, err, exit_code] : cases)
    expect({{(std::string{"labels convert "} + options + " 00:00:00:00").c_str(), out, err, 2}});
}
