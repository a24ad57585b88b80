// Frames through a pulldown, labels of other families, clock time, and the settings of the module's host.

#include <pybind11/stl.h>

#include <optional>
#include <string>

#include "core.h"
#include "labelconvert/conversion.h"
#include "labelsbase/framecounts.h"
#include "labelsbase/framecounts/transfers.h"
#include "labelsbase/mposnxlate.h"
#include "refhost/refhost.h"

namespace labels_python {
namespace {

namespace py = pybind11;
using labelconvert::conversion;
using labelconvert::request;

// Names as the package writes them: "time", "near". Returns nothing for another name.
std::optional<labelconvert::shared> shared_named(std::string const& name) {
  if (name == "time") return labelconvert::shared::time;
  if (name == "frame") return labelconvert::shared::frame;
  return std::nullopt;
}

labelconvert::rounding rounding_named(std::string const& name) {
  if (name == "down") return labelconvert::rounding::down;
  if (name == "up") return labelconvert::rounding::up;
  return labelconvert::rounding::near;
}

// Raises ValueError with the first obstacle.
conversion make_conversion(label_t from, Kiv::FrameRate from_rate, label_t to, Kiv::FrameRate to_rate,
                           std::optional<std::string> const& by, std::pair<int, int> sync,
                           std::string const& round, transfer_type transfer, int phase) {
  request const asked{.from = {from, from_rate},
                      .to = {to, to_rate},
                      .by = by ? shared_named(*by) : std::nullopt,
                      .sync = {sync.first, sync.second},
                      .round = rounding_named(round),
                      .transfer = transfer,
                      .phase = phase};
  auto const obstacle = labelconvert::find_obstacle(asked);
  if (obstacle != labelconvert::obstacle::none)
    throw py::value_error{std::string{labelconvert::explain(obstacle)}};
  return conversion{asked};
}

// Returns (sample, before, after), or None.
py::object convert_one(conversion const& conversion, int sample) {
  auto const answer = conversion.of(sample);
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

// Returns (film frames, video frames) of a cycle, or None.
py::object cycle_of(transfer_type transfer) {
  auto const* const facts = labelsbase::find_transfer(transfer);
  return facts ? py::make_tuple(facts->film_cycle, facts->video_cycle) : py::object{py::none{}};
}

py::list settings() {
  py::list all;
  for (auto const& setting : refhost::setting_list())
    all.append(py::make_tuple(setting.key, setting.meaning, setting.expected));
  return all;
}

}  // namespace

void add_counting(py::module_& module) {
  py::class_<conversion>(module, "Conversion").def(py::init(&make_conversion));
  module.def("convert_one", convert_one);

  module.def("video_of_film", video_of_film);
  module.def("film_of_video", film_of_video);
  module.def("cycle_of", cycle_of);

  module.def("clock_to_cel", [](double seconds) { return mPosn_Xlate_ClockToCel(seconds); });
  module.def("cel_to_clock", [](double seconds) { return mPosn_Xlate_CelToClock(seconds); });
  module.def("settings", settings);
  module.def("set_option",
             [](std::string const& key, std::string const& value) { return refhost::set_option(key, value); });
}

}  // namespace labels_python
