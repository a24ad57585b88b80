// Results and messages together, and how it all went.
#pragma once

#include "cli/messages.h"
#include "cli/output.h"

namespace cli {

// Exit codes.
enum exit_status : int {
  all_well = 0,
  some_refused = 1,  // some of the input; the rest was done
  failed = 2,        // wrong usage, or the input or the output failed
};

class console {
 public:
  console();

  output results;
  messages errors{results};

  void flush() noexcept;

  // Reports what could not be written, and gives the program's exit code.
  [[nodiscard]] exit_status finish(exit_status so_far);
};

}  // namespace cli
