// Loops over NumPy arrays. Each function takes one-dimensional arrays of one length, with any stride, and releases
// the interpreter's lock while it runs. It returns the index of the first item that it refuses, or -1 if there is
// none. The package hands over arrays of other shapes piece by piece, in the types that are read and written here.

#include <pybind11/numpy.h>

#include <cstdint>

#include "core.h"
#include "labelcheck/sums.h"
#include "rows.h"

namespace labels_python {
namespace {

namespace py = pybind11;

py::ssize_t convert_samples(label_conversion const& conversion, bool exact, py::array const& samples,
                            py::array converted) {
  auto const from = items_of(samples);
  auto const to = items_of(converted);
  py::gil_scoped_release const others_may_run;
  return first_refused(from.count, [&](py::ssize_t i) {
    auto const answer = conversion.of(item_at<std::int32_t>(from, i));
    if (!answer || (exact && !answer->is_exact())) return false;
    set_item(to, i, answer->sample);
    return true;
  });
}

// `counts` are 64-bit numbers of samples.
py::ssize_t add_counts(label_t type, py::array const& samples, py::array const& counts, py::array sums) {
  LabelPoint start{type, 0};
  auto const from = items_of(samples);
  auto const by = items_of(counts);
  auto const to = items_of(sums);
  py::gil_scoped_release const others_may_run;
  return first_refused(from.count, [&](py::ssize_t i) {
    start.sample = item_at<std::int32_t>(from, i);
    auto const [sample, problem] = labelcheck::add_samples(start, item_at<std::int64_t>(by, i));
    set_item(to, i, sample);
    return problem == nullptr;
  });
}

py::ssize_t subtract(label_t type, py::array const& from_samples, py::array const& samples,
                     py::array differences) {
  LabelPoint a{type, 0};
  LabelPoint b{type, 0};
  auto const from = items_of(from_samples);
  auto const less = items_of(samples);
  auto const to = items_of(differences);
  py::gil_scoped_release const others_may_run;
  return first_refused(from.count, [&](py::ssize_t i) {
    a.sample = item_at<std::int32_t>(from, i);
    b.sample = item_at<std::int32_t>(less, i);
    if (!labelcheck::is_sample(std::int64_t{a.sample} - b.sample)) return false;
    set_item(to, i, (a - b).sample);
    return true;
  });
}

}  // namespace

void add_arrays(py::module_& module) {
  module.def("convert_samples", convert_samples);
  module.def("add_counts", add_counts);
  module.def("subtract", subtract);
}

}  // namespace labels_python
