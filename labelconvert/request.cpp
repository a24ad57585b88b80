#include "labelconvert/request.h"

#include "labelconvert/tracks.h"
#include "labelsbase/framecounts/transfers.h"

namespace labelconvert {
namespace {

// Returns the frames a second that the video of a pulldown has: 30 for 2:3, 25 for 24:25.
constexpr int video_frames_per_second(labelsbase::transfer_facts const& transfer) noexcept {
  return 24 / transfer.film_cycle * transfer.video_cycle;
}

obstacle find_transfer_obstacle(request const& asked) noexcept {
  auto const* const transfer = labelsbase::find_transfer(asked.transfer);
  if (!transfer || !transfer->has_pulldown()) return obstacle::unknown_transfer;
  if (asked.phase < 0 || asked.phase > transfer->film_cycle) return obstacle::unknown_phase;

  bool const is_from_film = is_film_of_pulldown(asked.from);
  if (is_from_film == is_film_of_pulldown(asked.to)) return obstacle::transfer_needs_film;
  auto const& video = labelsbase::facts_of(is_from_film ? asked.to.type : asked.from.type).timecode;
  int const frames = video_frames_per_second(*transfer);
  if (video.frames_per_second == frames) return obstacle::none;
  return frames == 30 ? obstacle::transfer_needs_30 : obstacle::transfer_needs_25;
}

}  // namespace

std::optional<shared> usual_share(track const& from, track const& to) noexcept {
  auto const& a = labelsbase::facts_of(from.type);
  auto const& b = labelsbase::facts_of(to.type);
  if (a.is_timecode() && b.is_timecode()) return shared::time;
  int const frames = a.timecode.frames_per_second + b.timecode.frames_per_second;  // one of them is film
  return frames == 0 || frames == 24 || frames == 25 ? std::optional{shared::frame} : std::nullopt;
}

obstacle find_obstacle(request const& asked) noexcept {
  for (auto const& each : {asked.from, asked.to}) {
    if (!labelsbase::is_label_type(each.type) || !labelsbase::facts_of(each.type).has_labels())
      return obstacle::no_labels;
    if (labelsbase::facts_of(each.rate).nominal_fps == 0) return obstacle::unknown_rate;
  }
  if (asked.transfer != Transfer_none) return find_transfer_obstacle(asked);
  return asked.by || usual_share(asked.from, asked.to) ? obstacle::none : obstacle::no_usual_share;
}

std::string_view explain(obstacle found) noexcept {
  switch (found) {
    case obstacle::none:
      return "";
    case obstacle::no_labels:
      return "the type has no labels";
    case obstacle::unknown_rate:
      return "the rate is unknown";
    case obstacle::no_usual_share:
      return "film and this timecode may run in several ways; choose by time, by frame or through a pulldown";
    case obstacle::transfer_needs_film:
      return "a pulldown leads from film or 24 frame timecode to video timecode, or back";
    case obstacle::transfer_needs_30:
      return "a 2:3 pulldown leads to timecode of 30 frames";
    case obstacle::transfer_needs_25:
      return "a 24:25 pulldown leads to timecode of 25 frames";
    case obstacle::unknown_transfer:
      return "this transfer has no pulldown";
    case obstacle::unknown_phase:
      return "the pulldown has no such phase";
  }
  return "";
}

}  // namespace labelconvert
