#include <string>

#include "tests/tool.h"

namespace {

TEST_F(Tool, DoesWhatItIsAsked) {
  struct {
    char const* line;
    char const* out;
  } const cases[] = {
      {"labels show 30f-drop 0 1799 1800 17982", "00:00:00;00\n00:00:59;29\n00:01:00;02\n00:10:00;00\n"},
      {"labels show 25f -- -25 90000", "-00:00:01.00\n01:00:00.00\n"},
      {"labels show 25F -25 +25", "-00:00:01.00\n00:00:01.00\n"},
      {"labels read 24f 00:59:54:18 01:00:07+00", "86274\n86568\n"},
      {"labels read pal_label -00:00:01.00 ' 01:00:00.00'", "-25\n90000\n"},
      {"labels read 5 -- -00:00:01:00", "-25\n"},
      {"labels read 12f 00:00:01.00; labels read p24 00:00:01+00", "12\n24\n"},
      {"printf '01:00:00:00\\r\\n00:00:00:01' | labels read 25f", "90000\n1\n"},
      {"labels read 25f </dev/null", ""},
      {"printf '%s\\n' '001  A   V     C        00:00:00:00 00:00:01:00' 'TITLE: A' |"
       " awk '/^[0-9]+ /{print $NF}' | labels read 25f",
       "25\n"},
      {"labels read --lenient 25f 99:99:99:99 1:2:3x4", "9061074\n93079\n"},
      {"labels read 30f-drop '00:01:00;00' --lenient", "1798\n"},
      {"labels --set config.50p_timecode_type=2 show 50f 7 8", "00:00:00:03\n00:00:00.04\n"},
      {"labels read --set config.50p_timecode_type=2 50f 00:00:00:03 00:00:00.03", "3\n3\n"},
      {"printf 'config.60p_timecode_type = 3\\n' >s; labels --settings s show 60f 30;"
       " labels --settings s --set config.60p_timecode_type=1 show 60f 30",
       "00:00:01.00\n00:00:00.30\n"},
      {"labels --version", "labels 14.5.0.0\n"},
      {"labels types | awk '$2 == \"tc_24_label\"'",
       "     8  tc_24_label             timecode     24f                24           -            -          -"
       "  -29.59.59.29\n"},
      {"labels types | awk '$7 + 0 > 0 && $4 !~ /_/ {print $2, $6, $7, $8}'",
       "keycode_35_label 16 4 64\nkeycode_16_label 20 1 20\nkeycode_353_label 22 3 64\nfoot_35_label 16 4 64\n"
       "foot_16_label 40 1 40\nfoot_353_label 22 3 64\nink_35_label 16 4 64\nink_16_label 20 1 20\n"
       "keycode_352_label 32 2 64\nkeycode_358_label 8 8 64\n"},
      {"labels show F353 --prefix KJ123456 0 1 62 -2 100000001",
       "KJ1234560000+00.1\nKJ1234560000+01.3\nKJ1234560001+00.3\nKJ1234560000+00.3\n>>>>>>>>>>>>>>>.>\n"},
      {"labels show foot_353_label 64 -64 -100000000", "0001+00.1\n-0001+00.1\n????????.?\n"},
      {"labels show I16 19; labels show 30 -5", "XXXX0000+19\n-000005\n"},
      {"labels read F16 'KJ1234560123&07'; labels read 30 100000000", "2467\n100000000\n"},
      {"labels read F35 --prefix KJ123456 0123+07 KJ1234560123+08", "7900\n7904\n"},
      {"labels read --lenient F35 KJ1234560123", "7872\n"},
      {"labels add F35 KJ1234560123+07 100 -2000", "KJ1234560129+11\nKJ1234569998+07\n"},
      {"labels add F353 --prefix KJ123456 0000+00.1 21 --perfs", "KJ1234560000+07.1\n"},
      {"labels add 30f-drop '00:00:59;29' 1; labels add foot_16_label -0001+00 39", "00:01:00;02\n-0000+01\n"},
      {"echo 10 | labels add I35 AB120000+15", "AB120001+09\n"},
      {"labels diff F35 KJ1234560123+07 KJ1234560000+00 KJ1234560123+08", "1975\n159999\n"},
      {"labels diff F353 --perfs KJ1234560001+00.1 KJ1234560000+00.1", "64\n"},
      {"labels diff 25f 01:00:10:00 01:00:00:00; labels diff 14 -0001+00 0001+00", "250\n-32\n"},
  };
  for (auto const& c : cases) {
    auto const [out, err, exit_code] = run(c.line);
    EXPECT_EQ(out, c.out) << c.line;
    EXPECT_EQ(err, "") << c.line;
    EXPECT_EQ(exit_code, 0) << c.line;
  }
}

TEST_F(Tool, RefusesAnItemAndDoesTheRest) {
  struct {
    char const* line;
    char const* out;
    char const* err;
  } const cases[] = {
      {"printf '01:00:00:00\\n\\n99:99:99:99\\n00:00:00:01\\n' | labels read 25f", "90000\n1\n",
       "labels: line 2: \"\": this is no timecode; expected hh:mm:ss.ff\n"
       "labels: line 3: \"99:99:99:99\": hours run from 00 to 23 (column 1); nearest is 23:59:59.24\n"},
      {"labels read 30f-drop '00:01:00;00' '00:01:00;02'", "1800\n",
       "labels: argument 1: \"00:01:00;00\": drop-frame leaves out frames 00 and 01 of every minute that is not a"
       " tenth (column 10); nearest is 00:01:00;02\n"},
      {"labels show 25f 1 +-1 2147483648 0x1 ''", "00:00:00.01\n",
       "labels: argument 2: \"+-1\": expected a sample, a whole number from -2147483648 to 2147483647\n"
       "labels: argument 3: \"2147483648\": expected a sample, a whole number from -2147483648 to 2147483647\n"
       "labels: argument 4: \"0x1\": expected a sample, a whole number from -2147483648 to 2147483647\n"
       "labels: argument 5: \"\": expected a sample, a whole number from -2147483648 to 2147483647\n"},
      {"labels show 25f '[1,2]' '{}' -- --lenient 2>&1 >/dev/null | cut -d: -f 2,3 >&2", "",
       " argument 1: \"[1,2]\"\n argument 2: \"{}\"\n argument 3: \"--lenient\"\n"},
      {"printf 'a\\0\\377\\\\\"\\n01:00:00:00\\0\\n' | labels read 25f", "",
       "labels: line 1: \"a\\x00\\xFF\\\\\\\"\": this is no timecode; expected hh:mm:ss.ff\n"
       "labels: line 2: \"01:00:00:00\\x00\": nothing may follow the frames (column 12); nearest is "
       "01:00:00.00\n"},
      {"printf '01:00:00:00\\0x\\nx\\n-x\\n' | labels read --lenient 25f", "",
       "labels: line 1: \"01:00:00:00\\x00x\": a label has no NUL byte (column 12)\n"
       "labels: line 2: \"x\": cannot be read as pal_label\n"
       "labels: line 3: \"-x\": cannot be read as pal_label\n"},
      {"{ head -c 4096 /dev/zero; echo; head -c 200000 /dev/zero; echo; echo 00:00:00:01; } | labels read 25f "
       "2>&1 >out | sed 's/\".*\": //' >&2; cat out",
       "1\n",
       "labels: line 1: this is no timecode; expected hh:mm:ss.ff\n"
       "labels: line 2: the line is longer than 4096 bytes\n"},
      {"labels show F35 -1 0 -64 1280000", "XX0000000000+00\n",
       "labels: argument 1: \"-1\": lies before the first label\n"
       "labels: argument 3: \"-64\": lies before the first label\n"
       "labels: argument 4: \"1280000\": lies beyond the last label\n"},
      {"labels read F35 --prefix KJ123456 0123+16 EH1234560123+07 x", "",
       "labels: argument 1: \"0123+16\": frames run from 00 to 15 (column 6); nearest is 0123+15\n"
       "labels: argument 2: \"EH1234560123+07\": the prefix is EH123456; expected KJ123456\n"
       "labels: argument 3: \"x\": this is no key number; expected one like XX0000000000+00\n"},
      {"labels add F353 KJ1234560000+00.1 -1 1.5 2147483647 1", "KJ1234560000+01.1\n",
       "labels: argument 1: \"-1\": leads out of the range of the count\n"
       "labels: argument 2: \"1.5\": expected a whole number of frames\n"
       "labels: argument 3: \"2147483647\": leads out of the range of samples\n"},
      {"labels add F35 KJ1234560123+16 1", "",
       "labels: \"KJ1234560123+16\": frames run from 00 to 15 (column 14); nearest is KJ1234560123+15\n"},
      {"labels diff F353 KJ1234560001+00.1 KJ1234560000+00.1 EH1234560000+00.1", "",
       "labels: argument 1: \"KJ1234560000+00.1\": the difference is 64 perforations, no whole number of frames;"
       " --perfs shows it\n"
       "labels: argument 2: \"EH1234560000+00.1\": the prefix is EH123456, another roll than KJ123456\n"},
  };
  for (auto const& c : cases) {
    auto const [out, err, exit_code] = run(c.line);
    EXPECT_EQ(out, c.out) << c.line;
    EXPECT_EQ(err, c.err) << c.line;
  }
  EXPECT_EQ(run("labels read 25f 01:00:00:00 x").exit_code, 1);
  EXPECT_EQ(run("echo x | labels show 25f").exit_code, 1);
}

TEST_F(Tool, SaysHowItIsUsed) {
  struct {
    char const* line;
    char const* err;  // part of it
  } const cases[] = {
      {"labels", "required"},
      {"labels frobnicate 1", "\"frobnicate\" is no verb; expected types, show, read, add, diff"},
      {"labels show 25f --prefix KJ123456 1", "pal_label has no prefix"},
      {"labels read F35 --prefix KJ12345 1", "--prefix \"KJ12345\": expected the 8 characters"},
      {"labels show F35 --prefix 'KJ 23456' 1", "printable and without blanks"},
      {"labels read F35 --prefix KJ123456 --lenient 1", "excludes"},
      {"labels add F35", "LABEL is required"},
      {"labels add 25f 00:00:00:00 1 --perfs", "counts no perforations"},
      {"labels read", "TYPE is required"},
      {"labels read 25f -x", "-x"},
      {"labels types 1", "1"},
      {"labels read nope 1", "\"nope\" is no label type; expected a class name (pal_label)"},
      {"labels read 30F-NONDROPXYZ 1", "is no label type"},
      {"labels read '25f x' 1", "is no label type"},
      {"labels read ' ' 1", "is no label type"},
      {"labels read '' 1", "is no label type"},
      {"labels read BAD 1", "is no label type"},
      {"labels read 1 1", "is no label type"},
      {"labels read 52 1", "is no label type"},
      {"labels show keycode_label 1", "there is no converter for keycode_label"},
      {"labels show dummy_label 1", "there is no converter for dummy_label"},
      {"labels --set drop-frame types", "expected KEY=VALUE"},
      {"labels --set drop-frame=perhaps types", "expected yes, no"},
      {"labels --settings none types", "settings file \"none\""},
      {"echo x >s; labels --settings s types", "settings file \"s\": line 1: 'x'"},
      {"labels show 25f 1 >/dev/full", "labels: standard output: "},
      {"labels --help >/dev/full", "labels: standard output: "},
      {"labels show 25f 1 >&-", "labels: standard output: "},
      {"labels read 25f <&-", "labels: standard input: "},
      {"labels read 25f </", "labels: standard input: "},
  };
  for (auto const& c : cases) {
    auto const [out, err, exit_code] = run(c.line);
    EXPECT_EQ(out, "") << c.line;
    EXPECT_NE(err.find(c.err), std::string::npos) << c.line << ": " << err;
    EXPECT_EQ(exit_code, 2) << c.line;
  }
}

TEST_F(Tool, KeepsMessagesAmongResultsInOneStream) {
  EXPECT_EQ(run("printf '1\\nx\\n2\\n' | labels show 25f 2>&1 | cut -c 1-14").out,
            "00:00:00.01\nlabels: line 2\n00:00:00.02\n");
}

TEST_F(Tool, AnswersALineBeforeTheNextIsThere) {
  EXPECT_EQ(run("timeout 20 sh -c 'mkfifo to from; labels show 25f <to >from & exec 3>to 4<from\n"
                "for i in 1 2 3; do echo $i >&3; read -r label <&4; echo $label; done; exec 3>&-; wait'")
                .out,
            "00:00:00.01\n00:00:00.02\n00:00:00.03\n");
}

// Lines of all lengths, so that every place in the reader's buffer comes to be the end of a line.
TEST_F(Tool, TurnsManyLinesThereAndBack) {
  EXPECT_EQ(
      run("awk 'BEGIN {for (i = 0; i < 200000; ++i) printf \"%d%s\\n\", i * 10, i % 7 ? \"\" : \"\\r\"}' >in\n"
          "labels show 25f <in | labels read 25f >out && tr -d '\\r' <in | cmp - out && wc -l <out")
          .out,
      "200000\n");
}

}  // namespace
