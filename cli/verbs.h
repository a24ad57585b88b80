// What the tool can do, a verb a file.
#pragma once

#include <functional>

#include "cli/console.h"

namespace CLI {
class App;
}

namespace cli {

// Does what the command line asks of a verb.
using verb_run = std::function<exit_status(console&)>;

// Each declares the arguments of its verb, and gives what is to be run once they are known.
[[nodiscard]] verb_run declare_types(CLI::App& verb);
[[nodiscard]] verb_run declare_show(CLI::App& verb);
[[nodiscard]] verb_run declare_read(CLI::App& verb);
[[nodiscard]] verb_run declare_add(CLI::App& verb);
[[nodiscard]] verb_run declare_diff(CLI::App& verb);
[[nodiscard]] verb_run declare_count(CLI::App& verb);
[[nodiscard]] verb_run declare_cadence(CLI::App& verb);
[[nodiscard]] verb_run declare_media(CLI::App& verb);
[[nodiscard]] verb_run declare_roll(CLI::App& verb);
[[nodiscard]] verb_run declare_clock(CLI::App& verb);
[[nodiscard]] verb_run declare_keep(CLI::App& verb);
[[nodiscard]] verb_run declare_pitch(CLI::App& verb);
[[nodiscard]] verb_run declare_choices(CLI::App& verb);

}  // namespace cli
