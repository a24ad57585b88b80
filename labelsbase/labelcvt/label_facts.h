// What every label type is: one table, one row a type. Converters, the strict reader and the tool read it.
//
//   facts_of(keycode_16_label_t).film.gauge.perfs_per_count()   // 20: perforations a key
//   facts_of(ntsc_drop_label_t).timecode.count().split(1800)    // {0, 1, 0, 2}
//   facts_of(tc_24_label_t).exchange.written                    // "24f"
#pragma once

#include <iterator>

#include "labelsbase/counts/film_gauge.h"
#include "labelsbase/counts/timecode_count.h"
#include "labelsbase/labelcvt/label_types.h"

namespace labelsbase {

// Film gauges by their key numbers (SMPTE ST 254 for 35 mm, ST 271 for 16 mm, ST 270 for 65 mm).
namespace gauges {

// clang-format off
//                                           perfs a frame, a key
inline constexpr film_gauge film_16                  {1,  20};  // 16 mm
inline constexpr film_gauge film_35                  {4,  64};  // 35 mm
inline constexpr film_gauge film_35_3perf            {3,  64};  // 35 mm, 3-perf
inline constexpr film_gauge film_35_2perf            {2,  64};  // 35 mm, 2-perf
inline constexpr film_gauge film_35_8perf            {8,  64};  // 35 mm, 8-perf
inline constexpr film_gauge film_65_5perf_80         {5,  80};  // 65 mm, 5-perf, a key every 80
inline constexpr film_gauge film_65_8perf_80         {8,  80};  // 65 mm, 8-perf, a key every 80
inline constexpr film_gauge film_65_10perf_80       {10,  80};  // 65 mm, 10-perf, a key every 80
inline constexpr film_gauge film_65_5perf_120        {5, 120};  // 65 mm, 5-perf, a key every 120
inline constexpr film_gauge film_65_8perf_120        {8, 120};  // 65 mm, 8-perf, a key every 120
inline constexpr film_gauge film_65_10perf_120      {10, 120};  // 65 mm, 10-perf, a key every 120
inline constexpr film_gauge film_65_15perf_120      {15, 120};  // 65 mm, 15-perf, a key every 120
inline constexpr film_gauge film_16_feet             {1,  40};  // 16 mm by feet: a foot holds two keys
// clang-format on

}  // namespace gauges

// How a timecode type counts.
struct timecode_facts {
  int frames_per_second = 0;   // that labels count; 0 for types that are not timecode or have no labels
  char separator = '.';        // before the frames
  bool drop_frame = false;     // leaves out labels to keep up with 30000/1001 frames a second
  bool at_host_speed = false;  // runs at the host's frame rate of the type's standard, not at frames_per_second

  // The host's setting that may slow the count to `slow_frames_per_second`; null where there is no such setting.
  char const* setting = nullptr;
  int slow_frames_per_second = 0;

  // Returns the arithmetic of the count, as it is without the host's setting.
  [[nodiscard]] constexpr timecode_count count() const noexcept {
    return timecode_count{frames_per_second, drop_frame};
  }

  // Returns the digits that frames are written with: 2, or 3 above 100 frames a second.
  [[nodiscard]] constexpr int frame_digits() const noexcept { return frames_per_second > 100 ? 3 : 2; }
};

// How a film type counts. Samples are perforations; for film frames they are frames.
struct film_facts {
  film_gauge gauge{};         // perforations of a frame and of a key, foot or ink number
  char separator = '+';       // before the frames
  int prefix_length = 0;      // characters of the prefix
  int count_digits = 0;       // of the key or ink number; the fewest of feet and frames; 0 for others
  bool reports_perfs = true;  // whether perfs_per_keyKode() reports the perforations of a key, or 1

  // The prefix of labels that have none of their own; its first `prefix_length` characters.
  char const* dummy_prefix = "";

