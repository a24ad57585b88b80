// labels: converts labels to samples and back.

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <exception>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "cli/commands.h"
#include "cli/console.h"
#include "cli/settings.h"
#include "cli/text.h"
#include "labelsbase/version.h"

namespace {

struct command_row {
  char const* name;
  char const* purpose;
  cli::command_run (*declare)(CLI::App&);
};

constexpr command_row commands[] = {
#define LABELS_COMMAND_ROW(name, purpose) {#name, purpose, cli::commands::declare_##name},
    LABELS_COMMANDS(LABELS_COMMAND_ROW)
#undef LABELS_COMMAND_ROW
};

// The commands that tell of the others.
constexpr std::string_view describing[] = {"schema", "help", "manual", "completion"};

// Adds the commands, and declares the arguments of one when its name is read: those of all would take most of the
// time of a short run. `run` becomes what the command that is read runs.
class command_set {
 public:
  command_set(CLI::App& app, cli::command_run& run) : run_{run} {
    for (std::size_t i = 0; i < std::size(commands); ++i) {
      added_[i].app = app.add_subcommand(commands[i].name, commands[i].purpose)->group("Commands");
      added_[i].app->preparse_callback([this, i](std::size_t) { choose(i); });
    }
  }

 private:
  struct added_command {
    CLI::App* app = nullptr;
    cli::command_run run{};  // empty until its arguments are declared
  };

  void choose(std::size_t chosen) {
    bool const needs_all = std::ranges::count(describing, commands[chosen].name) > 0;
    for (std::size_t i = 0; i < added_.size(); ++i)
      if ((needs_all || i == chosen) && !added_[i].run) added_[i].run = commands[i].declare(*added_[i].app);
    run_ = added_[chosen].run;
  }

  cli::command_run& run_;
  std::array<added_command, std::size(commands)> added_;
};

constexpr char const* about =
    "Converts labels (timecode, film key numbers, ink numbers, feet and frames) to samples and back.\n"
    "\n"
    "Commands that take any number of operands read them from standard input, one per line, if none\n"
    "are given. Invalid input is reported with the reason; the rest is still processed.\n"
    "\n"
    "Exit codes: 0 if all went well, 1 if some input was refused, 2 for wrong usage or if reading or\n"
    "writing failed.\n";

constexpr char const* examples =
    "Examples:\n"
    "  labels show 29.97df 0 1799 1800 17982\n"
    "  labels read 24 00:59:54:18 01:00:07+00\n"
    "  awk '/^[0-9]+ /{print $NF}' cut.edl | labels read 25\n"
    "  labels show 35mm-3p --prefix KJ123456 0 1 21\n"
    "  labels --set config.50p_timecode_type=2 show 50 7\n"
    "\n"
    "Run 'labels COMMAND --help' for the arguments of a command and more examples.\n";

std::string expected_commands() {
  std::string text{"expected "};
  for (auto const& each : commands) text.append(&each == commands ? "" : ", ").append(each.name);
  return text;
}

// Words the parser's error as the tool's own messages are worded.
std::string what_is_wrong(CLI::App const& app, CLI::ParseError const& error) {
  auto const chosen = app.get_subcommands();
  auto const words = app.remaining();
  bool const is_word_first = !words.empty() && !words.front().starts_with('-');
  if (chosen.empty() && is_word_first)
    return "unknown command " + cli::in_quotes(words.front()) + "; " + expected_commands() +
           "; try 'labels --help'";

  std::string const help = chosen.empty() ? "labels" : "labels " + chosen.front()->get_name();
  std::string what = error.what();
  if (!words.empty())
    what = "unexpected argument " + cli::in_quotes(words.front());
  else if (chosen.empty() && error.get_name() == "RequiredError")
    what = "a command is required; " + expected_commands();
  else if (error.get_name() == "ArgumentMismatch" && what.ends_with("missing"))
    what = what.substr(0, what.find(':')) + " needs a value";
  return what + "; try '" + help + " --help'";
}

cli::exit_status parse_and_run(int argc, char const* const* argv, cli::console& io) {
  cli::settings_arguments settings;
  CLI::App app{about, "labels"};
  app.require_subcommand(1)->fallthrough();
  app.set_help_flag("-h,--help", "Show this help");
  app.set_version_flag("--version", std::string{"labels "} + labelsBaseDllVersionStr(), "Show the version");
  app.add_option("--settings", settings.file, "File of settings, one KEY = VALUE per line")->option_text("FILE");
  app.add_option("--set", settings.pairs, "One setting, applied after the file; may be repeated")
      ->option_text("KEY=VALUE")
      ->allow_extra_args(false);
  app.get_formatter()->label("SUBCOMMAND", "COMMAND");
  app.get_formatter()->label("Positionals", "Arguments");
  app.footer(cli::settings_help() + "\n" + examples);

  cli::command_run run;
  command_set const all{app, run};

  try {
    app.parse(argc, argv);
  } catch (CLI::CallForHelp const&) {
    io.results.write(app.help());
    return cli::all_well;
  } catch (CLI::CallForVersion const& version) {
    io.results.line(version.what());
    return cli::all_well;
  } catch (CLI::ParseError const& error) {
    io.say(what_is_wrong(app, error));
    return cli::failed;
  }
  return cli::apply_settings(settings, io) ? run(io) : cli::failed;
}

}  // namespace

int main(int argc, char** argv) {
  cli::console io;
  try {
    return io.finish(parse_and_run(argc, argv, io));
  } catch (std::exception const& error) {
    io.say(error.what());
    return io.finish(cli::failed);
  }
}
