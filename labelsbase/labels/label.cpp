#include "labelsbase/labels/label.h"

#include "labelsbase/labelcvt/label_rows.h"

using namespace labelsbase;

double Label::get_natural_pitch(label_t type) {
  static double const pal_pitch = 1.0 / get_vid_fps(pal_label_t);
  static double const ntsc_pitch = 1.0 / get_vid_fps(ntsc_label_t);

  int const samples_per_second = row_of(type).samples_per_second;
  if (samples_per_second != 0) return 1.0 / samples_per_second;
  return type == pal_label_t ? pal_pitch : ntsc_pitch;
}
