// Labels over a range of material.
//
//   material   0 ------------------- start ------------------------------- end ---->  samples, by the type
//                                      |<---------- length ------------------>|
//                                      |--- offset --->|
//                                                      sample = start + offset
//
//   count       unit      meaning                            range
//   offset      samples   from the start of the label        0 to length, unless the label is unbounded
//   sample      samples   from the zero point of the type    any int; special samples: labelsbase/samples.h
//   position    seconds   sample x pitch                     any double; 1e99 means "no position"
//   pitch       seconds   of one sample                      natural: 1/25 for pal_label, 1/96 for 35 mm keys
//
//   Label label = pal_label_t;             // 25 frame timecode from 00:00:00.00, bounded
//   label.start.sample = 90'000;
//   label.length = 250;
//   label.get_string(25)                   // " 01:00:01.00"
//   label.get_string(251)                  // ">>>>>>"
//   label.get_abs_posn(25)                 // 3601.0
//   label.abs_posn_to_sample(3601.0)       // 90'025
#pragma once

#include <cstddef>

#include "labelsbase/export.h"
#include "labelsbase/labelcvt/label_point.h"
#include "labelsbase/labelcvt/label_types.h"
#include "labelsbase/samples.h"

// A start point, a length and a pitch: a plain value with open fields. Nothing here throws or reports. Out of
// range means a special sample, ">>>>>>" or "<<<<<<", or the position 1e99. Sums and differences of samples wrap
// at 32 bits.
//
// For one thread at a time, since queries write their texts into the label. Several threads may copy one label, if
// none of them changes or asks it.
class LABELSBASE_API Label {
 public:
  // The least size of a buffer for make_keep_string, including the terminator.
  static constexpr std::size_t keep_string_size = 256;

  int revision = 1;  // of the keep string that the label came from

  // The queries below write their texts into its buffer.
  mutable LabelPoint start;

  int length = 0;      // samples from the start to the end
  double pitch = 0.0;  // seconds per sample
  int bounded = 0;     // unless 0, offsets outside 0 to `length` are out of range

  // Labels of a type from sample 0, bounded, 100,000,000 samples long. A type out of range prints the assertion
  // message and makes an invalid label.
  Label(label_t type);

  // Labels of a converter from sample 0, unbounded. The converter must outlive the label.
  Label(label_cvt& cvt);

  // Labels from a point on, unbounded.
  Label(LabelPoint const& point);

  // Reads a keep string, for example "LABEL_REV:1 pal_label 01:00:00.00 250 0.0400000000 1". Fields that are
  // missing stay as in a new label: invalid converter, sample 0, length 0, pitch 0, unbounded. A start that cannot
  // be read is the invalid sample; a number that cannot be read is 0. A null text reads as an empty one.
  Label(char const* keep);

  // Copies everything but the revision, which is 1.
  Label(Label const& other);

  // Copies everything but the revision, which stays. Takes the shared converter of the type.
  Label& operator=(Label const& other);

  // Moves as copying does, without a change of use counts. The other label keeps its value, but not its template.
  Label(Label&& other) noexcept;
  // NOLINTNEXTLINE(performance-noexcept-move-constructor): hosts' converters may throw
  Label& operator=(Label&& other);

  ~Label() = default;

  // Sets revision 1, pitch 0 and unbounded. The start and the length stay.
  void init() noexcept;

  // Sets the type with its template and natural pitch. Everything else stays.
  void set_type(label_t type);

  // Sets the prefix of the start, if the type has one, as label_cvt::set_prefix does.
  void set_prefix(char const* text);

  // Returns the sample of the start.
  [[nodiscard]] int get_start() const noexcept { return start.sample; }

  // Returns the sample of the end: start + length.
  [[nodiscard]] int get_end() const noexcept;

  // Sets the length, so that the label ends at `sample`.
  void set_end(int sample) noexcept;

  // Returns 0 for an offset in range, otherwise past_end_sample or before_start_sample.
  [[nodiscard]] int cmp(int offset) const noexcept;

  // Returns whether a sample is in range. Deliberate: this takes a sample, cmp an offset.
  [[nodiscard]] bool contains(int sample) const noexcept;

