// The parts of the module _core. The package's Python files wrap it: they check types of arguments, name things
// and carry the documentation.
#pragma once

#include <pybind11/pybind11.h>

#include <string>
#include <variant>

#include "enumerations.h"
#include "labelcheck/read.h"
#include "labelsbase/labelcvt/label_types.h"

namespace labels_python {

// What becomes of a label that does not exist.
enum class illegal_labels {
  refuse,
  nearest,  // the nearest valid label is read in its place
  as_is,    // read as the library does
};

// Reads a label. The prefix of what was read is valid while `text` and `respelt` are. `text` must be followed by a
// terminator. Allocates nothing for a valid label.
[[nodiscard]] std::variant<labelcheck::reading, labelcheck::refusal> read_label(label_t type,
                                                                                std::string_view text,
                                                                                illegal_labels illegal,
                                                                                std::string& respelt);

void add_arrays(pybind11::module_& module);
void add_catalogue(pybind11::module_& module);
void add_counting(pybind11::module_& module);
void add_labels(pybind11::module_& module);

}  // namespace labels_python
