// Tab-separated logs of takes, as editing systems exchange them.
//
//   log     = "Heading" ( key TAB value )*
//             "Column" names
//             "Data" row*
//   names, row = cell ( TAB cell )*
//
// Blank lines may stand between the sections. "FPS" in the heading gives the rate.
#pragma once

#include <string_view>

namespace lists {

enum class log_part { blank, section, heading, names, row };

class log_sections {
 public:
  // Returns what the next line of the log is.
  [[nodiscard]] log_part next(std::string_view line) noexcept;

 private:
  log_part within_ = log_part::blank;
};

struct log_entry {
  std::string_view key, value;
};

// Splits a line of the heading.
[[nodiscard]] log_entry read_log_entry(std::string_view line) noexcept;

}  // namespace lists
