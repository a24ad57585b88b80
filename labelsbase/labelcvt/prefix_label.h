// Converters of labels with a prefix: key numbers and ink numbers.
#pragma once

#include "labelsbase/export.h"
#include "labelsbase/labelcvt/label_cvt.h"

// A label of prefix, count, separator and frame within the count, for example "KJ1234560123+07".
//
// Deliberate: the converter remembers the prefix last read from a point or given to one, and uses it for points
// that have none of their own.
class LABELSBASE_API prefix_label : public variable_label {
 public:
  static constexpr int longest_prefix = 20;  // characters

  // `modulus` frames per count, `samples_per_unit` perforations per frame, `total_length` characters of prefix and
  // count together.
  prefix_label(int modulus, int samples_per_unit, int total_length) noexcept;

  // Gives the count `digits` digits, and the prefix the rest of the total length. Templates stay as they were.
  void set_count_len(unsigned digits) noexcept;

  char const* type_str() const override;
  label_t type() const override;

  bool has_prefix() const override;

  // Characters, or digits; -1 until set_count_len.
  int get_prefix_length() const override;
  int get_count_length() const override;

  void build_template() override;
  char const* get_dummy_prefix() override;

  // The point's prefix if it has a whole one, else the one remembered, else the dummy prefix.
  char const* get_prefix(LabelPoint const* point) const override;

  // Gives the point the prefix and count of `text`, a label or its beginning. A shorter text leaves the point
  // alone once the converter remembers a prefix, and gives it the dummy prefix before.
  void set_prefix(LabelPoint* point, char const* text) override;

 protected:
  // The text of a count and a frame in it, with the prefix of the point's converter; `perf_digit` is put behind a
  // "." unless it is 0. "NEGATIVE" for a count below zero. A count above the largest starts again, once.
  char const* write_label(LabelPoint* point, int count, int frame, char separator, int perf_digit = 0) const;

  // The number in the count's characters of a text, after those that fill it up in front; -1 when it is not one
  // that the count can hold.
  [[nodiscard]] int read_count(char const* text, std::size_t length, char filler) const noexcept;

  // A sample within all counts that can be written.
  [[nodiscard]] int wrap_to_counts(int sample) const noexcept;

  // The frames as a template has them: a digit only bounds what is typed, so the units may be up to 9.
  [[nodiscard]] int typed_frames() const noexcept;

  // Sets both templates to prefix, count, "+" and `frames`.
  void set_count_templates(char const* frames) noexcept;

  unsigned prefix_length_ = static_cast<unsigned>(-1);
  unsigned count_length_ = static_cast<unsigned>(-1);
  int count_maximum_ = 9;
  char const* dummy_prefix_ = "";
  mutable char current_prefix_[longest_prefix + 1] = {};
  unsigned total_length_;
};
