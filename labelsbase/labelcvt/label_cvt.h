// The interface of all converters, what they share, and the invalid one.
#pragma once

#include <atomic>
#include <cstddef>
#include <type_traits>

#include "labelsbase/export.h"
#include "labelsbase/labelcvt/label_point.h"
#include "labelsbase/labelcvt/label_template.h"
#include "labelsbase/labelcvt/label_types.h"

// Everything about one label type: how a sample becomes the text of a label and back. The "abs" operations take
// and give absolute samples; the plain ones are relative to the sample of a label point.
//
// Texts live in the point's buffer or in constant storage, until the next conversion into that point. A null text
// reads as an empty one, and a null point as sample 0 without a buffer: its text is "".
//
// Converters keep scratch state between calls: use one from one thread at a time. The order of the virtual
// operations is part of the interface.
class LABELSBASE_API label_cvt {
 public:
  // Live converters. The shared invalid converter, which the compiler builds, is the first.
  static std::atomic<int> howmany;

  label_cvt(label_cvt const&) = delete;
  label_cvt& operator=(label_cvt const&) = delete;

  // The name of the class, for example "pal_label".
  virtual char const* type_str() const = 0;
  virtual label_t type() const = 0;
  virtual UserLabelType UserType() const = 0;
  virtual bool has_prefix() const = 0;

  // Characters of the prefix and digits of the count; 0 for types without a prefix.
  virtual int get_prefix_length() const = 0;
  virtual int get_count_length() const = 0;

  // The count unit: frames per second for timecode, frames per foot for feet, frames per key for key numbers.
  virtual int get_modulus() const = 0;

  // Samples per frame: perforations for film types, 1 for timecode and frame counts.
  virtual int samples_per_unit() const = 0;

  // A sample moved into the type's range; any value is accepted.
  virtual int normalise_sample_unit(int sample) { return sample; }

  // Perforations per key number; 1 where the type has none.
  virtual int perfs_per_keyKode() const { return 1; }

  virtual ~label_cvt() { howmany.fetch_sub(1, std::memory_order_relaxed); }

  virtual char const* get_string(LabelPoint* point, int offset) = 0;

  // The perforation within the key number, as text.
  virtual char const* get_perfs_string(LabelPoint* point, int offset) = 0;

  // Packed BCD timecode (SMPTE ST 12-1 digits, drop-frame flag in bit 6); 0 on failure.
  virtual unsigned get_smpte_string(LabelPoint* point, int offset) = 0;

  // Packed BCD timecode as a count of samples, without drop-frame correction; `drop` receives bit 6.
  virtual int get_samples_from_SMPTETc(unsigned& packed, bool& drop);

  virtual int get_sample(LabelPoint* point, char const* text) = 0;
  virtual int get_sample(LabelPoint* point, int offset) = 0;

  // Reads the packed form of exchange files, for example "01000000"; the invalid sample on failure.
  virtual int get_abs_sample_from_packed_string(char const* text) = 0;

  // Samples from the first packed text to the second, moved into the type's range.
  virtual int get_sample_span_from_packed_strings(char const* from, char const* to) = 0;

  virtual char const* get_abs_string(LabelPoint* point, int sample) = 0;
  virtual unsigned get_abs_smpte_string(LabelPoint* point, int sample) = 0;
  virtual char const* get_abs_perfs_string(LabelPoint* point, int sample);

  // The sample of a label's text; the invalid sample when it cannot be read.
  virtual int get_abs_sample(char const* text) = 0;

  // Text for keep strings, and back.
  virtual char const* get_keep_string(LabelPoint* point, int sample) = 0;
  virtual int get_keep_sample(char const* text) = 0;

  // Samples as seconds, and back, by get_vid_fps; 1e99 and the invalid sample where a type has neither.
  virtual double get_V2tc(int samples) = 0;
  virtual int get_abs_sample(double seconds) = 0;

  // Sets both templates to the type's text. This one empties them.
  virtual void build_template() = 0;

  // The prefix of labels that have none of their own.
  virtual char const* get_dummy_prefix() = 0;

