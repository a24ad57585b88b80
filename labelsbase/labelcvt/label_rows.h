// The table of label types.
#pragma once

#include <iterator>

#include "labelsbase/labelcvt/label_types.h"

namespace labelsbase {

struct label_row {
  label_t type;
  char const* name;  // of the converter class
  UserLabelType family;
  char const* edl_out;  // as written into an edit decision list, null where the type has no name there
  char const* edl_in;   // the code read there, in capitals; null for types that are not looked up at all
  char const* edl_in_long;
  label_t foot;  // the same film in feet, by ink numbers, by key numbers
  label_t ink;
  label_t key;
  Kiv::FrameRate tv_rate;  // of the host's timecode standard, 0 for none
  bool tv_drop;
  int samples_per_second;  // at the natural speed of the material; 0: the host's rate of tv_rate's frames
};

// Two quirks of the data, on which hosts rely. The types without a code have the empty one: a text that begins
// with a blank finds the first of them, keycode_label_t. And the ink base writes the code of 35 mm ink.
inline constexpr auto none = null_label_t;
inline constexpr auto no_text = static_cast<char const*>(nullptr);

// clang-format off
inline constexpr label_row label_rows[] = {
//  type                      name                      family            EDL out        in           long in        foot             ink             key                       TV rate                  drop   samples/s
    {null_label_t,            "",                       User_none,        no_text,       no_text,     no_text,       none,            none,           none,                     Kiv::FrameRate_unknown,  false,   1},
    {reserved_label_t,        "",                       User_none,        no_text,       no_text,     no_text,       none,            none,           none,                     Kiv::FrameRate_unknown,  false,   1},
    {variable_label_t,        "variable_label",         User_none,        no_text,       no_text,     no_text,       none,            none,           none,                     Kiv::FrameRate_unknown,  false,   1},
    {dummy_label_t,           "dummy_label",            User_none,        no_text,       no_text,     no_text,       none,            none,           none,                     Kiv::FrameRate_unknown,  false,   1},
    {timecode_label_t,        "timecode_label",         User_timecode,    no_text,       no_text,     no_text,       none,            none,           none,                     Kiv::FrameRate_unknown,  false,   1},
    {pal_label_t,             "pal_label",              User_timecode,    "25f",         "P",         "25F",         none,            none,           none,                     Kiv::FrameRate_25,       false,   0},
    {ntsc_label_t,            "ntsc_label",             User_timecode,    "30f-nondrop", "N",         "30F-NONDROP", none,            none,           none,                     Kiv::FrameRate_29_97,    false,   0},
    {ntsc_drop_label_t,       "ntsc_drop_label",        User_timecode,    "30f-drop",    "ND",        "30F-DROP",    none,            none,           none,                     Kiv::FrameRate_29_97,    true,    0},
    {tc_24_label_t,           "tc_24_label",            User_timecode,    "24f",         "P24",       "24F",         none,            none,           none,                     Kiv::FrameRate_23_976,   false,  24},
    {keycode_label_t,         "keycode_label",          User_keycode,     no_text,       "",          no_text,       none,            none,           none,                     Kiv::FrameRate_unknown,  false,   1},
    {keycode_35_label_t,      "keycode_35_label",       User_keycode,     "F35",         "F35",       no_text,       foot_35_label_t, ink_35_label_t, keycode_35_label_t,       Kiv::FrameRate_unknown,  false,  96},
    {keycode_16_label_t,      "keycode_16_label",       User_keycode,     "F16",         "F16",       no_text,       foot_16_label_t, ink_16_label_t, keycode_16_label_t,       Kiv::FrameRate_unknown,  false,  24},
    {keycode_353_label_t,     "keycode_353_label",      User_keycode,     "F353",        "F353",      no_text,       foot_353_label_t,ink_35_label_t, keycode_353_label_t,      Kiv::FrameRate_unknown,  false,  72},
    {foot_label_t,            "foot_label",             User_feet,        no_text,       "",          no_text,       none,            ink_35_label_t, keycode_35_label_t,       Kiv::FrameRate_unknown,  false,   1},
    {foot_35_label_t,         "foot_35_label",          User_feet,        no_text,       "",          no_text,       foot_35_label_t, ink_35_label_t, keycode_35_label_t,       Kiv::FrameRate_unknown,  false,  96},
    {foot_16_label_t,         "foot_16_label",          User_feet,        no_text,       "",          no_text,       foot_16_label_t, ink_16_label_t, keycode_16_label_t,       Kiv::FrameRate_unknown,  false,  24},
    {foot_353_label_t,        "foot_353_label",         User_feet,        no_text,       "",          no_text,       foot_353_label_t,none,           keycode_353_label_t,      Kiv::FrameRate_unknown,  false,  72},
    {ink_label_t,             "ink_label",              User_ink,         "I35",         "",          no_text,       foot_35_label_t, none,           none,                     Kiv::FrameRate_unknown,  false,   1},
    {ink_35_label_t,          "ink_35_label",           User_ink,         "I35",         "I35",       no_text,       foot_35_label_t, ink_35_label_t, keycode_35_label_t,       Kiv::FrameRate_unknown,  false,  96},
    {ink_16_label_t,          "ink_16_label",           User_ink,         "I16",         "I16",       no_text,       foot_16_label_t, ink_16_label_t, keycode_16_label_t,       Kiv::FrameRate_unknown,  false,  24},
    {tc_48_label_t,           "tc_48_label",            User_timecode,    "48f",         "P48",       "48F",         none,            none,           none,                     Kiv::FrameRate_48,       false,  48},
    {keycode_35_label_4_t,    "keycode_35_label_4",     User_keycode,     "F35_4",       "F35_4",     no_text,       foot_35_label_t, ink_35_label_t, keycode_35_label_4_t,     Kiv::FrameRate_unknown,  false,  96},
    {keycode_35_label_5_t,    "keycode_35_label_5",     User_keycode,     "F35_5",       "F35_5",     no_text,       foot_35_label_t, ink_35_label_t, keycode_35_label_5_t,     Kiv::FrameRate_unknown,  false,  96},
    {keycode_35_label_6_t,    "keycode_35_label_6",     User_keycode,     "F35_6",       "F35_6",     no_text,       foot_35_label_t, ink_35_label_t, keycode_35_label_6_t,     Kiv::FrameRate_unknown,  false,  96},
    {keycode_16_label_4_t,    "keycode_16_label_4",     User_keycode,     "F16_4",       "F16_4",     no_text,       foot_16_label_t, ink_16_label_t, keycode_16_label_4_t,     Kiv::FrameRate_unknown,  false,  24},
    {keycode_16_label_5_t,    "keycode_16_label_5",     User_keycode,     "F16_5",       "F16_5",     no_text,       foot_16_label_t, ink_16_label_t, keycode_16_label_5_t,     Kiv::FrameRate_unknown,  false,  24},
    {keycode_16_label_6_t,    "keycode_16_label_6",     User_keycode,     "F16_6",       "F16_6",     no_text,       foot_16_label_t, ink_16_label_t, keycode_16_label_6_t,     Kiv::FrameRate_unknown,  false,  24},
    {keycode_353_label_4_t,   "keycode_353_label_4",    User_keycode,     "F353_4",      "F353_4",    no_text,       foot_353_label_t,ink_35_label_t, keycode_353_label_4_t,    Kiv::FrameRate_unknown,  false,  72},
    {keycode_353_label_5_t,   "keycode_353_label_5",    User_keycode,     "F353_5",      "F353_5",    no_text,       foot_353_label_t,ink_35_label_t, keycode_353_label_5_t,    Kiv::FrameRate_unknown,  false,  72},
    {keycode_353_label_6_t,   "keycode_353_label_6",    User_keycode,     "F353_6",      "F353_6",    no_text,       foot_353_label_t,ink_35_label_t, keycode_353_label_6_t,    Kiv::FrameRate_unknown,  false,  72},
    {film_frames_label_t,     "film_frames_label",      User_film_frames, no_text,       "FR",        no_text,       none,            none,           none,                     Kiv::FrameRate_unknown,  false,  24},
    {tc_50_label_t,           "tc_50_label",            User_timecode,    "50f",         "P50",       "50F",         none,            none,           none,                     Kiv::FrameRate_50,       false,  50},
    {tc_60_label_t,           "tc_60_label",            User_timecode,    "60f",         "P60",       "60F",         none,            none,           none,                     Kiv::FrameRate_60,       false,  60},
    {keycode_352_label_t,     "keycode_352_label",      User_keycode,     "F352",        "F352",      no_text,       none,            none,           keycode_352_label_t,      Kiv::FrameRate_unknown,  false,  48},
    {keycode_358_label_t,     "keycode_358_label",      User_keycode,     "F358",        "F358",      no_text,       none,            none,           keycode_358_label_t,      Kiv::FrameRate_unknown,  false, 192},
    {keycode_655_80_label_t,  "keycode_655_80_label",   User_keycode,     "F655_80",     "F655_80",   no_text,       none,            none,           keycode_655_80_label_t,   Kiv::FrameRate_unknown,  false, 120},
    {keycode_658_80_label_t,  "keycode_658_80_label",   User_keycode,     "F658_80",     "F658_80",   no_text,       none,            none,           keycode_658_80_label_t,   Kiv::FrameRate_unknown,  false, 192},
    {keycode_6510_80_label_t, "keycode_6510_80_label",  User_keycode,     "F6510_80",    "F6510_80",  no_text,       none,            none,           keycode_6510_80_label_t,  Kiv::FrameRate_unknown,  false, 240},
    {keycode_655_120_label_t, "keycode_655_120_label",  User_keycode,     "F655_120",    "F655_120",  no_text,       none,            none,           keycode_655_120_label_t,  Kiv::FrameRate_unknown,  false, 120},
    {keycode_658_120_label_t, "keycode_658_120_label",  User_keycode,     "F658_120",    "F658_120",  no_text,       none,            none,           keycode_658_120_label_t,  Kiv::FrameRate_unknown,  false, 192},
    {keycode_6510_120_label_t,"keycode_6510_120_label", User_keycode,     "F6510_120",   "F6510_120", no_text,       none,            none,           keycode_6510_120_label_t, Kiv::FrameRate_unknown,  false, 240},
    {keycode_6515_120_label_t,"keycode_6515_120_label", User_keycode,     "F6515_120",   "F6515_120", no_text,       none,            none,           keycode_6515_120_label_t, Kiv::FrameRate_unknown,  false, 360},
    {tc_50_duration_label_t,  "tc_50_duration_label",   User_timecode,    no_text,       "D50",       no_text,       none,            none,           none,                     Kiv::FrameRate_unknown,  false,  50},
    {tc_60_duration_label_t,  "tc_60_duration_label",   User_timecode,    no_text,       "D60",       no_text,       none,            none,           none,                     Kiv::FrameRate_unknown,  false,  60},
    {tc_12_label_t,           "tc_12_label",            User_timecode,    "12f",         "P12",       no_text,       none,            none,           none,                     Kiv::FrameRate_12,       false,  12},
    {tc_15_label_t,           "tc_15_label",            User_timecode,    "15f",         "P15",       no_text,       none,            none,           none,                     Kiv::FrameRate_15,       false,  15},
    {tc_20_label_t,           "tc_20_label",            User_timecode,    "20f",         "P20",       no_text,       none,            none,           none,                     Kiv::FrameRate_20,       false,  20},
    {tc_80_label_t,           "tc_80_label",            User_timecode,    "80f",         "P80",       no_text,       none,            none,           none,                     Kiv::FrameRate_80,       false,  80},
    {tc_90_label_t,           "tc_90_label",            User_timecode,    "90f",         "P90",       no_text,       none,            none,           none,                     Kiv::FrameRate_90,       false,  90},
    {tc_100_label_t,          "tc_100_label",           User_timecode,    "100f",        "P100",      no_text,       none,            none,           none,                     Kiv::FrameRate_100,      false, 100},
    {tc_120_label_t,          "tc_120_label",           User_timecode,    "120f",        "P120",      no_text,       none,            none,           none,                     Kiv::FrameRate_120,      false, 120},
    {tc_240_label_t,          "tc_240_label",           User_timecode,    "240f",        "P240",      no_text,       none,            none,           none,                     Kiv::FrameRate_240,      false, 240},
};
// clang-format on

[[nodiscard]] constexpr bool in_order(label_row const (&rows)[numLabelCvts]) noexcept {
  for (int i = 0; i < numLabelCvts; ++i)
    if (rows[i].type != i) return false;
  return true;
}

static_assert(std::size(label_rows) == numLabelCvts);
static_assert(in_order(label_rows));  // the row of type t is label_rows[t]

// The row of a type; that of null_label_t for a value out of range.
[[nodiscard]] constexpr label_row const& row_of(label_t type) noexcept {
  return label_rows[is_label_type(type) ? type : null_label_t];
}

}  // namespace labelsbase
