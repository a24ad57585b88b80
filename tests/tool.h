// The tool, as it is used: lines for the shell.
#pragma once

#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

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
