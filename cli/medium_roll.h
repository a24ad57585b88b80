// The medium-roll identifier that a user writes.
#pragma once

#include <string_view>

#include "cli/items.h"
#include "labelsbase/MediumRoll.h"

namespace cli {

// Reads MEDIUM or MEDIUM,GENERATION, for example "28", "28,1" or "out_24p,1", as the library does for the family,
// but the whole of it, and only media of the catalogue. Nothing when `out` holds it, else what is wrong.
[[nodiscard]] problem read_medium_roll(std::string_view text, UserLabelType family, MediumRollIdent& out);

}  // namespace cli
