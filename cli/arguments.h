// Arguments and options, declared alike for every command.
#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace cli {

// Declares TYPE, a required label type, which find_label_type reads.
void add_type(CLI::App& command, std::string& type);

// Declares a required argument.
void add_required(CLI::App& command, char const* name, std::string& value, char const* meaning);

// Declares any number of operands, which may be anything: "-1", "[1,2]" and all that follows "--" too.
void add_operands(CLI::App& command, char const* name, char const* meaning, std::vector<std::string>& operands);

// Declares an option with a value. `shape` stands for the value in the help, for example "LABEL [00:00:00:00]"
// with the default in brackets.
CLI::Option* add_option(CLI::App& command, char const* name, char const* shape, std::string& value,
                        char const* meaning);
CLI::Option* add_option(CLI::App& command, char const* name, char const* shape, std::optional<std::string>& value,
                        char const* meaning);

// Declares an option without a value.
CLI::Option* add_flag(CLI::App& command, char const* name, bool& flag, char const* meaning);

// Declares an option that may have a value behind "=". Without one, `value` becomes "true".
CLI::Option* add_flag(CLI::App& command, char const* name, std::string& value, char const* meaning);

// An example of a command, and what it writes to standard output and standard error: {"show 25 90000",
// "01:00:00.00"}. A test runs those whose output is given.
struct example {
  char const* line;              // for the shell; "labels" goes before a line that begins with the command's name
  char const* output = nullptr;  // without the last line feed

  constexpr example(char const* line_, char const* output_ = nullptr) noexcept : line{line_}, output{output_} {}
};

// End the command's help with examples or with a text.
void add_examples(CLI::App& command, std::initializer_list<example> examples);
void add_note(CLI::App& command, char const* text);

// Returns the command's name.
[[nodiscard]] std::string command_name(CLI::App const& command);

// Returns the value of an option as a whole number from `least` to `most`, or refuses it.
[[nodiscard]] int number_in(std::string_view option, std::string_view value, int least, int most);

}  // namespace cli
