// check: lists as users have them.

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
       "labels: cut.edl: decision list, 4 events at 25 (deduced from their lengths): nothing wrong\n"
       "labels: log.ale: log, 2 events at 25: nothing wrong\n"},
      {"sed 's/10:00:03:15 10:00:04/10:00:03:13 10:00:04/; s/$/ \\r/' cut.edl | labels check --rate pal",
       "-:7:30: length: source has 25 frames, record 27\n"
       "-:7:54: overlap: 2 frames of V already recorded in line 4\n",
       "labels: -: decision list, 4 events at 25: 2 findings\n", 1},
      {"sed 7s/05:00/05:25/ cut.edl | labels check --format jsonl --ignore gap,length -",
       "{\"file\":\"-\",\"line\":7,\"column\":39,\"kind\":\"label\",\"message\":\"\\\"01:00:05:25\\\": frames run "
       "from 00 to"
       " 24; nearest is 01:00:05:24\",\"event\":null,\"reel\":null,\"tracks\":null,\"length_label\":null,"
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

}  // namespace
