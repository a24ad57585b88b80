#include "cli/table.h"

#include <algorithm>
#include <string_view>

namespace cli {

void write_table(std::vector<table_column> const& columns, std::vector<table_row> const& rows, output& results) {
  std::vector<std::size_t> widths;
  table_row headings;
  for (auto const& column : columns) {
    auto width = std::string_view{column.heading}.size();
    for (auto const& row : rows) width = std::max(width, row[widths.size()].size());
    widths.push_back(width);
    headings.emplace_back(column.heading);
  }

  auto const write = [&](table_row const& row) {
    std::string line;
    for (std::size_t i = 0; i < columns.size(); ++i) {
      std::string const padding(widths[i] - row[i].size(), ' ');
      line += columns[i].is_number ? padding + row[i] : row[i] + padding;
      line += "  ";
    }
    line.erase(line.find_last_not_of(' ') + 1);
    results.line(line);
  };
  write(headings);
  for (auto const& row : rows) write(row);
}

}  // namespace cli
