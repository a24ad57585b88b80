#include <string>
#include <vector>

#include "cli/label_type.h"
#include "cli/table.h"
#include "cli/verbs.h"
#include "labelsbase/uiflabels.h"

namespace cli {
namespace {

exit_status choices(console& io) {
  std::vector<table_row> rows;
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

verb_run declare_choices(CLI::App&) { return choices; }

}  // namespace cli
