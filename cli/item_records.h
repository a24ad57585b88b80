// What a command finds for each of its items, in the format that the user chooses.
#pragma once

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

#include "cli/input.h"
#include "cli/records.h"

namespace cli {

// The fields around a command's own: `input` is the first of every row and `problem` the last.
inline constexpr field input_field{"input", value_type::text, "What was given"};
inline constexpr field problem_field{"problem", value_type::text, "Why it was refused", nullptr, may_be_missing};

// Calls `take` with every item. It fills the values between input and problem, or returns what is wrong. As text,
// the fields with a heading make a line, and each item keeps its line: a blank line stays, and --refused stands in
// for a refused item.
//
//   constexpr field read_fields[] = {input_field, {"frames", value_type::integer, "...", "frames",
//   may_be_missing},
//                                    problem_field};
//   return for_each_item(given.items, find_format(given.format), read_fields, io,
//                        [&](std::string_view text, std::span<value> found) -> problem { found[0] = 1800; ... });
template <typename Take>
[[nodiscard]] exit_status for_each_item(item_arguments const& given, format how, std::span<field const> fields,
                                        console& io, Take const& take) {
  constexpr std::size_t most_fields = 12;
  std::array<value, most_fields> values;
  std::span const row{values.data(), fields.size()};
  record_writer records{how, fields, io.results, text_layout::lines};

  item_loop items{given.operands, io};
  while (items.next()) {
    if (items.is_blank_line()) {
      if (records.is_text()) io.results.line("");
      continue;
    }
    problem wrong;
    std::ranges::fill(row, missing);
    if (!items.is_refused()) wrong = take(items.text(), row.subspan(1, row.size() - 2));
    if (wrong || items.is_refused()) {
      if (records.is_text()) io.results.line(given.refused);
      if (wrong) items.refuse(*wrong);
      if (records.is_text()) continue;
      std::ranges::fill(row, missing);
      row.back() = std::string_view{items.reason()};
    }
    row.front() = items.text();
    records.write(row);
  }
  return items.status();
}

}  // namespace cli
