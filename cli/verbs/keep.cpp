// keep: explains and writes keep strings, the text form in which hosts store labels.

#include <CLI/CLI.hpp>
#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/item_records.h"
#include "cli/label_io.h"
#include "cli/names.h"
#include "cli/text.h"
#include "cli/verbs/keep.h"
#include "labelsbase/labels.h"

namespace cli {
namespace {

struct arguments {
  std::vector<std::string> texts;
  std::string format;

  // What to write instead.
  std::optional<std::string> type, start, length, pitch, roll;
  bool unbounded = false;
};

constexpr field fields[] = {
    input_field,
    {"revision", value_type::integer, "Revision of the keep string", nullptr, may_be_missing},
    {"label_type", value_type::text, "Class name of the label type", nullptr, may_be_missing},
    {"start_label", value_type::text, "The first label", nullptr, may_be_missing},
    {"start_sample", value_type::integer, "Sample of the first label", nullptr, may_be_missing},
    {"length_frames", value_type::integer, "Length in frames", nullptr, may_be_missing},
    {"length_samples", value_type::integer, "Length in samples", nullptr, may_be_missing},
    {"seconds_per_frame", value_type::number, "Seconds a frame", nullptr, may_be_missing},
    {"natural_seconds_per_frame", value_type::number, "Seconds a frame as the labels count", nullptr,
     may_be_missing},
    {"is_bounded", value_type::boolean, "Whether it answers only for offsets inside its length", nullptr,
     may_be_missing},
    {"identifier", value_type::text, "Numbers of medium and generation, if they are kept", nullptr,
     may_be_missing},
    {"user_text", value_type::text, "What users read for medium and generation", nullptr, may_be_missing},
    problem_field,
};

// Shows all that can be read, and marks wrong parts. Writes nothing for a text that is not a keep string.
exit_status explain_in_lines(arguments const& given, console& io) {
  item_loop items{given.texts, io};
  while (items.next()) {
    if (items.is_blank_line()) io.results.line("");
    if (items.is_blank_line() || items.is_refused()) continue;
    auto const found = explain_keep(std::string{items.text()});
    for (auto const& part : found.parts)
      io.results.line(padded(part.name, 18) + (part.wrong ? "? " : "") + part.value);
    if (found.wrong) items.refuse(*found.wrong);
  }
  return items.status();
}

exit_status explain_in_rows(arguments const& given, format how, console& io) {
  std::optional<explained_keep> kept;  // what the row refers to
  char identifier[labelsbase::identifier_text_size];
  std::string user_text;
  return for_each_item({given.texts}, how, fields, io, [&](std::string_view text, std::span<value> found) {
    kept = explain_keep(std::string{text});
    auto const& label = kept->label;
    if (kept->wrong) return kept->wrong;

    auto& cvt = *label.start.cvt();
    int const unit = cvt.samples_per_unit();
    MediumRollId_to_string(identifier, label.medium_roll);
    user_text = MediumRollId_to_UserString(label.medium_roll);
    std::ranges::copy(std::initializer_list<value>{label.revision, cvt.type_str(), kept->start, label.start.sample,
                                                   label.length / unit, label.length, label.pitch * unit,
                                                   Label::get_natural_pitch(cvt.type()) * unit, label.bounded != 0,
                                                   kept->has_roll ? value{identifier} : missing,
                                                   kept->has_roll ? value{user_text} : missing},
                      found.begin());
    return problem{};
  });
}

double seconds_of(std::string const& text) {
  auto const seconds = decimal(text);
  if (!seconds || !(*seconds > 0 && *seconds <= 1e9))
    refuse("--pitch", text, "expected seconds per frame, more than 0 and up to 1e9");
  return *seconds;
}

exit_status write(arguments const& given, console& io) {
  auto const type = find_label_type("--write", *given.type);
  Label label{type};
  auto& cvt = *label.start.cvt();
  int const unit = cvt.samples_per_unit();

  if (given.start) {
    label_parts parts;
    if (auto const wrong = read_label(type, *given.start, parts)) refuse("--start", *given.start, *wrong);
    label.start.sample = parts.sample;
    label.set_prefix(given.start->c_str());
  }
  if (given.length)
    label.length = number_in("--length", *given.length, 0, labelsbase::default_label_length / unit) * unit;
  if (given.pitch) label.pitch = seconds_of(*given.pitch) / unit;
  label.bounded = given.unbounded ? 0 : 1;
  if (!given.roll) {
    io.results.line(label.make_keep_string(nullptr));
    return all_well;
  }

  EditLabel edit{label, find_medium_roll("--roll", *given.roll, cvt.UserType())};
  if (given.pitch) edit.pitch = label.pitch;
  io.results.line(edit.make_keep_string(nullptr));
  return all_well;
}

}  // namespace

command_run commands::declare_keep(CLI::App& command) {
  auto const given = std::make_shared<arguments>();
  add_operands(command, "TEXT", "Keep strings to explain, each in quotes", given->texts);
  add_format(command, given->format, fields);
  auto* const writes =
      add_option(command, "--write", "TYPE", given->type, "Write the keep string of a label of this type instead");
  add_option(command, "--start", "LABEL", given->start, "Its first label")->needs(writes);
  add_option(command, "--length", "N", given->length, "Its length in frames; without it, no end")->needs(writes);
  add_option(command, "--pitch", "SECONDS", given->pitch,
             "Its seconds per frame; without it, those of the medium or the type")
      ->needs(writes);
  add_option(command, "--roll", "IDENTIFIER", given->roll, "Its medium and generation, for example 20,2")
      ->needs(writes);
  add_flag(command, "--unbounded", given->unbounded, "Let it answer for offsets outside its length too")
      ->needs(writes);
  add_examples(command, {{"keep --write 25 --start 01:00:00:00 --length 250 --roll 20,2",
                          "LABEL_REV:1 pal_label  01:00:00.00 250 0.0400000000 1 MediumRollId 20,2"},
                         {"keep 'LABEL_REV:1 pal_label 01:00:00.00 250 0.04 1 MediumRollId 20,2'",
                          "revision          1\ntype              pal_label\nstart             01:00:00.00, "
                          "sample 90000\nlength            250, samples 250\nseconds per unit  0.04, natural "
                          "0.04\nbounded           yes\nmedium and roll   20,2, 25i,1stGen"}});
  return [given](console& io) {
    auto const how = find_format(given->format);
    if (given->type && how != format::text)
      refuse("--format", given->format, "--write writes a keep string, not rows; leave out --format");
    if (given->type) return write(*given, io);
    return how == format::text ? explain_in_lines(*given, io) : explain_in_rows(*given, how, io);
  };
}

}  // namespace cli
