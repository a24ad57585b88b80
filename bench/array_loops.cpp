// The plain loops that the arrays of the Python module are compared with, over the same arrays: one thread, and
// texts of a fixed width, bytes (char) or code points (char32_t). Code points are converted a label at a time.

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>

#include "labelcheck/read.h"
#include "labelcheck/write.h"

namespace {

// Each label is as long as the texts are wide.
template <class Character>
void write_each(label_t type, int const* samples, Character* texts, std::size_t width, std::size_t count) {
  labelcheck::writer labels{type, "", labelcheck::label_style::exchange};
  for (std::size_t i = 0; i < count; ++i, texts += width) {
    if constexpr (std::is_same_v<Character, char>) {
      (void)labels.write(samples[i], {texts, width});
    } else {
      auto const label = labels.write(samples[i]);
      std::copy(label.begin(), label.end(), texts);
    }
  }
}

// Returns whether all texts are labels.
template <class Character>
int read_each(label_t type, Character const* texts, int* samples, std::size_t width, std::size_t count) {
  std::string narrowed(width, '\0');
  for (std::size_t i = 0; i < count; ++i, texts += width) {
    std::string_view label;
    if constexpr (std::is_same_v<Character, char>) {
      label = {texts, width};
    } else {
      std::transform(texts, texts + width, narrowed.begin(),
                     [](char32_t c) { return static_cast<char>(c < 0x80 ? c : 0xFF); });
      label = narrowed;
    }
    auto const read = labelcheck::read(type, label);
    auto const* const reading = std::get_if<labelcheck::reading>(&read);
    if (!reading) return 0;
    samples[i] = reading->sample;
  }
  return 1;
}

}  // namespace

extern "C" {

void write_bytes(label_t type, int const* samples, char* texts, std::size_t width, std::size_t count);
void write_str(label_t type, int const* samples, char32_t* texts, std::size_t width, std::size_t count);
int read_bytes(label_t type, char const* texts, int* samples, std::size_t width, std::size_t count);
int read_str(label_t type, char32_t const* texts, int* samples, std::size_t width, std::size_t count);

void write_bytes(label_t type, int const* samples, char* texts, std::size_t width, std::size_t count) {
  write_each(type, samples, texts, width, count);
}

void write_str(label_t type, int const* samples, char32_t* texts, std::size_t width, std::size_t count) {
  write_each(type, samples, texts, width, count);
}

int read_bytes(label_t type, char const* texts, int* samples, std::size_t width, std::size_t count) {
  return read_each(type, texts, samples, width, count);
}

int read_str(label_t type, char32_t const* texts, int* samples, std::size_t width, std::size_t count) {
  return read_each(type, texts, samples, width, count);
}
}
