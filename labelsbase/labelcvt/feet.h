// Feet and frames: film by its length. Samples are perforations.
//
//   field       characters   range
//   sign        1            "-" or blank
//   feet        4 or more    0 to 99999, then again from 0
//   separator   1            "+"
//   frame       2            0 to frames a foot - 1
//   perf        "." and 1    3-perf only: 1 for the frame's last perforation up to 3 for its first
//
//   film             perfs a frame   perfs a foot   frames a foot
//   35 mm            4               64             16
//   16 mm            1               40             40
//   35 mm 3-perf     3               64             21 1/3, numbered 0 to 21
//
//   label_cvt& cvt = *get_static_label_cvt(foot_35_label_t);
//   LabelPoint point{cvt, 0};
//   cvt.get_abs_string(&point, 4100)    // " 0064+01"
//   cvt.get_abs_string(&point, -4)      // "-0000+01"
//   cvt.get_abs_sample("64+1")          // 4100
//   cvt.get_abs_sample("1+20")          // 144: frames are not checked against the foot
//   cvt.get_abs_sample("nonsense")      // 0: every text reads as a number
#pragma once

#include "labelsbase/counts/film_gauge.h"
#include "labelsbase/export.h"
#include "labelsbase/labelcvt/concrete_label.h"
#include "labelsbase/labelcvt/label_cvt.h"
#include "labelsbase/labelcvt/scratch_register.h"

// A sign, feet and the frame within the foot, for example " 0064+01".
class LABELSBASE_API foot_label : public variable_label {
 public:
  // `frames_per_foot` and `perfs_per_frame` from 1; numbers below 1 count as 1. Feet are written with
  // `feet_digits` digits or more.
  foot_label(int frames_per_foot, int perfs_per_frame, int feet_digits);

  char const* type_str() const override;
  label_t type() const override;
  UserLabelType UserType() const override;

  // Returns the label of the frame that a perforation is in; the template's placeholder for a special sample.
  char const* get_abs_string(LabelPoint* point, int perfs) override;

  // Returns the perforations of a label. Deliberate: every text reads as a number, any character separates, and
  // frames are not checked against the foot.
  int get_abs_sample(char const* text) override;
  using variable_label::get_abs_sample;

  void build_template() override;

  // Writes the label of a perforation into the point. get_abs_string calls this.
  virtual char const* samples_to_feet(LabelPoint* point, int perfs);

  // Returns the perforations of a label. get_abs_sample calls this.
  //
  //   blank* "-"? number any number     where each number and the character between them may be missing
  virtual int feet_to_samples(char const* text);

 protected:
  // Feet of the gauge of `type`, one of the types of feet.
  explicit foot_label(label_t type);

  // Returns the feet at which labels start again, once. Deliberate: ten times what the field shows, 100000 for 4
  // digits.
  [[nodiscard]] int feet_limit() const noexcept;

  // Sets both templates to a sign, the feet and `frames`.
  void set_shape(char const* frames) noexcept;

  int feet_digits_;      // the fewest digits of feet that are written
  int perfs_per_frame_;  // perforations

  // The last conversion of film with 3 perforations a frame.
  labelsbase::scratch_register feet_;
  labelsbase::scratch_register frame_;
  labelsbase::scratch_register remainder_;

 private:
  // Whether the gauge still has the numbers of the fields, which hosts' classes may set.
  [[nodiscard]] bool has_own_gauge() const noexcept {
    return gauge_.perfs_per_frame() == perfs_per_frame_ && gauge_.frames_per_count() == modulus_;
  }

  // Whether feet and frame have as many digits as their columns.
  [[nodiscard]] LABELSBASE_LOCAL bool fills_columns(labelsbase::film_place const& at) const noexcept;

  // Writes labels that do not fill their columns, and those of hosts' classes.
  LABELSBASE_LOCAL char const* write_any(LabelPoint* point, int perfs) const;

  // Reads labels with a minus sign and those that do not fill their columns, without blanks in front.
  [[nodiscard]] LABELSBASE_LOCAL int read_any(char const* text) const noexcept;

  // Returns the perforations of feet and frames, by the fields that hosts' classes may set.
  [[nodiscard]] LABELSBASE_LOCAL int join(labelsbase::film_place const& at) const noexcept;

  labelsbase::film_gauge gauge_;
};

// Feet of 35 mm film: 16 frames of 4 perforations to the foot.
class LABELSBASE_API foot_35_label : public labelsbase::concrete_label<foot_35_label_t, foot_label> {
 public:
  foot_35_label();
  ~foot_35_label() override;
  void build_template() override;
};

// Feet of 16 mm film: 40 frames of 1 perforation to the foot.
class LABELSBASE_API foot_16_label : public labelsbase::concrete_label<foot_16_label_t, foot_label> {
 public:
  foot_16_label();
  ~foot_16_label() override;
  void build_template() override;
};

// 3 perforations a frame, 64 to the foot: labels end in the perforation within the frame, " 0001+00.1", and name
// the perforation itself.
class LABELSBASE_API foot_353_label : public labelsbase::concrete_label<foot_353_label_t, foot_label> {
 public:
  foot_353_label();
  ~foot_353_label() override;
  void build_template() override;
  char const* samples_to_feet(LabelPoint* point, int perfs) override;

  // Reads the first 63 characters. A text that does not end in a digit reads as if its perforation were 1.
  int feet_to_samples(char const* text) override;
};
