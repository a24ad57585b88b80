#include <CLI/CLI.hpp>
#include <cmath>
#include <memory>
#include <string>

#include "cli/arguments.h"
#include "cli/label_type.h"
#include "cli/medium_roll.h"
#include "cli/messages.h"
#include "cli/numbers.h"
#include "cli/verbs.h"
#include "labelsbase/labels.h"

namespace cli {
namespace {

struct arguments {
  std::string type, medium;
};

std::string reason(EditLabel const& label) {
  if (!label.pitch_fixed) return "no medium changes the speed of this type";
  if (label.medium_roll.medium == Medium_film && label.pitch == 1.0 / 24) return "film runs at 24 frames a second";
  bool const is_slower = std::abs(label.pitch * label.start.cvt()->get_modulus() - 1.001) < 1e-9;
  return is_slower ? "the medium runs slower than the labels count, by 1000/1001"
                   : "the medium runs as the labels count";
}

exit_status pitch(arguments const& given, console& io) {
  auto const type = find_label_type(given.type, io.errors);
  if (!type) return failed;
  MediumRollIdent roll;
  if (auto const wrong = read_medium_roll(given.medium, User_any, roll)) {
    io.errors.say(cli::quoted(given.medium) + ": " + *wrong);
    return failed;
  }

  EditLabel label{Label{*type}, roll};
  label.fixup_pitch();
  auto const say = [&](std::string name, std::string const& value) {
    name.resize(20, ' ');
    io.results.line(name + value);
  };
  say("label type", label.start.cvt()->type_str());
  say("medium", std::string{labelsbase::medium_name(roll.medium)} + " (" + std::to_string(roll.medium) + ")");
  say("seconds per sample", shortest(label.pitch));
  say("samples per second", shortest(1 / label.pitch));
  say("natural", shortest(Label::get_natural_pitch(*type)));
  say("why", reason(label));
  return all_well;
}

}  // namespace

verb_run declare_pitch(CLI::App& verb) {
  auto const given = std::make_shared<arguments>();
  add_type(verb, given->type);
  verb.add_option("MEDIUM", given->medium, "Number (22) or name (src_2997p), as 'labels media' lists them")
      ->required()
      ->option_text("(required)");
  return [given](console& io) { return pitch(*given, io); };
}

}  // namespace cli
