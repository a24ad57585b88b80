// Writes a text with other labels in it, and all else byte for byte.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/conversion.h"
#include "lists/columns.h"
#include "lists/decision_list.h"
#include "lists/label_finder.h"
#include "lists/lines.h"
#include "lists/list_format.h"
#include "lists/log.h"
#include "lists/table.h"

namespace cli {

// The columns of a table, by name or number from 1.
struct column_choice {
  std::optional<std::string> column;  // the only one to rewrite
  std::optional<std::string> added;   // the heading of a new column for its labels; the old one stays as it is
};

struct rewriting_counts {
  std::int64_t lines = 0;
  std::int64_t found = 0;
  std::int64_t changed = 0;
  std::int64_t refused = 0;
  std::int64_t others = 0;  // rate lines, speeds and lengths of transitions that were changed with the labels
};

class list_rewriter {
 public:
  // Reports refusals with `name`, line and column. The output must outlive the object.
  list_rewriter(label_converter& labels, column_choice const& columns, std::string name, output& out, console& io);

  // Recognises the list by its beginning and reads the heading of a table. Refuses a column that there is not.
  void begin(std::string_view beginning);

  void take(lists::line const& next);

  [[nodiscard]] rewriting_counts const& counts() const noexcept { return counts_; }
  [[nodiscard]] lists::list_format format() const noexcept { return format_; }

 private:
  enum class width { free, fixed };

  // What --from says of the frame code mode of a list that it contradicts.
  struct contradiction {
    std::int64_t line;
    std::string words;
  };

  void take_statement(lists::line const& in);
  void take(lists::remark);
  void take(lists::audio_channels) { take(lists::remark{}); }
  void take(lists::title const&) { take_text(in_->text, width::free); }
  void take(lists::broken_event const&) { take_text(in_->text, width::fixed); }
  void take(lists::event const& says);
  void take(lists::code_mode const& says);
  void take(lists::speed_effect const& says);

  void take_log_line(lists::line const& in);
  void read_heading(std::string_view beginning);
  void choose_column();
  void take_row(lists::line const& in);
  void take_cell(lists::cell const& each);
  void end_row();

  // Rewrites the labels in a part of the line.
  void take_text(std::string_view part, width how, bool is_length = false);
  void rewrite_label(std::string_view label, width how, bool is_length);
  void rewrite_rate(std::string_view value);
  void rewrite_speed(std::string_view value);
  void rewrite_transition(std::string_view frames);

  // Returns the label to write; reports and counts one that is refused.
  [[nodiscard]] std::optional<std::string_view> converted(std::string_view label, bool is_length);

  // Writes the line up to the part, and `with` in its place. Parts come in order.
  void replace(std::string_view part, std::string_view with);
  [[nodiscard]] bool replace_in_width(std::string_view part, std::string_view with);
  void refuse(std::string_view part, std::string_view why);

  label_converter& labels_;
  column_choice const& columns_;
  std::string name_;
  output& out_;
  console& io_;
  lists::label_finder finder_;
  bool changes_rates_;  // timecode becomes timecode, in the whole list
  rewriting_counts counts_;

  lists::list_format format_ = lists::list_format::other;
  lists::line const* in_ = nullptr;
  std::size_t written_ = 0;          // bytes of the line
  std::array<char, 64> label_text_;  // a label to read, terminated

  // Of decision lists.
  std::optional<contradiction> of_source_, of_record_;
  bool has_events_ = false;

  // Of tables.
  bool is_sheet_ = false;
  lists::log_sections sections_;
  lists::log_part part_ = lists::log_part::blank;
  lists::row_splitter cells_{'\t', false};
  std::vector<std::string> headings_;
  std::vector<lists::column_role> roles_;  // of the columns
  std::optional<std::size_t> chosen_;      // column
  bool is_past_heading_ = false;
  bool is_quoted_ = false;     // the cell
  std::size_t row_cells_ = 0;  // so far
  std::string added_;          // the cell of the new column
};

}  // namespace cli
