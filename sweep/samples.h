// Which samples are checked: all of them, or a thinned choice.
#pragma once

#include <climits>
#include <functional>

#include "labelsbase/labelcvt/label_types.h"
#include "sweep/rules.h"

namespace sweep {

// Samples are checked in blocks, each of which is done or not.
inline constexpr int blocks = 256;  // of one type
inline constexpr wide samples_per_block = (wide{INT_MAX} - INT_MIN + 1) / blocks;

[[nodiscard]] constexpr wide first_of_block(int block) noexcept { return INT_MIN + block * samples_per_block; }

// Calls `check(first, last, step)` for stretches of samples that make up the block, until it returns false.
using check_stretch = std::function<bool(wide first, wide last, wide step)>;

// All samples of the block. Returns whether every call returned true.
bool every_sample(int block, check_stretch const& check);

// Every 4099th sample, and two samples either side of each place where something begins: the ints, special
// samples, the seconds of a day, minutes, hours and days; frames, keys, feet and the ends of their rounds.
bool thinned(label_t type, int block, check_stretch const& check);

}  // namespace sweep
