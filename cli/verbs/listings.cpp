// types, media and choices: what the library knows, as tables.

#include <algorithm>
#include <array>
#include <charconv>
#include <string>
#include <vector>

#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/film.h"
#include "cli/names.h"
#include "labelsbase/MediumRoll.h"
#include "labelsbase/uiflabels.h"

namespace cli {
namespace {

struct column {
  char const* heading;
  bool is_number = false;  // aligned to the right
};

using row = std::vector<std::string>;  // a text for each column

// Writes the headings and the rows, every column as wide as its longest text.
void write_table(std::vector<column> const& columns, std::vector<row> const& rows, output& results) {
  std::vector<std::size_t> widths;
  row headings;
  for (auto const& each : columns) {
    auto width = std::string_view{each.heading}.size();
    for (auto const& texts : rows) width = std::max(width, texts[widths.size()].size());
    widths.push_back(width);
    headings.emplace_back(each.heading);
  }

  auto const write = [&](row const& texts) {
    std::string line;
    for (std::size_t i = 0; i < columns.size(); ++i) {
      std::string const padding(widths[i] - texts[i].size(), ' ');
      line += columns[i].is_number ? padding + texts[i] : texts[i] + padding;
      line += "  ";
    }
    line.erase(line.find_last_not_of(' ') + 1);
    results.line(line);
  };
  write(headings);
  for (auto const& each : rows) write(each);
}

row row_of(labelsbase::label_facts const& facts) {
  auto& converter = *get_static_label_cvt(facts.type);
  bool const is_timecode = facts.is_timecode();
  bool const has_perfs = facts.is_film() && counts_perforations(facts);
  auto const& gauge = facts.film.gauge;
  auto const number = [](bool applies, int value) { return applies ? std::to_string(value) : "-"; };
  return {std::to_string(facts.type),
          facts.name,
          family_name(facts.family),
          facts.exchange.written ? facts.exchange.written : "-",
          number(is_timecode, converter.get_modulus()),  // a setting may have slowed the count
          number(has_perfs, gauge.frames_per_count()),
          number(has_perfs, gauge.perfs_per_frame()),
          number(has_perfs, gauge.perfs_per_count()),
          facts.has_labels() ? converter.get_template(true).text() : "-"};
}

exit_status types(console& io) {
  std::vector<row> rows;
  for (auto const& facts : labelsbase::all_label_facts)
    if (*facts.name) rows.push_back(row_of(facts));
  write_table({{"number", true},
               {"name"},
               {"family"},
               {"exchange"},
               {"frames/s", true},
               {"frames/key", true},
               {"perfs/frame", true},
               {"perfs/key", true},
               {"template"}},
              rows, io.results);
  return all_well;
}

// To three places: "23.976" or "12.5".
std::string in_thousandths(double number) {
  std::array<char, 32> text;
  auto const end = std::to_chars(text.begin(), text.end(), number, std::chars_format::fixed, 3).ptr;
  std::string result{text.begin(), end};
  result.erase(result.find_last_not_of('0') + 1);
  if (result.back() == '.') result.pop_back();
  return result;
}

std::string user_word(MediumRollMedium medium) {
  std::string const text = MediumRollId_to_UserString({medium, Gen_any});
  return text.substr(0, text.find(','));
}

// The numbers of the other media that fit where this one is asked for.
std::string others_accepted(MediumRollMedium asked) {
  if (asked == Medium_any) return "all";
  std::string numbers;
  for (int other = Medium_any; other < labelsbase::medium_count; ++other) {
    MediumRollIdent const ident{static_cast<MediumRollMedium>(other), Gen_any};
    if (other == asked || !MediumRollIdent{asked, Gen_any}.MediumRollId_fits_this(ident)) continue;
    if (!numbers.empty()) numbers += ' ';
    numbers += std::to_string(other);
  }
  return numbers.empty() ? "-" : numbers;
}

row row_of(MediumRollMedium medium) {
  row texts{std::to_string(medium), labelsbase::medium_name(medium), user_word(medium)};
  if (auto const rate = getFrameRatefromMedium(medium); rate != Kiv::FrameRate_unknown) {
    texts.push_back(in_thousandths(Kiv::getFramesPerSecond(rate)));
    texts.emplace_back(mediumRollIsFrameProgressive(medium) ? "frame" : "field");
    texts.emplace_back(labelsbase::label_type_name(getDefaultLabelTypeForMedium(medium)));
  } else {
    texts.insert(texts.end(), 3, "-");
  }
  texts.push_back(others_accepted(medium));
  return texts;
}

exit_status media(console& io) {
  std::vector<row> rows;
  for (int number = Medium_any; number < labelsbase::medium_count; ++number) {
    auto const medium = static_cast<MediumRollMedium>(number);
    if (*labelsbase::medium_name(medium)) rows.push_back(row_of(medium));
  }
  write_table(
      {{"number", true}, {"name"}, {"user"}, {"frames/s", true}, {"sample"}, {"label type"}, {"also accepts"}},
      rows, io.results);
  return all_well;
}

exit_status choices(console& io) {
  std::vector<row> rows;
  for (int number = 0; number <= uif_cd; ++number) {
    auto const choice = static_cast<VagueUIFLabel>(number);
    auto const& roll = uifLabelMedroll(choice);
    char identifier[labelsbase::identifier_text_size];
    MediumRollId_to_string(identifier, roll);
    bool const has_roll = roll.medium != Medium_none;
    rows.push_back({std::to_string(number), uifLabel_to_config_str(choice), std::to_string(uifLabelText(choice)),
                    family_name(uifLabelType(choice)), has_roll ? identifier : "-",
                    has_roll ? MediumRollId_to_UserString(roll) : "-"});
  }
  write_table({{"number", true}, {"keyword"}, {"text", true}, {"family"}, {"roll"}, {"user"}}, rows, io.results);
  return all_well;
}

}  // namespace

command_run commands::declare_types(CLI::App& command) {
  add_note(command,
           "Types without a template are bases of others and have no labels. A template shows the largest digit\n"
           "of each place; ? stands for any character. frames/key and perfs/key are those of a key number, an\n"
           "ink number or a foot.");
  return types;
}

command_run commands::declare_media(CLI::App& command) {
  add_note(
      command,
      "sample says how frames are scanned: as a whole (frame) or as two fields (field). \"also accepts\" lists\n"
      "the media that fit where this one is asked for; see 'labels roll --help'.");
  return media;
}

command_run commands::declare_choices(CLI::App& command) {
  add_note(command,
           "keyword is the choice's name in configurations, text the number of its text in the user interface,\n"
           "roll its medium and generation, and user how users see these.");
  return choices;
}

}  // namespace cli
