// How do I use the library without refhost, with memory and settings of my own, and without exceptions? The host
// is host.cpp. Point it at the allocator, settings and project that your program has.
//
//   $ own_host
//   00:01:00;02
//   conversions allocated 0 blocks
//   a private converter gave back all that it allocated
#include <cstdio>

#include "counting_memory.h"
#include "labelsbase/labels.h"

int main() {
  LabelPoint point{getDefaultLabelTypeForProject(), 1800};
  point.removePadding();
  std::puts(point.get_string());

  int const before = blocks_allocated();
  for (point.sample = 0; point.sample < 100'000; ++point.sample)
    if (point.cvt()->get_abs_sample(point.get_string()) != point.sample) return 1;
  std::printf("conversions allocated %d blocks\n", blocks_allocated() - before);

  int const live = blocks_live();
  delete make_any_label_cvt(keycode_35_label_t);
  if (blocks_allocated() == before || blocks_live() != live) return 1;
  std::puts("a private converter gave back all that it allocated");
}
