// Arguments that several verbs take.
#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace cli {

// TYPE, a required label type, to be looked up by find_label_type.
void add_type(CLI::App& verb, std::string& type);

// Operands, any number of them, that are taken as they stand: "-1", "[1,2]" and all that follow "--" too.
void add_operands(CLI::App& verb, char const* name, char const* meaning, std::vector<std::string>& operands);

}  // namespace cli
