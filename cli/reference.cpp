#include "cli/reference.h"

#include <CLI/CLI.hpp>
#include <algorithm>

#include "labelnames/names.h"
#include "labelsbase/MediumRoll.h"

namespace cli {
namespace {

std::string on_one_line(std::string text) {
  std::ranges::replace(text, '\n', ' ');
  return text;
}

std::vector<std::string> type_names() {
  std::vector<std::string> names;
  for (auto const& each : labelnames::all_names()) names.emplace_back(each.name());
  return names;
}

std::vector<std::string> medium_names() {
  std::vector<std::string> names;
  for (int number = Medium_any; number < labelsbase::medium_count; ++number) {
    std::string const name = labelsbase::medium_name(static_cast<MediumRollMedium>(number));
    if (!name.empty()) names.push_back(name);
  }
  return names;
}

std::vector<std::string> command_names(CLI::App const& tool) {
  std::vector<std::string> names;
  for (auto const* const each : tool.get_subcommands([](CLI::App const*) { return true; }))
    names.push_back(each->get_name());
  return names;
}

// The words that stand for a value: those of "down|near|up", or all of what "TYPE" means.
std::vector<std::string> values_of(std::string const& shape, CLI::App const& tool) {
  if (shape == "TYPE") return type_names();
  if (shape == "MEDIUM") return medium_names();
  if (shape == "COMMAND") return command_names(tool);
  return shape.find('|') == std::string::npos ? std::vector<std::string>{} : CLI::detail::split(shape, '|');
}

argument_reference describe(CLI::Option const& option, CLI::App const& tool) {
  argument_reference found{};
  found.meaning = on_one_line(option.get_description());
  found.is_required = option.get_required();
  found.is_repeated = option.get_items_expected_max() > 1;
  if (!option.nonpositional()) {
    found.name = option.get_name(true);
    found.values = values_of(found.name, tool);
    return found;
  }
  found.name = "--" + option.get_lnames().front();
  if (!option.get_snames().empty()) found.short_name = "-" + option.get_snames().front();
  // The text of an option is its shape and, in brackets, its usual value.
  auto const& text = option.get_option_text();
  auto const bracket = text.find(" [");
  found.shape = text.substr(0, bracket);
  if (bracket != std::string::npos) found.usual_value = text.substr(bracket + 2, text.size() - bracket - 3);
  found.values = values_of(found.shape, tool);
  return found;
}

command_reference describe(CLI::App const& command, CLI::App const& tool) {
  command_reference found{command.get_name(), command.get_description(), {}, command.get_footer()};
  for (auto const* const option : command.get_options()) found.arguments.push_back(describe(*option, tool));
  return found;
}

}  // namespace

std::string argument_reference::summary() const {
  return meaning.substr(0, std::min(meaning.find(". "), meaning.find(';')));
}

std::vector<command_reference> describe_commands(CLI::App const& tool) {
  std::vector<command_reference> all{describe(tool, tool)};
  for (auto const* const command : tool.get_subcommands([](CLI::App const*) { return true; }))
    all.push_back(describe(*command, tool));
  return all;
}

}  // namespace cli
