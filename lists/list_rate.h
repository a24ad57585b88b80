// The rate at which a list counts.
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "labelnames/names.h"
#include "lists/list_event.h"

namespace lists {

using labelnames::named_type;

// Returns the frames between the labels of a span, from the first up to the second, or nothing if either cannot be
// read. A span of up to half a day may cross midnight; any other whose end comes first is negative.
[[nodiscard]] std::optional<std::int64_t> length_of(label_t type, span_of_labels const& span);

// Returns the rates that fit events best: at which most of them have labels that exist and lengths that agree,
// source with record and with what the list states. Events with a speed effect do not count. `drop_frame` is the
// code mode of the list, if it has one; without one, ";" before the frames says drop-frame. Returns nothing if no
// length agrees at any rate, and more than one rate if they fit alike.
[[nodiscard]] std::vector<named_type> rates_that_fit(std::span<list_event const* const> events,
                                                     std::optional<bool> drop_frame);

// Returns the name that people use for the rate: "25", "29.97df".
[[nodiscard]] std::string rate_name(named_type const& rate);

}  // namespace lists
