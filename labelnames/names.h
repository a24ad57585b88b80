// The names by which people call label types.
//
//   auto const named = labelnames::find("29.97df");
//   named->type                          // ntsc_drop_label_t
//   named->rate                          // Kiv::FrameRate_29_97
//   labelnames::find("23.976")->type     // tc_24_label_t
//   labelnames::find("35mm")->type       // keycode_35_label_t
//   labelnames::find("24f")->type        // tc_24_label_t: the name in edit decision lists
//   labelnames::find("#25")->type        // keycode_16_label_5_t: its number
//   labelnames::find("29.79").has_value()       // false
//   labelnames::nearest("29.79").front()        // "29.97"
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "host/frame_rate.h"
#include "labelsbase/labelcvt/label_types.h"

namespace labelnames {

// A label type, and the speed of the material that it labels.
struct named_type {
  label_t type;         // a type with labels
  Kiv::FrameRate rate;  // frames a second: 24 and 23.976 have one type. Film runs at 24
};

// A name that people use. Types that differ in speed only have a name each.
struct name_row {
  char const* names;             // separated by blanks: "23.976 23.98"; the first is the one to show
  label_t type;                  // for `drop_by_project`, the type without drop-frame
  Kiv::FrameRate rate;           // frames a second
  char const* meaning;           // "timecode of film and progressive video slowed for television"
  bool drop_by_project = false;  // drop-frame if the current project uses it

  // Returns the first name.
  [[nodiscard]] std::string_view name() const noexcept;

  // Returns the type and rate; asks the host's project where the row says so.
  [[nodiscard]] named_type named() const;
};

// Returns every name, in the order in which to show them: timecode by rate, then film.
[[nodiscard]] std::span<name_row const> all_names() noexcept;

// Returns what a text names, or nothing if it names no type with labels.
//
//   name     = one of `names`, or a rate with "p" or "fps" behind it     "25", "25p", "25 fps", "35mm-3p"
//            | class name | exchange name                                "pal_label", "25f", "30f-drop", "P24"
//            | "#" number                                                "#5": the number of the type
//
// Letters may be of either case. Blanks, dashes and underscores count between two digits only: "29.97 DF". A bare
// number is a rate, never the number of a type. A class or exchange name runs at the natural rate of its type.
[[nodiscard]] std::optional<named_type> find(std::string_view text);

// Returns the natural rate of a type with labels: 24 for film, 30000/1001 for the 30 frame types, otherwise the
// frames a second that it counts. Returns FrameRate_unknown for other types.
[[nodiscard]] Kiv::FrameRate natural_rate(label_t type) noexcept;

// Returns up to three names that a mistyped text may have meant, the nearest first; none if nothing is near.
[[nodiscard]] std::vector<std::string> nearest(std::string_view text);

}  // namespace labelnames
