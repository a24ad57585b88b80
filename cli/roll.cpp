#include <CLI/CLI.hpp>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "cli/arguments.h"
#include "cli/items.h"
#include "cli/medium_roll.h"
#include "cli/messages.h"
#include "cli/verbs.h"

namespace cli {
namespace {

struct arguments {
  std::vector<std::string> identifiers;
  std::optional<std::string> asked;
  bool ink = false;

  [[nodiscard]] UserLabelType family() const noexcept { return ink ? User_ink : User_any; }
};

// The identifier, the name of its medium and the user text, for example "28,1", "out_24p" and "med?,anyGen".
std::string described(MediumRollIdent const& ident) {
  char identifier[labelsbase::identifier_text_size];
  MediumRollId_to_string(identifier, ident);
  return std::string{identifier} + '\t' + labelsbase::medium_name(ident.medium) + '\t' +
         MediumRollId_to_UserString(ident);
}

exit_status roll(arguments const& given, console& io) {
  MediumRollIdent asked;
  if (given.asked) {
    if (auto const wrong = read_medium_roll(*given.asked, given.family(), asked)) {
      io.errors.say("--for " + cli::quoted(*given.asked) + ": " + *wrong);
      return failed;
    }
  }

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

verb_run declare_roll(CLI::App& verb) {
  auto const given = std::make_shared<arguments>();
  add_operands(verb, "IDENTIFIER", "Medium and generation, for example 28,1 or out_24p,1", given->identifiers);
  verb.add_option("--for", given->asked, "Say whether each will do where this one is asked for")
      ->option_text("IDENTIFIER")
      ->allow_extra_args(false);
  verb.add_flag("--ink", given->ink, "Ink numbers: a medium without a generation stands for an ink-numbered roll");
  return [given](console& io) { return roll(*given, io); };
}

}  // namespace cli
