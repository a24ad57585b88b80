#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "cli/label_type.h"
#include "cli/verbs.h"

namespace cli {
namespace {

constexpr std::size_t columns = 6;
using table_row = std::array<std::string, columns>;

char const* family_name(UserLabelType family) noexcept {
  switch (family) {
    case User_timecode:
      return "timecode";
    case User_keycode:
      return "key-number";
    case User_feet:
      return "feet";
    case User_ink:
      return "ink";
    case User_film_frames:
      return "film-frames";
    case User_none:
    case User_any:
      break;
  }
  return "-";
}

table_row row_of(label_t type) {
  auto const* const converter = converter_of(type);
  bool const is_timecode = converter && converter->UserType() == User_timecode;
  auto const name = exchange_name(type);
  return {std::to_string(type),
          labelsbase::label_type_name(type),
          family_name(labelsbase::user_label_type(type)),
          name.empty() ? "-" : std::string{name},
          is_timecode ? std::to_string(converter->get_modulus()) : "-",
          converter ? converter->get_template(true).text() : "-"};
}

std::vector<table_row> type_table() {
  std::vector<table_row> table{{"number", "name", "family", "exchange", "frames/s", "template"}};
  for (int number = 0; number < numLabelCvts; ++number) {
    auto const type = static_cast<label_t>(number);
    if (*labelsbase::label_type_name(type)) table.push_back(row_of(type));
  }
  return table;
}

constexpr bool is_number(std::size_t column) noexcept { return column == 0 || column == 4; }

}  // namespace

exit_status types(console& io) {
  auto const table = type_table();
  std::array<std::size_t, columns> widths{};
  for (auto const& row : table)
    for (std::size_t i = 0; i < columns; ++i) widths[i] = std::max(widths[i], row[i].size());

  for (auto const& row : table) {
    std::string line;
    for (std::size_t i = 0; i < columns; ++i) {
      std::string const padding(widths[i] - row[i].size(), ' ');
      line += is_number(i) ? padding + row[i] : row[i] + padding;
      line += "  ";
    }
    line.erase(line.find_last_not_of(' ') + 1);
    io.results.line(line);
  }
  return all_well;
}

}  // namespace cli
