// Label types and media, as users name them.
#pragma once

#include <string>
#include <string_view>

#include "cli/input.h"
#include "labelnames/names.h"
#include "labelsbase/MediumRoll.h"
#include "labelsbase/labelcvt.h"

namespace cli {

// The functions that refuse a text say `where` it was given: "TYPE" or an option.

// Returns the type and the rate of a name that labelnames knows. Refuses unknown names, and says which are near.
[[nodiscard]] labelnames::named_type find_named_type(std::string_view where, std::string_view text);

// Returns the type alone.
[[nodiscard]] label_t find_label_type(std::string_view where, std::string_view text);

// Returns "timecode", "key-number" and so on, "any" for User_any, or "-" for a type without labels.
[[nodiscard]] char const* family_name(UserLabelType family) noexcept;

// Reads MEDIUM or MEDIUM,GENERATION, where MEDIUM is a number or a name of the catalogue: "28", "28,1",
// "out_24p,1". Fills `out` as the library does for labels of the family, or returns what is wrong.
[[nodiscard]] problem read_medium_roll(std::string_view text, UserLabelType family, MediumRollIdent& out);

// As read_medium_roll, but refuses an invalid text.
[[nodiscard]] MediumRollIdent find_medium_roll(std::string_view where, std::string_view text,
                                               UserLabelType family);

}  // namespace cli