  virtual char const* get_prefix(LabelPoint const* point) const = 0;
  virtual void set_prefix(LabelPoint* point, char const* text) = 0;

  // Whether two samples (fields) make one timecode frame.
  virtual bool isSpecialSlowTC() const { return false; }

  // The character before the frames; 0 where a type has none.
  virtual char getFrameSeparator() const { return 0; }

  // The template of the whole label (true) or of the label without its prefix (false).
  [[nodiscard]] LabelTemplate const& get_template(bool choice) const noexcept {
    return choice ? label_template_ : prefixless_template_;
  }

  // The placeholder of a special sample, in the shape of the point's template.
  char const* get_invalid_string(LabelPoint* point, int sample) const noexcept;

  // Converters of either side come from the host's allocator and go back to it, whoever deletes them.
  static void* operator new(std::size_t bytes);
  static void* operator new(std::size_t, void* place) noexcept { return place; }
  static void operator delete(void* block) noexcept;
  static void operator delete(void*, void*) noexcept {}

 protected:
  constexpr label_cvt() noexcept {
    if (!std::is_constant_evaluated()) howmany.fetch_add(1, std::memory_order_relaxed);
  }

  void set_templates(char const* text) noexcept;

  LabelTemplate label_template_;
  LabelTemplate prefixless_template_;
};

// A label of no particular kind: the answers that the families start from.
class LABELSBASE_API variable_label : public label_cvt {
 public:
  constexpr variable_label(int modulus, int samples_per_unit) noexcept
      : modulus_{modulus}, samples_per_unit_{samples_per_unit} {}

  char const* type_str() const override;
  label_t type() const override;
  UserLabelType UserType() const override;
  bool has_prefix() const override;
  int get_prefix_length() const override;
  int get_count_length() const override;
  int get_modulus() const override;
  int samples_per_unit() const override;
  char const* get_string(LabelPoint* point, int offset) override;
  char const* get_perfs_string(LabelPoint* point, int offset) override;
  unsigned get_smpte_string(LabelPoint* point, int offset) override;
  int get_samples_from_SMPTETc(unsigned& packed, bool& drop) override;
  int get_sample(LabelPoint* point, char const* text) override;
  int get_sample(LabelPoint* point, int offset) override;
  int get_abs_sample_from_packed_string(char const* text) override;
  int get_sample_span_from_packed_strings(char const* from, char const* to) override;
  char const* get_abs_string(LabelPoint* point, int sample) override;
  unsigned get_abs_smpte_string(LabelPoint* point, int sample) override;
  int get_abs_sample(char const* text) override;
  char const* get_keep_string(LabelPoint* point, int sample) override;
  int get_keep_sample(char const* text) override;
  double get_V2tc(int samples) override;
  int get_abs_sample(double seconds) override;
  void build_template() override;
  char const* get_dummy_prefix() override;
  char const* get_prefix(LabelPoint const* point) const override;
  void set_prefix(LabelPoint* point, char const* text) override;
  char getFrameSeparator() const override;

 protected:
  int modulus_;
  char separator_ = 0;
  int samples_per_unit_;
};

// The invalid converter: every sample is "???" and every text the invalid sample.
class LABELSBASE_API dummy_label : public variable_label {
 public:
  constexpr dummy_label() noexcept : variable_label{1, 1} {}

  char const* type_str() const override;
  label_t type() const override;
  UserLabelType UserType() const override;
  char const* get_string(LabelPoint* point, int offset) override;
  char const* get_perfs_string(LabelPoint* point, int offset) override;
  unsigned get_smpte_string(LabelPoint* point, int offset) override;
  int get_sample(LabelPoint* point, char const* text) override;
  int get_sample(LabelPoint* point, int offset) override;
  char const* get_abs_string(LabelPoint* point, int sample) override;
  unsigned get_abs_smpte_string(LabelPoint* point, int sample) override;
  int get_abs_sample(char const* text) override;
  double get_V2tc(int samples) override;
  int get_abs_sample(double seconds) override;
  void build_template() override;
};
