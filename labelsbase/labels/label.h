// Labels and their natural speed.
#pragma once

#include "labelsbase/export.h"
#include "labelsbase/labelcvt/label_types.h"

class LABELSBASE_API Label {
 public:
  // Seconds per sample of a type at the natural speed of its material; 1.0 for types without labels of their own
  // and for values out of range. That of the PAL and NTSC types is the host's, as it was at first use.
  [[nodiscard]] static double get_natural_pitch(label_t type);
};
