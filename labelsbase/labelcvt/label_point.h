// The value of a label at one position.
#pragma once

#include <cstddef>

#include "labelsbase/export.h"
#include "labelsbase/labelcvt/label_template.h"
#include "labelsbase/labelcvt/label_types.h"

class label_cvt;

// A sample, the converter that gives it its text, and the buffer that the text is written into. A plain value: the
// fields are open, since converters of the host's own read and write them.
class LABELSBASE_API LabelPoint {
 public:
  static constexpr std::size_t prefix_length = 20;  // characters, the terminators not counted
  static constexpr std::size_t text_length = 22;

  // Film prefix of key numbers and ink numbers; empty for other types.
  char prefix[prefix_length + 1] = {};

  // The label's text, as of the last conversion into this point.
  char text[text_length + 1] = {};

  // The absolute sample (frames, fields or perforations, as the type has it), or a special sample.
  int sample = 0;

  // Never null, never owned; normally one of the registry's shared converters.
  label_cvt* converter;

  // Whether `label_template` is a copy of the converter's first template or of its second, the one without prefix.
  bool template_choice = true;
  LabelTemplate label_template;

  // The invalid point: invalid converter, sample 0, no prefix, empty template.
  LabelPoint() noexcept;

  // The label of a type at a sample, which wraps into the type's range. For a type without a converter of its own
  // the point has the invalid converter. The shared converter is used, built if needed.
  LabelPoint(label_t type, int at_sample);

  // The same with a given converter, which must outlive the point.
  LabelPoint(label_cvt& cvt, int at_sample);

  // A copy takes everything but the text buffer: that of a new point is empty, that of an old one stays as it was.
  LabelPoint(LabelPoint const& other) noexcept;
  LabelPoint& operator=(LabelPoint const& other) noexcept;

  ~LabelPoint() = default;

  // Makes this the invalid point again, with an empty text.
  void init() noexcept;

  [[nodiscard]] label_cvt* cvt() const noexcept { return converter; }

  // The label's text, for example "-00:00:01.00"; "???" for the invalid converter, the template's placeholder for
  // a special sample. It lives in this point until the next conversion into it.
  char const* get_string();

  // The label's text as keep strings hold it.
  char const* get_keep_string();

  // Splits a timecode into hours, minutes, seconds and frames, and returns the frames; 0 in all for other types.
  int get_hmsf(short& h, short& m, short& s, short& f);

  // One type, one sample and, for types with a prefix, one prefix. Templates and texts are not compared.
  [[nodiscard]] bool operator==(LabelPoint const& other) const;

  // Sum and difference of two points of one type, moved into its range, without a prefix; the invalid point for
  // points of two types.
  [[nodiscard]] LabelPoint operator+(LabelPoint const& other) const;
  [[nodiscard]] LabelPoint operator-(LabelPoint const& other) const;

  // Makes a key number one with a longer or a shorter count of the same gauge: digits move from the end of the
  // prefix to the count, or are taken off the count. The prefix field stays as it is. Other types, and other
  // points, change nothing.
  void modify_type(label_t type);

  // The same by the count's digits, 4 to 6.
  void modify_count_length(int digits);

  // Moves a timecode at a negative sample up by one day; leaves every other point as it is.
  void constrain_positive();

  // Takes the sign column off the template of a point at a sample of 0 or more, so that its text has none.
  void removePadding();

 private:
  friend struct invalid_point_maker;
  constexpr explicit LabelPoint(label_cvt* invalid) noexcept : converter{invalid} {}

  LABELSBASE_LOCAL void copy_value(LabelPoint const& other) noexcept;
};

// The point that refused operations give. It is there before any code of the host or of the library runs.
extern LABELSBASE_API LabelPoint invalid_label_point;
