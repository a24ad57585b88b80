// Rows and cells of tables: CSV (RFC 4180) and tab-separated logs.
//
//   row    = cell ( delimiter cell )*
//   cell   = '"' ( any character but '"' | '""' )* '"' | any characters but the delimiter
//
// Quotes count at the beginning of a cell of a CSV only. A quoted cell may go on over several lines, and so does
// its row. A log has no quotes.
#pragma once

#include <cstddef>
#include <string_view>

#include "lists/lines.h"

namespace lists {

struct cell {
  std::string_view text;  // with its quotes
  std::size_t index = 0;  // from 0
  bool is_quoted = false;
  bool begins = true;  // false for what goes on from the line before
  bool ends = true;

  // Returns the text without quotes and without blanks at its ends. Doubled quotes stay doubled.
  [[nodiscard]] std::string_view value() const noexcept;
};

// Splits lines into cells, one line after the other.
class row_splitter {
 public:
  row_splitter(char delimiter, bool has_quotes) noexcept : delimiter_{delimiter}, has_quotes_{has_quotes} {}

  // Starts with a line, or a piece of one.
  void start(line const& next) noexcept;

  // Returns the next cell of the line. Call it until it returns false.
  [[nodiscard]] bool take(cell& out) noexcept;

  // Whether the row goes on with the next line. For use after the last cell of a line.
  [[nodiscard]] bool goes_on() const noexcept { return in_cell_; }

  [[nodiscard]] char delimiter() const noexcept { return delimiter_; }

 private:
  char delimiter_;
  bool has_quotes_;
  std::string_view rest_;
  bool line_goes_on_ = false;
  bool is_done_ = true;
  bool in_cell_ = false;    // the last cell goes on with the next line
  bool is_quoted_ = false;  // the cell begins with a quote
  bool is_open_ = false;    // its quotes are open
  std::size_t index_ = 0;
};

// Returns the delimiter of a table from its heading: the tab, semicolon or comma that stands there most often
// outside quotes, or 0 if none does.
[[nodiscard]] char delimiter_of(std::string_view heading) noexcept;

}  // namespace lists
