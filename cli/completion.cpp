// Scripts that complete command lines in bash, zsh and fish.

#include <sstream>

#include "cli/reference.h"

namespace cli {
namespace {

std::string joined(std::vector<std::string> const& words) {
  std::string text;
  for (auto const& word : words) text.append(text.empty() ? "" : " ").append(word);
  return text;
}

// For single quotes of a shell, with a backslash before `special` characters.
std::string escaped(std::string_view text, std::string_view special = "") {
  std::string result;
  for (char const c : text) {
    if (special.find(c) != std::string_view::npos) result += '\\';
    c == '\'' ? result.append("'\\''") : result.append(1, c);
  }
  return result;
}

std::string quoted(std::string_view text, std::string_view special = "") {
  return "'" + escaped(text, special) + "'";
}

// Returns the commands alone.
std::vector<command_reference> commands_of(std::vector<command_reference> const& all) {
  return {all.begin() + 1, all.end()};
}

// --- bash ---

void write_bash_values(command_reference const& command, std::string_view pattern, std::ostream& out) {
  for (auto const& each : command.arguments) {
    if (!each.is_option() || each.is_flag()) continue;
    out << "    \"" << pattern << ' ' << each.name << "\") ";
    if (each.takes_file()) {
      out << "COMPREPLY=($(compgen -f -- \"$current\")); return ;;\n";
    } else {
      out << "words=" << quoted(joined(each.values)) << " ;;\n";
    }
  }
}

void write_bash_words(command_reference const& command, std::string_view pattern, std::string_view first,
                      std::ostream& out) {
  std::string options;
  std::string operands{first};
  for (auto const& each : command.arguments) {
    if (each.is_option()) {
      options.append(options.empty() ? "" : " ").append(each.name);
    } else if (!each.values.empty()) {
      operands.append(operands.empty() ? "" : " ").append(joined(each.values));
    }
  }
  out << "        " << pattern << ") options=" << quoted(options) << " words=" << quoted(operands) << " ;;\n";
}

// --- zsh ---

constexpr std::string_view zsh_special = "[]:\\";

std::string zsh_action(argument_reference const& argument) {
  if (argument.takes_file()) return "_files";
  return argument.values.empty() ? "" : "(" + joined(argument.values) + ")";
}

void write_zsh_argument(argument_reference const& argument, std::ostream& out) {
  if (!argument.is_option()) {
    out << " '" << (argument.is_repeated ? "*" : "") << ":" << argument.name << ":" << zsh_action(argument) << "'";
    return;
  }
  out << " '" << argument.name << "[" << escaped(argument.summary(), zsh_special) << "]";
  if (!argument.is_flag()) out << ":" << escaped(argument.shape, zsh_special) << ":" << zsh_action(argument);
  out << "'";
}

// --- fish ---

void write_fish_argument(command_reference const& command, argument_reference const& argument, bool is_tool,
                         std::ostream& out) {
  auto const condition = is_tool ? std::string{} : " -n '__fish_seen_subcommand_from " + command.name + "'";
  if (!argument.is_option()) {
    if (argument.takes_file()) out << "complete -c labels" << condition << " -F\n";
    if (!argument.values.empty())
      out << "complete -c labels" << condition << " -a " << quoted(joined(argument.values)) << '\n';
    return;
  }
  out << "complete -c labels" << condition << " -l " << argument.name.substr(2);
  if (!argument.short_name.empty()) out << " -s " << argument.short_name.substr(1);
  if (argument.takes_file()) {
    out << " -rF";
  } else if (!argument.is_flag()) {
    out << " -x";
    if (!argument.values.empty()) out << " -a " << quoted(joined(argument.values));
  }
  out << " -d " << quoted(argument.summary(), "\\") << '\n';
}

}  // namespace

std::string bash_completion(std::vector<command_reference> const& all) {
  std::ostringstream out;
  std::string names;
  for (auto const& each : commands_of(all)) names.append(names.empty() ? "" : " ").append(each.name);
  out << "# Completes labels in bash.\n"
         "_labels() {\n"
         "  local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}\n"
         "  local command= options= words= i\n"
         "  for ((i = 1; i < COMP_CWORD; ++i)); do\n"
         "    case ${COMP_WORDS[i]} in\n"
         "      --settings | --set) ((++i)) ;;\n"
         "      -*) ;;\n"
         "      *) command=${COMP_WORDS[i]}; break ;;\n"
         "    esac\n"
         "  done\n"
         "  case \"$command $previous\" in\n";
  write_bash_values(all.front(), "*", out);
  for (auto const& each : commands_of(all)) write_bash_values(each, each.name, out);
  out << "    *)\n"
         "      case $command in\n";
  write_bash_words(all.front(), "''", names, out);
  for (auto const& each : commands_of(all)) write_bash_words(each, each.name, "", out);
  out << "      esac\n"
         "      [[ $current == -* ]] && words=$options ;;\n"
         "  esac\n"
         "  COMPREPLY=($(compgen -W \"$words\" -- \"$current\"))\n"
         "}\n"
         "complete -o default -F _labels labels\n";
  return out.str();
}

std::string zsh_completion(std::vector<command_reference> const& all) {
  std::ostringstream out;
  out << "#compdef labels\n"
         "# Completes labels in zsh.\n"
         "_labels() {\n"
         "  local state line\n"
         "  local -a commands\n"
         "  commands=(\n";
  for (auto const& each : commands_of(all)) out << "    " << quoted(each.name + ":" + each.purpose) << '\n';
  out << "  )\n"
         "  _arguments -C";
  for (auto const& each : all.front().arguments) write_zsh_argument(each, out);
  out << " '1:command:->command' '*::argument:->argument'\n"
         "  case $state in\n"
         "    command) _describe command commands ;;\n"
         "    argument)\n"
         "      case $line[1] in\n";
  for (auto const& each : commands_of(all)) {
    out << "        " << each.name << ") _arguments";
    for (auto const& argument : each.arguments) write_zsh_argument(argument, out);
    out << " ;;\n";
  }
  out << "      esac ;;\n"
         "  esac\n"
         "}\n"
         "_labels \"$@\"\n";
  return out.str();
}

std::string fish_completion(std::vector<command_reference> const& all) {
  std::ostringstream out;
  out << "# Completes labels in fish.\n"
         "complete -c labels -f\n";
  for (auto const& each : all.front().arguments) write_fish_argument(all.front(), each, true, out);
  for (auto const& each : commands_of(all)) {
    out << "complete -c labels -n __fish_use_subcommand -a " << each.name << " -d " << quoted(each.purpose, "\\")
        << '\n';
    for (auto const& argument : each.arguments) write_fish_argument(each, argument, false, out);
  }
  return out.str();
}

}  // namespace cli
