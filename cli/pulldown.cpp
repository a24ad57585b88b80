#include "cli/pulldown.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iterator>

namespace cli {
namespace {

// clang-format off
constexpr pulldown pulldowns[] = {
//  name     transfer              film  video  phase
    {"none",  Transfer_none,          1,     1, 0},
    {"2:3",   Transfer_2_3_pulldown,  4,     5, 0},
    {"24:25", Transfer_24_to_25,     24,    25, 0},
};
// clang-format on

}  // namespace

void add_pulldown(CLI::App& verb, pulldown_arguments& given, char const* usual) {
  given.transfer = usual;
  verb.add_option("--transfer", given.transfer,
                  "2:3 (24 to 30 frames a second), 24:25 (one frame more a second) or none")
      ->option_text(std::string{"NAME ["} + usual + "]")
      ->allow_extra_args(false);
  verb.add_option("--phase", given.phase,
                  "Where a cycle has its added video frame: after this film frame, 0 being the first of the cycle."
                  " From 0 to 4, or 24 for 24:25; the last stands for before the first")
      ->option_text("N [0]")
      ->allow_extra_args(false);
}

std::optional<pulldown> find_pulldown(pulldown_arguments const& given, messages& errors) {
  auto const* const row =
      std::ranges::find_if(pulldowns, [&](pulldown const& p) { return given.transfer == p.name; });
  if (row == std::end(pulldowns)) {
    errors.say("--transfer " + cli::quoted(given.transfer) + " is no transfer; expected none, 2:3 or 24:25");
    return std::nullopt;
  }
  bool const has_phases = row->film_cycle != row->video_cycle;
  if (!has_phases && given.phase != 0) {
    errors.say("--phase " + std::to_string(given.phase) + ": there are phases with --transfer 2:3 and 24:25 only");
    return std::nullopt;
  }
  if (given.phase < 0 || given.phase > row->film_cycle) {
    errors.say("--phase " + std::to_string(given.phase) + ": the phases of " + row->name + " run from 0 to " +
               std::to_string(row->film_cycle));
    return std::nullopt;
  }
  auto found = *row;
  found.phase = given.phase;
  return found;
}

}  // namespace cli
