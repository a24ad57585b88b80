// Tables for people.
#pragma once

#include <string>
#include <vector>

#include "cli/output.h"

namespace cli {

struct table_column {
  char const* heading;
  bool is_number = false;  // set to the right
};

using table_row = std::vector<std::string>;  // a text for each column

// Writes the headings and the rows, every column as wide as its longest text.
void write_table(std::vector<table_column> const& columns, std::vector<table_row> const& rows, output& results);

}  // namespace cli
