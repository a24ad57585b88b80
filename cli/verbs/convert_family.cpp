// convert: labels of one type to those of another.

#include <memory>

#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/conversion.h"
#include "cli/item_records.h"

namespace cli {
namespace {

struct arguments {
  conversion_arguments how;
  item_arguments labels;
  std::string format;
};

constexpr field fields[] = {
    input_field,
    {"label", value_type::text, "The label of the other type", "label", may_be_missing},
    {"is_exact", value_type::boolean, "Whether a frame begins at its instant; otherwise the label is rounded",
     nullptr, may_be_missing},
    problem_field,
};

exit_status convert(arguments const& given, console& io) {
  label_converter labels{given.how, io};
  return for_each_item(given.labels, find_format(given.format), fields, io,
                       [&](std::string_view text, std::span<value> found) -> problem {
                         std::string_view label;
                         if (auto wrong = labels.convert(text, label)) return wrong;
                         found[0] = label;
                         found[1] = labels.is_exact();
                         return std::nullopt;
                       });
}

}  // namespace

command_run commands::declare_convert(CLI::App& command) {
  auto const given = std::make_shared<arguments>();
  add_conversion(command, given->how);
  add_items(command, "LABEL", "Labels to convert, for example 01:00:00:00", given->labels);
  add_format(command, given->format, fields);
  add_examples(command,
               {{"convert --from 25 --to feet35 01:00:00:00", "5625+00"},
                {"convert --from 23.976 --to 24 01:00:00:00", "01:00:03+14"},
                {"convert --from 24 --to 35mm --sync 01:00:00:00=KJ1234560123+07 01:00:10:00", "KJ1234560138+07"},
                {"convert --from feet35 --to 29.97df --transfer 2:3 0090+00", "00:01:00;02"},
                {"convert --from 24 --to 25 --exact 00:00:00:12",
                 "?\nlabels: argument 1: \"00:00:00:12\": falls between 00:00:00.12 and 00:00:00.13"}});
  return [given](console& io) { return convert(*given, io); };
}

}  // namespace cli