  // Whether labels end in the perforation within the frame, 1 to 3.
  [[nodiscard]] constexpr bool names_perforation() const noexcept { return !gauge.has_whole_frames(); }
};

// The names of a type in edit decision lists; null where it has none.
struct exchange_names {
  char const* written = nullptr;    // "30f-drop"
  char const* read = nullptr;       // in capitals: "ND"
  char const* read_long = nullptr;  // in capitals: "30F-DROP"
};

// The types that count the same film in feet, by ink numbers or by key numbers; null_label_t where there is none.
struct film_siblings {
  label_t feet = null_label_t;  // by feet and frames
  label_t ink = null_label_t;   // by ink numbers
  label_t key = null_label_t;   // by key numbers
};

// What the labels of a type count: timecode or film, or neither for the bases of the families.
struct label_form {
  UserLabelType family = User_none;  // that a user chooses the type by
  timecode_facts timecode{};         // 0 frames per second where the type is not timecode
  film_facts film{};                 // 0 digits where the type is not film
};

// Everything about one label type.
struct label_facts : label_form {
  label_t type;                  // the number of the row
  char const* name;              // of the converter class; "" for types without one
  exchange_names exchange;       // in edit decision lists
  film_siblings siblings;        // types of the same film in other families
  Kiv::FrameRate standard_rate;  // of the host's timecode standard; FrameRate_unknown where the type has none

  // A row of the table: what is left out has no value.
  constexpr label_facts(label_t type_, char const* name_, label_form const& form,
                        exchange_names const& exchange_ = {}, film_siblings const& siblings_ = {},
                        Kiv::FrameRate standard_rate_ = Kiv::FrameRate_unknown) noexcept
      : label_form{form},
        type{type_},
        name{name_},
        exchange{exchange_},
        siblings{siblings_},
        standard_rate{standard_rate_} {}

  // Whether the type has labels of timecode.
  [[nodiscard]] constexpr bool is_timecode() const noexcept { return timecode.frames_per_second > 0; }

  // Whether the type has labels of film: key numbers, ink numbers, feet or film frames.
  [[nodiscard]] constexpr bool is_film() const noexcept { return film.count_digits > 0; }

  // Whether the type has labels, and so a converter of its own.
  [[nodiscard]] constexpr bool has_labels() const noexcept { return is_timecode() || is_film(); }

  // Returns the samples of a frame: perforations for film, 1 for timecode and film frames.
  [[nodiscard]] constexpr int samples_per_frame() const noexcept { return film.gauge.perfs_per_frame(); }

