// Manual pages, in the man macros of roff.

#include <sstream>

#include "cli/reference.h"
#include "labelsbase/version.h"

namespace cli {
namespace {

// Protects backslashes, dashes that are to be copied, and dots and quotes that would begin a request.
std::string roff(std::string_view text) {
  std::string result;
  bool at_line_start = true;
  for (char const c : text) {
    if (at_line_start && (c == '.' || c == '\'')) result += "\\&";
    if (c == '\\') {
      result += "\\e";
    } else if (c == '-') {
      result += "\\-";
    } else {
      result += c;
    }
    at_line_start = c == '\n';
  }
  return result;
}

std::string bold(std::string_view text) { return "\\fB" + roff(text) + "\\fR"; }
std::string italic(std::string_view text) { return "\\fI" + roff(text) + "\\fR"; }

std::string as_typed(argument_reference const& argument) {
  if (!argument.is_option()) return italic(argument.name);
  std::string typed = argument.short_name.empty() ? "" : bold(argument.short_name) + ", ";
  typed += bold(argument.name);
  return argument.is_flag() ? typed : typed + " " + italic(argument.shape);
}

void write_synopsis(command_reference const& command, bool is_tool, std::ostream& out) {
  out << ".SH SYNOPSIS\n" << bold("labels");
  if (!is_tool) out << ' ' << bold(command.name);
  for (auto const& each : command.arguments)
    if (each.is_option() && each.is_required) out << ' ' << as_typed(each);
  out << " [" << italic("OPTION") << "...]";
  for (auto const& each : command.arguments) {
    if (each.is_option()) continue;
    out << (each.is_required ? " " : " [") << italic(each.name) << (each.is_repeated ? "..." : "")
        << (each.is_required ? "" : "]");
  }
  if (is_tool) out << ' ' << italic("COMMAND") << " [" << italic("ARGUMENT") << "...]";
  out << '\n';
}

void write_arguments(command_reference const& command, bool options, char const* heading, std::ostream& out) {
  bool is_first = true;
  for (auto const& each : command.arguments) {
    if (each.is_option() != options) continue;
    if (is_first) out << ".SH " << heading << '\n';
    is_first = false;
    out << ".TP\n" << as_typed(each) << '\n' << roff(each.meaning) << ".";
    if (!each.usual_value.empty()) out << " Default: " << roff(each.usual_value) << '.';
    out << '\n';
  }
}

void write_lines(std::string_view text, char const* heading, std::ostream& out) {
  out << ".SH " << heading << "\n.nf\n" << roff(text) << "\n.fi\n";
}

}  // namespace

std::string manual_page(command_reference const& command, std::vector<command_reference> const& all) {
  bool const is_tool = &command == &all.front();
  auto const title = is_tool ? command.name : "labels-" + command.name;
  std::ostringstream out;
  out << ".TH " << roff(title) << " 1 \"\" \"labels " << labelsBaseDllVersionStr() << "\"\n"
      << ".SH NAME\n"
      << roff(title) << " \\- " << roff(command.purpose.substr(0, command.purpose.find('\n'))) << '\n';
  write_synopsis(command, is_tool, out);
  if (is_tool) {
    write_lines(command.purpose, "DESCRIPTION", out);
    out << ".SH COMMANDS\n";
    for (auto const& each : all)
      if (&each != &command) out << ".TP\n" << bold(each.name) << '\n' << roff(each.purpose) << '\n';
  }
  write_arguments(command, false, "ARGUMENTS", out);
  write_arguments(command, true, "OPTIONS", out);
  if (!command.notes.empty())
    write_lines(command.notes, is_tool ? "SETTINGS AND EXAMPLES" : "EXAMPLES AND NOTES", out);
  out << ".SH SEE ALSO\n";
  std::string_view separator;
  for (auto const& each : all) {
    if (&each == &command || (!is_tool && &each != &all.front())) continue;
    out << separator << bold(&each == &all.front() ? each.name : "labels-" + each.name) << "(1)";
    separator = ",\n";
  }
  out << '\n';
  return out.str();
}

}  // namespace cli
