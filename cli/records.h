// Rows of results, written as text, CSV, TSV or JSON. A command declares its fields once; what it writes, its help
// and its JSON Schema all follow from that.
//
//   constexpr field reel_fields[] = {
//       {"reel", value_type::text, "Name of the reel", "reel"},
//       {"length_frames", value_type::integer, "Length in frames", "frames"},
//       {"problem", value_type::text, "Why the reel was refused", nullptr, may_be_missing},
//   };
//
//   add_format(command, given->format, reel_fields);                              // declares --format
//   record_writer reels{find_format(given->format), reel_fields, io.results};
//   reels.write({"A001", 1440, missing});
//
//   format     what is written
//   text       a table with headings
//   csv        A001,1440,
//   json       {"reel":"A001","length_frames":1440,"problem":null}
#pragma once

#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "cli/console.h"

namespace CLI {
class App;
}

namespace cli {

enum class format {
  text,   // for people: a table or plain lines
  csv,    // with a heading (RFC 4180, but lines end in "\n")
  tsv,    // with a heading; a tab, line feed, carriage return or backslash in a text is \t, \n, \r or \\.
  json,   // an array of objects
  jsonl,  // an object a line
};

enum class value_type { text, integer, number, boolean };

inline constexpr bool may_be_missing = true;

// A field of every row. Names are stable and carry the unit: "length_frames", "rate_fps".
struct field {
  char const* name;
  value_type type;
  char const* meaning;            // for the schema: what the value is, in which unit
  char const* heading = nullptr;  // in text; without one, text leaves the field out
  bool is_optional = false;       // whether the value may be missing
  char const* before = "";        // in lines: written before the value, "phase "
};

// A value of a row: a text, whole number, number or truth, or nothing. Texts need to live until the row is
// written.
using value = std::variant<std::monostate, std::int64_t, double, bool, std::string_view>;

// A value that is missing: null in JSON, empty in CSV and TSV, "-" in a table, and left out of lines.
inline constexpr value missing{};

// How rows look as text.
enum class text_layout {
  table,  // headings and aligned columns, written at the end; numbers to three places
  lines,  // a line for each row, fields separated by tabs, without headings
};

// Writes rows as they come. Only a text table is kept until the end. Writing lines allocates nothing; JSON
// allocates for texts that need escapes.
class record_writer {
 public:
  record_writer(format how, std::span<field const> fields, output& out, text_layout layout = text_layout::table);
  record_writer(record_writer const&) = delete;
  record_writer& operator=(record_writer const&) = delete;

  // Ends the JSON array or writes the table.
  ~record_writer();

  // Whether the format is text, so that a command can write lines of its own instead of rows.
  [[nodiscard]] bool is_text() const noexcept { return how_ == format::text; }

  // Writes a row: a value for each field, in their order. Text that is not UTF-8 appears in JSON with U+FFFD in
  // place of the bytes at fault.
  void write(std::initializer_list<value> row) { write(std::span{row.begin(), row.size()}); }
  void write(std::span<value const> row);

  // Writes a row as a line of text.
  void write_line(std::span<value const> row) {
    if (only_shown_ == row.size()) return write_fields(row);
    auto const& shown = row[only_shown_];
    if (auto const* const text = std::get_if<std::string_view>(&shown)) return out_.line(*text);
    if (auto const* const number = std::get_if<std::int64_t>(&shown)) return out_.line(*number);
    write_fields(row);
  }

 private:
  void write_fields(std::span<value const> row);
  void write_object(std::span<value const> row);
  void write_separated(std::span<value const> row);
  void keep(std::span<value const> row);
  void write_table() const;

  format how_;
  text_layout layout_;
  std::span<field const> fields_;
  output& out_;
  std::size_t only_shown_ = 0;  // the only field with a heading; past the end if there are none or several
  bool is_first_ = true;
  std::vector<std::vector<std::string>> table_;  // the texts of all rows
};

// Declares --format for a command that writes rows of these fields. `chosen` receives what the user gives.
void add_format(CLI::App& command, std::string& chosen, std::span<field const> fields);

// Returns the format with this name. Refuses others.
[[nodiscard]] format find_format(std::string const& name);

// A command that has declared its rows.
struct declared_records {
  std::string command;
  std::span<field const> fields;
};

// Returns the commands that have called add_format, in that order.
[[nodiscard]] std::vector<declared_records> const& all_declared_records() noexcept;

// Returns the JSON Schema (draft 2020-12) of what a command writes with --format json. Its "items" hold for each
// line of --format jsonl.
[[nodiscard]] std::string json_schema(declared_records const& records);

}  // namespace cli
