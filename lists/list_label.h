// Timecode as lists write it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "labelcheck/read.h"

namespace lists {

// Reads timecode strictly, whichever of ":", ";", ".", "," and "+" separate its fields: "01;00;00;02",
// "01:00:00.02". Returns the frame, or what is wrong. The nearest label is written as decision lists have it.
[[nodiscard]] std::variant<int, labelcheck::refusal> read_list_label(label_t type, std::string_view text);

// Whether the label says that it is drop-frame: ";" stands before its frames.
[[nodiscard]] constexpr bool marks_drop_frame(std::string_view text) noexcept {
  auto const separator = text.find_last_of(":;.,+");
  return separator != std::string_view::npos && text[separator] == ';';
}

// Returns the label of a frame as decision lists write it: "01:00:00:00", and "01:00:00;02" for drop-frame. The
// frame may lie beyond a day.
[[nodiscard]] std::string list_label(label_t type, std::int64_t frame);

// Returns the labels of a day.
[[nodiscard]] int frames_per_day(label_t type) noexcept;

}  // namespace lists
