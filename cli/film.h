// Film as its label types have it.
#pragma once

#include <string>

#include "labelsbase/labelcvt.h"

namespace cli {

// Whether samples of the type are perforations.
[[nodiscard]] inline bool counts_perforations(label_cvt const& converter) {
  auto const family = converter.UserType();
  return family == User_keycode || family == User_ink || family == User_feet;
}

// Perforations from one key number, ink number or foot to the next. They are read off the label of count 1, since
// some key-number types report fewer than their film has.
[[nodiscard]] inline int perfs_per_count(label_cvt& converter) {
  std::string label = converter.get_dummy_prefix();
  label.resize(static_cast<std::size_t>(converter.get_prefix_length()));
  if (converter.has_prefix()) label.append(static_cast<std::size_t>(converter.get_count_length()) - 1, '0');
  label += "1+00";
  if (converter.samples_per_unit() == 3) label += ".1";
  return converter.get_abs_sample(label.c_str());
}

}  // namespace cli
