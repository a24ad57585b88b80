#include <CLI/CLI.hpp>
#include <array>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "cli/arguments.h"
#include "cli/items.h"
#include "cli/keep_fields.h"
#include "cli/label_type.h"
#include "cli/medium_roll.h"
#include "cli/messages.h"
#include "cli/verbs.h"
#include "labelcheck/label_check.h"
#include "labelsbase/labels.h"

namespace cli {
namespace {

struct arguments {
  std::vector<std::string> texts;

  // What to write instead.
  std::optional<std::string> type, start, roll;
  std::optional<int> length;
  std::optional<double> pitch;
  bool unbounded = false;
};

// What can be read is shown, whatever is wrong with the rest.
problem explain(std::string_view text, console& io) {
  problem wrong;
  for (auto const& field : explain_keep_string(std::string{text})) {
    std::string name{field.name};
    name.resize(18, ' ');
    io.results.line(name + (field.wrong ? "? " : "") + field.value);
    if (field.wrong) wrong = (wrong ? *wrong + "; " : "") + field.name + " " + *field.wrong;
  }
  return wrong;
}

exit_status refuse(console& io, std::string const& option, std::string const& value, std::string const& why) {
  io.errors.say(option + " " + cli::quoted(value) + ": " + why);
  return failed;
}

exit_status write(arguments const& given, console& io) {
  auto const type = find_label_type(*given.type, io.errors);
  if (!type) return failed;
  Label label{*type};
  auto& cvt = *label.start.cvt();
  int const unit = cvt.samples_per_unit();

  if (given.start) {
    if (auto const refused = labelcheck::check(*type, *given.start))
      return refuse(io, "--start", *given.start, refused->rule);
    label.start.sample = cvt.get_keep_sample(given.start->c_str());
    label.set_prefix(given.start->c_str());
  }
  if (given.length) {
    if (*given.length < 0 || *given.length > labelsbase::default_label_length / unit)
      return refuse(io, "--length", std::to_string(*given.length),
                    "expected frames, from 0 to " + std::to_string(labelsbase::default_label_length / unit));
    label.length = *given.length * unit;
  }
  if (given.pitch) {
    if (!(*given.pitch > 0 && *given.pitch <= 1e9))
      return refuse(io, "--pitch", std::to_string(*given.pitch), "expected seconds per frame, more than 0");
    label.pitch = *given.pitch / unit;
  }
  label.bounded = given.unbounded ? 0 : 1;
  if (!given.roll) {
    io.results.line(label.make_keep_string(nullptr));
    return all_well;
  }

  MediumRollIdent ident;
  if (auto const wrong = read_medium_roll(*given.roll, cvt.UserType(), ident))
    return refuse(io, "--roll", *given.roll, *wrong);
  EditLabel edit{label, ident};
  if (given.pitch) edit.pitch = label.pitch;
  io.results.line(edit.make_keep_string(nullptr));
  return all_well;
}

}  // namespace

verb_run declare_keep(CLI::App& verb) {
  auto const given = std::make_shared<arguments>();
  add_operands(verb, "TEXT", "Keep strings to explain, each in quotes", given->texts);
  auto* const writes =
      verb.add_option("--write", given->type, "Write the keep string of a label of this type instead")
          ->option_text("TYPE");
  auto const part = [&](char const* name, auto& value, char const* meaning, char const* text) {
    verb.add_option(name, value, meaning)->option_text(text)->needs(writes);
  };
  part("--start", given->start, "Its start", "LABEL");
  part("--length", given->length, "Its length in frames; without it, no end", "N");
  part("--pitch", given->pitch, "Seconds per frame; without it, the natural speed or that of the medium",
       "SECONDS");
  part("--roll", given->roll, "Its medium and generation, for example 20,2", "IDENTIFIER");
  verb.add_flag("--unbounded", given->unbounded, "Answer for offsets outside its length too")->needs(writes);
  return [given](console& io) {
    if (given->type) return write(*given, io);
    return for_each_item(given->texts, io, [&io](std::string_view text) { return explain(text, io); });
  };
}

}  // namespace cli
