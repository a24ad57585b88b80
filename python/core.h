// The parts of the module _core. The package's Python files wrap it: they check types of arguments, name things
// and carry the documentation.
#pragma once

#include <pybind11/pybind11.h>

#include <optional>
#include <string>

#include "casters.h"
#include "labelcheck/range.h"
#include "labelcheck/read.h"
#include "labelconvert/conversion.h"
#include "labelsbase/labelcvt/label_types.h"

namespace labels_python {

// What becomes of a label that does not exist.
enum class illegal_labels {
  refuse,
  nearest,  // the nearest valid label is read in its place
  as_is,    // read as the library does
};

// Reads a text that was refused as `illegal` says, or returns nothing if that cannot be done. The prefix of what
// was read is valid while `respelt` is.
[[nodiscard]] std::optional<labelcheck::reading> read_illegal(labelcheck::refusal const& refused,
                                                              std::string_view text, illegal_labels illegal,
                                                              std::string& respelt);

// Converts samples that have a label to samples that have one.
struct label_conversion {
  labelconvert::conversion samples;
  labelcheck::sample_range from;
  labelcheck::sample_range to;

  // Returns nothing if either sample has no label.
  [[nodiscard]] std::optional<labelconvert::answer> of(int sample) const noexcept {
    if (!from.has_label(sample)) return std::nullopt;
    auto const answer = samples.of(sample);
    return answer && to.has_label(answer->sample) ? answer : std::nullopt;
  }
};

void add_arrays(pybind11::module_& module);
void add_catalogue(pybind11::module_& module);
void add_counting(pybind11::module_& module);
void add_labels(pybind11::module_& module);
void add_text_arrays(pybind11::module_& module);

}  // namespace labels_python
