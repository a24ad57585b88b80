// 35 mm film at 3 perforations a frame: 64 perforations to the key or foot are 21 frames and a third, so keys
// begin within frames. Frame `f` of key `k` holds the perforations 64k + 3f - 2 to 64k + 3f.
#pragma once

#include "labelsbase/support/integers.h"

namespace labelsbase::three_perf {

inline constexpr int perfs_per_key = 64;

struct place {
  int key;        // or foot
  int frame;      // 0 to 21
  int remainder;  // perforations to the frame's last one, 0 to 2; shown as the perf digit, 1 more
};

[[nodiscard]] constexpr place place_of(int perfs) noexcept {
  int const shifted = wrap_add(perfs, 2);
  int const key = shifted >> 6;  // rounds down, below zero too
  int const in_key = shifted & (perfs_per_key - 1);
  return {key, in_key / 3, 2 - in_key % 3};
}

[[nodiscard]] constexpr int perfs_of(place const& at) noexcept {
  return wrap_sub(wrap_add(wrap_mul(at.key, perfs_per_key), wrap_mul(at.frame, 3)), at.remainder);
}

}  // namespace labelsbase::three_perf
