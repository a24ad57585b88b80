#include <string>
#include <vector>

#include "cli/film.h"
#include "cli/label_type.h"
#include "cli/table.h"
#include "cli/verbs.h"

namespace cli {
namespace {

table_row row_of(label_t type) {
  auto const name = exchange_name(type);
  table_row row{std::to_string(type), labelsbase::label_type_name(type),
                family_name(labelsbase::user_label_type(type)), name.empty() ? "-" : std::string{name}};

  auto* const converter = converter_of(type);
  bool const is_timecode = converter && converter->UserType() == User_timecode;
  bool const has_perfs = converter && counts_perforations(*converter);
  auto const add = [&row](bool applies, auto number) { row.push_back(applies ? std::to_string(number()) : "-"); };
  add(is_timecode, [=] { return converter->get_modulus(); });
  add(has_perfs, [=] { return converter->get_modulus(); });
  add(has_perfs, [=] { return converter->samples_per_unit(); });
  add(has_perfs, [=] { return perfs_per_count(*converter); });
  row.emplace_back(converter ? converter->get_template(true).text() : "-");
  return row;
}

exit_status types(console& io) {
  std::vector<table_row> rows;
  for (int number = 0; number < numLabelCvts; ++number) {
    auto const type = static_cast<label_t>(number);
    if (*labelsbase::label_type_name(type)) rows.push_back(row_of(type));
  }
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

}  // namespace

verb_run declare_types(CLI::App&) { return types; }

}  // namespace cli
