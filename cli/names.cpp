#include "cli/names.h"

#include <algorithm>

#include "cli/console.h"
#include "cli/text.h"
#include "labelsbase/labelcvt/label_facts.h"

namespace cli {
namespace {

// A type without labels by its class name, such as "keycode_label".
bool names_a_base(std::string_view text) noexcept {
  return std::ranges::any_of(labelsbase::all_label_facts, [text](auto const& facts) {
    return *facts.name && !facts.has_labels() && text == facts.name;
  });
}

std::string near_names(std::string_view text) {
  std::string names;
  for (auto const& name : labelnames::nearest(text)) names.append(names.empty() ? "" : ", ").append(name);
  return names;
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

labelnames::named_type find_named_type(std::string_view where, std::string_view text) {
  if (auto const named = labelnames::find(text)) return *named;
  if (names_a_base(text))
    refuse(where, text, std::string{text} + " has no labels of its own; expected a name from 'labels types'");
  auto const in_digits = all_digits(text) ? std::string{text} : "";
  if (labelnames::find(in_digits + "mm"))
    refuse(where, text, "unknown rate; for film write '" + in_digits + "mm' or 'feet" + in_digits + "'");
  if (labelnames::find("#" + in_digits))
    refuse(where, text, "unknown rate; for the type of this number write '#" + in_digits + "'");
  auto const near = near_names(text);
  refuse(
      where, text,
      "unknown label type; " + (near.empty() ? "expected a name from 'labels types', such as 25, 29.97df or 35mm"
                                             : "nearest: " + near));
}

label_t find_label_type(std::string_view where, std::string_view text) {
  return find_named_type(where, text).type;
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
