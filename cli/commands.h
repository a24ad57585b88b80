// The commands of the tool. Each is defined in a file of cli/verbs/.
#pragma once

#include <functional>

#include "cli/console.h"

namespace CLI {
class App;
}

// One row a command, in the order of the help. A row declares the function declare_NAME, which a file of
// cli/verbs/ defines as commands::declare_NAME; without the row, that definition does not compile.
// clang-format off
//           name     what it does
#define LABELS_COMMANDS(row)                                                            \
  row(types,   "List the label types, or search them")                                  \
  row(show,    "Convert frames to labels")                                              \
  row(read,    "Convert labels to frames")                                              \
  row(convert, "Convert labels of one type to those of another")                        \
  row(add,     "Add frames to a label")                                                 \
  row(diff,    "Subtract labels from a label, in frames")                               \
  row(range,   "List the labels from one to another")                                   \
  row(day,     "List all labels of a day")                                              \
  row(now,     "Show the label of the time of day")                                     \
  row(check,   "Check decision lists, logs and sheets")                                 \
  row(rewrite, "Write a list, a log or any text with labels of another type")           \
  row(keep,    "Explain or write keep strings, the text form in which hosts store labels") \
  row(count,   "Count film or video frames, across a pulldown if there is one")         \
  row(cadence, "Show which film frame each video frame of a pulldown comes from")       \
  row(media,   "List the media")                                                        \
  row(roll,    "Explain and compare medium-roll identifiers")                           \
  row(pitch,   "Show how fast a label runs on a medium")                                \
  row(clock,   "Convert clock time to cel time and back")                               \
  row(choices, "List the label choices of the user interface")                          \
  row(schema,  "Print the JSON Schema of what a command writes with --format json")     \
  row(help,    "Explain a command, with examples")                                      \
  row(manual,  "Print the manual page of a command")                                    \
  row(completion, "Print what completes command lines in a shell")
// clang-format on

namespace cli {

// Runs a command whose arguments have been parsed.
using command_run = std::function<exit_status(console&)>;

namespace commands {

// Declares a command's arguments and returns the function to run once they have been parsed.
#define LABELS_DECLARE_COMMAND(name, purpose) [[nodiscard]] command_run declare_##name(CLI::App& command);
LABELS_COMMANDS(LABELS_DECLARE_COMMAND)
#undef LABELS_DECLARE_COMMAND

}  // namespace commands
}  // namespace cli
