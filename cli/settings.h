// The host's settings, as the command line gives them.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/console.h"

namespace cli {

struct settings_arguments {
  std::optional<std::string> file;
  std::vector<std::string> pairs;  // for example "drop-frame=yes"
};

// Applies the file, then the pairs in order. Reports every error; returns false if there was one.
[[nodiscard]] bool apply_settings(settings_arguments const& arguments, console& io);

// Returns the part of the help that lists the settings.
[[nodiscard]] std::string settings_help();

}  // namespace cli
