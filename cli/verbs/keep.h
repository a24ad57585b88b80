// What a keep string says.
#pragma once

#include <string>
#include <vector>

#include "cli/input.h"
#include "labelsbase/labels.h"

namespace cli {

// A part of a keep string.
struct kept_part {
  char const* name;   // "start"
  std::string value;  // as the library reads it
  problem wrong;
};

struct explained_keep {
  EditLabel label;               // as the library reads it
  std::string start;             // its first label, as it stands in the text
  bool has_roll;                 // whether it keeps a medium and generation
  std::vector<kept_part> parts;  // as far as the library reads them
  problem wrong;                 // with all parts; nothing if the keep string is valid
};

// Explains a keep string. Another text has no parts, and `wrong` says so.
[[nodiscard]] explained_keep explain_keep(std::string const& text);

}  // namespace cli
