#include "cli/records.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <charconv>
#include <iterator>
#include <nlohmann/json.hpp>
#include <utility>

#include "cli/arguments.h"
#include "cli/text.h"

namespace cli {
namespace {

struct format_row {
  char const* name;
  format how;
};

constexpr format_row formats[] = {
    {"text", format::text}, {"csv", format::csv},     {"tsv", format::tsv},
    {"json", format::json}, {"jsonl", format::jsonl},
};

// The JSON Schema type of a value.
constexpr char const* schema_type(value_type type) noexcept {
  switch (type) {
    case value_type::text:
      return "string";
    case value_type::integer:
      return "integer";
    case value_type::number:
      return "number";
    case value_type::boolean:
      return "boolean";
  }
  return "null";
}

std::vector<declared_records>& declarations() noexcept {
  static std::vector<declared_records> all;
  return all;
}

// The text of a value, which lives as long as this and the value.
class value_text {
 public:
  explicit value_text(value const& from) noexcept {
    if (auto const* const text = std::get_if<std::string_view>(&from)) text_ = *text;
    if (auto const* const number = std::get_if<std::int64_t>(&from)) set_number(*number);
    if (auto const* const number = std::get_if<double>(&from)) set_number(*number);
    if (auto const* const truth = std::get_if<bool>(&from)) text_ = *truth ? "true" : "false";
  }
  value_text(value_text const&) = delete;
  value_text& operator=(value_text const&) = delete;

  [[nodiscard]] std::string_view get() const noexcept { return text_; }

 private:
  template <typename Number>
  void set_number(Number number) noexcept {
    text_ = {digits_.data(), std::to_chars(digits_.data(), digits_.data() + digits_.size(), number).ptr};
  }

