#include "labelsbase/uiflabels/label_choices.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <span>

#include "labelsbase/support/enumerators.h"
#include "labelsbase/support/text.h"

using namespace labelsbase;

namespace {

// Lookups go by the order of the rows: of two rows with one keyword they find the first. Hosts have saved the
// keywords and identifiers, so these irregularities stay: "1st_Gen" means the second generation, and "lab_reel"
// the ink medium.
// clang-format off
constexpr VagueUIFLabelDef choices[] = {
//   label                       text   family         medium, generation             keyword
    {uif_Any_Label,              12833, User_any,      {Medium_any, Gen_any},         "Any_Label"},
    {uif_Any_Timecode,           12835, User_timecode, {Medium_any, Gen_any},         "Any_Timecode"},
    {uif_Primary_Timecode,       12842, User_timecode, {Medium_any, Gen_1st},         "Primary_Timecode"},
    {uif_Any_Audio_Timecode,     12834, User_timecode, {Medium_audio, Gen_any},       "Any_Audio_Timecode"},
    {uif_1st_Gen_Video_Timecode, 12843, User_timecode, {Medium_video, Gen_2nd},       "1st_Gen_Video_Timecode"},
    {uif_1st_Gen_Audio_Timecode, 12836, User_timecode, {Medium_audio, Gen_2nd},       "1st_Gen_Audio_Timecode"},
    {uif_KeyKode,                12841, User_keycode,  {Medium_film, Gen_any},        "KeyKode"},
    {uif_Camera_Timecode,        12837, User_timecode, {Medium_film, Gen_any},        "Camera_Timecode"},
    {uif_Ink_code,               12839, User_ink,      {Medium_ink, Gen_any},         "Ink_code"},
    {uif_24P_Timecode,           12832, User_timecode, {Medium_src_24p, Gen_any},     "24P_Timecode"},
    {uif_24f_Generation,         12831, User_timecode, {Medium_src_24p, Gen_any},     "24f_Generation"},
    {uif_reelid,                 12850, User_no_label, {Medium_any, Gen_1st},         "reelid"},
    {uif_reelid1,                12845, User_no_label, {Medium_audio, Gen_2nd},       "reelid1"},
    {uif_24f_reel,               12844, User_no_label, {Medium_src_24p, Gen_2nd},     "24f_reel"},
    {uif_lab_reel,               12847, User_no_label, {Medium_ink, Gen_any},         "lab_reel"},
    {uif_comp_reel,              12849, User_no_label, {Medium_lab, Gen_any},         "comp_reel"},
    {uif_camreel,                12846, User_no_label, {Medium_film, Gen_any},        "camreel"},
    {uif_name,                   12852, User_no_label, {Medium_none, Gen_unknown},    "name"},
    {uif_slate_take,             12855, User_no_label, {Medium_none, Gen_unknown},    "slate/take"},
    {uif_name_2,                 13081, User_no_label, {Medium_none, Gen_unknown},    "name"},
    {uif_scene,                  10688, User_no_label, {Medium_none, Gen_unknown},    "scene"},
    {uif_shot,                   10689, User_no_label, {Medium_none, Gen_unknown},    "shot"},
    {uif_who,                    10707, User_no_label, {Medium_none, Gen_unknown},    "who"},
    {uif_description,            10672, User_no_label, {Medium_none, Gen_unknown},    "description"},
    {uif_notes,                  10678, User_no_label, {Medium_none, Gen_unknown},    "notes"},
    {uif_Edit_Timecode,          11757, User_timecode, {Medium_output, Gen_any},      "Edit_Timecode"},
    {uif_Edit_24PTimecode,       11755, User_timecode, {Medium_film24_out, Gen_any},  "Edit_24PTimecode"},
    {uif_Edit_TotalDur,          11768, User_timecode, {Medium_output, Gen_any},      "Edit_TotalDur"},
    {uif_Edit_MarkDur,           11761, User_timecode, {Medium_output, Gen_any},      "Edit_MarkDur"},
    {uif_Edit_ElapDur,           11756, User_timecode, {Medium_output, Gen_any},      "Edit_ElapDur"},
    {uif_scene_2,                12854, User_no_label, {Medium_none, Gen_unknown},    "scene"},
    {uif_description_2,          12851, User_no_label, {Medium_none, Gen_unknown},    "description"},
    {uif_notes_2,                12853, User_no_label, {Medium_none, Gen_unknown},    "notes"},
    {uif_cn,                     13875, User_no_label, {Medium_none, Gen_unknown},    "cn"},
    {uif_cd,                     13876, User_no_label, {Medium_none, Gen_unknown},    "cd"},
    {uif_none,                   12832, User_timecode, {Medium_film24, Gen_any},      ""},
};
// clang-format on

// The rows that lookups find. The last row, uif_none, only ends the table.
constexpr std::span found_choices{choices, std::size(choices) - 1};

// Returns the first choice that has no row or several, or the number behind the last choice.
consteval VagueUIFLabel first_without_row() {
  int number = 0;
  for (; number < static_cast<int>(found_choices.size()); ++number)
    if (std::ranges::count(found_choices, number, &VagueUIFLabelDef::label) != 1) break;
  return static_cast<VagueUIFLabel>(number);
}

static_assert(has_no_name<first_without_row()>, "this choice needs a row of its own in the table");

constexpr VagueUIFLabelDef no_choice{uif_none, 12840, User_none, {Medium_none, Gen_unknown}, ""};

// Returns the row of a choice, or no_choice if it has none.
VagueUIFLabelDef const& choice_of(VagueUIFLabel label) noexcept {
  auto const row = std::ranges::find(found_choices, label, &VagueUIFLabelDef::label);
  return row == found_choices.end() ? no_choice : *row;
}

}  // namespace

// NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): see the declaration
VagueUIFLabelDef::VagueUIFLabelDef(VagueUIFLabel, ResId, UserLabelType, char const*, MediumRollMedium,
                                   MediumRollGeneration) noexcept {}

char const* uifLabel_to_config_str(VagueUIFLabel label) noexcept { return choice_of(label).config; }

VagueUIFLabel config_str_to_uifLabel(char const* config) noexcept {
  config = or_empty(config);
  auto const row = std::ranges::find_if(
      found_choices, [config](VagueUIFLabelDef const& choice) { return std::strcmp(choice.config, config) == 0; });
  return row == found_choices.end() ? uif_none : row->label;
}

ResId uifLabelText(VagueUIFLabel label) noexcept { return choice_of(label).text; }

UserLabelType uifLabelType(VagueUIFLabel label) noexcept { return choice_of(label).type; }

MediumRollIdent const& uifLabelMedroll(VagueUIFLabel label) noexcept {
  auto const& choice = choice_of(label);
  return &choice == &no_choice ? get_invalid_MediumRollIdent() : choice.medroll;
}
