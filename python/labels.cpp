// Single labels: texts, sums and keep strings.

#include <pybind11/stl.h>

#include <algorithm>
#include <optional>
#include <string>
#include <variant>

#include "core.h"
#include "labelcheck/range.h"
#include "labelcheck/sums.h"
#include "labelcheck/write.h"
#include "labelsbase/labels.h"
#include "labelsbase/samples.h"

namespace labels_python {
namespace {

namespace py = pybind11;

bool is_printable(char c) noexcept { return c >= ' ' && c <= '~'; }

LabelPoint point_of(label_t type, int sample, std::string const& prefix) {
  LabelPoint point{type, 0};
  point.sample = sample;
  point.prefix[prefix.copy(point.prefix, LabelPoint::prefix_length)] = '\0';
  return point;
}

// Returns (sample, prefix), or (field, position, nearest, reason) for a text that is refused.
py::tuple read_text(label_t type, plain_text const& text, illegal_labels illegal) {
  auto const read = labelcheck::read(type, text.bytes);
  auto const answer = [](labelcheck::reading const& label) {
    return py::make_tuple(label.sample, plain_text{std::string{label.prefix}});
  };
  if (auto const* const label = std::get_if<labelcheck::reading>(&read)) return answer(*label);
  auto const& refused = std::get<labelcheck::refusal>(read);
  std::string respelt;
  if (auto const label = read_illegal(refused, text.bytes, illegal, respelt)) return answer(*label);
  return py::make_tuple(labelcheck::field_name(refused.wrong), refused.position, plain_text{refused.nearest},
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
    label.start.removePadding();
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
    auto const type = label.start.cvt()->type();
    std::string_view const prefix_and_count = label.start.prefix;
    auto const length = static_cast<std::size_t>(labelsbase::facts_of(type).film.prefix_length);
    return {type,
            std::string{prefix_and_count.substr(0, length)},
            label.start.sample,
            label.length,
            label.pitch,
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

std::optional<labelcheck::reading> read_illegal(labelcheck::refusal const& refused, std::string_view text,
                                                illegal_labels illegal, std::string& respelt) {
  if (illegal == illegal_labels::nearest && !refused.nearest.empty()) {
    respelt = refused.nearest;
    return std::get<labelcheck::reading>(labelcheck::read(refused.type, respelt));
  }
  bool const stops_early = text.find('\0') != std::string_view::npos;
  auto const& facts = labelsbase::facts_of(refused.type);
  if (illegal != illegal_labels::as_is || stops_early || !facts.has_labels()) return std::nullopt;

  respelt = text;
  int const sample = get_static_label_cvt(refused.type)->get_abs_sample(respelt.c_str());
  if (sample == labelsbase::invalid_sample || sample == labelsbase::unreadable_negative_sample)
    return std::nullopt;
  auto const length = static_cast<std::size_t>(facts.film.prefix_length);
  auto const prefix = text.size() < length ? "" : std::string_view{respelt}.substr(0, length);
  if (!std::ranges::all_of(prefix, is_printable)) return std::nullopt;
  return labelcheck::reading{sample, prefix};
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
  module.def("has_label", [](label_t type, int sample) { return labelcheck::range_of(type).has_label(sample); });
  module.def("explain_missing", labelcheck::explain_missing);
  module.def("add_samples", add_samples);

  py::class_<kept>(module, "Kept")
      .def(py::init([](int type, std::string const& prefix, int sample, int length, double pitch, bool bounded,
                       int medium, int generation) {
        return kept{static_cast<label_t>(type), prefix, sample, length, pitch, bounded, medium, generation};
      }))
      .def_readonly("type", &kept::type)
      .def_property_readonly("prefix", [](kept const& fields) { return plain_text{fields.prefix}; })
      .def_readonly("sample", &kept::sample)
      .def_readonly("length", &kept::length)
      .def_readonly("pitch", &kept::pitch)
      .def_readonly("bounded", &kept::bounded)
      .def_readonly("medium", &kept::medium)
      .def_readonly("generation", &kept::generation);
  module.def("read_keep", [](plain_text const& text) { return kept::of(Label{text.bytes.c_str()}); });
  module.def("read_edit_keep", [](plain_text const& text) { return kept::of(EditLabel{text.bytes.c_str()}); });
  module.def("write_keep", write_keep);
  module.def("write_edit_keep", write_edit_keep);
  module.def("natural_pitch", Label::get_natural_pitch);
  module.def("pitch_on", pitch_on);
  module.attr("INVALID_SAMPLE") = labelsbase::invalid_sample;
}

}  // namespace labels_python
