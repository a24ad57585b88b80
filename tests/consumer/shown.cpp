#include <string>

#include "labelcheck/read.h"
#include "labelsbase/labels.h"

std::string shown(int sample) {
  LabelPoint point{pal_label_t, sample};
  return point.get_string();
}

int checked(char const* label) {
  auto const read = labelcheck::read(pal_label_t, label);
  auto const* const reading = std::get_if<labelcheck::reading>(&read);
  return reading ? reading->sample : -1;
}
