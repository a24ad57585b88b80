// Frames through a pulldown, labels of other families, clock time, and the settings of the module's host.

#include <pybind11/stl.h>

#include <optional>
#include <string>
#include <utility>

#include "core.h"
#include "labelsbase/framecounts.h"
#include "labelsbase/mposnxlate.h"
#include "refhost/refhost.h"

namespace labels_python {
namespace {

namespace py = pybind11;
using labelconvert::request;

// Raises ValueError with the first obstacle.
label_conversion make_conversion(label_t from, Kiv::FrameRate from_rate, label_t to, Kiv::FrameRate to_rate,
                                 std::optional<labelconvert::shared> by, std::pair<int, int> sync,
                                 labelconvert::rounding round, transfer_type transfer, int phase) {
  request const asked{.from = {from, from_rate},
                      .to = {to, to_rate},
                      .by = by,
                      .sync = {sync.first, sync.second},
                      .round = round,
                      .transfer = transfer,
                      .phase = phase};
  auto const obstacle = labelconvert::find_obstacle(asked);
  if (obstacle != labelconvert::obstacle::none)
    throw py::value_error{std::string{labelconvert::explain(obstacle)}};
  return {labelconvert::conversion{asked}, labelcheck::range_of(from), labelcheck::range_of(to)};
}

// Returns (sample, before, after) for a sample with a label, or None.
py::object convert_one(label_conversion const& conversion, int sample) {
  auto const answer = conversion.samples.of(sample);
  if (!answer) return py::none{};
  return py::make_tuple(answer->sample, answer->before, answer->after);
}

// Returns (video frame, whether the added frame ends the cycle), or None.
py::object video_of_film(int film, int phase, int last_phase, transfer_type transfer) {
  int video = 0;
  int const done = film_frames_to_video_frames(film, &video, phase, last_phase, transfer);
  return done ? py::make_tuple(video, done == 2) : py::object{py::none{}};
}

// Returns (film frame, phase), or None.
py::object film_of_video(int video, int phase, transfer_type transfer) {
  int film = 0;
  int phase_there = phase;
  int const done = video_frames_to_film_frames(video, &film, phase, &phase_there, transfer);
  return done ? py::make_tuple(film, phase_there) : py::object{py::none{}};
}

py::list settings() {
  py::list all;
  for (auto const& setting : refhost::setting_list())
    all.append(py::make_tuple(setting.key, setting.meaning, setting.expected));
  return all;
}

}  // namespace

void add_counting(py::module_& module) {
  using labelconvert::rounding;
  using labelconvert::shared;
  py::enum_<shared>(module, "Shared").value("time", shared::time).value("frame", shared::frame);
  py::enum_<rounding>(module, "Rounding")
      .value("down", rounding::down)
      .value("near", rounding::near)
      .value("up", rounding::up);
  py::class_<label_conversion>(module, "Conversion").def(py::init(&make_conversion));
  module.def("convert_one", convert_one);

  module.def("video_of_film", video_of_film);
  module.def("film_of_video", film_of_video);
  module.attr("FRAMES_BY_PHASE") = std::string{labelconvert::frames_by_phase};

  module.def("clock_to_cel", [](double seconds) { return mPosn_Xlate_ClockToCel(seconds); });
  module.def("cel_to_clock", [](double seconds) { return mPosn_Xlate_CelToClock(seconds); });
  module.def("settings", settings);
  module.def("set_option",
             [](std::string const& key, std::string const& value) { return refhost::set_option(key, value); });
}

}  // namespace labels_python
