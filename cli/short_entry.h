// Labels as people type them into editing systems.
//
//   25 frames    1:00:00    00:01:00.00            35 mm feet    12+3     0012+03
//                10.        00:00:10.00                          1203     0012+03
//                115        00:00:01.15                          12+      0012+00
//                +15        15 frames later
//                -1:00      25 frames earlier
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "labelsbase/labelcvt/label_types.h"

namespace cli {

// What was typed: a label, or a distance if a sign came first.
struct short_entry {
  char sign;          // '+', '-', or 0 for a label
  std::string label;  // label or distance, written in full without a prefix
};

// Reads a short entry for a type with labels. Returns nothing for any other text. Numbers may be out of range:
// "90." becomes "00:00:90.00".
//
//   entry     = ("+" | "-")? (digits | fields)
//   digits    = digit+                                        cut into fields from the right
//   fields    = digit* (separator digit*)+ ("." digit)?       counted from the right; an empty field is 0
//   separator = one of : ; . , + &                            "." only before a perforation
//
// The fields of timecode are hours, minutes, seconds and frames, those of film the count and its frames. Left-out
// fields are 0, a left-out perforation is 1. A distance that drop-frame leaves out, 1:00:00, becomes the next
// label: 00:01:00;02.
[[nodiscard]] std::optional<short_entry> read_short_entry(label_t type, std::string_view text);

}  // namespace cli
