#include "cli/list_rewriter.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "cli/text.h"
#include "labelsbase/labelcvt/label_facts.h"
#include "lists/encoding.h"

namespace cli {
namespace {

bool is_timecode(label_kind const& kind) { return labelsbase::facts_of(kind.type).is_timecode(); }

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
