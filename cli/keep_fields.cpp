#include "cli/keep_fields.h"

#include <array>
#include <cmath>
#include <optional>

#include "cli/label_type.h"
#include "cli/medium_roll.h"
#include "cli/messages.h"
#include "cli/numbers.h"
#include "host/tokeniser.h"
#include "labelcheck/label_check.h"
#include "labelsbase/labels.h"
#include "refhost/whole_number.h"

namespace cli {
namespace {

using token = std::optional<std::string>;

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

std::array<token, parts> tokens_of(std::string const& text) {
  std::array<token, parts> tokens;
  tokeniser split{text.c_str(), " "};
  for (auto& field : tokens) {
    char const* const next = split.next();
    if (!next) break;
    field = next;
  }
  return tokens;
}

problem missing() { return "is missing"; }
problem unreadable(std::string const& text, std::string const& expected) {
  return quoted(text) + ": expected " + expected;
}

problem header_problem(token const& text) {
  if (!text) return missing();
  auto const number = text->starts_with("LABEL_REV:") ? refhost::whole_number(text->substr(10)) : std::nullopt;
  if (number && (*number == 1 || *number == 2)) return std::nullopt;
  return unreadable(*text, "LABEL_REV:1");
}

problem type_problem(token const& text) {
  if (!text) return missing();
  if (get_label_type(text->c_str()) != null_label_t) return std::nullopt;
  return unreadable(*text, "a class name, as 'labels types' lists them");
}

problem start_problem(token const& text, label_t type) {
  if (!text) return missing();
  if (!converter_of(type)) return unreadable(*text, "a type that can read it");
  auto const refused = labelcheck::check(type, *text);
  if (!refused) return std::nullopt;
  auto wrong = quoted(*text) + ": " + refused->rule;
  return refused->nearest.empty() ? wrong : wrong + "; nearest is " + refused->nearest;
}

problem whole_number_problem(token const& text) {
  if (!text) return missing();
  return refhost::whole_number(*text) ? std::nullopt : unreadable(*text, "a whole number");
}

problem seconds_problem(token const& text) {
  if (!text) return missing();
  auto const seconds = decimal(*text);
  if (seconds && std::isfinite(*seconds) && *seconds > 0) return std::nullopt;
  return unreadable(*text, "seconds, more than 0");
}

problem roll_problem(token const& word, token const& text, UserLabelType family) {
  if (!word) return std::nullopt;  // a label without a roll
  if (*word != MediumRollId_name_str()) return unreadable(*word, MediumRollId_name_str());
  if (!text) return missing();
  MediumRollIdent ident;
  auto const wrong = read_medium_roll(*text, family, ident);
  if (!wrong) return std::nullopt;
  return quoted(*text) + ": " + *wrong;
}

std::string roll_value(EditLabel const& label, bool has_roll) {
  char text[labelsbase::identifier_text_size];
  MediumRollId_to_string(text, label.medium_roll);
  return std::string{text} + ", " + MediumRollId_to_UserString(label.medium_roll) +
         (has_roll ? "" : " (none kept)");
}

}  // namespace

std::vector<keep_field> explain_keep_string(std::string const& text) {
  auto const tokens = tokens_of(text);
  EditLabel const label{text.c_str()};
  auto& cvt = *label.start.cvt();
  int const unit = cvt.samples_per_unit();

  std::vector<keep_field> fields{{"revision", std::to_string(label.revision), header_problem(tokens[header])}};
  bool const is_read =
      tokens[header] && tokens[header]->starts_with("LABEL_REV") && label.revision != 0 && label.revision < 3;
  if (!is_read) return fields;

  auto const sample = std::to_string(label.start.sample);
  fields.push_back({"type", cvt.type_str(), type_problem(tokens[type_name])});
  fields.push_back(
      {"start", tokens[start].value_or("") + ", sample " + sample, start_problem(tokens[start], cvt.type())});
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
    fields.push_back({"surplus", *tokens[surplus], quoted(*tokens[surplus]) + ": expected the end"});
  return fields;
}

}  // namespace cli
