// labels: turns labels into samples and back.

#include <CLI/CLI.hpp>
#include <exception>
#include <string>
#include <vector>

#include "cli/console.h"
#include "cli/label_type.h"
#include "cli/settings.h"
#include "cli/verbs.h"

namespace {

struct request {
  cli::settings_arguments settings;
  std::string type;
  std::vector<std::string> operands;
  bool lenient = false;
};

constexpr char const* about =
    "Turns labels (timecode) into samples and back.\n"
    "Without SAMPLE or LABEL, takes one a line from standard input. What cannot be taken is\n"
    "reported, and the rest is done. Exit code 0: all well, 1: some of the input was refused,\n"
    "2: wrong usage, or reading or writing failed.";

constexpr char const* examples =
    "Examples:\n"
    "  labels types\n"
    "  labels show 30f-drop 0 1799 1800 17982\n"
    "  labels show 25f -- -25 90000\n"
    "  labels read 24f 00:59:54:18 01:00:07+00\n"
    "  awk '/^[0-9]+ /{print $NF}' cut.edl | labels read 25f\n"
    "  labels --set config.50p_timecode_type=2 show 50f 7\n\n";

CLI::App* add_verb(CLI::App& app, char const* name, char const* purpose) {
  auto* const verb = app.add_subcommand(name, purpose);
  verb->footer("'labels --help' has examples and the options of all verbs.");
  return verb;
}

void add_operands(CLI::App& verb, char const* name, char const* meaning, request& asked) {
  verb.add_option("TYPE", asked.type, "Class name (pal_label), number (5) or exchange name (25f)")
      ->required()
      ->option_text("(required)");

  // Asked for so many, the parser takes each operand as it stands, "[1,2]", "{}" and all that follow "--" too.
  constexpr int many = CLI::detail::expected_max_vector_size;
  auto const take = [&asked](CLI::results_t const& given) {
    asked.operands = given;
    return true;
  };
  verb.add_option(name, take, meaning)
      ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
      ->expected(many - 1, many);
}

cli::exit_status run(CLI::App const& app, request const& asked, cli::console& io) {
  if (!cli::apply_settings(asked.settings, io.errors)) return cli::failed;
  if (app.got_subcommand("types")) return cli::types(io);

  auto const type = cli::find_label_type(asked.type, io.errors);
  if (!type) return cli::failed;
  if (app.got_subcommand("show")) return cli::show(*type, asked.operands, io);
  return cli::read(*type, asked.operands, asked.lenient, io);
}

cli::exit_status parse_and_run(int argc, char const* const* argv, cli::console& io) {
  request asked;
  CLI::App app{about, "labels"};
  app.require_subcommand(1)->fallthrough();
  app.footer(cli::settings_help() + "\n" + examples);
  app.set_version_flag("--version", std::string{"labels "} + labelsBaseDllVersionStr());
  app.add_option("--settings", asked.settings.file, "Settings file, KEY = VALUE a line")->option_text("FILE");
  app.add_option("--set", asked.settings.pairs, "One setting, after those of the file; may be repeated")
      ->option_text("KEY=VALUE")
      ->allow_extra_args(false);

  add_verb(app, "types", "List the label types: only those with a template have labels");
  add_operands(*add_verb(app, "show", "Turn samples into labels"), "SAMPLE", "Whole numbers, for example 1800",
               asked);
  auto* const read = add_verb(app, "read", "Turn labels into samples");
  add_operands(*read, "LABEL", "Labels, for example 01:00:00:00", asked);
  read->add_flag("--lenient", asked.lenient, "Read whatever the library can make something of");

  try {
    app.parse(argc, argv);
  } catch (CLI::CallForHelp const&) {
    io.results.write(app.help());
    return cli::all_well;
  } catch (CLI::CallForVersion const& version) {
    io.results.line(version.what());
    return cli::all_well;
  } catch (CLI::ParseError const& wrong) {
    io.errors.say(std::string{wrong.what()} + "; try 'labels --help'");
    return cli::failed;
  }
  return run(app, asked, io);
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
