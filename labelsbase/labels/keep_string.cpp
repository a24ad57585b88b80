// Keep strings: one line of text that a host stores of a label and hands back years later.
//
//   header type start length pitch bounded, separated by blanks; fields may be missing from the end
//
//   LABEL_REV:1 pal_label 01:00:00.00 250 0.0400000000 1
//
//   header    "LABEL_REV", any one character, the revision: 1 or 2 (and below 0) are read
//   type      the converter's type_str()
//   start     the label's text, prefix included
//   length    units: frames for film, samples for timecode
//   pitch     seconds per unit
//   bounded   0 for an unbounded label

#include <algorithm>
#include <cstring>
#include <string_view>

#include "host/tokeniser.h"
#include "labelsbase/counts/integers.h"
#include "labelsbase/labelcvt/label_cvt.h"
#include "labelsbase/labelcvt/type_by_name.h"
#include "labelsbase/labels/label.h"
#include "labelsbase/support/doubles.h"
#include "labelsbase/support/text.h"

using namespace labelsbase;

namespace {

constexpr char header[] = "LABEL_REV";
constexpr std::size_t header_length = sizeof header - 1;

int number_of(char const* field) noexcept { return text_reader{field}.number().value_or(0); }

// Returns the revision in a first field that begins with the header, for example 1 for "LABEL_REV:1"; 0 if it has
// none. Any one character may stand behind the header.
int revision_of(char const* field) noexcept {
  return field[header_length] ? number_of(field + header_length + 1) : 0;
}

// Writes the start as one field: "?" for an empty or blank text, "_" for a blank in its prefix.
void put_start(text_writer& out, LabelPoint& start) {
  char const* const text = start.get_string();
  char const* first = text;
  while (is_blank(*first)) ++first;
  char* const field = out.end();
  out.put(*first ? text : "?");
  auto const prefix_length =
      std::clamp<std::ptrdiff_t>(start.converter->get_prefix_length(), 0, out.end() - field);
  std::replace(field, field + prefix_length, ' ', '_');
}

// Returns the samples in a unit of length and pitch: those of a frame, or 1 if the converter answers 0 or less.
int unit_of(label_cvt const& cvt) { return std::max(cvt.samples_per_unit(), 1); }

}  // namespace

std::size_t Label::write_keep_string(char* buffer, std::size_t size) const {
  text_writer out{buffer, size};
  int const unit = unit_of(*start.converter);
  out.put("LABEL_REV:1 ").put(start.converter->type_str()).put(' ');
  put_start(out, start);
  out.put(' ').number(length / unit).put(' ');
  put_fixed(out, pitch * unit).put(' ').number(bounded);
  return out.length();
}

char* Label::make_keep_string(char* buffer) const {
  thread_local char own[512];
  write_keep_string(buffer ? buffer : own, buffer ? keep_string_size : sizeof own);
  return buffer ? buffer : own;
}

Label::Label(char const* keep) {
  tokeniser fields{or_empty(keep), " "};
  char const* const first = fields.next();
  if (!first || std::strncmp(first, header, header_length) != 0) return;
  revision = revision_of(first);
  if (revision == 0 || revision >= 3) return;  // hosts have written revisions below 0

  if (char const* const type = fields.next()) use_converter(all_types_by_name.find(type));
  char const* const start_text = fields.next();
  if (start_text) start.sample = start.converter->get_keep_sample(start_text);
  set_prefix(start_text);
  if (char const* const units = fields.next()) length = number_of(units);
  if (char const* const seconds_per_unit = fields.next()) pitch = read_double(seconds_per_unit);
  if (char const* const flag = fields.next()) bounded = number_of(flag);

  int const unit = unit_of(*start.converter);
  pitch /= unit;
  length = wrap_mul(length, unit);
}
