// The strict reader of timecode.
#pragma once

#include "labelcheck/label_check.h"

namespace labelcheck {

// As check, for a converter of the timecode family with the full format.
[[nodiscard]] std::optional<refusal> check_timecode(label_cvt const& cvt, std::string_view text);

}  // namespace labelcheck
