// The label of another family for the same instant or the same frame.
//
//   using namespace labelconvert;
//   track const pal{pal_label_t, Kiv::FrameRate_25};
//
//   track const feet{foot_35_label_t, Kiv::FrameRate_24};
//   conversion const to_film{{.from = pal, .to = feet}};
//   to_film.of(100)->sample          // 400: frame 100 of the film, at 4 perforations a frame
//
//   track const drop{ntsc_drop_label_t, Kiv::FrameRate_29_97};
//   conversion const to_drop{{.from = pal, .to = drop}};
//   to_drop.of(25)->sample           // 30: a second is 29.97 frames, and the nearest is 30
//   to_drop.of(25)->before           // 29
//   to_drop.of(25)->after            // 30
//   to_drop.of(25)->is_exact()       // false
//
// Counts are exact: whole numbers all through. Nothing here allocates.
#pragma once

#include <cstdint>
#include <optional>

#include "labelconvert/request.h"

namespace labelconvert {

// Samples of the track that is converted to.
struct answer {
  int sample;  // rounded as asked

  // The frames around the instant; both are `sample` if a frame begins at it.
  int before;
  int after;

  // Whether a frame begins at the instant, so that nothing was rounded.
  [[nodiscard]] constexpr bool is_exact() const noexcept { return before == after; }
};

// Converts samples of one track to those of another. A plain value, for any number of threads.
class conversion {
 public:
  // The request needs to be free of obstacles.
  explicit conversion(request const& asked) noexcept;

  // Returns the answer for any sample that a label of the first track has. Timecode moves into the day. Returns
  // nothing if a sample of the answer does not fit an int or is a special one.
  [[nodiscard]] std::optional<answer> of(int sample) const noexcept;

 private:
  // A place that may lie within a unit of frames: `whole` units and `rest` of `parts` of one.
  struct place {
    std::int64_t whole;
    std::int64_t rest;
    std::int64_t parts;
  };
  // The frames around a place, counted from the sync point, and the chosen one of them.
  struct frames {
    std::int64_t chosen;
    std::int64_t before;
    std::int64_t after;
  };

  [[nodiscard]] frames around(place const& at) const noexcept;
  [[nodiscard]] std::optional<frames> through_pulldown(place const& film_or_video) const noexcept;
  [[nodiscard]] std::optional<std::int64_t> video_of_film(std::int64_t film) const noexcept;
  [[nodiscard]] std::optional<std::int64_t> film_of_video(std::int64_t video) const noexcept;
  [[nodiscard]] std::optional<int> sample_of(std::int64_t frame) const noexcept;

  sync_point sync_;
  rounding round_;
  transfer_type transfer_;
  int phase_;
  bool is_from_film_;  // through a pulldown

  // A sample of the first track is numerator_ / denominator_ units of the second.
  std::int64_t numerator_;
  std::int64_t denominator_;
  int unit_;          // samples of a frame of the second track; 1 where single perforations are converted
  std::int64_t day_;  // samples of a day of the second track; 0 for film
};

}  // namespace labelconvert
