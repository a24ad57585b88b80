// The plain loops that the arrays of the Python module are compared with: one thread, fixed-width texts.

#include <cstddef>
#include <cstring>
#include <variant>

#include "labelcheck/read.h"
#include "labelcheck/write.h"

extern "C" {

void write_labels(label_t type, int const* samples, char* texts, std::size_t width, std::size_t count);
int read_labels(label_t type, char const* texts, int* samples, std::size_t width, std::size_t count);

void write_labels(label_t type, int const* samples, char* texts, std::size_t width, std::size_t count) {
  labelcheck::writer labels{type};
  for (std::size_t i = 0; i < count; ++i, texts += width) {
    auto const label = labels.write(samples[i]);
    std::memcpy(texts, label.data(), label.size());
  }
}

// Returns whether all texts are labels.
int read_labels(label_t type, char const* texts, int* samples, std::size_t width, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i, texts += width) {
    auto const read = labelcheck::read(type, {texts, width});
    auto const* const label = std::get_if<labelcheck::reading>(&read);
    if (!label) return 0;
    samples[i] = label->sample;
  }
  return 1;
}
}
