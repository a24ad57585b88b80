// Label types, their names, and the maps between them and the exchange world.
#pragma once

#include <cstdint>

#include "host/tcinf.h"
#include "labelsbase/export.h"

// The type of a label. The numbers are stored in keep strings and never change; the order is the order in which
// types were added. Any 32-bit value may be handed in.
enum label_t : std::int32_t {
  null_label_t = 0,      // no type: what every lookup gives on failure
  reserved_label_t = 1,  // carried by no converter
  variable_label_t,
  dummy_label_t,
  timecode_label_t,
  pal_label_t,
  ntsc_label_t,
  ntsc_drop_label_t,
  tc_24_label_t,
  keycode_label_t,
  keycode_35_label_t,
  keycode_16_label_t,
  keycode_353_label_t,
  foot_label_t,
  foot_35_label_t,
  foot_16_label_t,
  foot_353_label_t,
  ink_label_t,
  ink_35_label_t,
  ink_16_label_t,
  tc_48_label_t,
  keycode_35_label_4_t,
  keycode_35_label_5_t,
  keycode_35_label_6_t,
  keycode_16_label_4_t,
  keycode_16_label_5_t,
  keycode_16_label_6_t,
  keycode_353_label_4_t,
  keycode_353_label_5_t,
  keycode_353_label_6_t,
  film_frames_label_t,
  tc_50_label_t,
  tc_60_label_t,
  keycode_352_label_t,
  keycode_358_label_t,
  keycode_655_80_label_t,
  keycode_658_80_label_t,
  keycode_6510_80_label_t,
  keycode_655_120_label_t,
  keycode_658_120_label_t,
  keycode_6510_120_label_t,
  keycode_6515_120_label_t,
  tc_50_duration_label_t,
  tc_60_duration_label_t,
  tc_12_label_t,
  tc_15_label_t,
  tc_20_label_t,
  tc_80_label_t,
  tc_90_label_t,
  tc_100_label_t,
  tc_120_label_t,
  tc_240_label_t,
};

inline constexpr int numLabelCvts = tc_240_label_t + 1;

// The families that a user chooses between.
enum UserLabelType : std::int32_t {
  User_none = 0,
  User_any = 1,       // matches every family
  User_no_label = 2,  // of no converter: what the user interface shows beside labels, a reel or a scene
  User_timecode = 3,
  User_keycode = 4,
  User_feet = 5,
  User_ink = 6,
  User_film_frames = 7,
};

// Whether `a` and `b` are one family. "Any" matches everything, none included; none matches nothing else.
[[nodiscard]] constexpr bool UserType_matches(UserLabelType a, UserLabelType b) noexcept {
  if (a == User_any || b == User_any) return true;
  if (a == User_none || b == User_none) return false;
  return a == b;
}

// The type's name in an edit decision list, for example "30f-drop"; "BAD" for a type that has none.
[[nodiscard]] LABELSBASE_API char const* label_type_to_edlstr(label_t type) noexcept;

// The type that an edit decision list names, in any case, by its code ("P24") or its long name ("24f"). Only the
// first 11 characters count, and only those before the first blank. No such name, or none at all: null_label_t.
[[nodiscard]] LABELSBASE_API label_t edlstr_to_label_type(char const* text) noexcept;

// The same, and then its sibling in the feet, ink or key-number family; null_label_t for any other family.
[[nodiscard]] LABELSBASE_API label_t edlstr_to_label_type(char const* text, UserLabelType family) noexcept;

// The same, for key-number types only; null_label_t for any other.
[[nodiscard]] LABELSBASE_API label_t edlstr_to_film_label_type(char const* text) noexcept;

// The type that counts the same film in feet, by ink numbers or by key numbers; null_label_t where there is none.
[[nodiscard]] LABELSBASE_API label_t label_t_to_foot_label_t(label_t type) noexcept;
[[nodiscard]] LABELSBASE_API label_t label_t_to_ink_label_t(label_t type) noexcept;
[[nodiscard]] LABELSBASE_API label_t label_t_to_key_label_t(label_t type) noexcept;

// The type in which a duration is shown: 50 and 60 frame timecode by their real counts, and 30 frame timecode as
// drop-frame exactly when the output of the current project has the 1001 factor. Other types stay as they are.
[[nodiscard]] LABELSBASE_API label_t label_t_to_duration_label_t(label_t type);

// Between the host's timecode standards and label types. No type gives back a standard: rate code 0, no drop.
[[nodiscard]] LABELSBASE_API label_t TvStd_to_label_type(TCInf const& standard) noexcept;
[[nodiscard]] LABELSBASE_API TCInf label_type_to_TvStd(label_t type) noexcept;

// Frames per second that timecode of this rate counts; 24 for an unknown rate.
[[nodiscard]] LABELSBASE_API double getDefaultTimecodeFrameRate(Kiv::FrameRate rate) noexcept;

// The timecode type of a rate; tc_24_label_t for an unknown rate.
[[nodiscard]] LABELSBASE_API label_t getDefaultLabelTypeforFrameRate(Kiv::FrameRate rate) noexcept;

// The timecode type of the current project's rate and drop-frame preference.
[[nodiscard]] LABELSBASE_API label_t getDefaultLabelTypeForProject();

// Video frames per second of the three classic video types, from the host; 1.0 for every other type. Deliberate:
// the later rates have no video rate here.
[[nodiscard]] LABELSBASE_API double get_vid_fps(label_t type);

namespace labelsbase {

[[nodiscard]] constexpr bool is_label_type(label_t type) noexcept { return type >= 0 && type < numLabelCvts; }

// The name of the type's converter class, for example "pal_label"; "" for a value that no class carries.
[[nodiscard]] LABELSBASE_API char const* label_type_name(label_t type) noexcept;

// The family of the type; User_none for the bases without labels of their own and for values out of range.
[[nodiscard]] LABELSBASE_API UserLabelType user_label_type(label_t type) noexcept;

}  // namespace labelsbase
