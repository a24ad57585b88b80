#include "cli/arguments.h"

#include <CLI/CLI.hpp>

#include "cli/console.h"
#include "cli/text.h"

namespace cli {
namespace {

// Breaks a text into lines that fit beside the names in the help.
std::string wrapped(std::string_view text) {
  constexpr std::size_t width = 70;
  std::string lines;
  while (text.size() > width) {
    auto const blank = text.rfind(' ', width);
    if (blank == std::string_view::npos) break;
    lines.append(text.substr(0, blank)).append("\n");
    text.remove_prefix(blank + 1);
  }
  return lines.append(text);
}

template <typename Text>
CLI::Option* add_text(CLI::App& command, char const* name, char const* shape, Text& value, char const* meaning) {
  return command.add_option(name, value, wrapped(meaning))->option_text(shape)->allow_extra_args(false);
}

}  // namespace

void add_required(CLI::App& command, char const* name, std::string& value, char const* meaning) {
  command.add_option(name, value, wrapped(meaning))->required()->option_text("(required)");
}

void add_type(CLI::App& command, std::string& type) {
  add_required(command, "TYPE", type,
               "Label type, for example 25, 29.97df, 23.976, 35mm or feet35; 'labels types' lists them");
}

void add_operands(CLI::App& command, char const* name, char const* meaning, std::vector<std::string>& operands) {
  // With this many expected, the parser neither splits nor interprets an operand.
  constexpr int many = CLI::detail::expected_max_vector_size;
  auto const take = [&operands](CLI::results_t const& given) {
    operands = given;
    return true;
  };
  command.add_option(name, take, wrapped(meaning))
      ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
      ->expected(many - 1, many);
}

CLI::Option* add_option(CLI::App& command, char const* name, char const* shape, std::string& value,
                        char const* meaning) {
  return add_text(command, name, shape, value, meaning);
}

CLI::Option* add_option(CLI::App& command, char const* name, char const* shape, std::optional<std::string>& value,
                        char const* meaning) {
  return add_text(command, name, shape, value, meaning);
}

CLI::Option* add_flag(CLI::App& command, char const* name, bool& flag, char const* meaning) {
  return command.add_flag(name, flag, wrapped(meaning));
}

CLI::Option* add_flag(CLI::App& command, char const* name, std::string& value, char const* meaning) {
  return command.add_flag(name, value, wrapped(meaning));
}

void add_examples(CLI::App& command, std::initializer_list<example> examples) {
  std::string text{"Examples:"};
  for (auto const& [line, output] : examples) {
    bool const begins_with_tool = std::string_view{line}.starts_with(command_name(command) + " ");
    text.append("\n  $ ").append(begins_with_tool ? "labels " : "").append(line);
    for (auto const& each : output ? CLI::detail::split(output, '\n') : std::vector<std::string>{})
      text.append("\n  ").append(each);
  }
  add_note(command, text.c_str());
}

void add_note(CLI::App& command, char const* text) {
  command.footer(std::string{text} + "\n\nRun 'labels --help' for settings and exit codes.");
}

std::string command_name(CLI::App const& command) { return command.get_name(); }

int number_in(std::string_view option, std::string_view value, int least, int most) {
  auto const number = signed_number(value);
  if (number && *number >= least && *number <= most) return *number;
  refuse(option, value, "expected a whole number from " + std::to_string(least) + " to " + std::to_string(most));
}

}  // namespace cli
