// Film frames laid out over video frames.
#pragma once

#include <string>
#include <vector>

#include "cli/counted_label.h"
#include "cli/pulldown.h"

namespace cli {

struct cadence_frame {
  int video;
  int film;  // the film frame that it shows; 0 for an added frame
};

struct cadence {
  pulldown across;
  std::vector<cadence_frame> frames;  // video frames from 1 up
  int film_frames;

  // Where a film frame stands in its cycle, from 0.
  [[nodiscard]] int position(int film) const noexcept { return (film - 1) % across.film_cycle; }
  [[nodiscard]] char letter(int film) const noexcept { return static_cast<char>('A' + position(film)); }
};

// Labels of the two time lines, from the frames before their first.
struct cadence_labels {
  counted_label film;
  int frames_before_film;
  int key_phase;  // of key 0, for film that has one
  counted_label video;
  int frames_before_video;

  [[nodiscard]] std::string of_film(int frame) const;
  [[nodiscard]] std::string of_video(int frame) const;
};

// The cadence as a picture in SVG.
[[nodiscard]] std::string draw(cadence const& laid_out, cadence_labels const& labels);

}  // namespace cli
