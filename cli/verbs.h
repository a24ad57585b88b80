// What the tool can do, a function a verb.
#pragma once

#include <string>
#include <vector>

#include "cli/console.h"
#include "labelsbase/labelcvt.h"

namespace cli {

// Lists the label types.
[[nodiscard]] exit_status types(console& io);

// Turns samples into labels.
[[nodiscard]] exit_status show(label_t type, std::vector<std::string> const& samples, console& io);

// Turns labels into samples; `lenient` takes whatever the library can read.
[[nodiscard]] exit_status read(label_t type, std::vector<std::string> const& labels, bool lenient, console& io);

}  // namespace cli
