// The interface of all converters, what they share, and the invalid converter.
//
//   label_cvt& cvt = *get_static_label_cvt(pal_label_t);
//   LabelPoint point{cvt, 0};
//   cvt.get_abs_string(&point, 90'000)                      // " 01:00:00.00", in point.text
//   cvt.get_abs_sample("01:00:00.00")                       // 90000
//   cvt.get_abs_sample("nonsense")                          // -100000000, the invalid sample
//   cvt.get_abs_smpte_string(&point, 90'000)                // 0x01000000
//   cvt.get_sample_span_from_packed_strings("01000000", "01000100")   // 25
//
// Packed BCD timecode, as get_abs_smpte_string returns it (digits of SMPTE ST 12-1):
//
//   bit    31..28  27..24 | 23..20  19..16 | 15..12  11..8  | 7..4   3..0
//          tens    units  | tens    units  | tens    units  | tens   units     bit 6: drop-frame
//          hours          | minutes        | seconds        | frames
#pragma once

#include <atomic>
#include <type_traits>

#include "labelsbase/export.h"
#include "labelsbase/host_allocated.h"
#include "labelsbase/labelcvt/label_point.h"
#include "labelsbase/labelcvt/label_template.h"
#include "labelsbase/labelcvt/label_types.h"

class timecode_label;

// Everything about one label type: how a sample becomes the text of a label and back. The "abs" operations take
// and return absolute samples; the plain ones are relative to the sample of a label point.
//
// Returned texts live in the point's buffer or in constant storage, until the next conversion into that point. A
// null text reads as an empty one. A null point counts as sample 0 and has no buffer: its text is "".
//
// Several threads may convert through one converter of get_static_label_cvt or make_any_label_cvt at once, each
// with a point of its own; key numbers and ink numbers, if each point has a whole prefix of its own. A converter
// that a host constructs belongs to one thread at a time. docs/threads.md lists every operation. The order of the
// virtual operations is part of the interface.
class LABELSBASE_API label_cvt : public labelsbase::host_allocated {
 public:
  // Number of live converters. The shared invalid converter, which the compiler builds, is the first.
  static std::atomic<int> howmany;

  label_cvt(label_cvt const&) = delete;
  label_cvt& operator=(label_cvt const&) = delete;

  // Returns the name of the class, for example "pal_label".
  virtual char const* type_str() const = 0;

  // Returns the type of the labels; null_label_t or a base of the families if they have no type of their own.
  virtual label_t type() const = 0;

  // Returns the family of the type.
  virtual UserLabelType UserType() const = 0;

  // Whether labels begin with a prefix: key numbers and ink numbers.
  virtual bool has_prefix() const = 0;

  // Returns the characters of the prefix, or 0 for types without one.
  virtual int get_prefix_length() const = 0;

  // Returns the digits of the count after the prefix, or 0 for types without one.
  virtual int get_count_length() const = 0;

  // Returns the count unit: frames per second for timecode, per foot for feet, per key for key numbers.
  virtual int get_modulus() const = 0;

  // Returns the samples per frame: perforations for film types, 1 for timecode and film frames.
  virtual int samples_per_unit() const = 0;

  // Returns a sample moved into the type's range. Accepts any sample.
  virtual int normalise_sample_unit(int sample) { return sample; }

  // Returns the perforations per key number, or 1 for types that report none.
  virtual int perfs_per_keyKode() const { return 1; }

  virtual ~label_cvt() { howmany.fetch_sub(1, std::memory_order_relaxed); }

  // Returns the text of the label `offset` samples after the point.
  virtual char const* get_string(LabelPoint* point, int offset) = 0;

  // Returns the perforation within the key number, as text; "" for types without key numbers.
  virtual char const* get_perfs_string(LabelPoint* point, int offset) = 0;

  // Returns packed BCD timecode, or 0 for negative and special samples and for types without it.
  virtual unsigned get_smpte_string(LabelPoint* point, int offset) = 0;

  // Returns packed BCD timecode as a count of samples, without drop-frame correction. `drop` receives bit 6.
  virtual int get_samples_from_SMPTETc(unsigned& packed, bool& drop);

