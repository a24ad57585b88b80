// Ink numbers: printed on workprint and magnetic track by the cutting room.
#pragma once

#include "labelsbase/export.h"
#include "labelsbase/labelcvt/concrete_label.h"
#include "labelsbase/labelcvt/prefix_label.h"

// Four characters of prefix, four digits of count and a frame, for example "AB120123+07". Samples are
// perforations.
class LABELSBASE_API ink_label : public prefix_label {
 public:
  // `frames_per_count` frames between two numbers, `perfs_per_frame` perforations a frame.
  ink_label(int frames_per_count, int perfs_per_frame);

  char const* type_str() const override;
  label_t type() const override;
  UserLabelType UserType() const override;

  int normalise_sample_unit(int perfs) override;
  char const* get_abs_string(LabelPoint* point, int perfs) override;

  // Reads a label with or without its prefix, "1234+05" too; a longer text is its first 4 and its last 7
  // characters. The invalid sample for a count or a frame out of range.
  int get_abs_sample(char const* text) override;
  using variable_label::get_abs_sample;

  void build_template() override;
  void set_prefix(LabelPoint* point, char const* text) override;

  // Splits perforations into count and frame, rounding toward count 0.
  virtual void get_counts(int perfs);

 protected:
  // The last split.
  int count_ = 0;
  int frame_ = 0;
};

// clang-format off
class LABELSBASE_API ink_35_label : public labelsbase::concrete_label<ink_35_label_t, ink_label> { public: ink_35_label() : concrete_label{16, 4} {} };
class LABELSBASE_API ink_16_label : public labelsbase::concrete_label<ink_16_label_t, ink_label> { public: ink_16_label() : concrete_label{20, 1} {} };
// clang-format on
