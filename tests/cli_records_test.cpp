// --format: rows of results as text, CSV, TSV and JSON.

#include "tests/tool.h"

TEST_F(Tool, WritesRowsInEveryFormat) {
  expect({
      {"labels choices --format csv | head -2",
       "number,keyword,text_id,family,roll,user_text\n0,Any_Label,12833,any,\"1,1\",\"med?,anyGen\"\n"},
      {"labels choices --format tsv | sed -n 2p", "0\tAny_Label\t12833\tany\t1,1\tmed?,anyGen\n"},
      {"labels media --format jsonl | sed -n 6p",
       "{\"number\":8,\"name\":\"output\",\"user_text\":\"med?\",\"rate_fps\":null,\"sample\":null,\"label_type\":"
       "null,"
       "\"also_accepts\":null}\n"},
      {"labels media --format json | sed -n '1p;17p;$p'",
       "[\n{\"number\":19,\"name\":\"src_25p\",\"user_text\":\"25p\",\"rate_fps\":25,\"sample\":\"frame\","
       "\"label_type\":\"pal_label\",\"also_accepts\":\"20\"},\n]\n"},
      {"labels media --format xml", "", "labels: --format \"xml\": expected text, csv, tsv, json or jsonl\n", 2},
      {"labels schema media | grep -c null", "4\n"},  // rate, sample, label type, also accepts
      {"labels schema rewrite", "", "COMMAND \"rewrite\": expected a command that has --format: ", 2},
  });
}

// The reader of the pipe waits, so that the tool takes long. The tool clears the line of its progress for
// messages, and only for them.
TEST_F(Tool, ShowsOnATerminalHowFarItHasReadAFile) {
  expect(
      {{"(seq 200000; echo x; seq 100000) >n; script -qec 'labels show 25 <n | (sleep 1; wc -l)' /dev/null | tr "
        "'\\r' '\\n'"
        " | grep -oE '^.[[]K$|[[]Klabels: line [0-9]+|[0-9]+ % of 2 MB, [0-9]+ [kM]B/s, [0-9]+ s left' | "
        "sed 's/[0-9].* % .*/progress/' | sort -u",
        "[Klabels: line 200001\nprogress\n"}});
}
