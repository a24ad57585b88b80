// The host's settings, from the command line.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/messages.h"

namespace cli {

struct settings_arguments {
  std::optional<std::string> file;
  std::vector<std::string> pairs;  // for example "drop-frame=yes"
};

// The file first, then the pairs in order. False when anything is wrong, which is said.
[[nodiscard]] bool apply_settings(settings_arguments const& arguments, messages& errors);

// A line for each setting, for the help.
[[nodiscard]] std::string settings_help();

}  // namespace cli
