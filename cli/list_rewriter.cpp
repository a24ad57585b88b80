#include "cli/list_rewriter.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <iterator>
#include <utility>

#include "cli/text.h"
#include "labelsbase/labelcvt/label_facts.h"
#include "lists/encoding.h"
#include "lists/list_rate.h"
#include "lists/words.h"

namespace cli {
namespace {

labelsbase::timecode_facts const& timecode_of(label_t type) { return labelsbase::facts_of(type).timecode; }

bool is_timecode(label_kind const& kind) { return labelsbase::facts_of(kind.type).is_timecode(); }

// Returns the number in decimal digits, with zeros before it up to `digits`.
std::string with_digits(std::int64_t number, std::size_t digits) {
  auto text = std::to_string(number);
  return std::string(digits - std::min(digits, text.size()), '0') + text;
}

}  // namespace

list_rewriter::list_rewriter(label_converter& labels, column_choice const& columns, std::string name, output& out,
                             console& io)
    : labels_{labels},
      columns_{columns},
      name_{std::move(name)},
      out_{out},
      io_{io},
      finder_{labels.from().type},
      changes_rates_{is_timecode(labels.from()) && is_timecode(labels.to()) && !columns.column} {}

void list_rewriter::begin(std::string_view beginning) {
  format_ = lists::recognise(beginning);
  bool const is_log = format_ == lists::list_format::log;
  is_sheet_ = format_ == lists::list_format::sheet || (format_ == lists::list_format::other && columns_.column);
  if (is_sheet_ || is_log) read_heading(beginning.substr(lists::utf8_mark(beginning)));
  if (!columns_.column) return;
  if (headings_.empty()) cli::refuse("--column", *columns_.column, name_ + " is no table with columns");
  choose_column();
}

void list_rewriter::take(lists::line const& next) {
  in_ = &next;
  io_.place = {"line", next.number};
  written_ = 0;
  out_.write(next.mark);
  if (next.column == 1) ++counts_.lines;
  if (is_sheet_)
    take_row(next);
  else if (format_ == lists::list_format::log)
    take_log_line(next);
  else if (format_ == lists::list_format::decision_list && next.is_whole())
    take_statement(next);
  else
    take_text(next.text, width::free);
  out_.write(next.text.substr(written_));
  out_.write(next.end);
}

// --- Decision lists ---

void list_rewriter::take_statement(lists::line const& in) {
  std::visit([this](auto const& says) { take(says); }, lists::read_statement(in.text));
}

void list_rewriter::take(lists::event const& says) {
  has_events_ = true;
  if (!says.transition_frames.empty()) rewrite_transition(says.transition_frames);
  for (auto const label : says.labels()) {
    bool const is_source = label.data() <= says.source_out.data();
    auto const& contradicted = is_source ? of_source_ : of_record_;
    if (contradicted) {
      ++counts_.found;
      refuse(label, "line " + std::to_string(contradicted->line) + " says " + contradicted->words +
                        ", and --from does not");
    } else {
      take_text(label, width::fixed);
    }
  }
}

// The first frame code mode holds for the whole list, later ones for the sources.
void list_rewriter::take(lists::code_mode const& says) {
  bool const contradicts =
      is_timecode(labels_.from()) && says.drop_frame != timecode_of(labels_.from().type).drop_frame;
  auto const found =
      contradicts ? std::optional{contradiction{in_->number, std::string{says.words}}} : std::nullopt;
  of_source_ = found;
  if (!has_events_) of_record_ = found;
  if (contradicts || !changes_rates_) return;
  bool const drops = timecode_of(labels_.to().type).drop_frame;
  if (drops == says.drop_frame) return;
  replace(says.words, drops ? "DROP FRAME" : "NON-DROP FRAME");
  ++counts_.others;
}

void list_rewriter::take(lists::speed_effect const& says) {
  if (!of_source_) rewrite_speed(says.frames_per_second);
  if (!says.entry.empty() && !of_source_) take_text(says.entry, width::fixed);
}

// A speed of 12.5 of 25 frames is 15 of 30. Keeps the sign and the digits behind the point.
void list_rewriter::rewrite_speed(std::string_view value) {
  auto const from = timecode_of(labels_.from().type).frames_per_second;
  auto const to = timecode_of(labels_.to().type).frames_per_second;
  if (!changes_rates_ || from == to) return;
  bool const has_sign = value.starts_with('-') || value.starts_with('+');
  auto const digits = value.substr(has_sign ? 1 : 0);
  auto const point = std::min(digits.find('.'), digits.size());
  std::string all{digits.substr(0, point)};
  auto const places = digits.substr(std::min(point + 1, digits.size()));
  all += places;
  std::int64_t speed = 0;
  auto const [stop, error] = std::from_chars(all.data(), all.data() + all.size(), speed);
  if (error != std::errc{} || stop != all.data() + all.size() || speed > 1'000'000'000)
    return refuse(value, "expected frames a second, such as 025.0");

  std::string scaled = with_digits((speed * to + from / 2) / from, all.size());
  if (point < digits.size()) scaled.insert(scaled.size() - places.size(), ".");
  if (has_sign) scaled.insert(0, value.substr(0, 1));
  if (scaled == value) return;
  if (!replace_in_width(value, scaled)) return refuse(value, "no room for the speed " + scaled);
  ++counts_.others;
}

void list_rewriter::rewrite_transition(std::string_view frames) {
  if (!changes_rates_) return;
  int length = 0;
  std::from_chars(frames.data(), frames.data() + frames.size(), length);
  auto const scaled = labels_.length(length);
  if (!scaled || *scaled == length) return;
  auto const text = with_digits(*scaled, frames.size());
  if (!replace_in_width(frames, text)) return refuse(frames, "no room for a transition of " + text + " frames");
  ++counts_.others;
}

// --- Logs and sheets ---

void list_rewriter::take_log_line(lists::line const& in) {
  if (in.column == 1) part_ = sections_.next(in.text);
  if (part_ == lists::log_part::names || part_ == lists::log_part::row) return take_row(in);
  auto const [key, value] = lists::read_log_entry(in.text);
  if (part_ == lists::log_part::heading && lists::same_letters(key, "FPS") && changes_rates_) rewrite_rate(value);
}

void list_rewriter::rewrite_rate(std::string_view value) {
  auto const stated = labelnames::find(value);
  if (!stated || timecode_of(stated->type).frames_per_second != timecode_of(labels_.from().type).frames_per_second)
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

// --- Labels ---

void list_rewriter::take_text(std::string_view part, width how, bool is_length) {
  for (auto label = finder_.next(part, 0); label; label = finder_.next(part, label->at + label->size))
    rewrite_label(part.substr(label->at, label->size), how, is_length);
}

void list_rewriter::rewrite_label(std::string_view label, width how, bool is_length) {
  auto const with = converted(label, is_length);
  if (!with || *with == label) return;
  if (is_sheet_ && !is_quoted_ && cells_.delimiter() == ';' && with->find(';') != std::string_view::npos)
    return refuse(label, "becomes " + std::string{*with} + ", which would be two cells here; use --style own");
  if (how == width::free)
    replace(label, *with);
  else if (!replace_in_width(label, *with))
    return refuse(label, "no room for " + std::string{*with} + " in its column");
  ++counts_.changed;
}

std::optional<std::string_view> list_rewriter::converted(std::string_view label, bool is_length) {
  ++counts_.found;
  if (label.size() >= label_text_.size()) {
    refuse(label, "longer than any label");
    return std::nullopt;
  }
  std::memcpy(label_text_.data(), label.data(), label.size());
  label_text_[label.size()] = '\0';
  std::string_view with;
  std::string_view const text{label_text_.data(), label.size()};
  auto const wrong = is_length ? labels_.convert_length(text, with) : labels_.convert(text, with);
  if (!wrong) return with;
  refuse(label, *wrong);
  return std::nullopt;
}

void list_rewriter::replace(std::string_view part, std::string_view with) {
  auto const at = static_cast<std::size_t>(part.data() - in_->text.data());
  out_.write(in_->text.substr(written_, at - written_));
  out_.write(with);
  written_ = at + part.size();
}

// Keeps the place of all that follows: fills up a shorter text with blanks, and lets a longer one take the blanks
// behind it, but the last. Returns false if they are too few.
bool list_rewriter::replace_in_width(std::string_view part, std::string_view with) {
  constexpr std::string_view blanks = "                                ";
  if (with.size() <= part.size()) {
    replace(part, with);
    out_.write(blanks.substr(0, std::min(part.size() - with.size(), blanks.size())));
    return true;
  }
  auto const begin = static_cast<std::size_t>(part.data() - in_->text.data());
  auto const more = with.size() - part.size();
  auto const rest = in_->text.substr(begin + part.size());
  auto const room = std::min(rest.find_first_not_of(' '), rest.size());
  bool const is_last = room == rest.size();
  if (!is_last && room <= more) return false;
  replace(in_->text.substr(begin, part.size() + std::min(more, room)), with);
  return true;
}

void list_rewriter::refuse(std::string_view part, std::string_view why) {
  ++counts_.refused;
  auto const at = static_cast<std::size_t>(part.data() - in_->text.data());
  auto const where = name_ + ':' + std::to_string(in_->number) + ':' + std::to_string(column_of(*in_, at)) + ':';
  io_.say(refusal(where, part, why));
}

}  // namespace cli
