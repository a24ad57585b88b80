#include "lists/list_format.h"

#include <variant>

#include "lists/decision_list.h"
#include "lists/encoding.h"
#include "lists/table.h"
#include "lists/words.h"

namespace lists {
namespace {

bool has_label(std::string_view row, char delimiter) noexcept {
  row_splitter cells{delimiter, delimiter != '\t'};
  cells.start({.text = row});
  for (cell each; cells.take(each);)
    if (looks_like_timecode(each.value())) return true;
  return false;
}

bool is_sheet(std::string_view heading, std::string_view rows) noexcept {
  auto const delimiter = delimiter_of(heading);
  if (delimiter == '\0' || has_label(heading, delimiter)) return false;
  while (!rows.empty())
    if (has_label(take_line(rows), delimiter)) return true;
  return false;
}

}  // namespace

list_format recognise(std::string_view beginning) noexcept {
  beginning.remove_prefix(utf8_mark(beginning));
  std::string_view first;
  for (auto rest = beginning; !rest.empty();) {
    auto const text = take_line(rest);
    if (trimmed(text).empty() || trimmed(text).starts_with('*')) continue;
    if (first.empty() && same_letters(trimmed(text), "Heading")) return list_format::log;
    auto const says = read_statement(text);
    if (!std::holds_alternative<remark>(says) && !std::holds_alternative<broken_event>(says))
      return list_format::decision_list;
    if (first.empty() && is_sheet(text, rest)) return list_format::sheet;
    first = text;
  }
  return list_format::other;
}

char const* format_name(list_format format) noexcept {
  constexpr char const* names[] = {"decision list", "log", "CSV", "text"};
  return names[static_cast<int>(format)];
}

}  // namespace lists
