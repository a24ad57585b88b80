// What a command finds for each of its items, in the format that the user chooses.
#pragma once

#include <algorithm>
#include <span>
#include <string_view>
#include <vector>

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
//   constexpr field frames_field{"frames", value_type::integer, "...", "frames", may_be_missing};
//   constexpr field read_fields[] = {input_field, frames_field, problem_field};
//   return for_each_item(given.items, find_format(given.format), read_fields, io,
//                        [&](std::string_view text, std::span<value> found) -> problem { found[0] = 1800; ... });
template <typename Take>
[[nodiscard]] exit_status for_each_item(item_arguments const& given, format how, std::span<field const> fields,
                                        console& io, Take const& take) {
  std::vector<value> values(fields.size());
  std::span const row{values};
  std::span const found = row.subspan(1, row.size() - 2);
  record_writer records{how, fields, io.results, text_layout::lines};
  if (records.is_text())
    return for_each_item(given, io, [&](std::string_view text) -> problem {
      std::ranges::fill(found, missing);
      if (auto wrong = take(text, found)) return wrong;
      records.write_line(row);
      return std::nullopt;
    });

  item_loop items{given.operands, io};
  while (items.next()) {
    if (items.is_blank_line()) continue;
    std::ranges::fill(row, missing);
    row.front() = items.text();
    if (!items.is_refused()) {
      if (auto const wrong = take(items.text(), found)) {
        items.refuse(*wrong);
        std::ranges::fill(found, missing);
      }
    }
    if (items.is_refused()) row.back() = std::string_view{items.reason()};
    records.write(row);
  }
  return items.status();
}

}  // namespace cli
