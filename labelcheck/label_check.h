// The strict reader: would a label type have written this text, and if not, why not?
//
// The library reads tolerantly: 99:99:99:99 is a number of samples like any other, and so are 99 frames within a
// foot. People who type labels, and lists that carry them, want to be told.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "labelsbase/labelcvt.h"

namespace labelcheck {

// What a label's text is made of.
enum class field {
  sign,
  hours,
  minutes,
  seconds,
  separator,
  frames,  // of timecode and within a key, an ink number or a foot; a plain count of them too
  prefix,  // of key numbers and ink numbers
  count,   // of keys and ink numbers
  feet,
  perforation,  // within a frame of three
  whole,        // the text as such: nothing of a label in it, or something after its end
};

// "hours", "frames" and so on; "label" for the whole.
[[nodiscard]] char const* field_name(field f) noexcept;

struct refusal {
  field wrong;
  std::size_t position;  // characters from the start of the text to where it goes wrong
  std::string rule;      // what was broken, for example "seconds run from 00 to 59"
  std::string
      nearest;  // the nearest label that exists, each field as close as may be; empty when nothing is legible
};

// Nothing when `text` is a label of the type, else the first thing that is wrong with it. Any bytes may be handed
// in. Positive timecode and feet may have the blank of the sign column or not, and the frames of timecode may
// follow ":" as well as the type's own separator, as edit decision lists have it. Key numbers and ink numbers
// stand with their prefix. Types without a converter refuse every text.
//
// Allocates only to refuse, and at the first label of a film type in a thread.
[[nodiscard]] std::optional<refusal> check(label_t type, std::string_view text);

}  // namespace labelcheck