  // Returns the samples of a second at the natural speed of the material; film runs at 24 frames a second. Returns
  // 1 for types without labels. Types with timecode.at_host_speed run at the host's rate of `standard_rate`
  // instead.
  [[nodiscard]] constexpr int samples_per_second() const noexcept {
    if (is_timecode()) return timecode.frames_per_second;
    return is_film() ? 24 * samples_per_frame() : 1;
  }
};

// The forms that the rows of the table name.
namespace forms {

// A type without labels of its own.
[[nodiscard]] consteval label_form base(UserLabelType family) { return {.family = family}; }

// Timecode that runs at the frames per second that it counts.
[[nodiscard]] consteval label_form timecode(int frames_per_second, char separator = '.') {
  return {.family = User_timecode, .timecode = {.frames_per_second = frames_per_second, .separator = separator}};
}

// The three classic video types run at the host's speed.
[[nodiscard]] consteval label_form video(int frames_per_second, bool drop_frame = false) {
  auto form = timecode(frames_per_second, drop_frame ? ';' : '.');
  form.timecode.drop_frame = drop_frame;
  form.timecode.at_host_speed = true;
  return form;
}

// A host's setting of this name may slow the count: two fields a frame, or half as many frames.
[[nodiscard]] consteval label_form slowed_by(char const* setting, int slow_frames_per_second, label_form form) {
  form.timecode.setting = setting;
  form.timecode.slow_frames_per_second = slow_frames_per_second;
  return form;
}

// Key numbers have 12 characters of prefix and count.
[[nodiscard]] consteval label_form keys(film_gauge const& gauge, int digits, char separator = '+') {
  return {.family = User_keycode,
          .film = {.gauge = gauge,
                   .separator = separator,
                   .prefix_length = 12 - digits,
                   .count_digits = digits,
                   .dummy_prefix = "XX000000"}};
}

// Deliberate: these report 1 perforation a key, which hosts rely on.
[[nodiscard]] consteval label_form unreported_keys(film_gauge const& gauge, int digits) {
  auto form = keys(gauge, digits);
  form.film.reports_perfs = false;
  return form;
}

// Ink numbers have 4 characters of prefix and 4 digits.
[[nodiscard]] consteval label_form ink(film_gauge const& gauge) {
  return {.family = User_ink,
          .film = {.gauge = gauge, .prefix_length = 4, .count_digits = 4, .dummy_prefix = "XXXX"}};
}

// Feet have 4 digits or more.
[[nodiscard]] consteval label_form feet(film_gauge const& gauge) {
  return {.family = User_feet, .film = {.gauge = gauge, .count_digits = 4}};
}

// Film frames have 6 digits or more.
[[nodiscard]] consteval label_form film_frames() {
  return {.family = User_film_frames, .film = {.count_digits = 6}};
}

}  // namespace forms

// Two quirks of the data, on which hosts rely. The base of key numbers reads the empty name: a text that begins
// with a blank finds it. And the base of ink numbers writes the name of 35 mm ink numbers.
//
// clang-format off
namespace label_table {

using namespace forms;
using namespace gauges;
inline constexpr auto none = null_label_t;  // no such sibling

// One row a type, in the order of the types.
inline constexpr label_facts rows[] = {
//   type                       converter class           counts                                            exchange names: written, read        same film in feet, ink, keys                               standard
    {null_label_t,             "",                       base(User_none)},
    {reserved_label_t,         "",                       base(User_none)},
    {variable_label_t,         "variable_label",         base(User_none)},
    {dummy_label_t,            "dummy_label",            base(User_none)},
    {timecode_label_t,         "timecode_label",         base(User_timecode)},
    {pal_label_t,              "pal_label",              video(25),                                        {"25f", "P", "25F"},                 {},                                                        Kiv::FrameRate_25},
    {ntsc_label_t,             "ntsc_label",             video(30),                                        {"30f-nondrop", "N", "30F-NONDROP"}, {},                                                        Kiv::FrameRate_29_97},
    {ntsc_drop_label_t,        "ntsc_drop_label",        video(30, true),                                  {"30f-drop", "ND", "30F-DROP"},      {},                                                        Kiv::FrameRate_29_97},
    {tc_24_label_t,            "tc_24_label",            timecode(24, '+'),                                {"24f", "P24", "24F"},               {},                                                        Kiv::FrameRate_23_976},
    {keycode_label_t,          "keycode_label",          base(User_keycode),                               {nullptr, ""}},
    {keycode_35_label_t,       "keycode_35_label",       keys(film_35, 4),                                 {"F35", "F35"},                      {foot_35_label_t, ink_35_label_t, keycode_35_label_t}},
    {keycode_16_label_t,       "keycode_16_label",       keys(film_16, 4, '&'),                            {"F16", "F16"},                      {foot_16_label_t, ink_16_label_t, keycode_16_label_t}},
    {keycode_353_label_t,      "keycode_353_label",      keys(film_35_3perf, 4),                           {"F353", "F353"},                    {foot_353_label_t, ink_35_label_t, keycode_353_label_t}},
    {foot_label_t,             "foot_label",             base(User_feet),                                  {},                                  {none, ink_35_label_t, keycode_35_label_t}},
    {foot_35_label_t,          "foot_35_label",          feet(film_35),                                    {},                                  {foot_35_label_t, ink_35_label_t, keycode_35_label_t}},
    {foot_16_label_t,          "foot_16_label",          feet(film_16_feet),                               {},                                  {foot_16_label_t, ink_16_label_t, keycode_16_label_t}},
    {foot_353_label_t,         "foot_353_label",         feet(film_35_3perf),                              {},                                  {foot_353_label_t, none, keycode_353_label_t}},
    {ink_label_t,              "ink_label",              base(User_ink),                                   {"I35"},                             {foot_35_label_t, none, none}},
    {ink_35_label_t,           "ink_35_label",           ink(film_35),                                     {"I35", "I35"},                      {foot_35_label_t, ink_35_label_t, keycode_35_label_t}},
    {ink_16_label_t,           "ink_16_label",           ink(film_16),                                     {"I16", "I16"},                      {foot_16_label_t, ink_16_label_t, keycode_16_label_t}},
    {tc_48_label_t,            "tc_48_label",            timecode(48, '+'),                                {"48f", "P48", "48F"},               {},                                                        Kiv::FrameRate_48},
    {keycode_35_label_4_t,     "keycode_35_label_4",     keys(film_35, 4),                                 {"F35_4", "F35_4"},                  {foot_35_label_t, ink_35_label_t, keycode_35_label_4_t}},
    {keycode_35_label_5_t,     "keycode_35_label_5",     keys(film_35, 5),                                 {"F35_5", "F35_5"},                  {foot_35_label_t, ink_35_label_t, keycode_35_label_5_t}},
    {keycode_35_label_6_t,     "keycode_35_label_6",     keys(film_35, 6),                                 {"F35_6", "F35_6"},                  {foot_35_label_t, ink_35_label_t, keycode_35_label_6_t}},
    {keycode_16_label_4_t,     "keycode_16_label_4",     keys(film_16, 4, '&'),                            {"F16_4", "F16_4"},                  {foot_16_label_t, ink_16_label_t, keycode_16_label_4_t}},
    {keycode_16_label_5_t,     "keycode_16_label_5",     keys(film_16, 5, '&'),                            {"F16_5", "F16_5"},                  {foot_16_label_t, ink_16_label_t, keycode_16_label_5_t}},
    {keycode_16_label_6_t,     "keycode_16_label_6",     keys(film_16, 6, '&'),                            {"F16_6", "F16_6"},                  {foot_16_label_t, ink_16_label_t, keycode_16_label_6_t}},
    {keycode_353_label_4_t,    "keycode_353_label_4",    keys(film_35_3perf, 4),                           {"F353_4", "F353_4"},                {foot_353_label_t, ink_35_label_t, keycode_353_label_4_t}},
    {keycode_353_label_5_t,    "keycode_353_label_5",    keys(film_35_3perf, 5),                           {"F353_5", "F353_5"},                {foot_353_label_t, ink_35_label_t, keycode_353_label_5_t}},
    {keycode_353_label_6_t,    "keycode_353_label_6",    keys(film_35_3perf, 6),                           {"F353_6", "F353_6"},                {foot_353_label_t, ink_35_label_t, keycode_353_label_6_t}},
    {film_frames_label_t,      "film_frames_label",      film_frames(),                                    {nullptr, "FR"}},
    {tc_50_label_t,            "tc_50_label",            slowed_by("50p_timecode_type", 25, timecode(50)), {"50f", "P50", "50F"},               {},                                                        Kiv::FrameRate_50},
    {tc_60_label_t,            "tc_60_label",            slowed_by("60p_timecode_type", 30, timecode(60)), {"60f", "P60", "60F"},               {},                                                        Kiv::FrameRate_60},
    {keycode_352_label_t,      "keycode_352_label",      unreported_keys(film_35_2perf, 4),                {"F352", "F352"},                    {none, none, keycode_352_label_t}},
    {keycode_358_label_t,      "keycode_358_label",      unreported_keys(film_35_8perf, 4),                {"F358", "F358"},                    {none, none, keycode_358_label_t}},
    {keycode_655_80_label_t,   "keycode_655_80_label",   keys(film_65_5perf_80, 4),                        {"F655_80", "F655_80"},              {none, none, keycode_655_80_label_t}},
    {keycode_658_80_label_t,   "keycode_658_80_label",   keys(film_65_8perf_80, 4),                        {"F658_80", "F658_80"},              {none, none, keycode_658_80_label_t}},
    {keycode_6510_80_label_t,  "keycode_6510_80_label",  keys(film_65_10perf_80, 4),                       {"F6510_80", "F6510_80"},            {none, none, keycode_6510_80_label_t}},
    {keycode_655_120_label_t,  "keycode_655_120_label",  keys(film_65_5perf_120, 4),                       {"F655_120", "F655_120"},            {none, none, keycode_655_120_label_t}},
    {keycode_658_120_label_t,  "keycode_658_120_label",  keys(film_65_8perf_120, 4),                       {"F658_120", "F658_120"},            {none, none, keycode_658_120_label_t}},
    {keycode_6510_120_label_t, "keycode_6510_120_label", keys(film_65_10perf_120, 4),                      {"F6510_120", "F6510_120"},          {none, none, keycode_6510_120_label_t}},
    {keycode_6515_120_label_t, "keycode_6515_120_label", keys(film_65_15perf_120, 4),                      {"F6515_120", "F6515_120"},          {none, none, keycode_6515_120_label_t}},
    {tc_50_duration_label_t,   "tc_50_duration_label",   timecode(50),                                     {nullptr, "D50"}},
    {tc_60_duration_label_t,   "tc_60_duration_label",   timecode(60),                                     {nullptr, "D60"}},
    {tc_12_label_t,            "tc_12_label",            timecode(12),                                     {"12f", "P12"},                      {},                                                        Kiv::FrameRate_12},
    {tc_15_label_t,            "tc_15_label",            timecode(15),                                     {"15f", "P15"},                      {},                                                        Kiv::FrameRate_15},
    {tc_20_label_t,            "tc_20_label",            timecode(20),                                     {"20f", "P20"},                      {},                                                        Kiv::FrameRate_20},
    {tc_80_label_t,            "tc_80_label",            timecode(80),                                     {"80f", "P80"},                      {},                                                        Kiv::FrameRate_80},
    {tc_90_label_t,            "tc_90_label",            timecode(90),                                     {"90f", "P90"},                      {},                                                        Kiv::FrameRate_90},
    {tc_100_label_t,           "tc_100_label",           timecode(100),                                    {"100f", "P100"},                    {},                                                        Kiv::FrameRate_100},
    {tc_120_label_t,           "tc_120_label",           timecode(120),                                    {"120f", "P120"},                    {},                                                        Kiv::FrameRate_120},
    {tc_240_label_t,           "tc_240_label",           timecode(240),                                    {"240f", "P240"},                    {},                                                        Kiv::FrameRate_240},
};

}  // namespace label_table
// clang-format on

// The table by type: the row of type `t` is all_label_facts[t].
inline constexpr auto const& all_label_facts = label_table::rows;

static_assert(std::size(all_label_facts) == numLabelCvts, "numLabelCvts is one more than the last label type");

namespace label_table {

// Returns the first type whose row is missing or out of order, or numLabelCvts.
[[nodiscard]] consteval label_t first_without_row() {
  int type = 0;
  while (type < static_cast<int>(std::size(rows)) && rows[type].type == type) ++type;
  return static_cast<label_t>(type);
}

// A concept, so that the compiler says which type is at fault.
template <label_t first_at_fault>
concept every_label_type_has_its_row = first_at_fault == numLabelCvts;

static_assert(every_label_type_has_its_row<first_without_row()>,
              "this label type lacks its row in the table, or its row is out of order");

}  // namespace label_table

// Returns the facts of a type, or those of null_label_t if `type` is out of range.
[[nodiscard]] constexpr label_facts const& facts_of(label_t type) noexcept {
  return all_label_facts[is_label_type(type) ? type : null_label_t];
}

}  // namespace labelsbase
