// The strict reader of key numbers, ink numbers, feet and film frames.
#pragma once

#include "labelcheck/label_check.h"

namespace labelcheck {

// As check, for the shared converter of a film type. The prefix that the converter remembers stays as it was.
[[nodiscard]] std::optional<refusal> check_film(label_cvt& cvt, std::string_view text);

}  // namespace labelcheck
