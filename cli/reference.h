// What the command line accepts, as data: taken from the declarations of the commands, for manual pages and
// completion.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace CLI {
class App;
}

namespace cli {

struct argument_reference {
  std::string name;                 // "--round", or "LABEL" for an operand
  std::string short_name;           // "-h"; mostly empty
  std::string shape;                // of the option's value, "down|near|up"; empty for flags and operands
  std::string usual_value;          // "near"; empty if there is none
  std::string meaning;              // on one line
  std::vector<std::string> values;  // the words that the value can be, if they are known
  bool is_required;
  bool is_repeated;

  [[nodiscard]] bool is_option() const noexcept { return name.starts_with('-'); }
  [[nodiscard]] bool is_flag() const noexcept { return is_option() && shape.empty(); }
  [[nodiscard]] bool takes_file() const noexcept { return shape == "FILE" || name == "FILE"; }

  // Returns the first sentence of the meaning.
  [[nodiscard]] std::string summary() const;
};

struct command_reference {
  std::string name;
  std::string purpose;
  std::vector<argument_reference> arguments;
  std::string notes;  // examples and other notes below the help
};

// Returns the tool itself, which is named "labels", and then its commands in the order of the help.
[[nodiscard]] std::vector<command_reference> describe_commands(CLI::App const& tool);

// Returns the manual page of a command, for man(1). `all` is what describe_commands returns.
[[nodiscard]] std::string manual_page(command_reference const& command, std::vector<command_reference> const& all);

// Return what completes command lines in a shell, as a script that the shell loads.
[[nodiscard]] std::string bash_completion(std::vector<command_reference> const& all);
[[nodiscard]] std::string zsh_completion(std::vector<command_reference> const& all);
[[nodiscard]] std::string fish_completion(std::vector<command_reference> const& all);

}  // namespace cli
