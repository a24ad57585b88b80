// Checks one event by itself.
#pragma once

#include <functional>
#include <optional>

#include "lists/check.h"

namespace lists {

// The spans of an event in frames; nothing for those that cannot be read.
struct measured_event {
  std::optional<std::int64_t> source, record, mark;
  std::optional<std::int64_t> record_in;  // the frame at which it begins
};

// Reports what is wrong with an event, and returns its lengths. Source labels may have another code mode than
// record labels.
[[nodiscard]] measured_event check_event(list_event const& event, named_type const& source_rate,
                                         named_type const& record_rate,
                                         std::function<void(finding const&)> const& found);

}  // namespace lists
