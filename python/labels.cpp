// Single labels: texts, sums and keep strings.

#include <pybind11/stl.h>

#include <string>

#include "core.h"
#include "labelcheck/range.h"
#include "labelcheck/sums.h"
#include "labelcheck/write.h"
#include "labelsbase/labels.h"
#include "labelsbase/samples.h"

namespace labels_python {
namespace {

namespace py = pybind11;

LabelPoint point_of(label_t type, int sample, std::string const& prefix) {
  LabelPoint point{type, 0};
  point.sample = sample;
  point.prefix[prefix.copy(point.prefix, LabelPoint::prefix_length)] = '\0';
  return point;
}

// Returns (sample, prefix), or (field, position, nearest, reason) for a text that is refused.
py::tuple read_text(label_t type, std::string const& text, illegal_labels illegal) {
  std::string respelt;
  auto const read = read_label(type, text, illegal, respelt);
  if (auto const* const label = std::get_if<labelcheck::reading>(&read))
    return py::make_tuple(label->sample, std::string{label->prefix});
  auto const& refused = std::get<labelcheck::refusal>(read);
  return py::make_tuple(labelcheck::field_name(refused.wrong), refused.position, refused.nearest,
                        labelcheck::explain(refused));
}

// Returns an empty text if the sample has no label.
std::string write_text(label_t type, int sample, std::string const& prefix, labelcheck::label_style style) {
  return std::string{labelcheck::writer{type, prefix, style}.write(sample)};
}

// Returns the sum, or why there is none.
std::variant<int, std::string> add_samples(label_t type, int sample, std::string const& prefix,
                                           std::int64_t samples) {
  auto const [sum, problem] = labelcheck::add_samples(point_of(type, sample, prefix), samples);
  if (problem) return problem;
  return sum;
}

// What a keep string holds.
struct kept {
  label_t type = null_label_t;
  std::string prefix{};
  int sample = 0;
  int length = 0;
  double pitch = 0;
  bool bounded = false;
  int medium = Medium_any;
  int generation = Gen_any;

  [[nodiscard]] Label label() const {
    Label label{point_of(type, sample, prefix)};
    label.length = length;
    label.pitch = pitch;
    label.bounded = bounded;
    return label;
  }

  [[nodiscard]] EditLabel edit_label() const {
    EditLabel label{this->label(), roll()};
    label.pitch = pitch;
    return label;
  }

  [[nodiscard]] MediumRollIdent roll() const noexcept {
    return {static_cast<MediumRollMedium>(medium), static_cast<MediumRollGeneration>(generation)};
  }

  [[nodiscard]] static kept of(Label const& label) {
    return {label.start.cvt()->type(), label.start.prefix, label.start.sample, label.length, label.pitch,
            label.bounded != 0};
  }

  [[nodiscard]] static kept of(EditLabel const& label) {
    auto fields = of(static_cast<Label const&>(label));
    fields.medium = label.medium_roll.medium;
    fields.generation = label.medium_roll.generation;
    return fields;
  }
};

std::string write_keep(kept const& fields) {
  char text[Label::keep_string_size];
  return fields.label().make_keep_string(text);
}

std::string write_edit_keep(kept const& fields) {
  auto label = fields.edit_label();
  return label.make_keep_string(nullptr);
}

// Returns seconds per sample of a type on a medium.
double pitch_on(label_t type, int medium, int generation) {
  EditLabel label{Label{type}, kept{.medium = medium, .generation = generation}.roll()};
  label.fixup_pitch();
  return label.pitch;
}

}  // namespace

std::variant<labelcheck::reading, labelcheck::refusal> read_label(label_t type, std::string_view text,
                                                                  illegal_labels illegal, std::string& respelt) {
  auto read = labelcheck::read(type, text);
  auto const* const refused = std::get_if<labelcheck::refusal>(&read);
  if (!refused || illegal == illegal_labels::refuse) return read;
  if (illegal == illegal_labels::nearest) {
    if (refused->nearest.empty()) return read;
    respelt = refused->nearest;
    return labelcheck::read(type, respelt);
  }
  if (text.find('\0') != std::string_view::npos) return read;  // the library would stop there
  respelt = text;
  auto& converter = *get_static_label_cvt(type);
  int const sample = converter.get_abs_sample(respelt.c_str());
  if (sample == labelsbase::invalid_sample || sample == labelsbase::unreadable_negative_sample) return read;
  auto const prefix_length = static_cast<std::size_t>(labelsbase::facts_of(type).film.prefix_length);
  return labelcheck::reading{sample, std::string_view{respelt}.substr(0, prefix_length)};
}

void add_labels(py::module_& module) {
  py::enum_<illegal_labels>(module, "Illegal")
      .value("refuse", illegal_labels::refuse)
      .value("nearest", illegal_labels::nearest)
      .value("as_is", illegal_labels::as_is);
  py::enum_<labelcheck::label_style>(module, "Style")
      .value("own", labelcheck::label_style::own)
      .value("exchange", labelcheck::label_style::exchange);

  module.def("read_text", read_text);
  module.def("write_text", write_text);
  module.def("explain_missing", labelcheck::explain_missing);
  module.def("add_samples", add_samples);

  py::class_<kept>(module, "Kept")
      .def(py::init([](int type, std::string const& prefix, int sample, int length, double pitch, bool bounded,
                       int medium, int generation) {
        return kept{static_cast<label_t>(type), prefix, sample, length, pitch, bounded, medium, generation};
      }))
      .def_readonly("type", &kept::type)
      .def_readonly("prefix", &kept::prefix)
      .def_readonly("sample", &kept::sample)
      .def_readonly("length", &kept::length)
      .def_readonly("pitch", &kept::pitch)
      .def_readonly("bounded", &kept::bounded)
      .def_readonly("medium", &kept::medium)
      .def_readonly("generation", &kept::generation);
  module.def("read_keep", [](std::string const& text) { return kept::of(Label{text.c_str()}); });
  module.def("read_edit_keep", [](std::string const& text) { return kept::of(EditLabel{text.c_str()}); });
  module.def("write_keep", write_keep);
  module.def("write_edit_keep", write_edit_keep);
  module.def("natural_pitch", Label::get_natural_pitch);
  module.def("pitch_on", pitch_on);
  module.attr("INVALID_SAMPLE") = labelsbase::invalid_sample;
}

}  // namespace labels_python
