#include "labelconvert/conversion.h"

#include <limits>

#include "labelconvert/tracks.h"
#include "labelsbase/framecounts/pulldown.h"
#include "labelsbase/samples.h"

namespace labelconvert {
namespace {

constexpr std::optional<int> as_int(std::int64_t value) noexcept {
  constexpr std::int64_t least = std::numeric_limits<int>::min();
  constexpr std::int64_t most = std::numeric_limits<int>::max();
  return value >= least && value <= most ? std::optional{static_cast<int>(value)} : std::nullopt;
}

constexpr std::int64_t floor_of(std::int64_t over, std::int64_t under) noexcept {
  return over / under - (over % under < 0 ? 1 : 0);
}

// Whether both tracks name the perforations of frames of one size. Then each perforation has its label.
bool name_perforations_alike(track const& from, track const& to) noexcept {
  auto const& a = labelsbase::facts_of(from.type);
  auto const& b = labelsbase::facts_of(to.type);
  return a.is_film() && b.is_film() && a.film.names_perforation() && b.film.names_perforation() &&
         a.samples_per_frame() == b.samples_per_frame();
}

// Returns the units of the second track in a sample of the first.
fraction units_per_sample(request const& asked, int unit) noexcept {
  bool const is_by_time =
      asked.transfer == Transfer_none && (asked.by ? asked.by : usual_share(asked.from, asked.to)) == shared::time;
  int const from_frame = labelsbase::facts_of(asked.from.type).samples_per_frame();
  int const to_frame = labelsbase::facts_of(asked.to.type).samples_per_frame();
  if (!is_by_time) return {to_frame, std::int64_t{from_frame} * unit};
  auto const from = samples_per_second(asked.from);
  auto const to = samples_per_second(asked.to);
  return {to.numerator * from.denominator, to.denominator * from.numerator * unit};
}

}  // namespace

conversion::conversion(request const& asked) noexcept
    : sync_{asked.sync},
      round_{asked.round},
      transfer_{asked.transfer},
      phase_{asked.phase},
      is_from_film_{is_film_of_pulldown(asked.from)},
      unit_{name_perforations_alike(asked.from, asked.to)
                ? 1
                : labelsbase::facts_of(asked.to.type).samples_per_frame()},
      day_{samples_per_day(labelsbase::facts_of(asked.to.type))} {
  auto const units = units_per_sample(asked, unit_);
  numerator_ = units.numerator;
  denominator_ = units.denominator;
}

std::optional<answer> conversion::of(int sample) const noexcept {
  auto const offset = std::int64_t{sample} - sync_.from;
  // The product of both would not always fit.
  auto const periods = floor_of(offset, denominator_);
  auto const within = (offset - periods * denominator_) * numerator_;
  place const at{periods * numerator_ + within / denominator_, within % denominator_, denominator_};

  auto const found = transfer_ == Transfer_none ? std::optional{around(at)} : through_pulldown(at);
  if (!found) return std::nullopt;
  auto const chosen = sample_of(found->chosen);
  auto const before = sample_of(found->before);
  auto const after = sample_of(found->after);
  if (!chosen || !before || !after) return std::nullopt;
  return answer{*chosen, *before, *after};
}

conversion::frames conversion::around(place const& at) const noexcept {
  auto const before = at.whole;
  auto const after = at.whole + (at.rest == 0 ? 0 : 1);
  switch (round_) {
    case rounding::down:
      return {before, before, after};
    case rounding::up:
      return {after, before, after};
    case rounding::near:
      break;
  }
  return {at.rest * 2 < at.parts ? before : after, before, after};
}

// Film at a place within a frame lies between the video frames of that frame and the next one. An added video
// frame lies halfway between two film frames.
std::optional<conversion::frames> conversion::through_pulldown(place const& at) const noexcept {
  if (is_from_film_) {
    auto const [chosen, before, after] = around(at);
    auto const video = video_of_film(chosen);
    auto const video_before = video_of_film(before);
    auto const video_after = video_of_film(after);
    if (!video || !video_before || !video_after) return std::nullopt;
    return frames{*video, *video_before, *video_after};
  }
  auto const film = film_of_video(at.whole);
  if (!film) return std::nullopt;
  bool const is_added = video_of_film(*film) != at.whole;
  return is_added ? around({*film - 1, 1, 2}) : around({*film, 0, 1});
}

// The frame counts number frames from 1.
std::optional<std::int64_t> conversion::video_of_film(std::int64_t film) const noexcept {
  auto const number = as_int(film + 1);
  int video = 0;
  if (!number || film_frames_to_video_frames(*number, &video, phase_, -1, transfer_) == 0) return std::nullopt;
  return std::int64_t{video} - 1;
}

std::optional<std::int64_t> conversion::film_of_video(std::int64_t video) const noexcept {
  auto const number = as_int(video + 1);
  int film = 0;
  int ignored_phase = 0;
  if (!number || video_frames_to_film_frames(*number, &film, phase_, &ignored_phase, transfer_) == 0)
    return std::nullopt;
  return std::int64_t{film} - 1;
}

std::optional<int> conversion::sample_of(std::int64_t frame) const noexcept {
  auto sample = sync_.to + frame * unit_;
  bool const is_beyond_day = day_ != 0 && (sample < 0 || sample >= day_);
  if (is_beyond_day) sample -= floor_of(sample, day_) * day_;
  auto const fitting = as_int(sample);
  return fitting && !labelsbase::is_special_sample(*fitting) ? fitting : std::nullopt;
}

}  // namespace labelconvert
