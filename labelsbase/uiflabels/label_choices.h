// The label choices of the user interface.
#pragma once

#include <cstdint>

#include "labelsbase/MediumRoll/medium_roll.h"
#include "labelsbase/export.h"
#include "labelsbase/labelcvt/label_types.h"

// What a user can choose to see of an item: a label, a reel, a scene. Hosts store the numbers. Callers may hand in
// any 32-bit value.
enum VagueUIFLabel : std::int32_t {
  uif_none = -1,
  uif_Any_Label = 0,
  uif_Any_Timecode,
  uif_Primary_Timecode,
  uif_Any_Audio_Timecode,
  uif_1st_Gen_Video_Timecode,
  uif_1st_Gen_Audio_Timecode,
  uif_KeyKode,
  uif_Camera_Timecode,
  uif_Ink_code,
  uif_24P_Timecode,
  uif_reelid,
  uif_reelid1,
  uif_24f_reel,
  uif_lab_reel,
  uif_comp_reel,
  uif_camreel,
  uif_name,
  uif_slate_take,
  uif_scene,
  uif_shot,
  uif_who,
  uif_description,
  uif_notes,
  uif_Edit_Timecode,
  uif_Edit_24PTimecode,
  uif_Edit_TotalDur,
  uif_Edit_MarkDur,
  uif_Edit_ElapDur,
  uif_scene_2,
  uif_description_2,
  uif_notes_2,
  uif_24f_Generation,
  uif_name_2,
  uif_cn,
  uif_cd,
};

// The number of a text in the host's user interface.
using ResId = std::uint32_t;

// One choice.
struct LABELSBASE_API VagueUIFLabelDef {
  VagueUIFLabel label;      // the choice
  ResId text;               // its name on screen
  UserLabelType type;       // the family of labels that it shows; User_no_label for a reel or a note
  MediumRollIdent medroll;  // selects one of an item's labels
  char const* config;       // the keyword that the choice is saved under

  // A choice of these values.
  constexpr VagueUIFLabelDef(VagueUIFLabel label_, ResId text_, UserLabelType type_, MediumRollIdent medroll_,
                             char const* config_) noexcept
      : label{label_}, text{text_}, type{type_}, medroll{medroll_}, config{config_} {}

  // Deliberately inert: sets `medroll` to {0, 0}, ignores every argument and leaves the other fields unset.
  VagueUIFLabelDef(VagueUIFLabel, ResId, UserLabelType, char const*, MediumRollMedium,
                   MediumRollGeneration) noexcept;
};

// The lookups below return the stated value for uif_none and for a number that is not a choice.
//
//   uifLabel_to_config_str(uif_KeyKode)   // "KeyKode"
//   config_str_to_uifLabel("scene")       // uif_scene, which comes before uif_scene_2
//   uifLabelText(uif_KeyKode)             // 12841
//   uifLabelMedroll(uif_KeyKode)          // {Medium_film, Gen_any}

// Returns the keyword of a choice, or "".
[[nodiscard]] LABELSBASE_API char const* uifLabel_to_config_str(VagueUIFLabel label) noexcept;

// Returns the first choice with this keyword, in exact case, or uif_none. A null keyword reads as "".
[[nodiscard]] LABELSBASE_API VagueUIFLabel config_str_to_uifLabel(char const* config) noexcept;

// Returns the name of a choice on screen, or 12840.
[[nodiscard]] LABELSBASE_API ResId uifLabelText(VagueUIFLabel label) noexcept;

// Returns the family of a choice, or User_none.
[[nodiscard]] LABELSBASE_API UserLabelType uifLabelType(VagueUIFLabel label) noexcept;

// Returns the identifier of a choice, or {0, 0}. The reference stays valid.
[[nodiscard]] LABELSBASE_API MediumRollIdent const& uifLabelMedroll(VagueUIFLabel label) noexcept;
