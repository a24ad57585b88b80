// Which video frames show which film frames, for each phase of a 2:3 pulldown?
//
//   $ pulldown_table
//   video     1  2  3  4  5  6  7  8  9 10
//   phase 0   1  2  2  3  4  5  6  6  7  8
//   phase 1   1  2  3  3  4  5  6  7  7  8
//   phase 2   1  2  3  4  4  5  6  7  8  8
//   phase 3   1  2  3  4  5  5  6  7  8  9
//   phase 4   1  1  2  3  4  5  5  6  7  8
#include <cstdio>

#include "labelsbase/framecounts.h"

int main() {
  std::printf("video   ");
  for (int video = 1; video <= 10; ++video) std::printf(" %2d", video);
  for (int phase = 0; phase <= 4; ++phase) {
    std::printf("\nphase %d ", phase);
    for (int video = 1; video <= 10; ++video) {
      int film = 0;
      int next_phase = 0;  // that a cycle beginning at this video frame would have
      if (video_frames_to_film_frames(video, &film, phase, &next_phase, Transfer_2_3_pulldown) == 0) return 1;
      std::printf(" %2d", film);
    }
  }
  std::puts("");
}
