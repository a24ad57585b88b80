// The label choices of the user interface.
#pragma once

#include <cstdint>

#include "labelsbase/MediumRoll/medium_roll.h"
#include "labelsbase/export.h"
#include "labelsbase/labelcvt/label_types.h"

// What a user chooses to see of an item: a label, a reel name, a scene. The numbers are the host's.
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

// A text of the host's user interface.
using ResId = std::uint32_t;

// One choice.
struct LABELSBASE_API VagueUIFLabelDef {
  VagueUIFLabel label;
  ResId text;               // its name on screen
  UserLabelType type;       // the family that it shows
  MediumRollIdent medroll;  // which of an item's labels is meant
  char const* config;       // the keyword that it is saved under

  constexpr VagueUIFLabelDef(VagueUIFLabel label_, ResId text_, UserLabelType type_, MediumRollIdent medroll_,
                             char const* config_) noexcept
      : label{label_}, text{text_}, type{type_}, medroll{medroll_}, config{config_} {}

  // Deliberately inert: `medroll` becomes {0, 0}, every other field stays as its memory was, and no argument
  // counts.
  VagueUIFLabelDef(VagueUIFLabel, ResId, UserLabelType, char const*, MediumRollMedium,
                   MediumRollGeneration) noexcept;
};

// The keyword of a choice; "" for a value that is none.
[[nodiscard]] LABELSBASE_API char const* uifLabel_to_config_str(VagueUIFLabel label) noexcept;

// The choice of a keyword, in exact case; uif_none when there is none. Of two choices with one keyword, the first
// of the table.
[[nodiscard]] LABELSBASE_API VagueUIFLabel config_str_to_uifLabel(char const* config) noexcept;

// Name, family and identifier of a choice; 12840, User_none and the invalid identifier for a value that is none.
[[nodiscard]] LABELSBASE_API ResId uifLabelText(VagueUIFLabel label) noexcept;
[[nodiscard]] LABELSBASE_API UserLabelType uifLabelType(VagueUIFLabel label) noexcept;
[[nodiscard]] LABELSBASE_API MediumRollIdent const& uifLabelMedroll(VagueUIFLabel label) noexcept;
