#include "lists/log.h"

#include "lists/words.h"

namespace lists {

log_part log_sections::next(std::string_view line) noexcept {
  auto const text = trimmed(line);
  if (text.empty()) return log_part::blank;
  constexpr struct {
    std::string_view name;
    log_part within;
  } sections[] = {{"Heading", log_part::heading}, {"Column", log_part::names}, {"Data", log_part::row}};
  for (auto const& [name, within] : sections) {
    if (!same_letters(text, name) || within_ == log_part::row) continue;
    within_ = within;
    return log_part::section;
  }
  return within_;
}

log_entry read_log_entry(std::string_view line) noexcept {
  auto const tab = line.find('\t');
  if (tab == std::string_view::npos) return {trimmed(line), {}};
  return {trimmed(line.substr(0, tab)), trimmed(line.substr(tab + 1))};
}

}  // namespace lists