  std::array<char, 32> digits_;
  std::string_view text_;
};

// To three places: "23.976" or "12.5".
std::string in_thousandths(double number) {
  std::array<char, 352> text;  // the largest double has 309 digits
  auto const end = std::to_chars(text.begin(), text.end(), number, std::chars_format::fixed, 3).ptr;
  std::string result{text.begin(), end};
  result.erase(result.find_last_not_of('0') + 1);
  if (result.back() == '.') result.pop_back();
  return result;
}

std::string cell(value const& from) {
  if (std::holds_alternative<std::monostate>(from)) return "-";
  if (auto const* const number = std::get_if<double>(&from)) return in_thousandths(*number);
  return std::string{value_text{from}.get()};
}

void write_json_text(std::string_view text, output& out) {
  bool const is_plain =
      std::ranges::all_of(text, [](char c) { return c >= ' ' && c <= '~' && c != '"' && c != '\\'; });
  if (!is_plain) {
    using nlohmann::json;
    out.write(json(text).dump(-1, ' ', false, json::error_handler_t::replace));
    return;
  }
  out.write("\"");
  out.write(text);
  out.write("\"");
}

void write_csv_text(std::string_view text, output& out) {
  if (text.find_first_of(",\"\r\n") == std::string_view::npos) return out.write(text);
  out.write("\"");
  for (auto quote = text.find('"'); quote != std::string_view::npos; quote = text.find('"')) {
    out.write(text.substr(0, quote + 1));
    out.write("\"");
    text.remove_prefix(quote + 1);
  }
  out.write(text);
  out.write("\"");
}

void write_tsv_text(std::string_view text, output& out) {
  constexpr std::string_view special = "\t\n\r\\";
  constexpr std::string_view escapes[] = {"\\t", "\\n", "\\r", "\\\\"};
  for (auto at = text.find_first_of(special); at != std::string_view::npos; at = text.find_first_of(special)) {
    out.write(text.substr(0, at));
    out.write(escapes[special.find(text[at])]);
    text.remove_prefix(at + 1);
  }
  out.write(text);
}

}  // namespace

record_writer::record_writer(format how, std::span<field const> fields, output& out, text_layout layout)
    : how_{how}, layout_{layout}, fields_{fields}, out_{out} {
  auto const has_heading = [](field const& each) { return each.heading != nullptr; };
  bool const is_only = std::ranges::count_if(fields_, has_heading) == 1;
  auto const first = std::ranges::find_if(fields_, has_heading) - fields_.begin();
  only_shown_ = is_only ? static_cast<std::size_t>(first) : fields_.size();
  if (how_ == format::json) out_.write("[");
  if (how_ == format::csv || how_ == format::tsv) {
    std::vector<value> names;
    for (auto const& each : fields_) names.emplace_back(std::string_view{each.name});
    write_separated(names);
  }
}

record_writer::~record_writer() {
  if (how_ == format::json) out_.write(is_first_ ? "]\n" : "\n]\n");
  if (how_ == format::text && layout_ == text_layout::table) write_table();
}

void record_writer::write(std::span<value const> row) {
  assert(row.size() == fields_.size());
  switch (how_) {
    case format::text:
      layout_ == text_layout::table ? keep(row) : write_line(row);
      break;
    case format::csv:
    case format::tsv:
      write_separated(row);
      break;
    case format::json:
      out_.write(is_first_ ? "\n" : ",\n");
      write_object(row);
      break;
    case format::jsonl:
      write_object(row);
      out_.write("\n");
      break;
  }
  is_first_ = false;
}

void record_writer::write_fields(std::span<value const> row) {
  std::string_view separator;
  for (std::size_t i = 0; i < row.size(); ++i) {
    bool const is_shown = fields_[i].heading && !std::holds_alternative<std::monostate>(row[i]);
    if (!is_shown) continue;
    out_.write(std::exchange(separator, "\t"));
    out_.write(fields_[i].before);
    out_.write(value_text{row[i]}.get());
  }
  out_.write("\n");
}

void record_writer::write_separated(std::span<value const> row) {
  bool const is_csv = how_ == format::csv;
  for (std::size_t i = 0; i < row.size(); ++i) {
    if (i != 0) out_.write(is_csv ? "," : "\t");
    value_text const text{row[i]};
    is_csv ? write_csv_text(text.get(), out_) : write_tsv_text(text.get(), out_);
  }
  out_.write("\n");
}

void record_writer::write_object(std::span<value const> row) {
  out_.write("{");
  for (std::size_t i = 0; i < row.size(); ++i) {
    out_.write(i == 0 ? "\"" : ",\"");
    out_.write(fields_[i].name);
    out_.write("\":");
    if (auto const* const text = std::get_if<std::string_view>(&row[i])) {
      write_json_text(*text, out_);
    } else {
      bool const is_missing = std::holds_alternative<std::monostate>(row[i]);
      out_.write(is_missing ? "null" : value_text{row[i]}.get());
    }
  }
  out_.write("}");
}

void record_writer::keep(std::span<value const> row) {
  std::vector<std::string> cells;
  for (auto const& each : row) cells.push_back(cell(each));
  table_.push_back(std::move(cells));
}

void record_writer::write_table() const {
  std::vector<std::string> headings;
  std::vector<std::size_t> widths;
  for (auto const& each : fields_) {
    headings.emplace_back(each.heading ? each.heading : "");
    auto width = headings.back().size();
    for (auto const& cells : table_) width = std::max(width, cells[widths.size()].size());
    widths.push_back(width);
  }

  auto const write = [&](std::vector<std::string> const& cells) {
    std::string line;
    for (std::size_t i = 0; i < cells.size(); ++i) {
      if (!fields_[i].heading) continue;
      bool const is_number = fields_[i].type == value_type::integer || fields_[i].type == value_type::number;
      std::string const padding(widths[i] - cells[i].size(), ' ');
      line += is_number ? padding + cells[i] : cells[i] + padding;
      line += "  ";
    }
    line.erase(line.find_last_not_of(' ') + 1);
    out_.line(line);
  };
  write(headings);
  for (auto const& each : table_) write(each);
}

void add_format(CLI::App& command, std::string& chosen, std::span<field const> fields) {
  declarations().push_back({command_name(command), fields});
  chosen = formats[0].name;
  add_option(
      command, "--format", "text|csv|tsv|json|jsonl [text]", chosen,
      "How to write results: json is an array, jsonl an object a line; 'labels schema' describes the fields");
}

format find_format(std::string const& name) {
  auto const* const found = std::ranges::find(formats, name, &format_row::name);
  if (found == std::end(formats)) refuse("--format", name, "expected text, csv, tsv, json or jsonl");
  return found->how;
}

std::vector<declared_records> const& all_declared_records() noexcept { return declarations(); }

std::string json_schema(declared_records const& records) {
  using json = nlohmann::ordered_json;
  json properties = json::object();
  json required = json::array();
  for (auto const& each : records.fields) {
    json type = schema_type(each.type);
    if (each.is_optional) type = json::array({type, "null"});
    properties[each.name] = {{"description", each.meaning}, {"type", std::move(type)}};
    required.push_back(each.name);
  }
  json const schema = {{"$schema", "https://json-schema.org/draft/2020-12/schema"},
                       {"title", "labels " + records.command},
                       {"type", "array"},
                       {"items",
                        {{"type", "object"},
                         {"properties", std::move(properties)},
                         {"required", std::move(required)},
                         {"additionalProperties", false}}}};
  return schema.dump(2);
}

}  // namespace cli
