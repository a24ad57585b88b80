// Private: what a track counts.
#pragma once

#include <cstdint>
#include <numeric>

#include "labelconvert/request.h"
#include "labelsbase/labelcvt/label_cvt.h"
#include "labelsbase/labelcvt/label_facts.h"
#include "labelsbase/labelcvt/rate_facts.h"
#include "labelsbase/labelcvt/registry.h"

namespace labelconvert {

// A fraction in lowest terms.
struct fraction {
  std::int64_t numerator;
  std::int64_t denominator;

  constexpr fraction(std::int64_t over, std::int64_t under) noexcept
      : numerator{over / std::gcd(over, under)}, denominator{under / std::gcd(over, under)} {}
};

// Returns frames a second, 30000/1001 for example; 0 for an unknown rate. Rates are whole or half ones, or those
// divided by 1.001.
[[nodiscard]] constexpr fraction frames_per_second(Kiv::FrameRate rate) noexcept {
  auto const& facts = labelsbase::facts_of(rate);
  return {static_cast<std::int64_t>(facts.nominal_fps * 2) * 500, facts.has_1001_factor ? 1'001 : 1'000};
}

static_assert(frames_per_second(Kiv::FrameRate_29_97).numerator == 30'000);
static_assert(frames_per_second(Kiv::FrameRate_29_97).denominator == 1'001);
static_assert(frames_per_second(Kiv::FrameRate_12_5).numerator == 25);

// Returns the samples that a second of timecode counts. The host may have the type count half as many frames; as
// two fields each, they still are as many samples.
[[nodiscard]] inline int samples_counted_per_second(labelsbase::label_facts const& facts) noexcept {
  if (!facts.timecode.setting) return facts.timecode.frames_per_second;
  auto const& converter = *get_static_label_cvt(facts.type);
  return converter.get_modulus() * (converter.isSpecialSlowTC() ? 2 : 1);
}

// Returns the samples of a day of timecode, or 0 for film.
[[nodiscard]] inline std::int64_t samples_per_day(labelsbase::label_facts const& facts) noexcept {
  if (!facts.is_timecode()) return 0;
  if (facts.timecode.drop_frame) return facts.timecode.count().labels_per_day();
  return std::int64_t{86'400} * samples_counted_per_second(facts);
}

// Returns the samples of a second of a track's material.
[[nodiscard]] inline fraction samples_per_second(track const& of) noexcept {
  auto const& facts = labelsbase::facts_of(of.type);
  auto const rate = frames_per_second(of.rate);
  if (!facts.is_timecode()) return {rate.numerator * facts.samples_per_frame(), rate.denominator};
  return {rate.numerator * samples_counted_per_second(facts), rate.denominator * facts.timecode.frames_per_second};
}

// Whether a track can be the film of a pulldown.
[[nodiscard]] inline bool is_film_of_pulldown(track const& of) noexcept {
  auto const& facts = labelsbase::facts_of(of.type);
  return facts.is_film() || facts.timecode.frames_per_second == 24;
}

}  // namespace labelconvert
