#include "cli/settings.h"

#include <cerrno>
#include <fstream>
#include <system_error>

#include "cli/text.h"
#include "refhost/refhost.h"

namespace cli {
namespace {

bool apply_file(std::string const& name, console& io) {
  std::ifstream in{name, std::ios::binary};
  if (!in) {
    io.say(refusal("--settings", name, std::generic_category().message(errno)));
    return false;
  }
  auto const errors = refhost::load_settings(in);
  for (auto const& [line, message] : errors)
    io.say(refusal("--settings", name, "line " + std::to_string(line) + ": " + message));
  return errors.empty();
}

bool apply_pair(std::string const& pair, console& io) {
  auto const equals = pair.find('=');
  if (equals == std::string::npos) {
    io.say(refusal("--set", pair, "expected KEY=VALUE; 'labels --help' lists the settings"));
    return false;
  }
  auto const error = refhost::set_option(pair.substr(0, equals), pair.substr(equals + 1));
  if (error) io.say(refusal("--set", pair, *error));
  return !error;
}

}  // namespace

bool apply_settings(settings_arguments const& arguments, console& io) {
  if (arguments.file && !apply_file(*arguments.file, io)) return false;
  bool all_applied = true;
  for (auto const& pair : arguments.pairs) all_applied = apply_pair(pair, io) && all_applied;
  return all_applied;
}

std::string settings_help() {
  constexpr std::size_t column = 28;
  std::string help = "Settings:\n";
  auto const add = [&](std::string const& key, char const* meaning, char const* expected) {
    help += padded("  " + key, column) + meaning + "\n" + padded("", column) + expected + "\n";
  };
  for (auto const& [key, meaning, expected] : refhost::setting_list()) add(key, meaning, expected);
  add("config.KEY", "a configuration value", "1, 2 or 3 for 50p_timecode_type and 60p_timecode_type");
  return help;
}

}  // namespace cli
