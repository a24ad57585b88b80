// What a command processes: its operands, or the lines of standard input.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/console.h"

namespace cli {

// What is wrong with a text, for example "expected a whole number of frames"; nothing if it is valid.
using problem = std::optional<std::string>;

// Processes one item, or returns what is wrong with it and writes nothing. A terminator follows the item.
using item_taker = std::function<problem(std::string_view item)>;

// Calls `take` with every operand, or with every line of standard input if there are none. Reports each item that
// is refused, with its place and its text, and goes on.
[[nodiscard]] exit_status for_each_item(std::vector<std::string> const& operands, console& io,
                                        item_taker const& take);

}  // namespace cli
