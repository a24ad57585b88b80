// Takes values from the fuzzer's bytes, and stops it when an answer is wrong.
//
// An input is a text, and any bytes are one. A target that takes numbers, too, finds them as words on the first
// line:
//
//   ntsc_drop_label 1800
//   00:01:00;02
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

#include "labelsbase/labelcvt/registry.h"

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size);

// How many words the target takes from the first line; 0 if all of the input is its text.
extern int const fuzz_words;

class fuzz_input {
 public:
  fuzz_input(std::uint8_t const* data, std::size_t size) : text_{reinterpret_cast<char const*>(data), size} {
    if (fuzz_words == 0) return;
    auto const end = text_.find('\n');
    words_ = text_.substr(0, end);
    text_.erase(0, end == std::string::npos ? end : end + 1);
  }

  // Returns the next word of the first line, or an empty one behind the last.
  std::string word() {
    auto const begin = words_.find_first_not_of(' ');
    words_.erase(0, begin);
    auto const next = words_.substr(0, words_.find(' '));
    words_.erase(0, next.size());
    return next;
  }

  // Returns the next word as a number of 32 bits. Other words are 0, larger numbers wrap.
  int number() { return static_cast<int>(std::strtoll(word().c_str(), nullptr, 10)); }

  // Returns a number from 0 to `choices` - 1.
  template <typename Number>
  Number choice(unsigned choices) {
    return static_cast<Number>(static_cast<unsigned>(number()) % choices);
  }

  double real() { return std::strtod(word().c_str(), nullptr); }

  // Returns the type that the next word names, as "pal_label" or by its number.
  label_t type() {
    auto const name = word();
    auto const named = get_label_type(name.c_str());
    if (named != null_label_t) return named;
    return static_cast<label_t>(static_cast<unsigned>(std::strtoll(name.c_str(), nullptr, 10)) % numLabelCvts);
  }

  // Returns what stands behind the first line.
  [[nodiscard]] std::string const& text() const { return text_; }

 private:
  std::string words_;
  std::string text_;
};

// Prints the property and the text, and aborts, unless the property holds.
inline void demand(bool holds, char const* property, std::string_view text) {
  if (holds) return;
  std::fprintf(stderr, "does not hold: %s, for \"%.*s\"\n", property, static_cast<int>(text.size()), text.data());
  std::abort();
}

// A buffer between guard bytes.
template <std::size_t size>
class guarded {
 public:
  guarded() noexcept {
    std::memset(all_, guard, sizeof all_);
    *text() = '\0';
  }

  [[nodiscard]] char* text() noexcept { return all_ + guards; }

  // Demands that nothing was written outside the buffer, and that the text in it ends there.
  void demand_whole(std::string_view input) const {
    bool whole = std::memchr(all_ + guards, '\0', size) != nullptr;
    for (std::size_t i = 0; i < guards; ++i) whole = whole && all_[i] == guard && all_[guards + size + i] == guard;
    demand(whole, "a text stays in its buffer", input);
  }

 private:
  static constexpr char guard = '\x5A';
  static constexpr std::size_t guards = 16;
  char all_[guards + size + guards];
};
