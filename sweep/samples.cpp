#include "sweep/samples.h"

#include <algorithm>
#include <vector>

namespace sweep {
namespace {

// Places that are alike: `start` and every `step` from there, either way, up to `farthest` from zero.
struct places {
  wide start, step, farthest;
};

constexpr wide anywhere = wide{1} << 40;

// Drop-frame minutes have two labels less, but every tenth.
void add_timecode(labelsbase::timecode_facts const& facts, std::vector<places>& found) {
  wide const second = facts.frames_per_second;
  wide const dropped = facts.drop_frame ? 2 : 0;
  wide const ten_minutes = 600 * second - 9 * dropped;
  for (wide minute = 0; minute < 10; ++minute) {
    wide const first = minute * (60 * second - dropped);
    for (wide s = 0; s < 60; ++s) found.push_back({first + s * second, ten_minutes, 144 * ten_minutes});
    found.push_back({first + dropped, ten_minutes, 144 * ten_minutes});
  }
  found.push_back({0, 144 * ten_minutes, anywhere});
}

void add_film(labelsbase::film_facts const& facts, std::vector<places>& found) {
  constexpr wide reel = 1'000;  // feet
  wide const count = facts.gauge.perfs_per_count();
  wide const round = count * std::max(power_of_ten(facts.count_digits), feet_rule::round);
  found.push_back({0, facts.gauge.perfs_per_frame(), 20 * count});
  found.push_back({0, count, 100 * reel * count});
  found.push_back({0, count * power_of_ten(facts.count_digits), anywhere});
  found.push_back({0, round, anywhere});
}

std::vector<places> places_of(label_t type) {
  std::vector<places> found;
  for (wide const sample :
       {wide{INT_MIN}, wide{0}, wide{INT_MAX}, wide{invalid}, wide{labelsbase::past_end_sample}})
    found.push_back({sample, anywhere, anywhere});
  auto const& facts = labelsbase::facts_of(type);
  if (facts.is_timecode()) add_timecode(facts.timecode, found);
  if (facts.is_film()) add_film(facts.film, found);
  return found;
}

// Returns the first of the places from `sample` on.
constexpr wide first_from(places const& at, wide sample) noexcept {
  wide const rest = (at.start - sample) % at.step;
  return sample + (rest < 0 ? rest + at.step : rest);
}

}  // namespace

bool every_sample(int block, check_stretch const& check) {
  constexpr wide stretch = 1 << 16;
  wide const end = first_of_block(block + 1);
  for (wide first = first_of_block(block); first < end; first += stretch)
    if (!check(first, first + stretch - 1, 1)) return false;
  return true;
}

bool thinned(label_t type, int block, check_stretch const& check) {
  wide const first = first_of_block(block);
  wide const last = first_of_block(block + 1) - 1;
  constexpr wide every = 4'099;
  if (!check(first_from({INT_MIN, every, anywhere}, first), last, every)) return false;
  for (auto const& at : places_of(type)) {
    for (wide place = first_from(at, std::max(first, -at.farthest)); place <= std::min(last, at.farthest);
         place += at.step)
      if (!check(std::max<wide>(place - 2, INT_MIN), std::min<wide>(place + 2, INT_MAX), 1)) return false;
  }
  return true;
}

}  // namespace sweep
