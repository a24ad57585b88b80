#include "cli/verbs/keep.h"

#include <array>
#include <cmath>
#include <cstddef>

#include "cli/label_io.h"
#include "cli/names.h"
#include "cli/text.h"
#include "host/tokeniser.h"
#include "labelsbase/labelcvt/label_facts.h"

namespace cli {
namespace {

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

problem is_missing() { return "is missing"; }
problem unexpected(std::string const& text, std::string const& why) { return in_quotes(text) + ": " + why; }

problem header_problem(token const& text) {
  if (!text) return is_missing();
  auto const number = text->starts_with("LABEL_REV:") ? whole_number(text->substr(10)) : std::nullopt;
  if (number && (*number == 1 || *number == 2)) return std::nullopt;
  return unexpected(*text, "expected LABEL_REV:1");
}

problem type_problem(token const& text) {
  if (!text) return is_missing();
  if (get_label_type(text->c_str()) != null_label_t) return std::nullopt;
  return unexpected(*text, "unknown label type; expected a class name from 'labels types'");
}

problem start_problem(token const& text, label_t type) {
  if (!text) return is_missing();
  if (!labelsbase::facts_of(type).has_labels()) return unexpected(*text, "cannot be read without a valid type");
  label_parts ignored;
  auto const wrong = read_label(type, *text, ignored);
  return wrong ? unexpected(*text, *wrong) : wrong;
}

problem whole_number_problem(token const& text) {
  if (!text) return is_missing();
  return whole_number(*text) ? std::nullopt : unexpected(*text, "expected a whole number");
}

problem seconds_problem(token const& text) {
  if (!text) return is_missing();
  auto const seconds = decimal(*text);
  if (seconds && std::isfinite(*seconds) && *seconds > 0) return std::nullopt;
  return unexpected(*text, "expected seconds, more than 0");
}

problem roll_problem(token const& word, token const& text, UserLabelType family) {
  if (!word) return std::nullopt;  // a label without a roll
  if (*word != MediumRollId_name_str())
    return unexpected(*word, std::string{"expected "} + MediumRollId_name_str());
  if (!text) return is_missing();
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

// Returns the parts of a keep string, as far as the library reads them.
std::vector<kept_part> parts_of(EditLabel const& label, token_list const& tokens) {
  auto& cvt = *label.start.cvt();
  int const unit = cvt.samples_per_unit();

  std::vector<kept_part> parts{{"revision", std::to_string(label.revision), header_problem(tokens[header])}};
  if (label.revision < 1 || label.revision > 2) return parts;

  parts.push_back({"type", cvt.type_str(), type_problem(tokens[type_name])});
  parts.push_back({"start", tokens[start].value_or("") + ", sample " + std::to_string(label.start.sample),
                   start_problem(tokens[start], cvt.type())});
  parts.push_back({"length", std::to_string(label.length / unit) + ", samples " + std::to_string(label.length),
                   whole_number_problem(tokens[units])});
  parts.push_back(
      {"seconds per unit",
       shortest(label.pitch * unit) + ", natural " + shortest(Label::get_natural_pitch(cvt.type()) * unit),
       seconds_problem(tokens[seconds_per_unit])});
  parts.push_back({"bounded", label.bounded != 0 ? "yes" : "no", whole_number_problem(tokens[bounded])});
  parts.push_back({"medium and roll", roll_value(label, tokens[keyword].has_value()),
                   roll_problem(tokens[keyword], tokens[identifier], cvt.UserType())});
  if (tokens[surplus])
    parts.push_back({"surplus", *tokens[surplus], unexpected(*tokens[surplus], "expected the end")});
  return parts;
}

}  // namespace

explained_keep explain_keep(std::string const& text) {
  auto const tokens = tokens_of(text);
  explained_keep found{EditLabel{text.c_str()}, tokens[start].value_or(""), tokens[keyword].has_value(), {}, {}};
  if (!tokens[header] || !tokens[header]->starts_with("LABEL_REV")) {
    found.wrong = "not a keep string; expected one that begins with LABEL_REV:1";
    return found;
  }
  found.parts = parts_of(found.label, tokens);
  for (auto const& part : found.parts)
    if (part.wrong) found.wrong = (found.wrong ? *found.wrong + "; " : "") + part.name + " " + *part.wrong;
  return found;
}

}  // namespace cli
