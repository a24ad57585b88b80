// Finds labels in any text, by their shape.
//
//   lists::label_finder const timecode{pal_label_t};
//   timecode.next("LOC: 01:00:01:14 RED", 0)      // {5, 11}
//
//   timecode    = [ "-" ] dd mark dd mark dd mark frames     mark: ":", ";" or "."; before the frames "+" too
//   feet        = [ "-" ] d+ plus dd [ "." d ]               plus: "+" or "&"
//   key or ink  = prefix d{count} plus dd [ "." d ]          prefix: letters and digits; as long as the type has
//   it film frames = [ "-" ] d{6,}
//
// Frames have as many digits as the type writes. What stands before and behind a label is no letter, no digit, and
// no mark with a digit behind it: "10.01.00.00.00" holds none. A "-" is a sign if a blank, tab, quote or bracket,
// or nothing, stands before it. Whether the label exists is for the strict reader to say.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "labelsbase/labelcvt/label_facts.h"

namespace lists {

struct found_label {
  std::size_t at, size;
};

class label_finder {
 public:
  // For a type with labels.
  explicit label_finder(label_t type) noexcept : facts_{labelsbase::facts_of(type)} {}

  // Returns the first label that begins at `from` or behind it.
  [[nodiscard]] std::optional<found_label> next(std::string_view text, std::size_t from) const noexcept;

  // Whether the labels cannot be told from other numbers: film frames.
  [[nodiscard]] bool is_bare_number() const noexcept { return facts_.family == User_film_frames; }

 private:
  // Return the end of the label whose digits begin at `at`, or 0.
  [[nodiscard]] std::size_t end_of_timecode(std::string_view text, std::size_t at) const noexcept;
  [[nodiscard]] std::size_t end_of_film(std::string_view text, std::size_t at) const noexcept;
  [[nodiscard]] std::size_t end_of_number(std::string_view text, std::size_t at) const noexcept;

  labelsbase::label_facts const& facts_;
};

}  // namespace lists
