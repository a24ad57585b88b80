#include <array>
#include <charconv>
#include <string>
#include <vector>

#include "cli/table.h"
#include "cli/verbs.h"
#include "labelsbase/MediumRoll.h"

namespace cli {
namespace {

// To three places, "23.976" and "12.5".
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

// The media that will do where this one is asked for, besides itself.
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

table_row row_of(MediumRollMedium medium) {
  table_row row{std::to_string(medium), labelsbase::medium_name(medium), user_word(medium)};
  if (auto const rate = getFrameRatefromMedium(medium); rate != Kiv::FrameRate_unknown) {
    row.push_back(in_thousandths(Kiv::getFramesPerSecond(rate)));
    row.emplace_back(mediumRollIsFrameProgressive(medium) ? "frame" : "field");
    row.emplace_back(labelsbase::label_type_name(getDefaultLabelTypeForMedium(medium)));
  } else {
    row.insert(row.end(), 3, "-");
  }
  row.push_back(others_accepted(medium));
  return row;
}

exit_status media(console& io) {
  std::vector<table_row> rows;
  for (int number = Medium_any; number < labelsbase::medium_count; ++number) {
    auto const medium = static_cast<MediumRollMedium>(number);
    if (*labelsbase::medium_name(medium)) rows.push_back(row_of(medium));
  }
  write_table(
      {{"number", true}, {"name"}, {"user"}, {"frames/s", true}, {"sample"}, {"label type"}, {"also accepts"}},
      rows, io.results);
  return all_well;
}

}  // namespace

verb_run declare_media(CLI::App&) { return media; }

}  // namespace cli
