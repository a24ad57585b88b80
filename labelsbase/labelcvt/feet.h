// Feet and frames: film by its length.
#pragma once

#include "labelsbase/export.h"
#include "labelsbase/labelcvt/concrete_label.h"
#include "labelsbase/labelcvt/label_cvt.h"

// A sign, feet and the frame within the foot, for example " 0064+01". Samples are perforations.
class LABELSBASE_API foot_label : public variable_label {
 public:
  // `feet_digits` digits of feet at least are written.
  foot_label(int frames_per_foot, int perfs_per_frame, int feet_digits);

  char const* type_str() const override;
  label_t type() const override;
  UserLabelType UserType() const override;

  char const* get_abs_string(LabelPoint* point, int perfs) override;

  // Any text gives a number. Deliberate: any character separates, and frames are not held against the foot.
  int get_abs_sample(char const* text) override;
  using variable_label::get_abs_sample;

  void build_template() override;

  // What the converter's "abs" operations stand for, special samples apart.
  virtual char const* samples_to_feet(LabelPoint* point, int perfs);
  virtual int feet_to_samples(char const* text);

 protected:
  struct parts {
    bool negative;
    int feet, frames;
  };
  [[nodiscard]] static parts read_parts(char const* text) noexcept;

  // Feet that start again, once, at ten times what the field shows. Deliberate: 100000 for four digits.
  [[nodiscard]] int feet_limit() const noexcept;

  void set_shape(char const* frames) noexcept;

  int feet_digits_;
  int perfs_per_frame_;

  // The last conversion of film with 3 perforations a frame.
  int feet_ = 0;
  int frame_ = 0;
  int remainder_ = 0;
};

class LABELSBASE_API foot_35_label : public labelsbase::concrete_label<foot_35_label_t, foot_label> {
 public:
  foot_35_label();
  void build_template() override;
};

class LABELSBASE_API foot_16_label : public labelsbase::concrete_label<foot_16_label_t, foot_label> {
 public:
  foot_16_label();
  void build_template() override;
};

// 3 perforations a frame, 64 to the foot: labels end in the perforation within the frame, " 0001+00.1", and name
// the perforation itself.
class LABELSBASE_API foot_353_label : public labelsbase::concrete_label<foot_353_label_t, foot_label> {
 public:
  foot_353_label();
  void build_template() override;
  char const* samples_to_feet(LabelPoint* point, int perfs) override;

  // A text that does not end in a digit is read as if its perforation were 1.
  int feet_to_samples(char const* text) override;
};
