// Takes values from the fuzzer's bytes.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size);

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
