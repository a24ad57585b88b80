// The form of a film type's labels, and the parts that a text of that form falls into.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "labelsbase/labelcvt.h"

namespace labelcheck {

struct film_form {
  UserLabelType family;
  bool has_prefix;
  bool has_frames;               // behind the count; film frames are themselves the count
  bool names_perforation;        // at the end, as film with three perforations a frame has it
  char separator;                // before the frames
  std::size_t prefix_length;     // characters
  std::size_t digits;            // of the count, or of feet and film frames at least
  std::int64_t last_count;       // keys, ink numbers, feet or film frames
  int last_frame;                // within the key, ink number or foot
  std::string_view some_prefix;  // one that the type could have

  [[nodiscard]] std::size_t head_length() const noexcept { return prefix_length + digits; }
};

[[nodiscard]] film_form film_form_of(label_cvt& cvt);

// Prefix and count as they stand in one run of characters.
struct film_head {
  std::string_view prefix;
  std::string_view count;
};

// A label by its parts; those that its form lacks are passed over.
struct film_label {
  std::string prefix;
  bool negative = false;
  std::int64_t count = 0;
  int frames = 0;
  int perforation = 1;
};

// The characters before the frames: up to the separator, or to what people write for it.
[[nodiscard]] std::string_view head_of(film_form const& form, std::string_view text) noexcept;

// Parts prefix and count of a head. With characters too many or too few, the count is taken to be wrong where
// there are only digits behind a whole prefix, else the prefix.
[[nodiscard]] film_head split(film_form const& form, std::string_view head) noexcept;

// The label nearest to what `text` says, each field as close as may be; empty when it says nothing of the kind.
[[nodiscard]] std::string nearest_film_label(film_form const& form, std::string_view text);

[[nodiscard]] std::string written(film_form const& form, film_label const& label);

[[nodiscard]] constexpr bool is_printable(char c) noexcept { return c > ' ' && c <= '~'; }

}  // namespace labelcheck
