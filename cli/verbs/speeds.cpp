// pitch and clock: how fast labels and clocks run.

#include <cmath>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/item_records.h"
#include "cli/names.h"
#include "cli/text.h"
#include "labelsbase/labels.h"
#include "labelsbase/mposnxlate.h"
#include "labelsbase/samples.h"
#include "refhost/refhost.h"

namespace cli {
namespace {

struct pitch_arguments {
  std::string type, medium;
  std::string format;
};

constexpr field pitch_fields[] = {
    {"label_type", value_type::text, "Class name of the label type"},
    {"medium", value_type::text, "Name of the medium"},
    {"medium_number", value_type::integer, "Number of the medium"},
    {"seconds_per_sample", value_type::number, "Seconds a sample on this medium"},
    {"samples_per_second", value_type::number, "Samples a second on this medium"},
    {"natural_seconds_per_sample", value_type::number, "Seconds a sample as the labels count"},
    {"reason", value_type::text, "Why labels run at this speed"},
};

char const* reason(EditLabel const& label) {
  if (!label.pitch_fixed) return "no medium changes the speed of this type";
  if (label.medium_roll.medium == Medium_film && label.pitch == 1.0 / 24) return "film runs at 24 frames a second";
  bool const is_slower = std::abs(label.pitch * label.start.cvt()->get_modulus() - 1.001) < 1e-9;
  return is_slower ? "the medium runs slower than the labels count, by 1000/1001"
                   : "the medium runs as the labels count";
}

exit_status pitch(pitch_arguments const& given, console& io) {
  auto const type = find_label_type("TYPE", given.type);
  auto const roll = find_medium_roll("MEDIUM", given.medium, User_any);

  EditLabel label{Label{type}, roll};
  label.fixup_pitch();
  auto const type_name = label.start.cvt()->type_str();
  auto const medium = labelsbase::medium_name(roll.medium);
  auto const natural = Label::get_natural_pitch(type);
  auto const why = reason(label);

  record_writer rows{find_format(given.format), pitch_fields, io.results, text_layout::lines};
  if (!rows.is_text()) {
    rows.write({type_name, medium, roll.medium, label.pitch, 1 / label.pitch, natural, why});
    return all_well;
  }
  auto const show = [&](char const* name, std::string const& value) { io.results.line(padded(name, 20) + value); };
  show("label type", type_name);
  show("medium", std::string{medium} + " (" + std::to_string(roll.medium) + ")");
  show("seconds per sample", shortest(label.pitch));
  show("samples per second", shortest(1 / label.pitch));
  show("natural", shortest(natural));
  show("why", why);
  return all_well;
}

struct clock_arguments {
  item_arguments seconds;
  std::optional<std::string> project_rate;
  std::optional<std::string> output_rate;
  std::string format;
  bool pulled_down = false;
  bool back = false;
};

constexpr field clock_fields[] = {
    input_field,
    {"seconds", value_type::number, "Cel time in seconds; with --back, clock time", "seconds", may_be_missing},
    problem_field,
};

// Sets what the options name, as --set does. Reports every error; returns false if there was one.
bool apply_options(clock_arguments const& given, console& io) {
  bool all_applied = true;
  auto const set = [&](char const* key, std::string const& value) {
    auto const error = refhost::set_option(key, value);
    if (error) io.say("--" + *error);
    all_applied = all_applied && !error;
    return !error;
  };
  // The output picture is played out as it is.
  if (given.project_rate) set("project-rate", *given.project_rate);
  if (given.output_rate && set("output-rate", *given.output_rate)) set("gearing-rate", *given.output_rate);
  if (given.pulled_down && set("output-pulled-down", "yes")) set("gearing-pulldown", "yes");
  return all_applied;
}

exit_status clock(clock_arguments const& given, console& io) {
  if (!apply_options(given, io)) return failed;
  MPosn_Xlate_Params project{Kiv::OutputGearing{1}};

  return for_each_item(given.seconds, find_format(given.format), clock_fields, io,
                       [&](std::string_view text, std::span<value> found) -> problem {
                         auto const seconds = decimal(text);
                         if (!seconds || !(std::abs(*seconds) < labelsbase::invalid_posn))
                           return "expected seconds, for example 3600 or -0.04, between -1e99 and 1e99";
                         found[0] = given.back ? mPosn_Xlate_CelToClock(*seconds, project)
                                               : mPosn_Xlate_ClockToCel(*seconds, project);
                         return std::nullopt;
                       });
}

}  // namespace

command_run commands::declare_pitch(CLI::App& command) {
  auto const given = std::make_shared<pitch_arguments>();
  add_type(command, given->type);
  add_required(command, "MEDIUM", given->medium, "Number (22) or name (src_2997p) from 'labels media'");
  add_format(command, given->format, pitch_fields);
  add_examples(
      command,
      {{"pitch 29.97df src_2997p",
        "label type          ntsc_drop_label\nmedium              src_2997p (22)\nseconds per sample  "
        "0.03336666666666667\nsamples per second  29.970029970029966\nnatural             "
        "0.03336666666666667\nwhy                 the medium runs slower than the labels count, by 1000/1001"},
       {"pitch 35mm film",
        "label type          keycode_35_label\nmedium              film (2)\nseconds per sample  "
        "0.010416666666666666\nsamples per second  96\nnatural             0.010416666666666666\nwhy              "
        "   no medium changes the speed of this type"}});
  return [given](console& io) { return pitch(*given, io); };
}

command_run commands::declare_clock(CLI::App& command) {
  auto const given = std::make_shared<clock_arguments>();
  add_items(command, "SECONDS", "Clock time in seconds, for example 3600; with --back, cel time", given->seconds);
  add_option(command, "--project-rate", "RATE", given->project_rate, "Frame rate of the project");
  add_option(command, "--output-rate", "RATE", given->output_rate,
             "Frame rate of the output; without it, the setting gearing-rate counts");
  add_flag(command, "--pulled-down", given->pulled_down, "Film is output through a pulldown");
  add_flag(command, "--back", given->back, "Convert cel time to clock time");
  add_format(command, given->format, clock_fields);
  add_examples(command, {{"clock --project-rate 24 --output-rate 29.97 3600", "4495.504495504496"},
                         {"clock --project-rate 24 --output-rate 29.97 --pulled-down --back 1", "1.001"}});
  return [given](console& io) { return clock(*given, io); };
}

}  // namespace cli
