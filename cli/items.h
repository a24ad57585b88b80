// What a verb works on: its operands, or the lines of standard input.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/console.h"

namespace cli {

// Nothing when all is well, else what is wrong with the item, to be said after its place and its text.
using problem = std::optional<std::string>;

// Does one item, or refuses it and writes nothing. The item is terminated.
using item_taker = std::function<problem(std::string_view item)>;

// Hands every operand to `take`, or every line of standard input when there are none, and reports those that it
// refuses.
[[nodiscard]] exit_status for_each_item(std::vector<std::string> const& operands, console& io,
                                        item_taker const& take);

}  // namespace cli
