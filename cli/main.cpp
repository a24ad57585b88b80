// labels: turns labels into samples and back.

#include <CLI/CLI.hpp>
#include <exception>
#include <string>
#include <vector>

#include "cli/console.h"
#include "cli/settings.h"
#include "cli/verbs.h"
#include "labelsbase/version.h"

namespace {

struct verb {
  char const* name;
  char const* purpose;
  cli::verb_run (*declare)(CLI::App&);
};

constexpr verb verbs[] = {
    {"types", "List the label types: only those with a template have labels", cli::declare_types},
    {"show", "Turn samples into labels", cli::declare_show},
    {"read", "Turn labels into samples", cli::declare_read},
    {"add", "Go on from a label by frames", cli::declare_add},
    {"diff", "Subtract labels from one label, in frames", cli::declare_diff},
    {"keep", "Explain the keep strings of labels, or write one", cli::declare_keep},
    {"count", "Count film and video frames, across a pulldown", cli::declare_count},
    {"cadence", "Lay film frames out over video frames", cli::declare_cadence},
    {"media", "List the media", cli::declare_media},
    {"roll", "Read medium-roll identifiers, and say which will do for another", cli::declare_roll},
    {"pitch", "Say how fast a label runs on a medium", cli::declare_pitch},
    {"clock", "Turn clock time into cel time, and back", cli::declare_clock},
    {"choices", "List the label choices of the user interface", cli::declare_choices},
};

constexpr char const* about =
    "Turns labels (timecode, film key numbers, ink numbers, feet and frames) into samples and back.\n"
    "Without SAMPLE, LABEL, N or B, takes one a line from standard input. What cannot be taken is\n"
    "reported, and the rest is done. Exit code 0: all well, 1: some of the input was refused,\n"
    "2: wrong usage, or reading or writing failed.";

constexpr char const* examples =
    "Examples:\n"
    "  labels types\n"
    "  labels show 30f-drop 0 1799 1800 17982\n"
    "  labels show 25f -- -25 90000\n"
    "  labels read 24f 00:59:54:18 01:00:07+00\n"
    "  awk '/^[0-9]+ /{print $NF}' cut.edl | labels read 25f\n"
    "  labels show F353 --prefix KJ123456 0 3 62\n"
    "  labels add F35 KJ1234560123+07 100\n"
    "  labels --set config.50p_timecode_type=2 show 50f 7\n"
    "  labels count 30f-drop --transfer 2:3 --edit film '01:00:00;00'\n"
    "  labels cadence --transfer 2:3 --phase 2 --frames 24\n"
    "  labels keep --write 25f --start 01:00:00:00 --length 250 --roll 20,2\n"
    "  labels roll --for 29,1 28,1 out_24i\n"
    "  labels clock --project-rate 24 --output-rate 29.97 3600\n\n";

// Of a word that is no verb, the parser only says that a verb is required.
std::string what_is_wrong(CLI::App const& app, CLI::ParseError const& wrong) {
  auto const words = app.remaining();
  if (!app.get_subcommands().empty() || words.empty() || words.front().starts_with('-')) return wrong.what();
  std::string text = cli::quoted(words.front()) + " is no verb; expected";
  for (auto const& each : verbs) text.append(&each == verbs ? " " : ", ").append(each.name);
  return text;
}

cli::exit_status parse_and_run(int argc, char const* const* argv, cli::console& io) {
  cli::settings_arguments settings;
  CLI::App app{about, "labels"};
  app.require_subcommand(1)->fallthrough();
  app.footer(cli::settings_help() + "\n" + examples);
  app.set_version_flag("--version", std::string{"labels "} + labelsBaseDllVersionStr());
  app.add_option("--settings", settings.file, "Settings file, KEY = VALUE a line")->option_text("FILE");
  app.add_option("--set", settings.pairs, "One setting, after those of the file; may be repeated")
      ->option_text("KEY=VALUE")
      ->allow_extra_args(false);

  cli::verb_run run;
  for (auto const& [name, purpose, declare] : verbs) {
    auto& command = *app.add_subcommand(name, purpose);
    command.footer("'labels --help' has examples and the options of all verbs.");
    command.parse_complete_callback([&run, chosen = declare(command)] { run = chosen; });
  }

  try {
    app.parse(argc, argv);
  } catch (CLI::CallForHelp const&) {
    io.results.write(app.help());
    return cli::all_well;
  } catch (CLI::CallForVersion const& version) {
    io.results.line(version.what());
    return cli::all_well;
  } catch (CLI::ParseError const& wrong) {
    io.errors.say(what_is_wrong(app, wrong) + "; try 'labels --help'");
    return cli::failed;
  }
  return cli::apply_settings(settings, io.errors) ? run(io) : cli::failed;
}

}  // namespace

int main(int argc, char** argv) {
  cli::console io;
  try {
    return io.finish(parse_and_run(argc, argv, io));
  } catch (std::exception const& error) {
    io.errors.say(error.what());
    return io.finish(cli::failed);
  }
}
