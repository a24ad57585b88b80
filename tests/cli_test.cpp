// Labels, samples, usage, input and output of the tool.

#include "tests/tool.h"

namespace {

TEST_F(Tool, ConvertsLabels) {
  expect({
      {"labels show 29.97DF 0 1799 1800 17982; labels show 25 2159999",
       "00:00:00;00\n00:00:59;29\n00:01:00;02\n00:10:00;00\n23:59:59.24\n"},
      {"labels show 25f -- -25 90000; labels show 25F -25 +25",
       "-00:00:01.00\n01:00:00.00\n-00:00:01.00\n00:00:01.00\n"},
      {"labels read 24f 00:59:54:18 01:00:07+00", "86274\n86568\n"},
      {"labels read pal_label -00:00:01.00 ' 01:00:00.00'; labels read '#5' -- -00:00:01:00", "-25\n90000\n-25\n"},
      {"labels read 12f 00:00:01.00; labels read p24 00:00:01+00", "12\n24\n"},
      {"printf '01:00:00:00\\r\\n00:00:00:01' | labels read 25f; labels read 25f </dev/null", "90000\n1\n"},
      {"printf '%s\\n' '001  A   V     C        00:00:00:00 00:00:01:00' 'TITLE: A' |"
       " awk '/^[0-9]+ /{print $NF}' | labels read 25f",
       "25\n"},
      {"labels read --illegal as-is 25f 99:99:99:99 1:2:3x4", "9061074\n93079\n"},
      {"labels read 30f-drop '00:01:00;00' --illegal=as-is", "1798\n"},
      {"labels --set config.50p_timecode_type=2 show 50f 7 8", "00:00:00:03\n00:00:00.04\n"},
      {"labels read --set config.50p_timecode_type=2 50f 00:00:00:03 00:00:00.03", "3\n3\n"},
      {"printf 'config.60p_timecode_type = 3\\n' >s; labels --settings s show 60f 30;"
       " labels --settings s --set config.60p_timecode_type=1 show 60f 30",
       "00:00:01.00\n00:00:00.30\n"},
      {"labels show F353 --prefix KJ123456 --perfs 0 1 62 -2",
       "KJ1234560000+00.1\nKJ1234560000+01.3\nKJ1234560001+00.3\nKJ1234560000+00.3\n"},
      {"labels show foot_353_label --perfs 64 -64; labels show feet35 16 -- -16",
       "0001+00.1\n-0001+00.1\n0001+00\n-0001+00\n"},
      {"labels show I16 19; labels show frames -5", "XXXX0000+19\n-000005\n"},
      {"labels read F16 'KJ1234560123&07'; labels read frames 100000000", "2467\n100000000\n"},
      {"labels read F35 --prefix KJ123456 0123+07 KJ1234560123+08", "1975\n1976\n"},
      {"labels read F35 --perfs KJ1234560123+07; labels read 35mm-3p KJ1234560000+01.1", "7900\n1\n"},
      {"labels read --illegal as-is F35 KJ1234560123", "1968\n"},
      {"labels add F35 KJ1234560123+07 100 -2000", "KJ1234560129+11\nKJ1234569998+07\n"},
      {"labels add F353 --prefix KJ123456 0000+00.1 21 --perfs", "KJ1234560000+07.1\n"},
      {"labels add 30f-drop '00:00:59;29' 1; labels add foot_16_label -0001+00 39", "00:01:00;02\n-0000+01\n"},
      {"echo 10 | labels add I35 AB120000+15", "AB120001+09\n"},
      {"labels diff F35 KJ1234560123+07 KJ1234560000+00 KJ1234560123+08", "1975\n159999\n"},
      {"labels diff F353 --perfs KJ1234560001+00.1 KJ1234560000+00.1", "64\n"},
      {"labels diff 25f 01:00:10:00 01:00:00:00; labels diff feet35 -0001+00 0001+00", "250\n-32\n"},
      {"labels --version", "labels 14.5.0.0\n"},
  });
}

TEST_F(Tool, NamesTypesAsPeopleDo) {
  for (char const* const named : {"25 pal_label",
                                  "50i pal_label",
                                  "'25 fps' pal_label",
                                  "P pal_label",
                                  "23.98 tc_24_label",
                                  "24p tc_24_label",
                                  "29.97 ntsc_label",
                                  "30df ntsc_drop_label",
                                  "'29.97 DF' ntsc_drop_label",
                                  "30F-Drop ntsc_drop_label",
                                  "59.94p tc_60_label",
                                  "50_duration tc_50_duration_label",
                                  "35MM keycode_35_label",
                                  "35mm3p keycode_353_label",
                                  "f35_5 keycode_35_label_5",
                                  "'#25' keycode_16_label_5",
                                  "65mm-5p-80 keycode_655_80_label",
                                  "'feet 16' foot_16_label",
                                  "ink35 ink_35_label",
                                  "frames film_frames_label"}) {
    std::string const line = named;
    auto const type = line.rfind(' ');
    expect(
        {{("labels show " + line.substr(0, type) + " 100 >a; labels show" + line.substr(type) + " 100 | cmp - a")
              .c_str(),
          ""}});
  }
  expect({
      {"labels --set drop-frame=yes show 29.97 1800; labels --set drop-frame=yes show 29.97ndf 1800",
       "00:01:00;02\n00:01:00.00\n"},
      {"labels show 29.79 1", "", "labels: TYPE \"29.79\": unknown label type; nearest: 29.97, 239.76\n", 2},
      {"labels show feet 1", "", "unknown label type; nearest: feet35, feet35-3p, feet16\n", 2},
      {"labels show 35mm-3 1", "", "nearest: 35mm, 35mm-3p, 35mm-3p-4digits\n", 2},
      {"labels show 35 1", "", "unknown rate; for film write '35mm' or 'feet35'\n", 2},
      {"labels show 5 1", "", "unknown rate; for the type of this number write '#5'\n", 2},
      {"labels types DROP key-number", "name  label  other names  exchange  class  number  meaning\n",
       "labels: no label type has all of these words\n", 1},
      {"labels types keycode 16 --format tsv | cut -f 1,9-13",
       "name\trate_fps\tcounted_frames_per_second\tframes_per_key\tperfs_per_frame\tperfs_per_key\n"
       "16mm\t24\t\t20\t1\t20\n16mm-4digits\t24\t\t20\t1\t20\n16mm-5digits\t24\t\t20\t1\t20\n16mm-"
       "6digits\t24\t\t20\t1\t20\n"},
  });
}

TEST_F(Tool, ListsLabelsOneAfterTheOther) {
  expect({
      {"labels range 29.97df '00:00:59;28' '00:01:00;03' --step 2; labels add 25 23:59:59:24 1",
       "00:00:59;28\n00:01:00;02\n00:00:00.00\n"},
      {"labels range 25 23:59:59:23 00:00:00:01 --style exchange",
       "23:59:59:23\n23:59:59:24\n00:00:00:00\n00:00:00:01\n"},
      {"labels range feet35 --step -8 0001+00 -- -0000+01", "0001+00\n0000+08\n0000+00\n"},
      {"labels range 35mm KJ1234569999+15 KJ1234560000+00", "KJ1234569999+15\nKJ1234560000+00\n"},
      {"labels range 35mm-3p --perfs KJ1234560000+21.3 0001+00.1 --prefix KJ123456 --step 3 --format csv",
       "label,sample\nKJ1234560000+21.3,61\nKJ1234560001+00.1,64\n"},
      {"labels range feet35 0100+00 0099+00", "", "TO \"0099+00\": comes before FROM; turn the sign of --step", 2},
      {"labels range 25 0 1 --step 0", "", "FROM \"0\": ", 2},
      {"labels range 25 00:00:00:00 00:00:00:01 --step 0", "", "--step \"0\": expected frames", 2},
      {"labels range 35mm KJ1234560000+00 EH1234560000+00", "", "from another roll than KJ123456", 2},
      {"labels range 35mm-3p KJ1234569999+18.1 KJ1234560000+01.1", "",
       "TO \"KJ1234560000+01.1\": leads beyond the first or last key", 2},
      {"labels day 29.97df | sed -n '1p;1801p;$p;$='", "00:00:00;00\n00:01:00;02\n23:59:59;29\n2589408\n"},
      {"labels day 35mm", "", "TYPE \"35mm\": film has no time of day; expected timecode", 2},
      {"while a=$(date -u +%H:%M:%S); n=$(labels now 120 --utc); [ $a != $(date -u +%H:%M:%S) ]; do :; done;"
       " [ ${n%.[01][0-9][0-9]} = $a ]; labels now 25 --style exchange --format json | grep -c "
       "'\"label\":\"[0-9:]*\"'",
       "1\n"},
  });
}

// What other systems and people write, and what is written for them.
TEST_F(Tool, ReadsAndWritesOtherSpellings) {
  expect({
      {"labels show 24 --style exchange 25 -- -25; labels show 29.97df --style exchange 1800; labels show 120 "
       "--style exchange 1; labels show 35mm --style exchange 1",
       "00:00:01:01\n-00:00:01:01\n00:01:00;02\n00:00:00:001\nXX0000000000+01\n"},
      {"labels add 25 01:00:00:00 1 --style exchange", "01:00:00:01\n"},
      {"labels read 25 '01;00;00;02' 01:00:00+02 '01:00:00;25' 01.00.00.02", "90002\n90002\n?\n?\n",
       "labels: argument 1: \"01;00;00;02\" is read as pal_label, though \";\" before the frames means "
       "drop-frame; others"
       " like it are read alike\nlabels: argument 3: \"01:00:00;25\": expected \".\" or \":\" before the frames; "
       "\";\" means"
       " drop-frame (column 9); nearest is 01:00:00.24\nlabels: argument 4: \"01.00.00.02\": expected \":\" "
       "before the"
       " minutes (column 3); nearest is 01:00:00.02\n",
       1},
      {"labels read 29.97df '01;00;00;02' 01:00:00:02", "107894\n107894\n"},
      {"labels read 25 --illegal nearest 00:00:00:25 01000000 x", "24\n90000\n?\n", "argument 3: \"x\": not", 1},
      {"labels read 35mm --perfs --illegal nearest KJ1234560000+16 0001+00 --prefix KJ123456", "60\n64\n"},
      {"labels diff 25 --illegal nearest 00:00:01:00 00:00:00:99", "1\n"},
      {"labels read 25 --entry short --at 01:00:00:00 1:00:00 10. +15 -1:00 115 1 .. 90. +x",
       "1500\n250\n90015\n89975\n40\n1\n?\n?\n?\n",
       "argument 8: \"90.\": is short for 00:00:90.00: seconds run from 00 to 59", 1},
      {"labels read 29.97df --entry short --at '01:00:00;00' +1:00:00 -- -1:0:0:1; labels read 120 --entry short "
       "1005",
       "109692\n2589407\n125\n"},
      {"labels read feet35 --entry short --at 12+03 12+3 1203 12+ +3 -1+", "195\n195\n192\n198\n179\n"},
      {"labels read 35mm-3p --entry short --prefix KJ123456 --at 1.1 12+3 12+3.2 +1+", "259\n?\n?\n",
       "argument 2: \"12+3.2\": lies within a frame, at perforation 776", 1},
      {"labels read 25 --entry short +5; labels read 25 --at 01:00:00:00 1", "?\n",
       "is a sum; expected --at with the label that it counts from\nlabels: --at \"01:00:00:00\": only sums", 2},
  });
}

TEST_F(Tool, ReadsAnyText) {
  expect({
      {"printf '\\357\\273\\27701:00:00:00 \\t\\r\\n \\r\\n00:00:00:01' | labels read 25", "90000\n\n1\n",
       "line 2: blank"},
      {"printf '01:00:00:00\\n' | iconv -t UTF-16 | labels read 25", "",
       "labels: standard input: the text is UTF-16;", 2},
      {"printf '01:00:00:00\\n' | iconv -t UTF-16BE | labels read 25", "", "expected UTF-8 or ASCII", 2},
      {"echo 00:00:00:02 | labels read 25 00:00:00:01 - 00:00:00:03", "1\n2\n3\n"},
      {"echo 1 >cut.edl; labels read 25 cut.edl", "?\n",
       "this is a file: 'labels check' and 'labels rewrite' take lists, and '<cut.edl' gives its lines\n", 1},
      {"labels diff 25 --origin 01:00:00:00 01:00:00:10 01:01:00:00", "10\n1500\n"},
  });
}

TEST_F(Tool, ListsWhatTheLibraryKnows) {
  expect({{"labels types | diff \"$LISTINGS/types.txt\" -", ""},
          {"labels media | diff \"$LISTINGS/media.txt\" -", ""},
          {"labels choices | diff \"$LISTINGS/choices.txt\" -", ""}});
}

// The first and last samples that have a label, and their neighbours that have none.
TEST_F(Tool, ShowsEveryLabelOfFilm) {
  expect({
      {"labels show F35 --perfs -1 0 1279999 1280000 2>err2; cut -d' ' -f 3,4,6- err2",
       "?\nXX0000000000+00\nXX0000009999+15\n?\n1: \"-1\": no label; keycode_35_label covers samples 0 to "
       "1279999\n"
       "4: \"1280000\": no label; keycode_35_label covers samples 0 to 1279999\n"},
      {"labels show F353_5 --perfs -- -3 -2 12799997 12799998", "?\nXX0000000000+00.3\nXX0000099999+21.3\n?\n",
       "argument 4: \"12799998\": has no label; keycode_353_label_5 covers samples -2 to 12799997\n", 1},
      {"labels show feet16 -- -8000000 -7999999 7999999 8000000", "?\n-99999+39\n99999+39\n?\n",
       "-7999999 to 7999999\n", 1},
      {"labels show feet35-3p --perfs -- -12800062 -12800061 12800061 12800062",
       "?\n-100000+21.3\n100000+21.3\n?\n", "-12800061 to 12800061\n", 1},
      {"labels show feet35 --perfs -- -6400004 -6400003 -6400000 -6399999 -4 -3 -1",
       "-0000+01\n?\n?\n-99999+15\n-0000+01\n?\n?\n",
       "argument 7: \"-1\": has no label, since it would be -0000+00", 1},
      {"labels show I16 -- -1 399999 400000", "?\nXXXX9999+19\n?\n", "0 to 399999\n", 1},
      {"labels show frames -- -2147483648 2147483647", "-2147483648\n2147483647\n"},
      {"labels show frames 100000001", "?\n", "has no label, since the number is reserved", 1},
      {"labels show 25 -- -2159999 2160000", "-23:59:59.24\n?\n", "pal_label covers samples -2159999 to 2159999",
       1},
      {"labels show 29.97df -- -1", "?\n", "covers samples 0 to 2589407", 1},
      {"labels show --set config.50p_timecode_type=2 50 4319999", "23:59:59:24\n"},
      {"labels show 35mm 536870912", "?\n", "beyond the range of samples", 1},
      {"labels read 35mm-3p KJ1234560001+00.1", "?\n", "within a frame, at perforation 64; use --perfs", 1},
  });
}

TEST_F(Tool, RefusesAnItemAndProcessesTheRest) {
  expect({
      {"printf '01:00:00:00\\n\\n99:99:99:99\\n00:00:00:01\\n' | labels read 25f", "90000\n\n?\n1\n",
       "labels: line 2: blank; blank lines are passed through\nlabels: line 3: \"99:99:99:99\": hours run from 00 "
       "to 23 (column 1); nearest is 23:59:59.24\n",
       1},
      {"labels read 30f-drop '00:01:00;00' '00:01:00;02'", "?\n1800\n", "(column 10); nearest is 00:01:00;02\n",
       1},
      {"labels show 25f 1 +-1 2147483648 0x1 ''", "00:00:00.01\n?\n?\n?\n?\n",
       "labels: argument 2: \"+-1\": expected frames, a whole number from -2147483648 to 2147483647\n"
       "labels: argument 3: \"2147483648\": expected frames, a whole number from -2147483648 to 2147483647\n"
       "labels: argument 4: \"0x1\": expected frames, a whole number from -2147483648 to 2147483647\n"
       "labels: argument 5: \"\": expected frames, a whole number from -2147483648 to 2147483647\n",
       1},
      {"labels show 25f '[1,2]' '{}' -- --perfs 2>&1 >/dev/null | cut -d: -f 2,3",  //
       " argument 1: \"[1,2]\"\n argument 2: \"{}\"\n argument 3: \"--perfs\"\n"},
      {"printf 'a\\0\\377\\\\\"\\n01:00:00:00\\0\\n' | labels read 25f 2>&1 >out | cut -d' ' -f 2-4",
       "line 1: \"a\\x00\\xFF\\\\\\\"\":\nline 2: \"01:00:00:00\\x00\":\n"},
      {"printf '01:00:00:00\\0x\\nx\\n-x\\n' | labels read --illegal as-is --refused '' 25f", "\n\n\n",
       "labels: line 1: \"01:00:00:00\\x00x\": contains a NUL byte (column 12); expected text\n"
       "labels: line 2: \"x\": cannot be read as pal_label\n"
       "labels: line 3: \"-x\": cannot be read as pal_label\n",
       1},
      {"{ head -c 4096 /dev/zero; echo; head -c 200000 /dev/zero; echo; echo 00:00:00:01; } | labels read 25f "
       "2>messages; grep -c : messages; tail -n 1 messages | sed 's/\".*\": //'",
       "?\n?\n1\n2\nlabels: line 2: the line is longer than 4096 bytes\n"},
      {"labels read F35 --prefix KJ123456 0123+16 EH1234560123+07 x", "?\n?\n?\n",
       "labels: argument 1: \"0123+16\": frames run from 00 to 15 (column 6); nearest is 0123+15\n"
       "labels: argument 2: \"EH1234560123+07\": the prefix is EH123456; expected KJ123456\n"
       "labels: argument 3: \"x\": not a key number; expected a label like XX0000000000+00\n",
       1},
      {"labels add F353 KJ1234560000+00.1 -1 1.5 2147483647 1", "?\n?\n?\nKJ1234560000+01.1\n",
       "labels: argument 1: \"-1\": leads beyond the first or last key, where the labels do not go on\n"
       "labels: argument 2: \"1.5\": expected a whole number of frames\n"
       "labels: argument 3: \"2147483647\": leads beyond the range of samples, -2147483648 to 2147483647\n",
       1},
      {"labels add feet35 9999+00 3100000", "?\n",
       "leads to sample 13039936, which has no label; foot_35_label covers", 1},
      {"labels add F35 KJ1234560123+16 1", "", "labels: LABEL \"KJ1234560123+16\": frames run from 00 to 15", 1},
      {"labels diff F353 KJ1234560001+00.1 KJ1234560000+00.1 EH1234560000+00.1", "?\n?\n",
       "labels: argument 1: \"KJ1234560000+00.1\": the difference of 64 perforations is not a whole number of"
       " frames; use --perfs to show it\n"
       "labels: argument 2: \"EH1234560000+00.1\": the prefix is EH123456, from another roll than KJ123456\n",
       1},
  });
}

TEST_F(Tool, ExplainsWrongUsage) {
  expect({
      {"labels", "", "a command is required; expected types, show, read, ", 2},
      {"labels frobnicate 1", "", "unknown command \"frobnicate\"; expected types, show, read, ", 2},
      {"labels show 25f --prefix KJ123456 1", "", "--prefix \"KJ123456\": pal_label has no prefix", 2},
      {"labels read F35 --prefix KJ12345 1", "", "--prefix \"KJ12345\": expected the 8 characters", 2},
      {"labels show F35 --prefix 'KJ 23456' 1", "", "printable and without blanks", 2},
      {"labels read 25 --illegal lenient 1", "", "--illegal \"lenient\": expected refuse, nearest or as-is\n", 2},
      {"labels add F35", "", "labels: LABEL is required; try 'labels add --help'\n", 2},
      {"labels add 25f 00:00:00:00 1 --perfs", "", "--perfs: pal_label does not count perforations", 2},
      {"labels read 25f -x", "", "unexpected argument \"-x\"", 2},
      {"labels media 1", "", "unexpected argument \"1\"; try 'labels media --help'\n", 2},
      {"labels show 25f 1 --set", "", "--set needs a value", 2},
      {"labels count 25f --edit 00:00:00.01", "", "--edit \"00:00:00.01\": expected video or film\n", 2},
      {"labels --set drop-frame types", "", "--set \"drop-frame\": expected KEY=VALUE", 2},
      {"labels --set drop-frame=perhaps types", "", "expected yes, no", 2},
      {"labels --settings none types", "", "--settings \"none\": No such file", 2},
      {"echo x >s; labels --settings s types", "", "--settings \"s\": line 1: ", 2},
      {"labels show keycode_label 1", "", "TYPE \"keycode_label\": keycode_label has no labels", 2},
      {"labels show dummy_label 1", "", "dummy_label has no labels", 2},
  });
  for (char const* type :
       {"nope", "30F-NONDROPXYZ", "25f x", " ", "", "BAD", "1", "999", "#1", "#+5", "#999", "2-5"})
    expect({{("labels read '" + std::string{type} + "' 1").c_str(), "", "\": unknown label type; ", 2}});
  expect(
      {{"labels --help | awk '/^Commands:/ {on = 1; next} /^$/ {on = 0} on {print $1}' | while read -r command;"
        " do labels $command --help | tail -n 1; done | sort -u",
        "Run 'labels --help' for settings and exit codes.\n"}});
}

TEST_F(Tool, ReportsInputAndOutputThatFail) {
  expect({
      {"labels show 25f 1 >/dev/full", "", "labels: standard output: ", 2},
      {"yes 1 | head -n 100000 | timeout 20 labels show 25f >/dev/full", "", "labels: standard output: ", 2},
      {"labels --help >/dev/full", "", "labels: standard output: ", 2},
      {"labels show 25f 1 >&-", "", "labels: standard output: ", 2},
      {"labels read 25f <&-", "", "labels: standard input: ", 2},
      {"labels read 25f </", "", "labels: standard input: ", 2},
      {"printf '1\\nx\\n2\\n' | labels show 25f 2>&1 | cut -c 1-14",  //
       "00:00:00.01\n?\nlabels: line 2\n00:00:00.02\n"},
  });
}

TEST_F(Tool, AnswersALineBeforeTheNextIsThere) {
  expect(
      {{"timeout 20 sh -c 'mkfifo to from; labels show 25f <to >from & exec 3>to 4<from\n"
        "for i in 1 2 3; do echo $i >&3; read -r label <&4; echo $label; done; exec 3>&-; wait'",
        "00:00:00.01\n00:00:00.02\n00:00:00.03\n"}});
}

// Lines of all lengths, so that every place in the reader's buffer comes to be the end of a line.
TEST_F(Tool, ConvertsManyLinesThereAndBack) {
  expect(
      {{"awk 'BEGIN {for (i = 0; i < 200000; ++i) printf \"%d%s\\n\", i * 10, i % 7 ? \"\" : \"\\r\"}' >in\n"
        "labels show 25f <in | labels read 25f >out && tr -d '\\r' <in | cmp - out && wc -l <out",
        "200000\n"}});
}

}  // namespace
