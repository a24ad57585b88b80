#include "cli/medium_roll.h"

#include <string>

#include "cli/messages.h"

namespace cli {
namespace {

// By number or name; Medium_none when there is none.
MediumRollMedium find_medium(std::string_view text) {
  for (int number = Medium_any; number < labelsbase::medium_count; ++number) {
    auto const medium = static_cast<MediumRollMedium>(number);
    std::string_view const name = labelsbase::medium_name(medium);
    if (!name.empty() && (text == name || text == std::to_string(number))) return medium;
  }
  return Medium_none;
}

}  // namespace

problem read_medium_roll(std::string_view text, UserLabelType family, MediumRollIdent& out) {
  auto const comma = text.find(',');
  auto const medium = find_medium(text.substr(0, comma));
  if (medium == Medium_none) {
    return quoted(text.substr(0, comma)) +
           " is no medium; expected a number (28) or a name (out_24p), as 'labels media' lists them";
  }

  auto identifier = std::to_string(medium);
  if (comma != std::string_view::npos) {
    auto const generation = text.substr(comma + 1);
    if (generation.size() != 1 || generation[0] < '0' || generation[0] > '5') {
      return quoted(generation) +
             " is no generation; expected 1 (any), 2 to 5 (1st to 4th), or 0 for the usual one of the medium";
    }
    identifier.append(1, ',').append(generation);
  }
  MediumRollId_from_string(identifier.c_str(), out, family);
  return std::nullopt;
}

}  // namespace cli
