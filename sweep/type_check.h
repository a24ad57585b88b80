// Writes the labels of samples, reads them back, and compares with the rule of their type.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "labelsbase/labels.h"
#include "sweep/rules.h"

namespace sweep {

// A sample whose label did not read back as the rule says.
struct wrong_sample {
  int sample, expected, read;
  std::string text;
};

inline constexpr std::size_t kept_wrong_samples = 5;  // of each type

// What was found.
struct findings {
  std::uint64_t checked = 0;        // samples
  std::uint64_t wrong = 0;          // samples
  std::vector<wrong_sample> first;  // up to kept_wrong_samples
};

// Checks samples of one type, with a converter and a label point of its own.
class type_check {
 public:
  explicit type_check(label_t type);

  // Checks `first`, `first` + `step` and so on up to `last`. All are ints; `step` is from 1.
  void check(wide first, wide last, wide step);

  [[nodiscard]] findings const& found() const noexcept { return found_; }

 private:
  void add(wrong_sample const& wrong);
  [[nodiscard]] bool is_overrun() const;

  // Bytes that stand around the point, which no conversion may change.
  using guard = std::array<unsigned char, 64>;
  static constexpr unsigned char guard_byte = 0xA5;
  static constexpr int guard_sample = 0x5A5A5A5A;  // the point's own sample stands behind its text

  struct guarded_point {
    guard before;
    LabelPoint point;
    guard behind;
  };

  label_t type_;
  std::unique_ptr<label_cvt> converter_;
  guarded_point guarded_;
  std::string prefix_;
  findings found_;
};

}  // namespace sweep