  // Returns the offset of a label's text from the point, in samples.
  virtual int get_sample(LabelPoint* point, char const* text) = 0;

  // Returns the absolute sample at an offset from the point.
  virtual int get_sample(LabelPoint* point, int offset) = 0;

  // Reads the packed form of exchange files, for example "01000000". Returns the invalid sample on failure.
  virtual int get_abs_sample_from_packed_string(char const* text) = 0;

  // Returns the samples from the first packed text to the second, moved into the type's range.
  virtual int get_sample_span_from_packed_strings(char const* from, char const* to) = 0;

  // Returns the text of the label at a sample; the template's placeholder for a special sample.
  virtual char const* get_abs_string(LabelPoint* point, int sample) = 0;

  // Returns packed BCD timecode at a sample, as get_smpte_string does.
  virtual unsigned get_abs_smpte_string(LabelPoint* point, int sample) = 0;

  // Returns the perforation within the key number at a sample, as text; "" for types without key numbers.
  virtual char const* get_abs_perfs_string(LabelPoint* point, int sample);

  // Returns the sample of a label's text, or the invalid sample if the text cannot be read.
  virtual int get_abs_sample(char const* text) = 0;

  // Returns the text of the label at a sample, as keep strings hold it.
  virtual char const* get_keep_string(LabelPoint* point, int sample) = 0;

  // Returns the sample of a text that a keep string held, or the invalid sample.
  virtual int get_keep_sample(char const* text) = 0;

  // Returns samples as seconds, by get_vid_fps; 1e99 for types without seconds.
  virtual double get_V2tc(int samples) = 0;

  // Returns the sample at `seconds`, by get_vid_fps; the invalid sample for types without seconds.
  virtual int get_abs_sample(double seconds) = 0;

  // Sets both templates to the type's text. This one empties them.
  virtual void build_template() = 0;

  // Returns the prefix of labels that have none of their own.
  virtual char const* get_dummy_prefix() = 0;

  // Returns the prefix that the point's labels begin with; "" for types without one.
  virtual char const* get_prefix(LabelPoint const* point) const = 0;

  // Sets the point's prefix from a label's text. Key numbers accept the prefix alone, ink numbers only a whole
  // label.
  virtual void set_prefix(LabelPoint* point, char const* text) = 0;

  // Whether two samples (fields) make one timecode frame.
  virtual bool isSpecialSlowTC() const { return false; }

  // Returns the character before the frames, or 0 for types without one.
  virtual char getFrameSeparator() const { return 0; }

  // Returns the template of the whole label (true) or of the label without its prefix (false).
  [[nodiscard]] LabelTemplate const& get_template(bool choice) const noexcept {
    return choice ? label_template_ : prefixless_template_;
  }

  // Returns the placeholder of a special sample, in the shape of the point's template; without a point, in that of
  // the converter's own.
  char const* get_invalid_string(LabelPoint* point, int sample) const noexcept;

  // Returns this converter as a timecode_label, or null if its class does not derive from that.
  [[nodiscard]] timecode_label* as_timecode() const noexcept { return timecode_; }

 protected:
  constexpr label_cvt() noexcept {
    if (!std::is_constant_evaluated()) howmany.fetch_add(1, std::memory_order_relaxed);
  }

  // Sets both templates to one text.
  void set_templates(char const* text) noexcept;

  LabelTemplate label_template_;       // of the whole label
  LabelTemplate prefixless_template_;  // of the label without its prefix

  // Hosts may be built without run-time type information: the class says what it is.
  timecode_label* timecode_ = nullptr;
};

// A label of no particular kind. The families start from its answers.
class LABELSBASE_API variable_label : public label_cvt {
 public:
  // `modulus`: the count unit, see get_modulus. `samples_per_unit`: samples of a frame.
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
  int modulus_;           // what get_modulus returns
  char separator_ = 0;    // what getFrameSeparator returns
  int samples_per_unit_;  // what samples_per_unit returns
};

// The invalid converter. Every sample is "???" and every text reads as the invalid sample.
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
