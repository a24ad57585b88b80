// keep: explains and writes keep strings, the text form in which hosts store labels.

#include <CLI/CLI.hpp>
#include <array>
#include <cmath>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/input.h"
#include "cli/label_io.h"
#include "cli/names.h"
#include "cli/text.h"
#include "host/tokeniser.h"
#include "labelsbase/labelcvt/label_facts.h"
#include "labelsbase/labels.h"

namespace cli {
namespace {

struct arguments {
  std::vector<std::string> texts;

  // What to write instead.
  std::optional<std::string> type, start, length, pitch, roll;
  bool unbounded = false;
};

// --- Explaining ---

// LABEL_REV:N TYPE START LENGTH SECONDS BOUNDED [MediumRollId IDENTIFIER]
enum part : std::size_t {
  header,
  type_name,
  start,
  units,
  seconds_per_unit,
  bounded,
  keyword,
  identifier,
  surplus,
  parts
};

using token = std::optional<std::string>;
using token_list = std::array<token, parts>;

token_list tokens_of(std::string const& text) {
  token_list tokens;
  tokeniser split{text.c_str(), " "};
  for (auto& each : tokens) {
    char const* const next = split.next();
    if (!next) break;
    each = next;
  }
  return tokens;
}

problem missing() { return "is missing"; }
problem unexpected(std::string const& text, std::string const& why) { return in_quotes(text) + ": " + why; }

problem header_problem(token const& text) {
  if (!text) return missing();
  auto const number = text->starts_with("LABEL_REV:") ? whole_number(text->substr(10)) : std::nullopt;
  if (number && (*number == 1 || *number == 2)) return std::nullopt;
  return unexpected(*text, "expected LABEL_REV:1");
}

problem type_problem(token const& text) {
  if (!text) return missing();
  if (get_label_type(text->c_str()) != null_label_t) return std::nullopt;
  return unexpected(*text, "unknown label type; expected a class name from 'labels types'");
}

problem start_problem(token const& text, label_t type) {
  if (!text) return missing();
  if (!labelsbase::facts_of(type).has_labels()) return unexpected(*text, "cannot be read without a valid type");
  label_parts ignored;
  auto const wrong = read_label(type, *text, ignored);
  return wrong ? unexpected(*text, *wrong) : wrong;
}

problem whole_number_problem(token const& text) {
  if (!text) return missing();
  return whole_number(*text) ? std::nullopt : unexpected(*text, "expected a whole number");
}

problem seconds_problem(token const& text) {
  if (!text) return missing();
  auto const seconds = decimal(*text);
  if (seconds && std::isfinite(*seconds) && *seconds > 0) return std::nullopt;
  return unexpected(*text, "expected seconds, more than 0");
}

problem roll_problem(token const& word, token const& text, UserLabelType family) {
  if (!word) return std::nullopt;  // a label without a roll
  if (*word != MediumRollId_name_str())
    return unexpected(*word, std::string{"expected "} + MediumRollId_name_str());
  if (!text) return missing();
  MediumRollIdent ignored;
  auto const wrong = read_medium_roll(*text, family, ignored);
  return wrong ? unexpected(*text, *wrong) : wrong;
}

std::string roll_value(EditLabel const& label, bool has_roll) {
  char text[labelsbase::identifier_text_size];
  MediumRollId_to_string(text, label.medium_roll);
  return std::string{text} + ", " + MediumRollId_to_UserString(label.medium_roll) +
         (has_roll ? "" : " (none kept)");
}

struct field {
  char const* name;   // "start"
  std::string value;  // as the library reads it
  problem wrong;
};

// Returns the fields of a keep string, as far as the library reads them.
std::vector<field> fields_of(std::string const& text, token_list const& tokens) {
  EditLabel const label{text.c_str()};
  auto& cvt = *label.start.cvt();
  int const unit = cvt.samples_per_unit();

  std::vector<field> fields{{"revision", std::to_string(label.revision), header_problem(tokens[header])}};
  if (label.revision < 1 || label.revision > 2) return fields;

  fields.push_back({"type", cvt.type_str(), type_problem(tokens[type_name])});
  fields.push_back({"start", tokens[start].value_or("") + ", sample " + std::to_string(label.start.sample),
                    start_problem(tokens[start], cvt.type())});
  fields.push_back({"length", std::to_string(label.length / unit) + ", samples " + std::to_string(label.length),
                    whole_number_problem(tokens[units])});
  fields.push_back(
      {"seconds per unit",
       shortest(label.pitch * unit) + ", natural " + shortest(Label::get_natural_pitch(cvt.type()) * unit),
       seconds_problem(tokens[seconds_per_unit])});
  fields.push_back({"bounded", label.bounded != 0 ? "yes" : "no", whole_number_problem(tokens[bounded])});
  fields.push_back({"medium and roll", roll_value(label, tokens[keyword].has_value()),
                    roll_problem(tokens[keyword], tokens[identifier], cvt.UserType())});
  if (tokens[surplus])
    fields.push_back({"surplus", *tokens[surplus], unexpected(*tokens[surplus], "expected the end")});
  return fields;
}

// Shows all that can be read, and marks wrong fields. Writes nothing for a text that is not a keep string.
problem explain(std::string const& text, console& io) {
  auto const tokens = tokens_of(text);
  if (!tokens[header] || !tokens[header]->starts_with("LABEL_REV"))
    return "not a keep string; expected one that begins with LABEL_REV:1";

  problem wrong;
  for (auto const& field : fields_of(text, tokens)) {
    io.results.line(padded(field.name, 18) + (field.wrong ? "? " : "") + field.value);
    if (field.wrong) wrong = (wrong ? *wrong + "; " : "") + field.name + " " + *field.wrong;
  }
  return wrong;
}

// --- Writing ---

double seconds_of(std::string const& text) {
  auto const seconds = decimal(text);
  if (!seconds || !(*seconds > 0 && *seconds <= 1e9))
    refuse("--pitch", text, "expected seconds per frame, more than 0 and up to 1e9");
  return *seconds;
}

exit_status write(arguments const& given, console& io) {
  auto const type = find_label_type("--write", *given.type);
  Label label{type};
  auto& cvt = *label.start.cvt();
  int const unit = cvt.samples_per_unit();

  if (given.start) {
    label_parts parts;
    if (auto const wrong = read_label(type, *given.start, parts)) refuse("--start", *given.start, *wrong);
    label.start.sample = parts.sample;
    label.set_prefix(given.start->c_str());
  }
  if (given.length)
    label.length = number_in("--length", *given.length, 0, labelsbase::default_label_length / unit) * unit;
  if (given.pitch) label.pitch = seconds_of(*given.pitch) / unit;
  label.bounded = given.unbounded ? 0 : 1;
  if (!given.roll) {
    io.results.line(label.make_keep_string(nullptr));
    return all_well;
  }

  EditLabel edit{label, find_medium_roll("--roll", *given.roll, cvt.UserType())};
  if (given.pitch) edit.pitch = label.pitch;
  io.results.line(edit.make_keep_string(nullptr));
  return all_well;
}

}  // namespace

command_run commands::declare_keep(CLI::App& command) {
  auto const given = std::make_shared<arguments>();
  add_operands(command, "TEXT", "Keep strings to explain, each in quotes", given->texts);
  auto* const writes =
      add_option(command, "--write", "TYPE", given->type, "Write the keep string of a label of this type instead");
  add_option(command, "--start", "LABEL", given->start, "Its first label")->needs(writes);
  add_option(command, "--length", "N", given->length, "Its length in frames; without it, no end")->needs(writes);
  add_option(command, "--pitch", "SECONDS", given->pitch,
             "Its seconds per frame; without it, those of the medium or the type")
      ->needs(writes);
  add_option(command, "--roll", "IDENTIFIER", given->roll, "Its medium and generation, for example 20,2")
      ->needs(writes);
  add_flag(command, "--unbounded", given->unbounded, "Let it answer for offsets outside its length too")
      ->needs(writes);
  add_examples(command, {{"keep --write 25 --start 01:00:00:00 --length 250 --roll 20,2",
                          "LABEL_REV:1 pal_label  01:00:00.00 250 0.0400000000 1 MediumRollId 20,2"},
                         {"keep 'LABEL_REV:1 pal_label 01:00:00.00 250 0.04 1 MediumRollId 20,2'",
                          "revision          1\ntype              pal_label\nstart             01:00:00.00, "
                          "sample 90000\nlength            250, samples 250\nseconds per unit  0.04, natural "
                          "0.04\nbounded           yes\nmedium and roll   20,2, 25i,1stGen"}});
  return [given](console& io) {
    if (given->type) return write(*given, io);
    item_loop items{given->texts, io};
    while (items.next()) {
      if (items.is_blank_line()) io.results.line("");
      if (items.is_blank_line() || items.is_refused()) continue;
      if (auto const wrong = explain(std::string{items.text()}, io)) items.refuse(*wrong);
    }
    return items.status();
  };
}

}  // namespace cli
