// A file that takes the place of another as a whole, or not at all.
#pragma once

#include <string>

namespace cli {

// Writes beside the old file, under a hidden name of its own. Until put_in_place() has returned, the old file is
// as it was; at any moment, a reader finds the old text or the new one, whole. An object that is destroyed before,
// or a signal that ends the program, removes what has been written.
class replacement {
 public:
  // Follows a symbolic link to its file. Ends the command with exit code 2 if `name` is not a regular file or
  // nothing can be written beside it. One object at a time.
  explicit replacement(std::string const& name);
  replacement(replacement const&) = delete;
  replacement& operator=(replacement const&) = delete;
  ~replacement();

  // Returns where to write.
  [[nodiscard]] int fd() const noexcept { return fd_; }

  // Takes the place of the old file, once everything has reached the disk. With a suffix, the old file remains
  // under its name with the suffix behind it, in the place of any file of that name. Ends the command with exit
  // code 2 if this fails.
  void put_in_place(std::string const& backup_suffix);

 private:
  [[noreturn]] void fail() const;

  std::string name_;  // as given
  std::string old_;   // without symbolic links
  std::string folder_;
  int fd_ = -1;
};

}  // namespace cli
