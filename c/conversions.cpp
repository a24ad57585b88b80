// Samples of one track to those of another, and frames across a pulldown.

#include <optional>

#include "c/arguments.h"
#include "labelcheck/range.h"
#include "labelconvert/conversion.h"
#include "labelsbase/framecounts/pulldown.h"
#include "labelsbase/framecounts/transfers.h"

namespace labels_c {
namespace {

using labelconvert::obstacle;
using labelconvert::rounding;
using labelconvert::shared;

labelconvert::track track_in_cpp(labels_track const& track) noexcept {
  return {static_cast<label_t>(track.type), static_cast<Kiv::FrameRate>(track.rate)};
}

// Returns the request, or nothing if a choice has none of its values.
std::optional<labelconvert::request> request_of(labels_conversion const& asked) noexcept {
  constexpr std::optional<shared> choices[]{std::nullopt, shared::time, shared::frame};
  constexpr rounding roundings[]{rounding::near, rounding::down, rounding::up};
  if (asked.by < LABELS_BY_USUAL || asked.by > LABELS_BY_FRAME) return std::nullopt;
  if (asked.round < LABELS_ROUND_NEAR || asked.round > LABELS_ROUND_UP) return std::nullopt;
  return labelconvert::request{
      .from = track_in_cpp(asked.from),
      .to = track_in_cpp(asked.to),
      .by = choices[asked.by],
      .sync = {asked.sync_from, asked.sync_to},
      .round = roundings[asked.round],
      .transfer = static_cast<transfer_type>(asked.transfer),
      .phase = asked.phase,
  };
}

// Converts with each sample's own outcome. `convert` gets the plan and the range of samples to convert.
template <typename Convert>
labels_status with_plan(labels_conversion const* conversion, std::size_t size, fault_argument const& fault,
                        Convert convert) {
  auto const asked = request_of(taken(conversion, size));
  if (!asked) return fault.is(LABELS_WRONG_CALL);
  if (auto const found = labelconvert::find_obstacle(*asked); found != obstacle::none)
    return fault.is(
        found == obstacle::no_labels || found == obstacle::unknown_rate ? LABELS_UNKNOWN : LABELS_REFUSED,
        labelconvert::explain(found));
  auto const range = labelcheck::range_of(asked->from.type);
  labelconvert::conversion const plan{*asked};
  return convert([&](int32_t sample) -> std::optional<labelconvert::answer> {
    if (!range.has_label(sample)) return std::nullopt;
    return plan.of(sample);
  });
}

bool is_transfer(int32_t transfer) noexcept {
  return labelsbase::find_transfer(static_cast<transfer_type>(transfer)) != nullptr;
}

}  // namespace
}  // namespace labels_c

using namespace labels_c;

labels_status labels_convert(labels_conversion const* conversion, size_t conversion_size, int32_t sample,
                             labels_answer* out, size_t out_size, labels_fault* fault_out, size_t fault_size) {
  fault_argument const fault{fault_out, fault_size};
  return answer(fault, [&] {
    if (!conversion || !out) return fault.is(LABELS_WRONG_CALL);
    return with_plan(conversion, conversion_size, fault, [&](auto const& convert) {
      auto const found = convert(sample);
      if (!found) return fault.is(LABELS_REFUSED, "the sample, or what it becomes, has no label");
      give(labels_answer{found->sample, found->before, found->after}, out, out_size);
      return fault.none();
    });
  });
}

labels_status labels_convert_array(labels_conversion const* conversion, size_t conversion_size,
                                   int32_t const* samples, size_t count, int32_t* converted, size_t* refused) {
  fault_argument const unreported{nullptr, 0};
  return answer(unreported, [&]() -> labels_status {
    if (!conversion || (count > 0 && (!samples || !converted))) return LABELS_WRONG_CALL;
    return with_plan(conversion, conversion_size, unreported, [&](auto const& convert) {
      std::size_t wrong = 0;
      for (std::size_t i = 0; i < count; ++i) {
        auto const found = convert(samples[i]);
        converted[i] = found ? found->sample : LABELS_INVALID_SAMPLE;
        wrong += !found;
      }
      return count_refused(wrong, refused);
    });
  });
}

labels_status labels_film_to_video(int32_t film, int32_t phase, int32_t transfer, int32_t* video) {
  if (!video || !is_transfer(transfer)) return LABELS_WRONG_CALL;
  auto const how = static_cast<transfer_type>(transfer);
  return film_frames_to_video_frames(film, video, phase, -1, how) == 0 ? LABELS_REFUSED : LABELS_OK;
}

labels_status labels_video_to_film(int32_t video, int32_t phase, int32_t transfer, int32_t* film,
                                   int32_t* next_phase) {
  if (!film || !is_transfer(transfer)) return LABELS_WRONG_CALL;
  int next = phase;
  int frame = 0;
  auto const how = static_cast<transfer_type>(transfer);
  if (video_frames_to_film_frames(video, &frame, phase, &next, how) == 0) return LABELS_REFUSED;
  *film = frame;
  if (next_phase) *next_phase = next;
  return LABELS_OK;
}
