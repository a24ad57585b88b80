#include "cli/arguments.h"

#include <CLI/CLI.hpp>

namespace cli {

void add_type(CLI::App& verb, std::string& type) {
  verb.add_option("TYPE", type, "Class name (pal_label), number (5) or exchange name (25f)")
      ->required()
      ->option_text("(required)");
}

void add_operands(CLI::App& verb, char const* name, char const* meaning, std::vector<std::string>& operands) {
  // Asked for so many, the parser takes each operand as it stands.
  constexpr int many = CLI::detail::expected_max_vector_size;
  auto const take = [&operands](CLI::results_t const& given) {
    operands = given;
    return true;
  };
  verb.add_option(name, take, meaning)
      ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
      ->expected(many - 1, many);
}

}  // namespace cli
