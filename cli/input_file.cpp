#include "cli/input_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <stdexcept>
#include <system_error>

namespace cli {

input_file::input_file(std::string const& name)
    : fd_{name == "-" ? STDIN_FILENO : ::open(name.c_str(), O_RDONLY | O_CLOEXEC)} {
  if (fd_ < 0) throw std::runtime_error{name + ": " + std::generic_category().message(errno)};
}

input_file::~input_file() {
  if (fd_ != STDIN_FILENO) ::close(fd_);
}

}  // namespace cli
