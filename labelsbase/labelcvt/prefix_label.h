// Converters of labels with a prefix: key numbers and ink numbers.
//
//   field       characters                        example: key number   ink number
//   prefix      total length less the count       KJ123456              AB12
//   count       4, 5 or 6 digits                  0123                  0123
//   separator   one                               +                     +
//   frame       2 digits, within the count        07                    07
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>

#include "labelsbase/counts/film_gauge.h"
#include "labelsbase/export.h"
#include "labelsbase/labelcvt/label_cvt.h"

namespace labelsbase {

// Prefixes of up to a block are looked at and copied all at once.
using prefix_block = std::uint64_t;

}  // namespace labelsbase

// A label of prefix, count, separator and frame within the count, for example "KJ1234560123+07".
//
// Deliberate: the converter remembers the prefix that it last read from a point or gave to one, and uses it for
// points without a whole prefix of their own.
class LABELSBASE_API prefix_label : public variable_label {
 public:
  static constexpr int longest_prefix = 20;  // characters

  // `modulus`: frames per count. `samples_per_unit`: perforations per frame. `total_length`: characters of prefix
  // and count together, from 0.
  prefix_label(int modulus, int samples_per_unit, int total_length) noexcept;

  // Sets the count to `digits` digits, and the prefix to the rest of the total length. Templates stay as they
  // were: call build_template() afterwards. No label is written in columns from here on.
  void set_count_len(unsigned digits) noexcept;

  char const* type_str() const override;
  label_t type() const override;

  // Returns true.
  bool has_prefix() const override;

  // Returns the characters of the prefix, or -1 before set_count_len.
  int get_prefix_length() const override;

  // Returns the digits of the count, or -1 before set_count_len.
  int get_count_length() const override;

  // Sets the templates, for example to "????????9999+19" and "~~~~~~~~9999+19".
  void build_template() override;

  // Returns the prefix for labels that have none: "XX000000" for key numbers, "XXXX" for ink numbers.
  char const* get_dummy_prefix() override;

  // Returns the point's prefix if it has a whole one, else the remembered prefix, else the dummy prefix. The text
  // lives in the converter until the next conversion, so no other thread may use the converter meanwhile.
  char const* get_prefix(LabelPoint const* point) const override;

  // Gives the point the prefix and count of `text`, which is a label or its beginning. A text shorter than the
  // prefix leaves the point alone if the converter remembers a prefix, and otherwise gives it the dummy prefix.
  void set_prefix(LabelPoint* point, char const* text) override;

 protected:
  // Declares that no class overrides anything from here on, so that labels whose parts fill their columns are
  // written without asking. The registry declares it of the converters that it makes.
  void settle_arithmetic() noexcept;

  // Whether no class overrides anything. Labels are then made without what the converter remembers, since other
  // threads may write theirs there.
  [[nodiscard]] bool is_settled() const noexcept { return column_perfs_ != 0; }

  // Whether the label of a sample fills its columns, and its text depends on nothing but this converter.
  [[nodiscard]] bool fills_columns(LabelPoint const* point, int perfs) const noexcept {
    return static_cast<unsigned>(perfs) < column_perfs_ && point && point->converter == this;
  }

  // Whether a text of this length can be a label whose parts fill their columns, as nearly every label is. Other
  // texts may still be labels.
  //
  //   prefix digit{count length} non-digit dd
  [[nodiscard]] bool has_columns(std::size_t length) const noexcept {
    return is_settled() && length == std::size_t{prefix_length_} + count_length_ + 3;
  }

  // Returns the text of a count and a frame within it, after the prefix of the point's converter. A `perf_digit`
  // other than 0 follows after a ".". Returns "NEGATIVE" for a count below zero. A count above the largest starts
  // again, once.
  char const* write_label(LabelPoint* point, int count, int frame, char separator, int perf_digit = 0) const;

  // Returns the number in the count's characters of a text, or -1 if it is not one that the count can hold. Skips
  // `filler` characters in front of it.
  [[nodiscard]] int read_count(char const* text, std::size_t length, char filler) const noexcept;

  // Returns a sample moved into the range of the counts that can be written.
  [[nodiscard]] int wrap_to_counts(int sample) const;

  // Returns the largest frame of a template. A template bounds single digits, so the units reach 9: 19 for 16
  // frames.
  [[nodiscard]] int typed_frames() const noexcept;

  // Sets both templates to prefix, count, "+" and `frames`.
  void set_count_templates(char const* frames) noexcept;

  unsigned prefix_length_ = static_cast<unsigned>(-1);  // characters of the prefix
  unsigned count_length_ = static_cast<unsigned>(-1);   // digits of the count
  int count_maximum_ = 9;                               // the largest count
  char const* dummy_prefix_ = "";                       // what get_dummy_prefix returns

  // The prefix that the converter remembers.
  alignas(labelsbase::prefix_block) mutable char current_prefix_[longest_prefix + 1] = {};

  unsigned total_length_;         // characters of prefix and count together
  labelsbase::film_gauge gauge_;  // of the film, for the count

 private:
  friend class keycode_label;
  friend class keycode_353;
  friend class ink_label;

  // Does what write_label does, with the converter's own separator, for a sample that fills its columns.
  LABELSBASE_LOCAL inline char const* write_columns(LabelPoint* point, int count, int frame,
                                                    int perf_digit = 0) const;

  // The first characters of current_prefix_, which threads may read and write at once.
  [[nodiscard]] auto remembered_block() const noexcept {
    void* const first = current_prefix_;
    return std::atomic_ref{*static_cast<labelsbase::prefix_block*>(first)};
  }

  // Remembers the first characters of a text, up to the length of the prefix.
  LABELSBASE_LOCAL void remember_prefix(char const* text) const noexcept;

  // Whether a whole prefix is remembered.
  [[nodiscard]] LABELSBASE_LOCAL bool remembers_prefix() const noexcept;

  unsigned column_perfs_ = 0;  // samples from 0 up that fill their columns
};
