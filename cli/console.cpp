#include "cli/console.h"

#include <unistd.h>

#include <system_error>

namespace cli {

console::console() : results{STDOUT_FILENO} {}

void console::flush() noexcept {
  results.flush();
  errors.flush();
}

exit_status console::finish(exit_status so_far) {
  flush();
  if (results.error() == 0) return so_far;

  output direct{STDERR_FILENO};  // the messages may share the output that failed
  direct.write("labels: standard output: ");
  direct.line(std::generic_category().message(results.error()));
  direct.flush();
  return failed;
}

}  // namespace cli
