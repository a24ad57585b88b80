// Private: how the labels of film types look.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

#include "labelsbase/labelcvt/label_facts.h"

namespace labelcheck {

inline constexpr std::int64_t powers_of_ten[]{1, 10, 100, 1'000, 10'000, 100'000, 1'000'000, 10'000'000};

// The form of a film type's labels:
//
//   key or ink number   prefix count separator frame
//   3-perf key number   prefix count separator frame "." perforation
//   feet                (" " | "-")? feet separator frame
//   3-perf feet         (" " | "-")? feet separator frame "." perforation
//   film frames         "-"? frames
class film_form {
 public:
  explicit constexpr film_form(labelsbase::label_facts const& facts) noexcept : facts_{facts} {}

  [[nodiscard]] constexpr label_t type() const noexcept { return facts_.type; }
  [[nodiscard]] constexpr UserLabelType family() const noexcept { return facts_.family; }
  [[nodiscard]] constexpr labelsbase::film_gauge const& gauge() const noexcept { return facts_.film.gauge; }
  [[nodiscard]] constexpr char separator() const noexcept { return facts_.film.separator; }

  [[nodiscard]] constexpr bool has_prefix() const noexcept { return facts_.film.prefix_length > 0; }
  [[nodiscard]] constexpr bool has_frames() const noexcept { return family() != User_film_frames; }
  [[nodiscard]] constexpr bool names_perforation() const noexcept { return facts_.film.names_perforation(); }

  // Return the characters of the prefix, the digits of the count, feet or film frames, and the characters of
  // prefix and count together. Feet and film frames may have more digits.
  [[nodiscard]] constexpr std::size_t prefix_length() const noexcept {
    return static_cast<std::size_t>(facts_.film.prefix_length);
  }
  [[nodiscard]] constexpr int digits() const noexcept { return facts_.film.count_digits; }
  [[nodiscard]] constexpr std::size_t head_length() const noexcept {
    return prefix_length() + static_cast<std::size_t>(digits());
  }

  // Returns the characters behind the count: separator and frame, "." and perforation.
  [[nodiscard]] constexpr std::size_t frames_length() const noexcept {
    return (has_frames() ? 3U : 0U) + (names_perforation() ? 2U : 0U);
  }

  // Returns the prefix of a label, a part of its text.
  [[nodiscard]] constexpr std::string_view prefix_of(std::string_view label) const noexcept {
    return {label.data(), prefix_length()};
  }

  // Returns the largest key, ink number, feet or film frames. Feet run ten times as far as their digits, and one
  // foot further at 3 perforations a frame.
  [[nodiscard]] constexpr std::int64_t last_count() const noexcept {
    if (!has_frames()) return std::numeric_limits<std::int32_t>::max();
    auto const counts = powers_of_ten[digits() + !has_prefix()];
    return has_prefix() || !names_perforation() ? counts - 1 : counts;
  }

  // Returns the smallest film frames, one further from zero than the largest, or else -last_count().
  [[nodiscard]] constexpr std::int64_t lowest_count() const noexcept { return -last_count() - !has_frames(); }

  // Returns the largest frame within a key, ink number or foot.
  [[nodiscard]] constexpr int last_frame() const noexcept { return gauge().frames_per_count() - 1; }

  // Returns the prefix that stands in for a missing one.
  [[nodiscard]] constexpr std::string_view dummy_prefix() const noexcept {
    return std::string_view{facts_.film.dummy_prefix}.substr(0, prefix_length());
  }

 private:
  labelsbase::label_facts const& facts_;
};

// A label by its parts. Those that its form lacks are ignored.
struct film_label {
  std::string prefix;
  bool negative = false;
  std::int64_t count = 0;
  int frames = 0;
  int perforation = 1;
};

[[nodiscard]] std::string written(film_form const& form, film_label const& label);

}  // namespace labelcheck
