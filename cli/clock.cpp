#include <CLI/CLI.hpp>
#include <cmath>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "cli/arguments.h"
#include "cli/items.h"
#include "cli/messages.h"
#include "cli/numbers.h"
#include "cli/verbs.h"
#include "labelsbase/mposnxlate.h"
#include "labelsbase/samples.h"
#include "refhost/refhost.h"

namespace cli {
namespace {

struct arguments {
  std::vector<std::string> seconds;
  std::optional<std::string> project_rate;
  std::optional<std::string> output_rate;
  bool pulled_down = false;
  bool back = false;
};

// Sets what the options say, which is what --set says of the same names. False when anything is wrong, which is
// said.
bool apply_options(arguments const& given, messages& errors) {
  bool all_right = true;
  auto const set = [&](char const* key, std::string const& value) {
    auto const wrong = refhost::set_option(key, value);
    if (wrong) errors.say("--" + *wrong);
    all_right = all_right && !wrong;
    return !wrong;
  };
  // The output picture is played out as it is.
  if (given.project_rate) set("project-rate", *given.project_rate);
  if (given.output_rate && set("output-rate", *given.output_rate)) set("gearing-rate", *given.output_rate);
  if (given.pulled_down && set("output-pulled-down", "yes")) set("gearing-pulldown", "yes");
  return all_right;
}

exit_status clock(arguments const& given, console& io) {
  if (!apply_options(given, io.errors)) return failed;
  MPosn_Xlate_Params project{Kiv::OutputGearing{1}};

  return for_each_item(given.seconds, io, [&](std::string_view text) -> problem {
    auto const seconds = decimal(text);
    if (!seconds || !(std::abs(*seconds) < labelsbase::invalid_posn))
      return "expected seconds, for example 3600 or -0.04, between -1e99 and 1e99";
    io.results.line(shortest(given.back ? mPosn_Xlate_CelToClock(*seconds, project)
                                        : mPosn_Xlate_ClockToCel(*seconds, project)));
    return std::nullopt;
  });
}

}  // namespace

verb_run declare_clock(CLI::App& verb) {
  auto const given = std::make_shared<arguments>();
  add_operands(verb, "SECONDS", "Clock time in seconds, for example 3600", given->seconds);
  auto const add_rate = [&](char const* name, auto& rate, char const* meaning) {
    verb.add_option(name, rate, meaning)->option_text("RATE")->allow_extra_args(false);
  };
  add_rate("--project-rate", given->project_rate, "Frame rate of the project");
  add_rate("--output-rate", given->output_rate,
           "Frame rate of the output; without it, that of the playout setting");
  verb.add_flag("--pulled-down", given->pulled_down, "Film reaches the output through a pulldown");
  verb.add_flag("--back", given->back, "From cel time to clock time");
  return [given](console& io) { return clock(*given, io); };
}

}  // namespace cli