  // Returns whether the other label has the same prefix, in any case, and lies within this one. Types are not
  // compared. The other label's text buffer is left alone.
  [[nodiscard]] bool contains(Label const& other) const;

  // Returns the offset of a sample, or invalid_sample if it is out of range.
  [[nodiscard]] int get_sample(int sample) const noexcept;

  // Returns the point at an offset. Out of range, its sample is past_end_sample or before_start_sample.
  [[nodiscard]] LabelPoint get_label_point(int offset) const;

  // Returns the point at any offset.
  [[nodiscard]] LabelPoint get_unbounded_label_point(int offset) const;

  // Returns the seconds at an offset by the video rate of the type, or 1e99 for types without one.
  [[nodiscard]] double get_V2tc(int offset) const;

  // Returns the label's text at an offset, or ">>>>>>" and "<<<<<<" out of range. The text is valid until the next
  // query.
  char const* get_string(int offset) const;

  // Returns the perforation within the key number likewise, or ">>" and "<<".
  char const* get_perfs_string(int offset) const;

  // Returns packed BCD timecode in the value of the pointer, or null if the offset is out of range. 00:00:00:00 is
  // null too; get_smpte tells them apart.
  char const* get_smpte_string(int offset) const;

  // Writes packed BCD timecode (SMPTE ST 12-1). Returns false and writes nothing if the offset is out of range.
  [[nodiscard]] bool get_smpte(int offset, unsigned& packed) const;

  // Reads the drop-frame flag of packed BCD timecode into `drop`.
  void get_samples_from_SMPTETc(unsigned packed, bool& drop) const;

  // Returns the samples of packed BCD timecode. `drop` receives the drop-frame flag.
  [[nodiscard]] int samples_from_SMPTE(unsigned packed, bool& drop) const;

  // Returns whether the starts and the ends are equal, prefix fields included (see LabelPoint). Deliberate: this
  // start is compared as it is with the other, normalised start; neither pitch nor bounds are compared.
  [[nodiscard]] bool operator==(Label const& other) const;

  // Returns the seconds of a sample, or 1e99 for invalid_sample.
  [[nodiscard]] double sample_to_posn(int sample) const;

  // Returns the seconds at an offset, or 1e99 if it is out of range.
  [[nodiscard]] double get_abs_posn(int offset) const;

  // Returns the seconds at any offset.
  [[nodiscard]] double get_abs_posn_extrapolate(int offset) const;

  // Returns the first sample of the frame at a position in seconds, with a tolerance of 1/250 sample. 1e99, NaN
  // and what does not fit an int return invalid_sample.
  [[nodiscard]] int posn_to_sample(double posn_seconds) const;

  // Returns the sample at a position in seconds, with a tolerance of 1/500 sample. 1e99, NaN and what does not fit
  // an int return invalid_sample.
  [[nodiscard]] int abs_posn_to_sample(double posn_seconds) const;

  // Writes the keep string into `buffer`, of at least keep_string_size characters, and returns it. A longer text
  // is cut. If `buffer` is null, uses one of the calling thread, valid until the next such call. Blanks in the
  // prefix become "_".
  char* make_keep_string(char* buffer) const;

  // Returns the seconds per sample of a type at the natural speed of its material; 1.0 for types without labels of
  // their own and for values out of range. The PAL and NTSC types run at the host's speed, as of the first call.
  [[nodiscard]] static double get_natural_pitch(label_t type);

 protected:
  // Writes the keep string into a buffer of `size` characters. Returns the characters written, without the
  // terminator.
  std::size_t write_keep_string(char* buffer, std::size_t size) const;

 private:
  LABELSBASE_LOCAL void copy_value(Label const& other);
  LABELSBASE_LOCAL void use_converter(label_t type);
  LABELSBASE_LOCAL void use_template();
};

// Returns the one invalid label: a label of the invalid point.
[[nodiscard]] LABELSBASE_API Label const& get_invalid_label();

// Returns whether the current project runs at the film rates 24 or 48.
[[nodiscard]] LABELSBASE_API bool is_film_project();
