// Ink numbers: printed on workprint and magnetic track by the cutting room. Samples are perforations.
//
//   field       characters   range
//   prefix      4            any printable characters, "AB12"
//   count       4            0 to 9999
//   separator   1            "+", for 16 mm too
//   frame       2            0 to 15 for 35 mm, 0 to 19 for 16 mm
//
//   label_cvt& cvt = *get_static_label_cvt(ink_35_label_t);
//   LabelPoint point{cvt, 0};
//   cvt.set_prefix(&point, "AB120000+00");
//   cvt.get_abs_string(&point, 100)             // "AB120001+09"
//   cvt.get_abs_sample("AB120001+09")           // 100
//   cvt.get_abs_sample("1234+05")               // 78996: a short text has zeros in front
//   cvt.get_abs_sample("AB12-0001+09")          // 100: a long text counts by its first 4 and last 7 characters
//   cvt.get_abs_sample("AB120001+16")           // -100000000: the count has frames 00 to 15
#pragma once

#include "labelsbase/export.h"
#include "labelsbase/labelcvt/concrete_label.h"
#include "labelsbase/labelcvt/prefix_label.h"
#include "labelsbase/labelcvt/scratch_register.h"

// Four characters of prefix, four digits of count and a frame, for example "AB120123+07".
class LABELSBASE_API ink_label : public prefix_label {
 public:
  // `frames_per_count`: frames from one ink number to the next. `perfs_per_frame`: perforations a frame. Both from
  // 1; numbers below 1 count as 1.
  ink_label(int frames_per_count, int perfs_per_frame);

  char const* type_str() const override;
  label_t type() const override;
  UserLabelType UserType() const override;

  // Wraps perforations into the range of the count.
  int normalise_sample_unit(int perfs) override;

  // Returns the label of the frame that a perforation is in, or "NEGATIVE" below count 0.
  char const* get_abs_string(LabelPoint* point, int perfs) override;

  // Returns the first perforation of the frame that a label names, or of the count if it names no frame. The
  // prefix may be missing. Returns the invalid sample for a count or a frame out of range.
  //
  //   prefix? digit{4} (any digit digit?)?
  int get_abs_sample(char const* text) override;
  using variable_label::get_abs_sample;

  void build_template() override;

  // Gives the point the prefix and count of a whole label. Deliberate: a short text has zeros in front here too,
  // so "AB12" sets the prefix "0000".
  void set_prefix(LabelPoint* point, char const* text) override;

  // Splits perforations into count and frame, rounding toward count 0.
  virtual void get_counts(int perfs);

 protected:
  // The last split.
  labelsbase::scratch_register count_;
  labelsbase::scratch_register frame_;

 private:
  // Returns the gauge by samples_per_unit(), which a host's class may override, and by the modulus, which it may
  // set.
  [[nodiscard]] LABELSBASE_LOCAL labelsbase::film_gauge gauge() const;

  // Write and read labels that do not fill their columns, and those of hosts' classes.
  LABELSBASE_LOCAL char const* write_any(LabelPoint* point, int perfs);
  [[nodiscard]] LABELSBASE_LOCAL int read_any(char const* text);

  void remember(labelsbase::film_place const& at) noexcept {
    count_ = at.count;
    frame_ = at.frame;
  }
};

// Ink numbers of 35 mm film: one a foot, 16 frames of 4 perforations.
class LABELSBASE_API ink_35_label : public labelsbase::concrete_label<ink_35_label_t, ink_label> {
 public:
  ink_35_label();
  ~ink_35_label() override;
};

// Ink numbers of 16 mm film: one every 20 frames of 1 perforation.
class LABELSBASE_API ink_16_label : public labelsbase::concrete_label<ink_16_label_t, ink_label> {
 public:
  ink_16_label();
  ~ink_16_label() override;
};
