// Takes values from the fuzzer's bytes, and stops it when an answer is wrong.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size);

// How many numbers the target reads before its text.
extern int const fuzz_numbers;

class fuzz_input {
 public:
  fuzz_input(std::uint8_t const* data, std::size_t size) noexcept : data_{data}, left_{size} {}

  // Returns the next four bytes as a number, with zeros past the end.
  template <typename Number = std::int32_t>
  Number number() noexcept {
    std::int32_t value = 0;
    auto const size = std::min(left_, sizeof value);
    if (size > 0) std::memcpy(&value, data_, size);
    data_ += size;
    left_ -= size;
    return static_cast<Number>(value);
  }

  // Returns the bytes that are left, as a terminated text.
  [[nodiscard]] std::string rest() const { return {reinterpret_cast<char const*>(data_), left_}; }

 private:
  std::uint8_t const* data_;
  std::size_t left_;
};

// Prints the property and the text, and aborts, unless the property holds.
inline void demand(bool holds, char const* property, std::string_view text) {
  if (holds) return;
  std::fprintf(stderr, "does not hold: %s, for \"%.*s\"\n", property, static_cast<int>(text.size()), text.data());
  std::abort();
}
