// The tool as its users run it: lines for the shell.
#pragma once

#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <iterator>
#include <string>

struct outcome {
  std::string out;
  std::string err;
  int exit_code;
};

struct tool_case {
  char const* line;
  char const* out;
  char const* err = "";  // whole lines from "labels: " on: all of standard error; another text: a part of it
  int exit_code = 0;
};

class Tool : public testing::Test {
 protected:
  // Runs a line with the tool on the path and the expected listings in $LISTINGS.
  outcome run(std::string const& line) const {
    auto const script = "PATH='" LABELS_TOOL_DIR "':$PATH; LISTINGS='" LABELS_TEST_LISTINGS "'; cd " + folder_ +
                        "; { " + line + "\n} 2>err";
    FILE* const shell = popen(script.c_str(), "r");
    std::string out;
    std::array<char, 4'096> block;
    while (auto const size = fread(block.data(), 1, block.size(), shell)) out.append(block.data(), size);
    int const status = pclose(shell);
    std::ifstream err{folder_ + "/err", std::ios::binary};
    return {out, {std::istreambuf_iterator<char>{err}, {}}, WIFEXITED(status) ? WEXITSTATUS(status) : -1};
  }

  void expect(std::initializer_list<tool_case> cases) const {
    for (auto const& [line, out, expected_err, exit_code] : cases) {
      auto const found = run(line);
      std::string const err{expected_err};
      EXPECT_EQ(found.out, out) << line;
      bool const is_whole = err.empty() || (err.starts_with("labels: ") && err.ends_with('\n'));
      EXPECT_TRUE(is_whole ? found.err == err : found.err.find(err) != std::string::npos)
          << line << ": " << found.err;
      EXPECT_EQ(found.exit_code, exit_code) << line;
    }
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
