// The help of the commands, and what is made of it for man and for shells.

#include <sstream>
#include <string>
#include <vector>

#include "tests/tool.h"

namespace {

std::vector<std::string> lines_of(std::string const& text) {
  std::istringstream in{text};
  std::vector<std::string> lines;
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

}  // namespace

// An example is a line behind "  $ ". What it prints follows, if the help shows it.
TEST_F(Tool, PrintsWhatTheExamplesOfItsHelpSay) {
  int examples = 0;
  for (auto const& command : lines_of(run("labels help | sed -n 's/^  \\([a-z][a-z]*\\)  .*/\\1/p'").out)) {
    auto const lines = lines_of(run("labels help " + command).out);
    for (std::size_t i = 0; i < lines.size(); ++i) {
      if (!lines[i].starts_with("  $ ")) continue;
      auto const example = lines[i].substr(4);
      std::string expected;
      for (; i + 1 < lines.size() && lines[i + 1].starts_with("  ") && !lines[i + 1].starts_with("  $ "); ++i)
        expected += lines[i + 1].substr(2) + "\n";
      if (expected.empty()) continue;  // it changes files, or is about files that are not here
      ++examples;
      EXPECT_EQ(run("{ " + example + "\n} 2>&1").out, expected) << example;
    }
  }
  EXPECT_GT(examples, 0);
}

TEST_F(Tool, CompletesAndDocumentsItsOwnDeclarations) {
  // The first argument is the word to complete; the rest are those before it.
  std::string const complete =
      "complete_word() { COMP_WORDS=(\"${@:2}\" \"$1\"); COMP_CWORD=$(($# - 1)); _labels; echo "
      "\"${COMPREPLY[@]}\"; };";
  auto const bash = [&](std::string const& words) {
    return "bash -c 'eval \"$(labels completion bash)\"; " + complete + " complete_word " + words + "'";
  };
  expect({
      {bash("cho labels").c_str(), "choices\n"},
      {bash("--fo labels --set a=b media").c_str(), "--format\n"},
      {bash("j labels choices --format").c_str(), "json jsonl\n"},
      {bash("src_23 labels pitch").c_str(), "src_2398p src_2398i\n"},
      {"labels completion zsh | grep -o \"'--format[^']*'\" | cut -d: -f4 | sort -u",
       "(text csv tsv json jsonl)'\n"},
      {"labels completion fish | grep 'from media. -l format' | grep -o \"'text.*jsonl'\"",
       "'text csv tsv json jsonl'\n"},
      {"labels manual media | grep -A1 format | head -2",
       "\\fB\\-\\-format\\fR \\fItext|csv|tsv|json|jsonl\\fR\nHow to write results: json is an array, jsonl an "
       "object a "
       "line; 'labels schema' describes the fields. Default: text.\n"},
      {"labels manual convert | sed -n '/SYNOPSIS/,+1p; /^.SH [AO]/p'",
       ".SH SYNOPSIS\n\\fBlabels\\fR \\fBconvert\\fR \\fB\\-\\-from\\fR \\fITYPE\\fR "
       "\\fB\\-\\-to\\fR \\fITYPE\\fR [\\fIOPTION\\fR...] [\\fILABEL\\fR...]\n.SH ARGUMENTS\n.SH OPTIONS\n"},
      {"labels manual | sed -n 's/^.fBlabels.-\\([a-z]*\\).*/\\1/p' >a; labels help | sed -n 's/^  "
       "\\([a-z][a-z]*\\)  .*/\\1/p' "
       "| diff a -",
       ""},
      {"labels help no", "", "labels: COMMAND \"no\": unknown command; 'labels help' lists the commands\n", 2},
      {"labels completion csh", "", "labels: SHELL \"csh\": expected bash, zsh or fish\n", 2},
  });
}
