#include "cli/names.h"

#include <algorithm>
#include <iterator>

#include "cli/console.h"
#include "cli/text.h"
#include "labelsbase/labelcvt/label_facts.h"

namespace cli {
namespace {

using labelsbase::label_facts;

bool equal_in_any_case(std::string_view a, std::string_view b) noexcept {
  auto const lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
  return std::ranges::equal(a, b, {}, lower, lower);
}

// The library reads an exchange name up to a blank and at most 11 characters; here all of the text must match.
label_t type_of_exchange_name(std::string const& text) {
  bool const is_word = text.size() <= 11 && text.find_first_of(" \t\n\v\f\r") == std::string::npos;
  return is_word ? edlstr_to_label_type(text.c_str()) : null_label_t;
}

// Returns the first type with this number or one of these names, or null if there is none. The names that the
// library reads come before those that it only writes, such as "12f".
label_facts const* type_named(std::string const& text) {
  auto const first = [](auto matches) {
    auto const* const found = std::ranges::find_if(
        labelsbase::all_label_facts, [&](label_facts const& facts) { return *facts.name && matches(facts); });
    return found == std::end(labelsbase::all_label_facts) ? nullptr : found;
  };
  if (text.empty()) return nullptr;
  if (auto const number = whole_number(text))
    return first([&](auto const& facts) { return facts.type == *number; });
  if (auto const* named = first([&](auto const& facts) { return text == facts.name; })) return named;
  if (auto const type = type_of_exchange_name(text); type != null_label_t) return &labelsbase::facts_of(type);
  return first([&](auto const& facts) {
    return facts.exchange.written && equal_in_any_case(text, facts.exchange.written);
  });
}

// Returns Medium_none if there is no medium with this number or name.
MediumRollMedium medium_named(std::string_view text) {
  for (int number = Medium_any; number < labelsbase::medium_count; ++number) {
    auto const medium = static_cast<MediumRollMedium>(number);
    std::string_view const name = labelsbase::medium_name(medium);
    if (!name.empty() && (text == name || text == std::to_string(number))) return medium;
  }
  return Medium_none;
}

}  // namespace

label_t find_label_type(std::string_view where, std::string const& text) {
  auto const* const facts = type_named(text);
  if (!facts)
    refuse(where, text,
           "unknown label type; expected a class name (pal_label), a number (5) or an exchange name (25f) from"
           " 'labels types'");
  if (!facts->has_labels())
    refuse(where, text,
           std::string{facts->name} + " has no labels; expected a type that has a template in 'labels types'");
  return facts->type;
}

char const* family_name(UserLabelType family) noexcept {
  switch (family) {
    case User_timecode:
      return "timecode";
    case User_keycode:
      return "key-number";
    case User_feet:
      return "feet";
    case User_ink:
      return "ink";
    case User_film_frames:
      return "film-frames";
    case User_any:
      return "any";
    case User_none:
    case User_no_label:
      break;
  }
  return "-";
}

problem read_medium_roll(std::string_view text, UserLabelType family, MediumRollIdent& out) {
  auto const comma = text.find(',');
  auto const medium = medium_named(text.substr(0, comma));
  if (medium == Medium_none)
    return "unknown medium " + in_quotes(text.substr(0, comma)) +
           "; expected a number (28) or a name (out_24p) from 'labels media'";

  auto identifier = std::to_string(medium);
  if (comma != std::string_view::npos) {
    auto const generation = text.substr(comma + 1);
    if (generation.size() != 1 || generation[0] < '0' || generation[0] > '5')
      return "unknown generation " + in_quotes(generation) +
             "; expected 1 (any), 2 to 5 (1st to 4th) or 0 (the usual one of the medium)";
    identifier.append(1, ',').append(generation);
  }
  MediumRollId_from_string(identifier.c_str(), out, family);
  return std::nullopt;
}

MediumRollIdent find_medium_roll(std::string_view where, std::string_view text, UserLabelType family) {
  MediumRollIdent found;
  if (auto const wrong = read_medium_roll(text, family, found)) refuse(where, text, *wrong);
  return found;
}

}  // namespace cli
