// Logs and sheets: labels in their cells, the new column, and the rate of a log.

#include <algorithm>
#include <iterator>

#include "cli/list_rewriter.h"
#include "cli/text.h"
#include "labelsbase/labelcvt/label_facts.h"
#include "lists/list_rate.h"
#include "lists/words.h"

namespace cli {

void list_rewriter::take_log_line(lists::line const& in) {
  if (in.column == 1) part_ = sections_.next(in.text);
  if (part_ == lists::log_part::names || part_ == lists::log_part::row) return take_row(in);
  auto const [key, value] = lists::read_log_entry(in.text);
  if (part_ == lists::log_part::heading && lists::same_letters(key, "FPS") && changes_rates_) rewrite_rate(value);
}

void list_rewriter::rewrite_rate(std::string_view value) {
  auto const stated = labelnames::find(value);
  if (!stated || labelsbase::facts_of(stated->type).timecode.frames_per_second !=
                     labelsbase::facts_of(labels_.from().type).timecode.frames_per_second)
    return refuse(value, "the list's rate is not that of --from");
  auto const name = lists::rate_name({labels_.to().type, labels_.to().rate});
  auto const number = name.substr(0, name.find_first_not_of("0123456789."));
  if (number.empty() || number == value) return;
  replace(value, number);
  ++counts_.others;
}

void list_rewriter::read_heading(std::string_view beginning) {
  lists::log_sections sections;
  std::string_view heading;
  auto rest = beginning;
  do {
    heading = lists::take_line(rest);
  } while (!rest.empty() &&
           (is_sheet_ ? lists::trimmed(heading).empty() : sections.next(heading) != lists::log_part::names));
  if (is_sheet_) {
    auto const delimiter = lists::delimiter_of(heading);
    if (delimiter == '\0') return;
    cells_ = lists::row_splitter{delimiter, delimiter != '\t'};
  }
  auto cells = cells_;
  do {
    cells.start({.text = heading});
    for (lists::cell each; cells.take(each);)
      if (each.begins) headings_.emplace_back(each.value());
    heading = lists::take_line(rest);
  } while (cells.goes_on() && !rest.empty());
  std::ranges::transform(headings_, std::back_inserter(roles_), lists::role_of);
}

void list_rewriter::choose_column() {
  auto const is_added = [this](auto const& each) { return lists::same_letters(each, *columns_.added); };
  if (columns_.added && std::ranges::any_of(headings_, is_added))
    cli::refuse("--add-column", *columns_.added, name_ + " has a column of this name; expected another name");
  auto const& wanted = *columns_.column;
  auto const is_wanted = [&wanted](auto const& each) { return lists::same_letters(each, wanted); };
  if (auto const named = std::ranges::find_if(headings_, is_wanted); named != headings_.end()) {
    chosen_ = static_cast<std::size_t>(named - headings_.begin());
  } else if (auto const number = whole_number(wanted); number && *number >= 1) {
    chosen_ = static_cast<std::size_t>(*number - 1);
  }
  if (chosen_ && *chosen_ < headings_.size()) return;
  std::string all;
  for (auto const& each : headings_) all.append(all.empty() ? "" : ", ").append(each);
  cli::refuse(
      "--column", wanted,
      "no such column; expected a number from 1 to " + std::to_string(headings_.size()) + " or one of: " + all);
}

void list_rewriter::take_row(lists::line const& in) {
  if (lists::trimmed(in.text).empty() && !cells_.goes_on()) return;
  cells_.start(in);
  for (lists::cell each; cells_.take(each);) {
    row_cells_ = each.index + 1;
    is_quoted_ = each.is_quoted;
    take_cell(each);
  }
  if (cells_.goes_on()) return;
  if (columns_.added) end_row();
  is_past_heading_ = true;
}

void list_rewriter::take_cell(lists::cell const& each) {
  auto const role = each.index < roles_.size() ? roles_[each.index] : lists::column_role::other;
  bool const is_chosen = chosen_ ? each.index == *chosen_ : role != lists::column_role::other_rate;
  if (!is_chosen) return;
  if (!columns_.added) return take_text(each.text, width::free, lists::is_length(role));

  auto const label = finder_.next(each.text, 0);
  if (!label) return;
  auto const with = converted(each.text.substr(label->at, label->size), lists::is_length(role));
  added_ = with.value_or("?");
  if (with) ++counts_.changed;
}

// Adds the new cell. Fills up rows that are shorter than the heading, so that it stands in the new column.
void list_rewriter::end_row() {
  if (!is_past_heading_) added_ = *columns_.added;
  if (row_cells_ > headings_.size()) {
    ++counts_.found;
    refuse(in_->text.substr(in_->text.size()), "the row has more cells than the heading; its label is not added");
    return added_.clear();
  }
  out_.write(in_->text.substr(written_));
  written_ = in_->text.size();
  char const delimiter = cells_.delimiter();
  for (auto missing = headings_.size() - row_cells_ + 1; missing > 0; --missing) out_.write({&delimiter, 1});
  char const* const quote = delimiter != '\t' && added_.find(delimiter) != std::string::npos ? "\"" : "";
  out_.write(quote);
  out_.write(added_);
  out_.write(quote);
  added_.clear();
}

}  // namespace cli
