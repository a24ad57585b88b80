#include "cli/replacement.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <system_error>

namespace cli {
namespace {

constexpr std::array ending_signals{SIGHUP, SIGINT, SIGPIPE, SIGTERM};

// The file that a signal handler removes; null for none.
std::string new_name;
char const* volatile unfinished = nullptr;

void remove_unfinished(int signal) {
  if (char const* const name = unfinished) ::unlink(name);
  std::signal(signal, SIG_DFL);
  std::raise(signal);
}

// Signals that were ignored, as under nohup, stay ignored.
void handle_signals(void (*from)(int), void (*to)(int)) noexcept {
  for (int const signal : ending_signals) {
    struct sigaction action {};
    if (::sigaction(signal, nullptr, &action) != 0 || action.sa_handler != from) continue;
    action.sa_handler = to;
    ::sigaction(signal, &action, nullptr);
  }
}

}  // namespace

replacement::replacement(std::string const& name) : name_{name} {
  std::error_code error;
  old_ = std::filesystem::canonical(name, error).string();
  struct stat of_old {};
  if (error || ::stat(old_.c_str(), &of_old) != 0) throw std::runtime_error{name + ": " + error.message()};
  if (!S_ISREG(of_old.st_mode)) throw std::runtime_error{name + ": not a regular file; --in-place needs one"};

  std::filesystem::path const path{old_};
  folder_ = path.parent_path().string();
  new_name = folder_ + "/." + path.filename().string() + ".XXXXXX";
  handle_signals(SIG_DFL, remove_unfinished);
  fd_ = ::mkostemp(new_name.data(), O_CLOEXEC);
  if (fd_ < 0) fail();
  unfinished = new_name.c_str();
  // The owner can be kept by root only; the permissions must be.
  [[maybe_unused]] int const kept = ::fchown(fd_, of_old.st_uid, of_old.st_gid);
  if (::fchmod(fd_, of_old.st_mode & 07777) != 0) fail();
}

replacement::~replacement() {
  if (fd_ >= 0) ::close(fd_);
  if (unfinished) ::unlink(unfinished);
  unfinished = nullptr;
  handle_signals(remove_unfinished, SIG_DFL);
}

void replacement::put_in_place(std::string const& backup_suffix) {
  if (::fsync(fd_) != 0) fail();
  if (!backup_suffix.empty()) {
    auto const backup = old_ + backup_suffix;
    if (::unlink(backup.c_str()) != 0 && errno != ENOENT) fail();
    if (::link(old_.c_str(), backup.c_str()) != 0) fail();
  }
  if (::rename(new_name.c_str(), old_.c_str()) != 0) fail();
  unfinished = nullptr;

  // The new name is on the disk once its folder is. Some file systems cannot say so.
  int const folder = ::open(folder_.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (folder < 0) return;
  ::fsync(folder);
  ::close(folder);
}

void replacement::fail() const {
  auto const why = std::generic_category().message(errno);
  if (unfinished) ::unlink(unfinished);
  throw std::runtime_error{name_ + ": " + why + "; the file is as it was"};
}

}  // namespace cli
