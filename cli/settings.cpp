#include "cli/settings.h"

#include <cerrno>
#include <fstream>
#include <system_error>

#include "refhost/refhost.h"

namespace cli {
namespace {

bool apply_file(std::string const& name, messages& errors) {
  std::ifstream in{name, std::ios::binary};
  if (!in) {
    errors.say("settings file " + quoted(name) + ": " + std::generic_category().message(errno));
    return false;
  }
  auto const wrong = refhost::load_settings(in);
  for (auto const& [line, message] : wrong)
    errors.say("settings file " + quoted(name) + ": line " + std::to_string(line) + ": " + message);
  return wrong.empty();
}

bool apply_pair(std::string const& pair, messages& errors) {
  auto const equals = pair.find('=');
  if (equals == std::string::npos) {
    errors.say("--set " + quoted(pair) + ": expected KEY=VALUE");
    return false;
  }
  auto const wrong = refhost::set_option(pair.substr(0, equals), pair.substr(equals + 1));
  if (wrong) errors.say("--set " + quoted(pair) + ": " + *wrong);
  return !wrong;
}

}  // namespace

bool apply_settings(settings_arguments const& arguments, messages& errors) {
  if (arguments.file && !apply_file(*arguments.file, errors)) return false;
  bool all_right = true;
  for (auto const& pair : arguments.pairs) all_right = apply_pair(pair, errors) && all_right;
  return all_right;
}

std::string settings_help() {
  constexpr std::size_t column = 28;
  std::string help = "Settings:\n";
  auto const add = [&](std::string key, std::string const& meaning, std::string const& expected) {
    key.insert(0, 2, ' ');
    key.resize(column, ' ');
    help += key + meaning + "\n" + std::string(column, ' ') + expected + "\n";
  };
  for (auto const& [key, meaning, expected] : refhost::setting_list()) add(key, meaning, expected);
  add("config.KEY", "a configuration value", "for 50p_timecode_type and 60p_timecode_type: 1, 2 or 3");
  return help;
}

}  // namespace cli
