// Private: film labels whose parts fill their columns, as nearly all do: written and read without looking for
// room, signs or blanks. Labels that do not are left to the general ways, which give the same answers for those
// that do.
//
//   KJ123456 0123 + 07      prefix, count, separator, frame
#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

#include "labelsbase/counts/integers.h"
#include "labelsbase/labelcvt/prefix_label.h"
#include "labelsbase/support/digits.h"

namespace labelsbase {

// Writes a count of `digits` digits, a separator and two digits of frames, as in "0123+07". Returns where they
// end.
inline char* put_count_and_frame(char* out, int count, int digits, char separator, int frame) noexcept {
  put_digits(out, static_cast<unsigned>(count), digits);
  out += digits;
  *out = separator;
  put_pair(out + 1, frame);
  return out + 3;
}

// Reads a count of exactly `digits` digits, 1 to 9, any character but a digit, and two digits of frames, as in
// "0123+07". Returns false if the text does not begin with these.
[[nodiscard]] inline bool read_count_and_frame(char const* text, int digits, film_place& at) noexcept {
  if (!read_digits(text, digits, at.count)) return false;
  text += digits;
  return *text && !is_digit(*text) && read_pair(text + 1, at.frame);
}

// By the length of a prefix: all bits of each character behind it.
inline constexpr auto behind_prefix = [] {
  std::array<prefix_block, sizeof(prefix_block) + 1> blocks{};
  for (std::size_t length = 0; length < blocks.size(); ++length) {
    std::array<unsigned char, sizeof(prefix_block)> characters{};
    for (std::size_t i = length; i < characters.size(); ++i) characters[i] = 0xFF;
    blocks[length] = std::bit_cast<prefix_block>(characters);
  }
  return blocks;
}();

// Returns the first characters of a prefix field.
[[nodiscard]] inline prefix_block block_of(char const* prefix) noexcept {
  prefix_block characters;
  std::memcpy(&characters, prefix, sizeof characters);
  return characters;
}

// Whether no character of a block is a terminator.
[[nodiscard]] constexpr bool is_filled(prefix_block characters) noexcept {
  return (wrap_sub(characters, 0x0101'0101'0101'0101) & ~characters & 0x8080'8080'8080'8080) == 0;
}

}  // namespace labelsbase

inline char const* prefix_label::write_columns(LabelPoint* point, int count, int frame, int perf_digit) const {
  auto const prefix_length = prefix_length_;
  auto const count_length = count_length_;
  auto const behind = labelsbase::behind_prefix[prefix_length];
  auto characters = labelsbase::block_of(point->prefix) | behind;
  if (!labelsbase::is_filled(characters)) {
    characters = remembered_block().load(std::memory_order_relaxed) | behind;
    if (!labelsbase::is_filled(characters)) return write_label(point, count, frame, separator_, perf_digit);
  }
  remembered_block().store(characters ^ behind, std::memory_order_relaxed);
  std::memcpy(point->text, &characters, sizeof characters);

  char* out = labelsbase::put_count_and_frame(point->text + prefix_length, count, static_cast<int>(count_length),
                                              separator_, frame);
  if (perf_digit != 0) {
    *out++ = '.';
    *out++ = static_cast<char>('0' + perf_digit);
  }
  *out = '\0';
  return point->text;
}
