// Label types, their names, and the maps between them and the exchange world.
#pragma once

#include <cstdint>

#include "host/tcinf.h"
#include "labelsbase/export.h"

// The type of a label. The numbers are stored by hosts and never change; new types go to the end. Functions accept
// any 32-bit value.
enum label_t : std::int32_t {
  null_label_t = 0,      // no type: what every lookup returns on failure
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

// The number of label types, null_label_t included: types are numbered from 0 to numLabelCvts - 1.
inline constexpr int numLabelCvts = tc_240_label_t + 1;

// The families that a user chooses between.
enum UserLabelType : std::int32_t {
  User_none = 0,
  User_any = 1,       // matches every family
  User_no_label = 2,  // a reel, a scene and the like: shown beside labels, but without a converter
  User_timecode = 3,
  User_keycode = 4,
  User_feet = 5,
  User_ink = 6,
  User_film_frames = 7,
};

// Whether `a` and `b` are one family. User_any matches every value, User_none matches User_any alone.
[[nodiscard]] LABELSBASE_API bool UserType_matches(UserLabelType a, UserLabelType b) noexcept;

// Returns the type's name in an edit decision list, for example "30f-drop", or "BAD" for a type without one.
[[nodiscard]] LABELSBASE_API char const* label_type_to_edlstr(label_t type) noexcept;

// Returns the type that an edit decision list names, in any case, by its code ("P24") or its long name ("24f").
// Looks at the first 11 characters, up to the first blank. Returns null_label_t for any other text.
[[nodiscard]] LABELSBASE_API label_t edlstr_to_label_type(char const* text) noexcept;

// Returns the sibling of that type in the feet, ink or key-number family, or null_label_t for any other family.
[[nodiscard]] LABELSBASE_API label_t edlstr_to_label_type(char const* text, UserLabelType family) noexcept;

// Returns that type if it is one of key numbers, otherwise null_label_t.
[[nodiscard]] LABELSBASE_API label_t edlstr_to_film_label_type(char const* text) noexcept;

// Returns the type that counts the same film in feet, or null_label_t if there is no such type.
[[nodiscard]] LABELSBASE_API label_t label_t_to_foot_label_t(label_t type) noexcept;

// Returns the type that counts the same film by ink numbers, or null_label_t if there is no such type.
[[nodiscard]] LABELSBASE_API label_t label_t_to_ink_label_t(label_t type) noexcept;

// Returns the type that counts the same film by key numbers, or null_label_t if there is no such type.
[[nodiscard]] LABELSBASE_API label_t label_t_to_key_label_t(label_t type) noexcept;

// Returns the type in which durations are shown. 50 and 60 frame timecode become their duration types. 30 frame
// timecode becomes drop-frame if the output of the current project has the 1001 factor, otherwise non-drop. Other
// types are returned as they are.
[[nodiscard]] LABELSBASE_API label_t label_t_to_duration_label_t(label_t type);

// Returns the label type of a host's timecode standard. Unknown rates count as 30 frames. Deliberate: only
// timecode of 30 frames has a drop-frame type; at any other rate, drop-frame changes nothing.
[[nodiscard]] LABELSBASE_API label_t TvStd_to_label_type(TCInf const& standard) noexcept;

// Returns the timecode standard of a type. Types without a standard return {FrameRate_unknown, false}.
[[nodiscard]] LABELSBASE_API TCInf label_type_to_TvStd(label_t type) noexcept;

// Returns the frames per second that timecode of this rate counts, or 24 for an unknown rate.
[[nodiscard]] LABELSBASE_API double getDefaultTimecodeFrameRate(Kiv::FrameRate rate) noexcept;

// Returns the timecode type of a rate, or tc_24_label_t for an unknown rate.
[[nodiscard]] LABELSBASE_API label_t getDefaultLabelTypeforFrameRate(Kiv::FrameRate rate) noexcept;

// Returns the timecode type of the current project's rate and drop-frame preference.
[[nodiscard]] LABELSBASE_API label_t getDefaultLabelTypeForProject();

// Returns the host's frames per second of the three classic video types, and 1.0 for every other type. Deliberate:
// the later rates have no video rate here.
[[nodiscard]] LABELSBASE_API double get_vid_fps(label_t type);

namespace labelsbase {

// Returns whether the value is from 0 to numLabelCvts - 1.
[[nodiscard]] constexpr bool is_label_type(label_t type) noexcept { return type >= 0 && type < numLabelCvts; }

// Returns the name of the type's converter class, for example "pal_label", or "" for a value without a class.
[[nodiscard]] LABELSBASE_API char const* label_type_name(label_t type) noexcept;

// Returns the family of the type. Values out of range and types outside the families return User_none.
[[nodiscard]] LABELSBASE_API UserLabelType user_label_type(label_t type) noexcept;

}  // namespace labelsbase
