// Private: label types by the names of their classes.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "labelsbase/counts/integers.h"
#include "labelsbase/labelcvt/label_facts.h"

namespace labelsbase {

// A table without collisions: each type with labels stands at the hash of its name, null_label_t everywhere else.
// The compiler tries multipliers until it finds one.
class types_by_name {
 public:
  consteval types_by_name() {
    while (!fill()) multiplier_ += 2;
  }

  // Returns the type of that name, in exact case, or null_label_t for any other name.
  [[nodiscard]] label_t find(char const* name) const noexcept {
    auto const size = std::strlen(name);
    if (size < sizeof(word)) return null_label_t;
    auto const type = static_cast<label_t>(types_[slot_of({name, size})]);
    return std::strcmp(name, all_label_facts[type].name) == 0 ? type : null_label_t;
  }

 private:
  using word = std::uint64_t;
  static constexpr int slot_bits = 9;

  [[nodiscard]] static constexpr word word_at(char const* text) noexcept {
    std::array<char, sizeof(word)> characters{};
    std::copy_n(text, sizeof(word), characters.begin());
    return std::bit_cast<word>(characters);
  }

  // Takes a name of at least a word, a word at a time. The last word may overlap the one before.
  [[nodiscard]] constexpr std::size_t slot_of(std::string_view name) const noexcept {
    word hash = 0;
    auto const last = name.size() - sizeof(word);
    for (std::size_t at = 0; at < last; at += sizeof(word))
      hash = wrap_mul(wrap_add(hash, word_at(&name[at])), multiplier_);
    hash = wrap_mul(wrap_add(hash, word_at(&name[last])), multiplier_);
    return static_cast<std::size_t>(hash >> (64 - slot_bits));
  }

  constexpr bool fill() {
    types_ = {};
    for (auto const& facts : all_label_facts) {
      if (!facts.has_labels()) continue;
      auto& slot = types_[slot_of(facts.name)];
      if (slot != null_label_t) return false;
      slot = static_cast<std::uint8_t>(facts.type);
    }
    return true;
  }

  word multiplier_ = 0x9E3779B97F4A7C15;
  std::array<std::uint8_t, 1U << slot_bits> types_{};
};

inline constexpr types_by_name all_types_by_name;

}  // namespace labelsbase
