// Which kind of list a text is.
#pragma once

#include <string_view>

namespace lists {

enum class list_format {
  decision_list,
  log,    // tab-separated, with sections
  sheet,  // CSV with a heading; cells may be separated by tabs or semicolons
  other,  // any other text
};

// Recognises a list by its beginning, up to a block of it:
// - a log: the first line with text is "Heading";
// - a decision list: an event, a title or a frame code mode comes before any other text but remarks with "*";
// - a sheet: the first line with text has two cells or more, and a label stands in the first row below it that has
// one.
[[nodiscard]] list_format recognise(std::string_view beginning) noexcept;

// Returns "decision list", "log", "CSV" or "text".
[[nodiscard]] char const* format_name(list_format format) noexcept;

}  // namespace lists
