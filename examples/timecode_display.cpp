// How do I show a running timecode?
//
//   $ timecode_display 30f-drop 17980 4
//   00:09:59;28
//   00:09:59;29
//   00:10:00;00
//   00:10:00;01
#include <cstdio>
#include <cstdlib>

#include "labelsbase/labels.h"

int main(int count, char** arguments) {
  if (count != 4) {
    std::fputs("usage: timecode_display TYPE FIRST-FRAME FRAMES\n", stderr);
    return 2;
  }
  label_t const type = edlstr_to_label_type(arguments[1]);
  if (labelsbase::user_label_type(type) != User_timecode) {
    std::fprintf(stderr, "unknown timecode \"%s\"; expected 25f, 30f-drop, 24f and the like\n", arguments[1]);
    return 2;
  }
  int const first = std::atoi(arguments[2]);

  // A point is made once. Each frame only moves it: no conversion allocates, so a display may do this while it
  // plays.
  LabelPoint shown{type, 0};
  shown.removePadding();  // no column for a sign
  for (int frame = 0; frame < std::atoi(arguments[3]); ++frame) {
    shown.sample = first + frame;
    std::puts(shown.get_string());
  }
}
