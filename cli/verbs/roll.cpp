// roll: medium-roll identifiers, and which fits in place of another.

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/item_records.h"
#include "cli/names.h"

namespace cli {
namespace {

struct arguments {
  item_arguments identifiers;
  std::optional<std::string> asked;
  std::string format;
  bool ink = false;

  [[nodiscard]] UserLabelType family() const noexcept { return ink ? User_ink : User_any; }
};

constexpr field fields[] = {
    input_field,
    {"identifier", value_type::text, "Numbers of medium and generation", "identifier", may_be_missing},
    {"medium", value_type::text, "Name of the medium", "medium", may_be_missing},
    {"user_text", value_type::text, "What users read for medium and generation", "user", may_be_missing},
    {"fit", value_type::text, "With --for: fits or does not fit", "fit", may_be_missing},
    problem_field,
};

exit_status roll(arguments const& given, console& io) {
  MediumRollIdent asked;
  if (given.asked) asked = find_medium_roll("--for", *given.asked, given.family());

  char identifier[labelsbase::identifier_text_size];
  std::string user_text;
  return for_each_item(given.identifiers, find_format(given.format), fields, io,
                       [&](std::string_view text, std::span<value> found) -> problem {
                         MediumRollIdent ident;
                         if (auto wrong = read_medium_roll(text, given.family(), ident)) return wrong;
                         MediumRollId_to_string(identifier, ident);
                         user_text = MediumRollId_to_UserString(ident);
                         found[0] = identifier;
                         found[1] = labelsbase::medium_name(ident.medium);
                         found[2] = std::string_view{user_text};
                         if (given.asked) found[3] = asked.MediumRollId_fits_this(ident) ? "fits" : "does not fit";
                         return std::nullopt;
                       });
}

}  // namespace

command_run commands::declare_roll(CLI::App& command) {
  auto const given = std::make_shared<arguments>();
  add_items(command, "IDENTIFIER", "Medium and generation, for example 28,1 or out_24p,1", given->identifiers);
  add_option(command, "--for", "IDENTIFIER", given->asked, "Show whether each can stand in for IDENTIFIER");
  add_flag(command, "--ink", given->ink, "Read each as for ink numbers: without a generation, it is an ink roll");
  add_format(command, given->format, fields);
  add_examples(command, {{"roll 28,1 out_24p src_24p,2",
                          "28,1\tout_24p\tmed?,anyGen\n28,1\tout_24p\tmed?,anyGen\n15,2\tsrc_24p\t24p,1stGen"},
                         {"roll --for 29,1 28,1 out_24i",
                          "28,1\tout_24p\tmed?,anyGen\tfits\n30,1\tout_24i\tmed?,anyGen\tdoes not fit"}});
  return [given](console& io) { return roll(*given, io); };
}

}  // namespace cli
