// The strict reader of labels.
//
// The library reads tolerantly: 99:99:99:99 is a number of samples to it, and so are 99 frames within a foot. The
// strict reader accepts only labels that their type writes. It refuses any other text with the reason, the place
// and the nearest label.
//
//   auto const label = labelcheck::read(keycode_35_label_t, "KJ1234560123+07");
//   std::get<labelcheck::reading>(label).sample        // 7900
//   std::get<labelcheck::reading>(label).prefix        // "KJ123456"
//
//   auto const refused = std::get<labelcheck::refusal>(labelcheck::read(pal_label_t, "01:00:61:00"));
//   refused.wrong == labelcheck::field::seconds        // true
//   refused.why == labelcheck::reason::range           // true
//   refused.position                                   // 6
//   refused.nearest                                    // "01:00:59.00"
//   labelcheck::explain(refused)                       // "seconds run from 00 to 59"
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>

#include "labelsbase/labelcvt/label_types.h"

namespace labelcheck {

// What a valid label says.
struct reading {
  // As the library's converter reads it: frames for timecode and film frames, perforations for other film.
  int sample;

  // The prefix of a key number or ink number, a part of the text that was read; empty for other types.
  std::string_view prefix;
};

// The parts of a label.
enum class field {
  sign,
  hours,
  minutes,
  seconds,
  separator,    // before minutes, seconds, frames or the perforation
  frames,       // of timecode, within a key, ink number or foot, or a count of film frames
  prefix,       // of key numbers and ink numbers
  count,        // the key or ink number
  feet,         // of feet and frames
  perforation,  // within the frame, at 3 perforations a frame
  whole,        // the text as a whole, or what follows the label
};

// Why a text is not a label of its type. `number` and `next` are members of the refusal.
enum class reason {
  no_labels,             // no such type, or one without labels, such as timecode_label_t
  unrecognised,          // nothing in the text can be read as such a label
  missing,               // the text ends before the field
  digit_count,           // a field has too few or too many digits; `number` is how many it must have
  too_few_digits,        // feet or film frames have fewer digits than `number`
  leading_zero,          // feet or film frames of more digits than `number` begin with 0
  range,                 // a number lies beyond `number`, the last one that the field can have
  separator,             // another character is where the separator before `next` belongs
  drop_frame_separator,  // ";" is before the frames, but the type is not drop-frame
  trailing,              // the text goes on after the label
  positive_sign,         // "+" is before a label
  sign_column,           // a blank is before film frames, which have no sign column
  signed_zero,           // "-" is before zero feet or film frames
  negative_drop_frame,   // "-" is before drop-frame timecode
  left_out,              // drop-frame timecode leaves out this label
  reserved,              // a count of film frames that is a special sample, such as 100000001
  perforation,           // frame `number` does not have this perforation
  blank_or_dash,         // prefix and count are broken up: "KJ 12 3456 0123"
  unprintable,           // prefix or count contains an unprintable character
  length,                // prefix or count has `number` characters, and should have another number of them
};

// What is wrong with a text: the first thing that is.
struct refusal {
  field wrong = field::whole;         // the part of the label that is at fault
  reason why = reason::unrecognised;  // what is wrong with it

  // Characters from the start of the text to the place where it goes wrong, at most the length of the text.
  std::size_t position = 0;

  // The nearest label, which is itself valid: each field is as close to the text as possible. Empty if nothing in
  // the text is legible.
  std::string nearest{};

  label_t type = null_label_t;  // the type that was asked for
  field next = field::whole;    // the field after the separator, for the reasons `separator` and
                                // `drop_frame_separator`
  int number = 0;               // what `why` says of it
};

// Reads a label of the type, or returns the first thing that is wrong with the text. Accepts any bytes.
//
// A text is valid if the type writes it for the sample that it reads as, with these liberties:
// - The blank before positive timecode and feet may be left out: "01:00:00.00" and " 01:00:00.00".
// - ":" may come before the frames of every timecode, as edit decision lists have it: "01:00:00:00". In 50 and 60
//   frame timecode that the host has slowed, "." and ":" are read alike.
// - "-00:00:00.00" is valid, since timecode writes it for minus one day; it reads as sample 0.
//
// Key numbers and ink numbers need their prefix. Allocates nothing for a valid label. 50 and 60 frame timecode
// counts as the library's own converter does, which follows the host's setting.
[[nodiscard]] std::variant<reading, refusal> read(label_t type, std::string_view text);

// Returns the function that reads the labels of one type as `read` does, for loops over many. Without a label
// type, it refuses every text.
using label_reader = std::variant<reading, refusal> (*)(std::string_view text);
[[nodiscard]] label_reader reader_of(label_t type) noexcept;

// Returns the reason in words: "seconds run from 00 to 59". Does not repeat the text, the position or the nearest
// label.
[[nodiscard]] std::string explain(refusal const& refused);

// Returns "hours", "frames" and so on; "label" for the whole.
[[nodiscard]] char const* field_name(field f) noexcept;

}  // namespace labelcheck
