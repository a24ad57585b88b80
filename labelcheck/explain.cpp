#include <cstddef>
#include <iterator>
#include <string>

#include "labelcheck/film_form.h"
#include "labelcheck/read.h"
#include "labelcheck/text.h"

namespace labelcheck {
namespace {

using labelsbase::facts_of;

struct field_row {
  field name;
  char const* word;
  bool is_plural;
};

constexpr field_row field_rows[] = {
    {field::sign, "sign", false},
    {field::hours, "hours", true},
    {field::minutes, "minutes", true},
    {field::seconds, "seconds", true},
    {field::separator, "separator", false},
    {field::frames, "frames", true},
    {field::prefix, "prefix", false},
    {field::count, "count", false},
    {field::feet, "feet", true},
    {field::perforation, "perforation", false},
    {field::whole, "label", false},
};

constexpr std::size_t index_of(field f) noexcept { return static_cast<std::size_t>(f); }

constexpr bool has_every_field() noexcept {
  std::size_t next = 0;
  for (auto const& row : field_rows)
    if (index_of(row.name) != next++) return false;
  return next == index_of(field::whole) + 1;
}

static_assert(has_every_field(), "field_rows needs one row for each field, in their order");

constexpr field_row const& row_of(field f) noexcept {
  return field_rows[index_of(f) < std::size(field_rows) ? index_of(f) : index_of(field::whole)];
}

// Returns "hours" or "the count".
std::string subject(field f) { return (row_of(f).is_plural ? "" : "the ") + std::string{field_name(f)}; }

std::string quoted(char c) { return {'"', c, '"'}; }

std::string padded(int number, int digits) {
  std::string text;
  append_number(text, number, digits);
  return text;
}

// Returns "hh:mm:ss.ff" or "XX0000000000+00".
std::string example(labelsbase::label_facts const& facts) {
  if (facts.is_timecode())
    return std::string{"hh:mm:ss"} + facts.timecode.separator +
           std::string(static_cast<std::size_t>(facts.timecode.frame_digits()), 'f');
  film_form const form{facts};
  return written(form, {.prefix = std::string{form.dummy_prefix()}});
}

char const* noun(UserLabelType family) noexcept {
  switch (family) {
    case User_keycode:
      return "a key number";
    case User_ink:
      return "an ink number";
    case User_feet:
      return "a count of feet and frames";
    default:
      return "a count of frames";
  }
}

std::string unrecognised(labelsbase::label_facts const& facts) {
  if (facts.is_timecode()) return "not a timecode; expected " + example(facts);
  return std::string{"not "} + noun(facts.family) + "; expected a label like " + example(facts);
}

std::string no_labels(label_t type) {
  std::string const name = labelsbase::label_type_name(type);
  return name.empty() ? "there is no label type " + std::to_string(type) : name + " has no labels of its own";
}

std::string out_of_range(refusal const& refused) {
  auto const& facts = facts_of(refused.type);
  std::string const name = field_name(refused.wrong);
  if (refused.number < 0) return name + " run down to " + std::to_string(refused.number);
  if (refused.wrong == field::perforation) return "perforations run from 1 to " + std::to_string(refused.number);
  bool const is_count = refused.wrong == field::feet || facts.family == User_film_frames;
  if (is_count) return name + " run up to " + std::to_string(refused.number);

  int const digits = facts.is_timecode() && refused.wrong == field::frames ? facts.timecode.frame_digits() : 2;
  return name + " run from " + padded(0, digits) + " to " + padded(refused.number, digits);
}

std::string expected_separator(refusal const& refused) {
  auto const& facts = facts_of(refused.type);
  std::string expected = quoted(':');
  if (refused.next == field::perforation) expected = quoted('.');
  if (refused.next == field::frames)
    expected =
        facts.is_timecode() ? quoted(facts.timecode.separator) + " or " + expected : quoted(facts.film.separator);
  return "expected " + expected + " before the " + field_name(refused.next);
}

std::string wrong_length(refusal const& refused) {
  auto const& film = facts_of(refused.type).film;
  std::string const name = field_name(refused.wrong);
  return "the prefix has " + std::to_string(film.prefix_length) + " characters and the count " +
         std::to_string(film.count_digits) + " digits; " +
         (refused.number == 0 ? "this label has no " + name
                              : "this " + name + " has " + std::to_string(refused.number));
}

std::string no_such_perforation(refusal const& refused) {
  if (refused.number == 0) return "frame 00 of foot 0 has only perforation 1";
  auto const* const next = facts_of(refused.type).family == User_keycode ? "key" : "foot";
  return "frame " + padded(refused.number, 2) + " has only perforation 3: the next " + next + " begins in it";
}

}  // namespace

char const* field_name(field f) noexcept { return row_of(f).word; }

std::string explain(refusal const& refused) {
  auto const& facts = facts_of(refused.type);
  auto const what = subject(refused.wrong);
  auto const number = std::to_string(refused.number);
  switch (refused.why) {
    case reason::no_labels:
      return no_labels(refused.type);
    case reason::unrecognised:
      return unrecognised(facts);
    case reason::missing:
      return what + (row_of(refused.wrong).is_plural ? " are missing" : " is missing");
    case reason::digit_count:
      return what + " must have " + number + " digits";
    case reason::too_few_digits:
      return what + " must have at least " + number + " digits";
    case reason::leading_zero:
      return what + " of more than " + number + " digits must not begin with 0";
    case reason::range:
      return out_of_range(refused);
    case reason::separator:
      return expected_separator(refused);
    case reason::drop_frame_separator:
      return expected_separator(refused) + "; \";\" means drop-frame";
    case reason::trailing:
      return facts.film.names_perforation() ? "nothing may follow the perforation"
                                            : "nothing may follow the frames";
    case reason::positive_sign:
      return "a positive label has no sign";
    case reason::sign_column:
      return "frames have no sign column";
    case reason::signed_zero:
      return "zero has no sign";
    case reason::negative_drop_frame:
      return "drop-frame labels are never negative: each would read as sample 0";
    case reason::left_out:
      return "drop-frame leaves out frames 00 and 01 of every minute that is not a tenth";
    case reason::reserved:
      return "-100000000, 100000001 and 100000002 are reserved, and are not frames";
    case reason::perforation:
      return no_such_perforation(refused);
    case reason::blank_or_dash:
      return "prefix and count must be written without blanks or dashes";
    case reason::unprintable:
      return "prefix and count must be printable characters";
    case reason::length:
      return wrong_length(refused);
  }
  return "";
}

}  // namespace labelcheck
