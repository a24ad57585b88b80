// The pulldown that a user names.
#pragma once

#include <optional>
#include <string>

#include "cli/messages.h"
#include "labelsbase/framecounts.h"

namespace CLI {
class App;
}

namespace cli {

struct pulldown_arguments {
  std::string transfer;
  int phase = 0;
};

// A transfer and the phase of its cycle.
struct pulldown {
  char const* name;  // "2:3"
  transfer_type transfer;
  int film_cycle;   // film frames of a cycle
  int video_cycle;  // video frames that they become
  int phase;

  [[nodiscard]] bool adds_at_the_start() const noexcept { return phase == film_cycle; }
};

// --transfer and --phase. The transfer is `usual` unless one is given.
void add_pulldown(CLI::App& verb, pulldown_arguments& given, char const* usual);

// What the arguments name. Says so when there is no such transfer, or no such phase of it.
[[nodiscard]] std::optional<pulldown> find_pulldown(pulldown_arguments const& given, messages& errors);

}  // namespace cli
