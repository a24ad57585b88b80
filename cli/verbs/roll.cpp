// roll: medium-roll identifiers, and which fits in place of another.

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/input.h"
#include "cli/names.h"

namespace cli {
namespace {

struct arguments {
  item_arguments identifiers;
  std::optional<std::string> asked;
  bool ink = false;

  [[nodiscard]] UserLabelType family() const noexcept { return ink ? User_ink : User_any; }
};

// The identifier, the name of its medium and the user text: "28,1", "out_24p" and "med?,anyGen".
std::string described(MediumRollIdent const& ident) {
  char identifier[labelsbase::identifier_text_size];
  MediumRollId_to_string(identifier, ident);
  return std::string{identifier} + '\t' + labelsbase::medium_name(ident.medium) + '\t' +
         MediumRollId_to_UserString(ident);
}

exit_status roll(arguments const& given, console& io) {
  MediumRollIdent asked;
  if (given.asked) asked = find_medium_roll("--for", *given.asked, given.family());

  return for_each_item(given.identifiers, io, [&](std::string_view text) -> problem {
    MediumRollIdent ident;
    if (auto wrong = read_medium_roll(text, given.family(), ident)) return wrong;
    io.results.write(described(ident));
    if (given.asked) io.results.write(asked.MediumRollId_fits_this(ident) ? "\tfits" : "\tdoes not fit");
    io.results.line("");
    return std::nullopt;
  });
}

}  // namespace

command_run commands::declare_roll(CLI::App& command) {
  auto const given = std::make_shared<arguments>();
  add_items(command, "IDENTIFIER", "Medium and generation, for example 28,1 or out_24p,1", given->identifiers);
  add_option(command, "--for", "IDENTIFIER", given->asked, "Show whether each can stand in for IDENTIFIER");
  add_flag(command, "--ink", given->ink, "Read each as for ink numbers: without a generation, it is an ink roll");
  add_examples(command, {"roll 28,1 out_24p src_24p,2", "roll --for 29,1 28,1 out_24i"});
  return [given](console& io) { return roll(*given, io); };
}

}  // namespace cli
