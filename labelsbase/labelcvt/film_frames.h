// Film by a plain count of its frames. Samples are frames.
//
//   label_cvt& cvt = *get_static_label_cvt(film_frames_label_t);
//   LabelPoint point{cvt, 0};
//   cvt.get_abs_string(&point, 24)      // "000024"
//   cvt.get_abs_string(&point, -5)      // "-000005"
//   cvt.get_abs_sample("24 frames")     // 24
#pragma once

#include "labelsbase/export.h"
#include "labelsbase/labelcvt/concrete_label.h"
#include "labelsbase/labelcvt/label_cvt.h"

// At least six digits, with "-" below zero.
class LABELSBASE_API film_frames_label : public labelsbase::concrete_label<film_frames_label_t, variable_label> {
 public:
  film_frames_label();
  ~film_frames_label() override;

  char const* get_abs_string(LabelPoint* point, int frames) override;

  // Returns the number that the text begins with, or the invalid sample if it does not begin with one.
  int get_abs_sample(char const* text) override;
  using variable_label::get_abs_sample;

  void build_template() override;
};
