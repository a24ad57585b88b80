// Labels over a range of material.
#pragma once

#include <cstddef>

#include "labelsbase/export.h"
#include "labelsbase/labelcvt/label_point.h"
#include "labelsbase/labelcvt/label_types.h"
#include "labelsbase/samples.h"

// A start point, a length and a pitch. Three counts are kept apart:
//
//   offset     samples from the label's start
//   sample     absolute: the start's sample plus the offset
//   position   seconds: sample times pitch
//
// A plain value with open fields. Nothing here fails: what is out of range has the special samples, ">>>>>>" and
// "<<<<<<", or the position 1e99. Sums and differences of samples wrap at 32 bits.
class LABELSBASE_API Label {
 public:
  // What the buffer handed to make_keep_string holds at least, the terminator included.
  static constexpr std::size_t keep_string_size = 256;

  int revision = 1;  // of the keep string that the label came from

  // The queries write their texts into its buffer.
  mutable LabelPoint start;

  int length = 0;      // samples, from the start to the end
  double pitch = 0.0;  // seconds per sample
  int bounded = 0;     // unless 0, offsets outside 0 to `length` are out of range

  // The labels of a type from sample 0, bounded.
  Label(label_t type);

  // Those of a converter, unbounded. The converter must outlive the label.
  Label(label_cvt& cvt);

  // Those from a point on, unbounded.
  Label(LabelPoint const& point);

  // Reads a keep string: "LABEL_REV:1 pal_label 01:00:00.00 250 0.0400000000 1". Fields that are missing stay as
  // in a new label: invalid converter, sample 0, length 0, pitch 0, unbounded. A start that cannot be read is the
  // invalid sample, a number that cannot be read is 0. Null reads as an empty text.
  Label(char const* keep);

  // A copy is of revision 1; assignment keeps the revision. Assignment also goes back to the shared converter of
  // the type.
  Label(Label const& other);
  Label& operator=(Label const& other);

  ~Label() = default;

  // Revision 1, pitch 0, unbounded; start and length stay.
  void init() noexcept;

  // The type, its template and its natural pitch; all else stays.
  void set_type(label_t type);

  // The prefix, for types that have one.
  void set_prefix(char const* text);

  [[nodiscard]] int get_start() const noexcept { return start.sample; }
  [[nodiscard]] int get_end() const noexcept;
  void set_end(int sample) noexcept;

  // 0 for an offset in range, else the past-the-end or the before-the-start sample.
  [[nodiscard]] int cmp(int offset) const noexcept;

  // Whether an absolute sample is in range. Deliberate: `cmp` takes an offset, this does not.
  [[nodiscard]] bool contains(int sample) const noexcept;

  // Whether another label of the same prefix, in any case, lies within this one. Types are not compared.
  [[nodiscard]] bool contains(Label const& other) const;

  // The offset of an absolute sample; the invalid sample when it is out of range.
  [[nodiscard]] int get_sample(int sample) const noexcept;

  // The point at an offset; out of range, its sample says so.
  [[nodiscard]] LabelPoint get_label_point(int offset) const;
  [[nodiscard]] LabelPoint get_unbounded_label_point(int offset) const;

  [[nodiscard]] double get_V2tc(int offset) const;

  // The text at an offset, in the start's buffer until the next query.
  char const* get_string(int offset) const;

  // The perforation within the key number, or ">>" and "<<".
  char const* get_perfs_string(int offset) const;

  // Packed BCD timecode carried in the pointer, null when out of range; 00:00:00:00 is null too. get_smpte tells
  // them apart: false, and `packed` as it was, when out of range.
  char const* get_smpte_string(int offset) const;
  [[nodiscard]] bool get_smpte(int offset, unsigned& packed) const;

  // Reads packed BCD timecode and gives back its drop-frame flag; samples_from_SMPTE gives the samples too.
  void get_samples_from_SMPTETc(unsigned packed, bool& drop) const;
  [[nodiscard]] int samples_from_SMPTE(unsigned packed, bool& drop) const;

  // Equal starts and ends. Deliberate: the start as it stands is held against a normalised one, and neither pitch
  // nor bounds are compared.
  [[nodiscard]] bool operator==(Label const& other) const;

  // Seconds of an absolute sample; 1e99 for the invalid sample.
  [[nodiscard]] double sample_to_posn(int sample) const;

  // Seconds at an offset; 1e99 when out of range, unless extrapolating.
  [[nodiscard]] double get_abs_posn(int offset) const;
  [[nodiscard]] double get_abs_posn_extrapolate(int offset) const;

  // The sample at a position, at the start of its frame, or exact. A position a little below a sample counts as
  // that sample: by 1/250 of one here, by 1/500 there. 1e99, what is not a number and what does not fit give the
  // invalid sample.
  [[nodiscard]] int posn_to_sample(double posn_seconds) const;
  [[nodiscard]] int abs_posn_to_sample(double posn_seconds) const;

  // Writes the keep string into `buffer`, of keep_string_size characters at least, and returns it. Null: into a
  // buffer of the calling thread, until the next such call. A longer text is cut. Blanks in the prefix become "_".
  char* make_keep_string(char* buffer) const;

  // Seconds per sample of a type at the natural speed of its material; 1.0 for types without labels of their own
  // and for values out of range. That of the PAL and NTSC types is the host's, as it was at first use.
  [[nodiscard]] static double get_natural_pitch(label_t type);

 protected:
  // Writes the keep string into a buffer of `size` characters, and gives the number of those written.
  std::size_t write_keep_string(char* buffer, std::size_t size) const;

 private:
  LABELSBASE_LOCAL void use_converter(label_t type);
};

// The one invalid label: a label of the invalid point.
[[nodiscard]] LABELSBASE_API Label const& get_invalid_label();

// Whether the current project runs at the film rates 24 or 48.
[[nodiscard]] LABELSBASE_API bool is_film_project();
