// The label type that a user names.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "cli/messages.h"
#include "labelsbase/labelcvt.h"

namespace cli {

// The type's name in edit decision lists, for example "30f-drop"; empty for a type that has none.
[[nodiscard]] std::string_view exchange_name(label_t type) noexcept;

// "timecode", "key-number" and so on; "any" for the family that matches all, "-" for none.
[[nodiscard]] char const* family_name(UserLabelType family) noexcept;

// The shared converter of a type; null for a type without one of its own.
[[nodiscard]] label_cvt* converter_of(label_t type);

// The type with this class name, number or exchange name, the last in any case. Says so when there is none, or
// none with a converter.
[[nodiscard]] std::optional<label_t> find_label_type(std::string const& text, messages& errors);

}  // namespace cli
