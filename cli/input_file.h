// A file that is read.
#pragma once

#include <string>

namespace cli {

class input_file {
 public:
  // Opens a file, or standard input for "-". Ends the command with exit code 2 if it cannot be opened.
  explicit input_file(std::string const& name);
  input_file(input_file const&) = delete;
  input_file& operator=(input_file const&) = delete;
  ~input_file();

  [[nodiscard]] int fd() const noexcept { return fd_; }

 private:
  int fd_;
};

}  // namespace cli
