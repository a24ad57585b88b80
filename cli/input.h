// What a command processes: its operands, or the lines of standard input.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/console.h"
#include "cli/lines.h"

namespace CLI {
class App;
}

namespace cli {

// What is wrong with a text, for example "expected a whole number of frames"; nothing if it is valid.
using problem = std::optional<std::string>;

// Any number of operands and the option --refused.
struct item_arguments {
  std::vector<std::string> operands{};
  std::string refused = "?";
};

// `name` and `meaning` are those of the operands.
void add_items(CLI::App& command, char const* name, char const* meaning, item_arguments& given);

// Goes through the operands, or through the lines of standard input if there are none. The operand "-" stands for
// the lines of standard input, too.
//
//   item_loop items{operands, io};
//   while (items.next()) {
//     if (auto const wrong = take(items.text())) items.refuse(*wrong);
//   }
//   return items.status();
class item_loop {
 public:
  item_loop(std::vector<std::string> const& operands, console& io) noexcept;

  // Goes on to the next item. Returns false at the end, if the input cannot be read, and if the results cannot be
  // written. Lines that are too long are refused: is_refused() is true of them.
  [[nodiscard]] bool next() {
    if (!is_at_lines_) return next_operand();
    return lines_.next() && io_.results.error() == 0 ? accept_line() : end_of_lines();
  }

  // Returns the item without blanks and a carriage return behind it and without a byte-order mark. A terminator
  // follows; valid until the next call.
  [[nodiscard]] std::string_view text() const noexcept { return text_; }

  // Whether the item is a line without text. Such lines are passed through.
  [[nodiscard]] bool is_blank_line() const noexcept { return is_at_lines_ && text_.empty(); }

  [[nodiscard]] bool is_refused() const noexcept { return is_refused_; }

  // Reports the item as refused, with its place.
  void refuse(std::string_view why);

  // Returns why the last refused item was refused.
  [[nodiscard]] std::string const& reason() const noexcept { return reason_; }

  [[nodiscard]] exit_status status() const noexcept { return status_; }

 private:
  [[nodiscard]] bool next_operand();
  [[nodiscard]] bool end_of_lines();
  [[nodiscard]] bool accept_first_line();
  void refuse_long_line();
  void hint_at_blank_line();

  [[nodiscard]] bool accept_line() {
    text_ = lines_.text();
    is_refused_ = false;
    if (++io_.place.number == 1 && !accept_first_line()) return false;
    if (text_.empty() && !has_hinted_) hint_at_blank_line();
    if (lines_.is_too_long()) refuse_long_line();
    return true;
  }

  std::vector<std::string> const& operands_;
  console& io_;
  line_reader lines_;
  std::string_view text_;
  std::string operand_;
  std::size_t next_operand_ = 0;
  bool is_at_lines_;
  bool is_refused_ = false;
  std::string reason_;
  bool has_hinted_ = false;  // at blank lines
  exit_status status_ = all_well;
};

// Calls `take` with every item; it writes a line, or writes nothing and returns what is wrong. Writes the line of
// --refused in the place of a refused item, so that every item keeps its line.
template <typename Take>
[[nodiscard]] exit_status for_each_item(item_arguments const& given, console& io, Take const& take) {
  item_loop items{given.operands, io};
  while (items.next()) {
    if (items.is_blank_line()) {
      io.results.line("");
    } else if (items.is_refused()) {
      io.results.line(given.refused);
    } else if (problem const wrong = take(items.text())) {
      io.results.line(given.refused);
      items.refuse(*wrong);
    }
  }
  return items.status();
}

}  // namespace cli
