// check and rewrite: lists as users have them.

#include "tests/tool.h"

namespace {

// Two events at 25 with a speed effect and a dissolve, in $EDL; the lines of a log, in $LOG.
constexpr char const* lists =
    "cat >cut.edl <<'END'\n"
    "TITLE: CUT\n"
    "001  TAPE1    V     C        01:00:00:20 01:00:02:10 10:00:00:00 10:00:01:15\n"
    "002  TAPE2    V     C        02:00:00:00 02:00:00:00 10:00:01:15 10:00:01:15\n"
    "002  TAPE 3   V     D    025 03:00:00:00 03:00:01:00 10:00:01:15 10:00:03:15\n"
    "M2   TAPE 3         012.5                03:00:00:00\n"
    "* LOC: 10:00:02:00 RED\n"
    "003  TAPE1    V     C        01:00:05:00 01:00:06:00 10:00:03:15 10:00:04:15\n"
    "END\n"
    "printf 'Heading\\nFIELD_DELIM\\tTABS\\nFPS\\t25\\n\\nColumn\\nName\\tStart\\tEnd\\tDuration\\tTC "
    "24\\n\\nData\\n"
    "a\\t01:00:00:00\\t01:00:02:05\\t00:00:02:05\\t01:00:00:23\\nb\\t01:00:02:05\\t01:00:03:00\\t00:00:00:"
    "20\\t\\n' "
    ">log.ale\n";

class Lists : public Tool {
 protected:
  void SetUp() override {
    Tool::SetUp();
    EXPECT_EQ(run(lists).exit_code, 0);
  }
};

TEST_F(Lists, AreChecked) {
  expect({
      {"labels check cut.edl log.ale", "",
       "labels: cut.edl: decision list, 4 events at 25 (the rate at which most lengths agree): nothing wrong\n"
       "labels: log.ale: log, 2 events at 25: nothing wrong\n"},
      {"sed 's/10:00:03:15 10:00:04/10:00:03:13 10:00:04/; s/$/ \\r/' cut.edl | labels check --rate pal",
       "-:7:30: length: source has 25 frames, record 27\n"
       "-:7:54: overlap: 2 frames of V already recorded in line 4\n",
       "labels: -: decision list, 4 events at 25: 2 findings\n", 1},
      {"sed 7s/05:00/05:25/ cut.edl | labels check --format jsonl --ignore gap,length -",
       "{\"file\":\"-\",\"line\":7,\"column\":39,\"kind\":\"label\",\"message\":\"\\\"01:00:05:25\\\": frames run "
       "from 00 to"
       " 24; nearest is 01:00:05:24\",\"event\":\"003\",\"reel\":null,\"tracks\":null,\"length_label\":null,"
       "\"length_frames\":null,\"length_seconds\":null}\n",
       ": 1 finding\n", 1},
      {"labels check --durations cut.edl | sed 's/  */ /g'",
       "001 TAPE1 V 00:00:01:15 40 frames 1.600 s\n002 TAPE2 V 00:00:00:00 0 frames 0.000 s\n"
       "002 TAPE 3 V 00:00:02:00 50 frames 2.000 s\n003 TAPE1 V 00:00:01:00 25 frames 1.000 s\n"
       "total V 00:00:04:15 115 frames 4.600 s\n",
       "nothing wrong"},
      {"labels check --durations log.ale --format csv | tail -n 1 | cut -d, -f 4,9-", "total,00:00:03:00,75,3\n",
       "nothing"},
      {"head -n 1 cut.edl | labels check", "", "labels: -: decision list, 0 events: nothing wrong\n"},
      {"grep TAPE2 cut.edl | labels check", "",
       "labels: -: the list does not say its rate; its lengths agree at 24", 2},
      {"labels check none", "", "labels: none: No such file or directory\n", 2},
      {"labels check --rate 35mm cut.edl", "", "--rate \"35mm\": expected a rate", 2},
      {"labels check --ignore gaps cut.edl", "",
       "--ignore \"gaps\": expected kinds of findings: form, rate, label", 2},
      {"labels check cut.edl --durations >/dev/full", "", "labels: standard output: No space left on device", 2},
  });
}

TEST_F(Lists, ThatAreNoneAreNamed) {
  constexpr char const* not_a_list = "labels: -: not a list: expected a decision list, a log";
  expect({
      {"iconv -t UTF-16 cut.edl | labels check", "",
       "labels: -: the text is UTF-16; expected UTF-8 or ASCII: convert", 2},
      {"labels check </dev/null", "", not_a_list, 2},
      {"head -c 100000 /dev/zero | tr '\\0' x | labels check", "", not_a_list, 2},
      {"head -c 100000 /dev/zero | labels check", "", not_a_list, 2},
      {"printf 'ab\\0cd\\n' | labels check", "", "labels: -: the text contains a NUL byte (line 1, column 3)", 2},
      {"{ printf '\\357\\273\\277'; cat cut.edl; printf '\\032\\032'; } | labels check", "", "nothing wrong"},
      {"{ cat cut.edl; printf 1; head -c 100000000 /dev/zero | tr '\\0' ' '; } | labels check",
       "-:8:1: form: \"1"
       "                   \": the line is longer than 65536 bytes\n",
       "1 finding", 1},
  });
}

TEST_F(Lists, AreRewrittenByteForByte) {
  expect({
      // Ten hours are 1078921.08 frames, one more than 10:00:00;00. The dissolve of 25 frames and the speed
      // follow.
      {"labels rewrite --from 25 --to 29.97df cut.edl | diff cut.edl - | grep '^>' | cut -c 3-",
       "001  TAPE1    V     C        01:00:00;24 01:00:02;12 10:00:00;01 10:00:01;19\n"
       "002  TAPE2    V     C        02:00:00;00 02:00:00;00 10:00:01;19 10:00:01;19\n"
       "002  TAPE 3   V     D    030 03:00:00;00 03:00:01;00 10:00:01;19 10:00:03;19\n"
       "M2   TAPE 3         015.0                03:00:00;00\n"
       "* LOC: 10:00:02;01 RED\n"
       "003  TAPE1    V     C        01:00:05;00 01:00:06;00 10:00:03;19 10:00:04;19\n",
       "labels: cut.edl: decision list, 7 lines: 18 labels found, 18 changed, 0 refused; rate lines, speeds and "
       "transitions changed: 2\n"},
      {"labels rewrite --from 25 --to 24 --by frame cut.edl 2>/dev/null | sed -n '2p;4,5p'",
       "001  TAPE1    V     C        01:02:30:20 01:02:32:12 10:25:00:00 10:25:01:16\n"
       "002  TAPE 3   V     D    025 03:07:30:00 03:07:31:01 10:25:01:16 10:25:03:18\n"
       "M2   TAPE 3         012.0                03:07:30:00\n"},
      {"{ printf '\\357\\273\\277'; sed 's/$/ \\r/' cut.edl; printf '003 a\\032\\032'; } >odd; for to in 24 30 "
       "29.97df 60;"
       " do labels rewrite --from 25 --to $to --by frame odd | labels rewrite --from $to --to 25 --by frame | cmp "
       "odd;"
       " done 2>&1 | grep -v ', 0 refused' || true",
       ""},
      // Feet are shorter than timecode, key numbers longer.
      {"labels rewrite --from 25 --to feet35 --by frame --sync 10:00:00:00=0000+00 cut.edl 2>/dev/null | sed -n "
       "'3p;6p'",
       "002  TAPE2    V     C        -45000+00   -45000+00   0002+08     0002+08    \n* LOC: 0003+02 RED\n"},
      {"labels rewrite --from 25 --to 35mm --sync 10:00:00:00=KJ1234560000+00 cut.edl 2>/dev/null | sed -n "
       "'2p;6p'",
       "001  TAPE1    V     C        01:00:00:20 01:00:02:10 10:00:00:00 KJ1234560002+08\n* LOC: KJ1234560003+02 "
       "RED\n"},
      {"labels rewrite --from 25 --to 35mm --sync 10:00:00:00=KJ1234560000+00 cut.edl >/dev/null", "",
       ":2:54: \"10:00:00:00\": no room for KJ1234560000+00 in its column\n", 1},
      {"printf 'FCM: DROP FRAME\\n001  A  V  C  01:00:00;02 01:00:01;00 01:00:00;02 01:00:01;00\\nFCM: NON-DROP "
       "FRAME\\n"
       "002  A  V  C  01:01:00:00 01:01:01:00 01:00:01;00 01:00:02;00\\n' | labels rewrite --from 29.97df --to 25",
       "FCM: NON-DROP FRAME\n001  A  V  C  01:00:00:02 01:00:01:00 01:00:00:02 01:00:01:00\nFCM: NON-DROP FRAME\n"
       "002  A  V  C  01:01:00:00 01:01:01:00 01:00:01:00 01:00:02:00\n",
       "-:4:27: \"01:01:01:00\": line 3 says NON-DROP FRAME, and --from does not\nlabels: -: decision list, 4 "
       "lines: 8 "
       "labels found, 6 changed, 2 refused;",
       1},
      {"printf '001 A V C 1:00:00:00 01:00:01:00 01:00:00:00 01:00:01:00\nSPLIT: AUDIO DELAY= 00:00:00:05\n' |"
       " labels rewrite --from 25 --to 50 --sync 01:00:00:00=10:00:00:00",
       "001 A V C 1:00:00:00 10:00:01:00 10:00:00:00 10:00:01:00\nSPLIT: AUDIO DELAY= 00:00:00:10\n",
       "stands in the place of a label, but has not the form of --from\nlabels: -: decision list, 2 lines: 5 "
       "labels "
       "found, 4 changed, 1 refused",
       1},
      {"printf '001 A V C 01:00:00:00 01:00:01:00 01:00:00:00 01:00:01:00\nM2 A 025 01:00:00:00\nM2 A -12.5 "
       "01:00:00:00\n' | labels rewrite --from 25 --to 50 2>/dev/null | cut -d ' ' -f 3 | tail -2",
       "050\n-25.0\n"},
      {"echo 'See 01:00:00:10, (01:00:00:11) 01:00:00:12-01:00:00:13; not 1.01.00.00.00, 00:00:01,000, "
       "x01:00:00:00' |"
       " labels rewrite --from 25 --to 50",
       "See 01:00:00:20, (01:00:00:22) 01:00:00:24-01:00:00:26; not 1.01.00.00.00, 00:00:01,000, x01:00:00:00\n",
       "labels: -: text, 1 line: 4 labels found, 4 changed, 0 refused\n"},
      {"echo KJ1234560123+07.2 | labels rewrite --from 35mm-3p --to feet35-3p", "0123+07.2\n", "1 changed, 0"},
      {"printf 'a 01:00:00:25\\tKJ1234560123+16\\n' | labels rewrite --from 25 --to 24; echo "
       "KJ1234560123+16,KJ1234560123+07 |"
       " labels rewrite --from 35mm --to feet35 2>&1",
       "a 01:00:00:25\tKJ1234560123+16\nlabels: -:1:1: \"KJ1234560123+16\": frames run from 00 to 15 (column 14); "
       "nearest is"
       " KJ1234560123+15\nKJ1234560123+16,0123+07\nlabels: -: text, 1 line: 2 labels found, 1 changed, 1 "
       "refused\n",
       "labels: -:1:3: \"01:00:00:25\": frames run", 1},
  });
}

TEST_F(Lists, AreRewrittenByColumn) {
  expect({
      // The length is one of 2 s and 5 frames still; the column at 24 and the rate of another column stay.
      {"labels rewrite --from 25 --to 50 --sync 01:00:00:00=10:00:00:00 log.ale 2>/dev/null | sed -n '3p;9p'",
       "FPS\t50\na\t10:00:00:00\t10:00:02:10\t00:00:02:10\t01:00:00:23\n"},
      {"sed 's/FPS\\t25/FPS\\t24/' log.ale | labels rewrite --from 25 --to 50 | sed -n 3p", "FPS\t24\n",
       "-:3:5: \"24\": the list's rate is not that of --from\n"},
      {"labels rewrite --from 25 --to 50 --column end log.ale 2>/dev/null | sed -n '3p;9p'",
       "FPS\t25\na\t01:00:00:00\t01:00:02:10\t00:00:02:05\t01:00:00:23\n"},
      {"labels rewrite --from 25 --to feet35 --column 2 --add-column Feet log.ale 2>/dev/null | sed -n '6p;9,10p'",
       "Name\tStart\tEnd\tDuration\tTC 24\tFeet\na\t01:00:00:00\t01:00:02:05\t00:00:02:05\t01:00:00:23\t5625+00\n"
       "b\t01:00:02:05\t01:00:03:00\t00:00:00:20\t\t5628+07\n"},
      {"printf 'Clip;In\\n\"a\\n;00:00:01:00\";\"00:00:59:24\"\\nb;00:01:00:00\\n' | labels rewrite --from 25 "
       "--to 29.97df"
       " --column In 2>/dev/null",
       "Clip;In\n\"a\n;00:00:01:00\";\"00:00:59;27\"\nb;00:01:00:00\n", "", 1},
      {"printf 'n,frame\\n1,000024\\n2\\n3,000048,x\\n' | labels rewrite --from frames --to 24 --column frame "
       "--add-column 'T C'",
       "n,frame,T C\n1,000024,00:00:01:00\n2,,\n3,000048,x\n", "the row has more cells than the heading", 1},
      {"labels rewrite --from frames --to 24 log.ale", "",
       "--from \"frames\": its labels are bare numbers; name their", 2},
      {"labels rewrite --from 25 --to 24 --column Begin log.ale", "",
       "--column \"Begin\": no such column; expected", 2},
      {"labels rewrite --from 25 --to 24 --column 2 --add-column end log.ale", "",
       "--add-column \"end\": log.ale has a column of this name; expected another name\n", 2},
      {"labels rewrite --from 25 --to 24 --column 1 cut.edl", "", "cut.edl is no table with columns\n", 2},
      {"labels rewrite --from 25 --to 24 --add-column A cut.edl", "", "--add-column \"A\": needs --column", 2},
  });
}

TEST_F(Lists, AreReplacedWholeOrNotAtAll) {
  expect({
      {"chmod 640 cut.edl; cp cut.edl old; ln -s cut.edl link; labels rewrite --from 25 --to 50 --in-place=.bak "
       "link log.ale"
       " 2>&1; cmp old cut.edl.bak; stat -c %a cut.edl; readlink link; labels check --rate 50 cut.edl; ls -A",
       "labels: link: decision list, 7 lines: 18 labels found, 9 changed, 0 refused; rate lines, speeds and "
       "transitions changed: 2\nlabels: log.ale: log, 10 lines: 6 labels found, 4 changed, 0 refused; rate lines, "
       "speeds and transitions changed: "
       "1\n640\ncut.edl\ncut.edl\ncut.edl.bak\nerr\nlink\nlog.ale\nlog.ale.bak\nold\n",
       "labels: cut.edl: decision list, 4 events at 50: nothing wrong\n"},
      {"labels rewrite --from 50 --to 25 --in-place cut.edl; cmp old cut.edl; labels rewrite --from 12 --to 25 "
       "--in-place old;"
       " cmp old cut.edl",
       "", "; the file is as it was, because labels were refused\n"},
      {"labels rewrite --from 25 --to 24 --in-place cut.edl -", "", "labels: FILE \"-\": --in-place needs a file",
       2},
      {"labels rewrite --from 25 --to 24 --in-place .", "", "labels: .: not a regular file", 2},
      {"labels rewrite --from 25 --to 24 cut.edl >/dev/full", "",
       "labels: standard output: No space left on device", 2},
      {"yes '01:00:00:00' | head -n 200000 | labels rewrite --from 25 --to 24 | head -n 1", "01:00:00:00\n", ""},
      {"yes '001  T V C 01:00:00:20 01:00:02:10 10:00:00:00 10:00:01:15' | head -n 60000 >old;"
       " labels rewrite --from 25 --to 24 --by frame old >new 2>/dev/null; for i in 1 2 3 4 5 6 7 8 9 10 11 12 13 "
       "14 15 16 17 18"
       " 19 20; do cp old f; timeout -s KILL $(awk \"BEGIN {srand($i); print rand() * 0.8 + 0.002}\") labels "
       "rewrite --from 25"
       " --to 24 --by frame --in-place f 2>/dev/null; cmp -s f old || cmp -s f new || echo neither; done "
       "2>/dev/null",
       "", ""},
      {"cp new f; (ulimit -f 10; trap '' XFSZ; labels rewrite --from 24 --to 25 --by frame --in-place f); cmp f "
       "new",
       "", "labels: f: File too large; the file is as it was\n"},
  });
}

TEST_F(Lists, MayBeAnyBytes) {
  expect({
      {"head -c 2000000 /dev/urandom | tr -d '\\0' >bytes; labels rewrite --from 25 --to 24 bytes 2>/dev/null | "
       "cmp bytes",
       ""},
      {"head -c 100000 /dev/urandom | labels rewrite --from 25 --to 24", "", "the text contains a NUL byte", 2},
      {"iconv -t UTF-16 cut.edl | labels rewrite --from 25 --to 24", "", "labels: -: the text is UTF-16; expected",
       2},
      {"{ yes '01:00:00:10 0001+00' | head -n 1000000 | tr '\\n' ' '; } | labels rewrite --from 25 --to 50 | tail "
       "-c 60",
       "01:00:00:20 0001+00 01:00:00:20 0001+00 01:00:00:20 0001+00 ",
       "labels: -: text, 1 line: 1000000 labels found, 1000000 changed, 0 refused\n"},
  });
}

}  // namespace
