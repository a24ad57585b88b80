// media and choices: what the library knows, as tables.

#include <memory>
#include <span>
#include <string>

#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/names.h"
#include "cli/records.h"
#include "labelsbase/MediumRoll.h"
#include "labelsbase/uiflabels.h"

namespace cli {
namespace {

// The arguments of a listing.
struct arguments {
  std::string format;
};

value text_or_missing(char const* text) { return text ? value{text} : missing; }

value family_or_missing(UserLabelType family) {
  bool const has_name = family != User_none && family != User_no_label;
  return text_or_missing(has_name ? family_name(family) : nullptr);
}

constexpr field media_fields[] = {
    {"number", value_type::integer, "Number of the medium", "number"},
    {"name", value_type::text, "Name of the medium", "name"},
    {"user_text", value_type::text, "What users read for it", "user"},
    {"rate_fps", value_type::number, "Frames a second", "frames/s", may_be_missing},
    {"sample", value_type::text, "How frames are scanned: frame (as a whole) or field (as two fields)", "sample",
     may_be_missing},
    {"label_type", value_type::text, "Class name of its label type", "label type", may_be_missing},
    {"also_accepts", value_type::text, "Numbers of the media that fit in its place, separated by blanks, or all",
     "also accepts", may_be_missing},
};

std::string user_word(MediumRollMedium medium) {
  std::string const text = MediumRollId_to_UserString({medium, Gen_any});
  return text.substr(0, text.find(','));
}

// The numbers of the other media that fit where this one is asked for.
std::string others_accepted(MediumRollMedium asked) {
  if (asked == Medium_any) return "all";
  std::string numbers;
  for (int other = Medium_any; other < labelsbase::medium_count; ++other) {
    MediumRollIdent const ident{static_cast<MediumRollMedium>(other), Gen_any};
    if (other == asked || !MediumRollIdent{asked, Gen_any}.MediumRollId_fits_this(ident)) continue;
    if (!numbers.empty()) numbers += ' ';
    numbers += std::to_string(other);
  }
  return numbers;
}

exit_status media(arguments const& given, console& io) {
  record_writer records{find_format(given.format), media_fields, io.results};
  for (int number = Medium_any; number < labelsbase::medium_count; ++number) {
    auto const medium = static_cast<MediumRollMedium>(number);
    if (!*labelsbase::medium_name(medium)) continue;
    auto const user = user_word(medium);
    auto const accepted = others_accepted(medium);
    value rate = missing;
    value scan = missing;
    value label_type = missing;
    if (auto const code = getFrameRatefromMedium(medium); code != Kiv::FrameRate_unknown) {
      rate = Kiv::getFramesPerSecond(code);
      scan = mediumRollIsFrameProgressive(medium) ? "frame" : "field";
      label_type = labelsbase::label_type_name(getDefaultLabelTypeForMedium(medium));
    }
    records.write({number, labelsbase::medium_name(medium), user, rate, scan, label_type,
                   text_or_missing(accepted.empty() ? nullptr : accepted.c_str())});
  }
  return all_well;
}

constexpr field choice_fields[] = {
    {"number", value_type::integer, "Number of the choice", "number"},
    {"keyword", value_type::text, "Name in configurations", "keyword"},
    {"text_id", value_type::integer, "Number of its text in the user interface", "text"},
    {"family", value_type::text, "Family: timecode, key-number, feet, ink, film-frames or any", "family",
     may_be_missing},
    {"roll", value_type::text, "Medium and generation", "roll", may_be_missing},
    {"user_text", value_type::text, "What users read for medium and generation", "user", may_be_missing},
};

exit_status choices(arguments const& given, console& io) {
  record_writer records{find_format(given.format), choice_fields, io.results};
  for (int number = 0; number <= uif_cd; ++number) {
    auto const choice = static_cast<VagueUIFLabel>(number);
    auto const& roll = uifLabelMedroll(choice);
    char identifier[labelsbase::identifier_text_size];
    MediumRollId_to_string(identifier, roll);
    auto const user = std::string{MediumRollId_to_UserString(roll)};
    bool const has_roll = roll.medium != Medium_none;
    records.write({number, uifLabel_to_config_str(choice), uifLabelText(choice),
                   family_or_missing(uifLabelType(choice)), text_or_missing(has_roll ? identifier : nullptr),
                   text_or_missing(has_roll ? user.c_str() : nullptr)});
  }
  return all_well;
}

// Declares --format and runs the listing with it.
command_run listing(CLI::App& command, std::span<field const> fields,
                    exit_status (*list)(arguments const&, console&)) {
  auto const given = std::make_shared<arguments>();
  add_format(command, given->format, fields);
  return [given, list](console& io) { return list(*given, io); };
}

}  // namespace

command_run commands::declare_media(CLI::App& command) {
  add_note(
      command,
      "sample says how frames are scanned: as a whole (frame) or as two fields (field). \"also accepts\" lists\n"
      "the media that fit where this one is asked for; see 'labels roll --help'.");
  return listing(command, media_fields, media);
}

command_run commands::declare_choices(CLI::App& command) {
  add_note(command,
           "keyword is the choice's name in configurations, text the number of its text in the user interface,\n"
           "roll its medium and generation, and user how users see these.");
  return listing(command, choice_fields, choices);
}

}  // namespace cli
