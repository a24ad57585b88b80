#include "core.h"
#include "labelsbase/version.h"

PYBIND11_MODULE(_core, module) {
  module.doc() = "The compiled part of labelsbase; the package wraps it.";
  module.attr("__version__") = labelsBaseDllVersionStr();
  labels_python::add_labels(module);
  labels_python::add_catalogue(module);
  labels_python::add_counting(module);
  labels_python::add_arrays(module);
  labels_python::add_text_arrays(module);
}
