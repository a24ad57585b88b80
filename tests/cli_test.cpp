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
      {"labels types 1", "", "unexpected argument \"1\"; try 'labels types --help'\n", 2},
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
