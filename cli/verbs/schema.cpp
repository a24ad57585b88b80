// schema: what the rows of a command hold, for programs that read them.

#include <algorithm>
#include <memory>

#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/records.h"

namespace cli {
namespace {

exit_status schema(std::string const& name, console& io) {
  auto const& all = all_declared_records();
  auto const found = std::ranges::find(all, name, &declared_records::command);
  if (found == all.end()) {
    std::string names;
    for (auto const& each : all) names.append(names.empty() ? "" : ", ").append(each.command);
    refuse("COMMAND", name, "expected a command that has --format: " + names);
  }
  io.results.line(json_schema(*found));
  return all_well;
}

}  // namespace

command_run commands::declare_schema(CLI::App& command) {
  auto const name = std::make_shared<std::string>();
  add_required(command, "COMMAND", *name, "A command that has --format");
  add_note(
      command,
      "The JSON Schema (draft 2020-12) holds for the array that --format json writes. Its \"items\" hold for\n"
      "each line of --format jsonl; CSV and TSV have the same fields under the same names.");
  return [name](console& io) { return schema(*name, io); };
}

}  // namespace cli
