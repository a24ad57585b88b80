// The tables of the library: label types and their names, rates, media, label choices.

#include <pybind11/stl.h>

#include <string>
#include <utility>
#include <vector>

#include "core.h"
#include "labelnames/names.h"
#include "labelsbase/MediumRoll.h"
#include "labelsbase/labelcvt/label_facts.h"
#include "labelsbase/labelcvt/rate_facts.h"
#include "labelsbase/uiflabels.h"

namespace labels_python {
namespace {

namespace py = pybind11;
using namespace py::literals;

// The names and numbers of an enumeration.
using members = std::vector<std::pair<std::string, int>>;

members label_types() {
  members types;
  for (auto const& facts : labelsbase::all_label_facts)
    if (*facts.name) types.emplace_back(facts.name, facts.type);
  return types;
}

members media() {
  members found;
  for (int number = 0; number < labelsbase::medium_count; ++number) {
    std::string const name = labelsbase::medium_name(static_cast<MediumRollMedium>(number));
    if (!name.empty()) found.emplace_back(name, number);
  }
  return found;
}

py::dict facts_of(label_t type) {
  auto const& facts = labelsbase::facts_of(type);
  return py::dict("name"_a = facts.name, "family"_a = facts.family, "has_labels"_a = facts.has_labels(),
                  "is_timecode"_a = facts.is_timecode(), "is_film"_a = facts.is_film(),
                  "frames_per_second"_a = facts.timecode.frames_per_second,
                  "drop_frame"_a = facts.timecode.drop_frame, "samples_per_frame"_a = facts.samples_per_frame(),
                  "frames_per_count"_a = facts.film.gauge.perfs_per_count() / facts.samples_per_frame(),
                  "prefix_length"_a = facts.film.prefix_length, "exchange_name"_a = facts.exchange.written,
                  "feet"_a = facts.siblings.feet, "ink"_a = facts.siblings.ink, "key"_a = facts.siblings.key,
                  "natural_rate"_a = labelnames::natural_rate(type));
}

std::vector<std::pair<int, double>> rates() {
  std::vector<std::pair<int, double>> found;
  for (auto const& facts : labelsbase::all_rate_facts) found.emplace_back(facts.rate, facts.frames_per_second());
  return found;
}

// Returns (names, type, rate, meaning) of every name that people use.
py::list all_names() {
  py::list names;
  for (auto const& row : labelnames::all_names())
    names.append(py::make_tuple(row.names, row.named().type, row.rate, row.meaning));
  return names;
}

py::object find_name(plain_text const& text) {
  auto const named = labelnames::find(text.bytes);
  return named ? py::make_tuple(named->type, named->rate) : py::object{py::none{}};
}

MediumRollIdent roll_of(MediumRollMedium medium, MediumRollGeneration generation) noexcept {
  return {medium, generation};
}

}  // namespace

void add_catalogue(py::module_& module) {
  module.def("label_types", label_types);
  module.def("facts_of", facts_of);
  module.def("rates", rates);
  module.def("all_names", all_names);
  module.def("find_name", find_name);
  module.def("nearest_names", [](plain_text const& text) { return labelnames::nearest(text.bytes); });

  module.def("media", media);
  module.def("medium_rate", getFrameRatefromMedium);
  module.def("medium_label_type", getDefaultLabelTypeForMedium);
  module.def("medium_is_progressive", mediumRollIsFrameProgressive);
  module.def("medium_sample_seconds", getSampleDurationFromMedium);
  module.def("read_roll", [](plain_text const& text, UserLabelType family) {
    MediumRollIdent ident;
    MediumRollId_from_string(text.bytes.c_str(), ident, family);
    return py::make_tuple(ident.medium, ident.generation);
  });
  module.def("write_roll", [](MediumRollMedium medium, MediumRollGeneration generation) {
    char text[labelsbase::identifier_text_size];
    MediumRollId_to_string(text, roll_of(medium, generation));
    return std::string{text};
  });
  module.def("roll_for_users", [](MediumRollMedium medium, MediumRollGeneration generation) {
    return std::string{MediumRollId_to_UserString(roll_of(medium, generation))};
  });
  module.def("roll_fits", [](MediumRollMedium medium, MediumRollGeneration generation,
                             MediumRollMedium other_medium, MediumRollGeneration other_generation) {
    return roll_of(medium, generation).MediumRollId_fits_this(roll_of(other_medium, other_generation)) != 0;
  });
  module.def("read_reel", [](plain_text const& text) {
    MediumRoll const roll{text.bytes.c_str()};
    return py::make_tuple(roll.ident.medium, roll.ident.generation, plain_text{roll.reelid.c_str()});
  });

  module.attr("CHOICE_COUNT") = static_cast<int>(uif_cd) + 1;
  module.def("choice_of", [](VagueUIFLabel choice) {
    auto const& roll = uifLabelMedroll(choice);
    return py::make_tuple(uifLabel_to_config_str(choice), uifLabelText(choice), uifLabelType(choice), roll.medium,
                          roll.generation);
  });
  module.def("find_choice",
             [](plain_text const& keyword) { return config_str_to_uifLabel(keyword.bytes.c_str()); });
}

}  // namespace labels_python
