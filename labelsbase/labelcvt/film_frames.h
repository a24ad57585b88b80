// Film by a plain count of its frames.
#pragma once

#include "labelsbase/export.h"
#include "labelsbase/labelcvt/concrete_label.h"
#include "labelsbase/labelcvt/label_cvt.h"

// At least six digits, for example "000024" and "-000005". Samples are frames.
class LABELSBASE_API film_frames_label : public labelsbase::concrete_label<film_frames_label_t, variable_label> {
 public:
  film_frames_label();

  char const* get_abs_string(LabelPoint* point, int frames) override;

  // The first number of the text; the invalid sample when it begins with none.
  int get_abs_sample(char const* text) override;
  using variable_label::get_abs_sample;

  void build_template() override;
};
