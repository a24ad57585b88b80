// help, manual and completion: what the commands are, for people, for man and for shells.

#include <CLI/CLI.hpp>
#include <algorithm>
#include <memory>

#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/reference.h"

namespace cli {
namespace {

struct shell {
  char const* name;
  std::string (*completion)(std::vector<command_reference> const&);
};

constexpr shell shells[] = {{"bash", bash_completion}, {"zsh", zsh_completion}, {"fish", fish_completion}};

// Returns the command with this name, or the tool itself for an empty one. Refuses others.
command_reference const& find_command(std::vector<command_reference> const& all, std::string const& name) {
  if (name.empty()) return all.front();
  auto const found = std::ranges::find(all.begin() + 1, all.end(), name, &command_reference::name);
  if (found == all.end()) refuse("COMMAND", name, "unknown command; 'labels help' lists the commands");
  return *found;
}

exit_status help(CLI::App const& tool, std::string const& name, console& io) {
  auto const all = describe_commands(tool);
  auto const& command = find_command(all, name);
  // App::help() would explain the command that runs, which is `help`.
  auto const tool_help = [&] {
    return tool.get_formatter()->make_help(&tool, "labels", CLI::AppFormatMode::Normal);
  };
  io.results.write(name.empty() ? tool_help() : tool.get_subcommand(command.name)->help("labels"));
  return all_well;
}

exit_status manual(CLI::App const& tool, std::string const& name, console& io) {
  auto const all = describe_commands(tool);
  io.results.write(manual_page(find_command(all, name), all));
  return all_well;
}

exit_status completion(CLI::App const& tool, std::string const& name, console& io) {
  auto const* const found =
      std::ranges::find(shells, name, [](auto const& each) { return std::string_view{each.name}; });
  if (found == std::end(shells)) refuse("SHELL", name, "expected bash, zsh or fish");
  io.results.write(found->completion(describe_commands(tool)));
  return all_well;
}

// Declares an argument that may be missing, and runs `what` with it.
command_run with_name(CLI::App& command, char const* argument, char const* meaning, bool is_required,
                      exit_status (*what)(CLI::App const&, std::string const&, console&)) {
  auto const name = std::make_shared<std::string>();
  auto const* const tool = command.get_parent();
  command.add_option(argument, *name, meaning)
      ->required(is_required)
      ->option_text(is_required ? "(required)" : " ");
  return [tool, name, what](console& io) { return what(*tool, *name, io); };
}

}  // namespace

command_run commands::declare_help(CLI::App& command) {
  add_note(command, "'labels help COMMAND' and 'labels COMMAND --help' are the same.");
  return with_name(command, "COMMAND", "The command to explain; without it, all of them in short", false, help);
}

command_run commands::declare_manual(CLI::App& command) {
  add_examples(command, {"manual convert | man -l -"});
  return with_name(command, "COMMAND", "The command; without it, the page of the tool", false, manual);
}

command_run commands::declare_completion(CLI::App& command) {
  add_examples(command, {"completion bash >~/.local/share/bash-completion/completions/labels"});
  return with_name(command, "SHELL", "bash, zsh or fish", true, completion);
}

}  // namespace cli
