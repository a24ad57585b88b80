// The cadence of a pulldown: film frames laid out over video frames.
#pragma once

#include <string>
#include <vector>

#include "cli/counting.h"

namespace cli {

struct cadence_frame {
  int video;
  int film;  // the film frame it shows, from 1; 0 for an added frame
};

struct cadence {
  pulldown across;
  std::vector<cadence_frame> frames;  // video frames from 1 up
  int film_frames;

  // Returns the place of a film frame in its cycle, from 0, and the letter of that place, from A.
  [[nodiscard]] int position(int film) const noexcept { return (film - 1) % across.film_cycle; }
  [[nodiscard]] char letter(int film) const noexcept { return static_cast<char>('A' + position(film)); }
};

// The labels of both time lines.
struct cadence_labels {
  counted_label film;
  int frames_before_film;  // frames from label 0 to the first frame of the time line
  int key_phase;           // of key 0, at 3 perforations a frame
  counted_label video;
  int frames_before_video;

  // Return the label of a frame, counted from 1.
  [[nodiscard]] std::string of_film(int frame) const;
  [[nodiscard]] std::string of_video(int frame) const;
};

// Returns a picture of the cadence in SVG.
[[nodiscard]] std::string draw(cadence const& laid_out, cadence_labels const& labels);

}  // namespace cli
