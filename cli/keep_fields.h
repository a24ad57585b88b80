// A keep string, field by field.
#pragma once

#include <string>
#include <vector>

#include "cli/items.h"

namespace cli {

struct keep_field {
  char const* name;   // "start"
  std::string value;  // what the library makes of it
  problem wrong;      // what a careful reader finds wrong with it
};

// The fields of a keep string, in their order, as far as the library reads them.
[[nodiscard]] std::vector<keep_field> explain_keep_string(std::string const& text);

}  // namespace cli
