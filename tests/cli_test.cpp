// The tool, as it is used: lines for the shell.

#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace {

struct outcome {
  std::string out;
  std::string err;
  int exit_code;
};

class Tool : public testing::Test {
 protected:
  // Runs a line with the tool on the path.
  outcome run(std::string const& line) const {
    auto const script = "PATH=" LABELS_TOOL_DIR ":$PATH; cd " + folder_ + "; { " + line + "\n} 2>err";
    FILE* const shell = popen(script.c_str(), "r");
    std::string out;
    std::array<char, 4'096> block;
    while (auto const size = fread(block.data(), 1, block.size(), shell)) out.append(block.data(), size);
    int const status = pclose(shell);
    return {out, contents("err"), WIFEXITED(status) ? WEXITSTATUS(status) : -1};
  }

  std::string contents(std::string const& name) const {
    std::ifstream in{folder_ + "/" + name, std::ios::binary};
    return {std::istreambuf_iterator<char>{in}, {}};
  }

  void SetUp() override {
    auto name = testing::TempDir() + "labels_XXXXXX";
    ASSERT_NE(mkdtemp(name.data()), nullptr);
    folder_ = name;
  }

  void TearDown() override { std::filesystem::remove_all(folder_); }

 private:
  std::string folder_;
};

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
       "     8  tc_24_label             timecode     24f                24  -29.59.59.29\n"},
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
      {"labels foo", "required"},
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
