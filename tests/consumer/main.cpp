// The timecode of frame 90000 at 25 frames a second, by the installed package.
#include <cstdio>

#include "labelsbase/labels.h"

int main() {
  LabelPoint point{pal_label_t, 90000};
  std::puts(point.get_string());
}
