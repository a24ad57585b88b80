// The value of a label at one position.
//
//   LabelPoint point{ntsc_drop_label_t, 1800};
//   point.get_string()                                      // " 00:01:00;02"
//   point.removePadding();
//   point.get_string()                                      // "00:01:00;02"
//   (point + LabelPoint{ntsc_drop_label_t, -1}).sample      // 1799
//   (point + LabelPoint{pal_label_t, 1}) == invalid_label_point   // true: two types have no sum
//
//   field             holds
//   prefix            up to 20 characters: the film prefix of key numbers and ink numbers, and after it the count
//                     of the label that it was set from, if any
//   text              up to 22 characters: the last text that was written
//   sample            the position: frames, fields or perforations, by the type
//   converter         the type's converter, not owned
//   template_choice   which of the converter's two templates the point uses
//   label_template    a copy of that template
#pragma once

#include <cstddef>

#include "labelsbase/export.h"
#include "labelsbase/labelcvt/label_template.h"
#include "labelsbase/labelcvt/label_types.h"

class label_cvt;

// A sample, the converter that writes its text, and the buffer for that text. A plain value, for one thread at a
// time: the fields are open, since hosts' own converters read and write them.
class LABELSBASE_API LabelPoint {
 public:
  static constexpr std::size_t prefix_length = 20;  // characters, without the terminator
  static constexpr std::size_t text_length = 22;    // characters, without the terminator

  // Film prefix of key numbers and ink numbers, perhaps with a count after it; empty for other types.
  char prefix[prefix_length + 1] = {};

  // The label's text after the last conversion into this point.
  char text[text_length + 1] = {};

  // The absolute sample, or a special sample (samples.h).
  int sample = 0;

  // Never null, never owned; normally one of the registry's shared converters.
  label_cvt* converter;

  // Whether `label_template` is a copy of the converter's first template or of its second, the one without prefix.
  bool template_choice = true;

  // The shape of the text.
  LabelTemplate label_template;

  // Makes the invalid point: invalid converter, sample 0, empty prefix and template.
  LabelPoint() noexcept;

  // Makes the label of a type at a sample, which wraps into the type's range. Uses the shared converter, and the
  // invalid converter for types without labels.
  LabelPoint(label_t type, int at_sample);

  // Makes the label of a converter, which must outlive the point.
  LabelPoint(label_cvt& cvt, int at_sample);

  // Copies everything but the text, which is empty.
  LabelPoint(LabelPoint const& other) noexcept;

  // Copies everything but the text, which stays.
  LabelPoint& operator=(LabelPoint const& other) noexcept;

  // Move likewise, without a change of use counts. The other point keeps its value, but not its template.
  LabelPoint(LabelPoint&& other) noexcept;
  LabelPoint& operator=(LabelPoint&& other) noexcept;

  ~LabelPoint() = default;

  // Makes this the invalid point again, with an empty text.
  void init() noexcept;

  // Returns the converter, never null.
  [[nodiscard]] label_cvt* cvt() const noexcept { return converter; }

  // Returns the label's text, for example "-00:00:01.00". Returns "???" for the invalid converter and the
  // template's placeholder for a special sample. The text is valid until the next conversion into this point.
  char const* get_string();

  // Returns the label's text as keep strings hold it.
  char const* get_keep_string();

  // Splits a timecode into hours, minutes, seconds and frames, and returns the frames. For other types all are 0.
  int get_hmsf(short& h, short& m, short& s, short& f);

  // Whether both have the same type and sample and, for types with a prefix, the same prefix field. Templates and
  // texts are not compared. Deliberate: "KJ1234560123", set from a whole label, does not equal "KJ123456".
  [[nodiscard]] bool operator==(LabelPoint const& other) const;

  // Returns the sum of two points of one type, moved into its range, without a prefix. Points of two types return
  // the invalid point.
  [[nodiscard]] LabelPoint operator+(LabelPoint const& other) const;

  // Returns the difference of two points of one type, moved into its range, without a prefix. Points of two types
  // return the invalid point.
  [[nodiscard]] LabelPoint operator-(LabelPoint const& other) const;

  // Gives a key number a longer or shorter count of the same gauge. A longer count takes its leading digits from
  // the end of the prefix; a shorter one drops its leading digits. The prefix field stays as it is. Does nothing
  // for any other type, of the point or asked for.
  void modify_type(label_t type);

  // Does the same by the digits of the count, 4 to 6. Does nothing for any other number.
  void modify_count_length(int digits);

  // Moves a timecode at a negative sample up by one day; leaves every other point as it is.
  void constrain_positive();

  // Takes the sign column off the template of a point at a sample of 0 or more, so that its text has none.
  // Deliberate: feet at 3 perforations a frame keep theirs.
  void removePadding();

 private:
  friend struct invalid_point_maker;
  friend class Label;
  constexpr explicit LabelPoint(label_cvt* invalid) noexcept : converter{invalid} {}

  // Copies all but the text and the template.
  LABELSBASE_LOCAL void copy_value(LabelPoint const& other) noexcept;
};

// The point that refused operations return. The compiler builds it, so it is ready before any code runs.
extern LABELSBASE_API LabelPoint invalid_label_point;
