// Reads any text as a name of a label type, a label choice, a medium, a template and a settings file.

#include <cctype>
#include <sstream>

#include "fuzz/fuzz_input.h"
#include "labelnames/names.h"
#include "labelsbase/MediumRoll/medium_roll.h"
#include "labelsbase/labelcvt/label_facts.h"
#include "labelsbase/labels.h"
#include "labelsbase/uiflabels.h"
#include "refhost/refhost.h"

extern int const fuzz_numbers = 2;

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  fuzz_input input{data, size};
  auto const family = static_cast<UserLabelType>(input.number<std::uint32_t>() % 9);
  int const sample = input.number();
  auto const text = input.rest();

  auto capitals = text;
  for (char& c : capitals) c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
  label_t const type = edlstr_to_label_type(text.c_str());
  demand(labelsbase::is_label_type(type), "a decision list names a type", text);
  demand(edlstr_to_label_type(capitals.c_str()) == type, "the case of a name does not count", text);
  label_t const film = edlstr_to_film_label_type(text.c_str());
  demand(film == null_label_t || film == type, "film types are among them", text);
  (void)edlstr_to_label_type(text.c_str(), family);
  (void)get_label_type(text.c_str());

  auto const named = labelnames::find(text);
  demand(!named || labelsbase::facts_of(named->type).has_labels(), "a name is that of a type with labels", text);
  for (auto const& near : labelnames::nearest(text))
    demand(labelnames::find(near).has_value(), "near names are names", text);

  auto const choice = config_str_to_uifLabel(text.c_str());
  demand(choice < 0 || !std::strcmp(uifLabel_to_config_str(choice), text.c_str()), "a choice has its keyword",
         text);

  MediumRollIdent roll;
  MediumRollId_from_string(text.c_str(), roll, family);
  demand((roll.medium == Medium_none) == (roll.generation == Gen_unknown), "both are known, or neither", text);
  demand(labelsbase::is_medium(roll.medium) && roll.generation <= Gen_4th, "a roll is on a medium", text);

  LabelTemplate const shape{text.c_str()};
  std::string_view const placeholder = shape.getInvalidString(sample);
  demand(placeholder.size() == std::strlen(text.c_str()), "a placeholder has the length of its template", text);
  for (unsigned at = 0; at < placeholder.size() + 2; ++at) {
    (void)shape.isAtSeparator(at);
    (void)shape.isValidChar(text[at < text.size() ? at : 0], at);
  }

  auto const before = refhost::project();
  refhost::project_guard const project{before};
  std::istringstream settings{text};
  auto const errors = refhost::load_settings(settings);
  demand(errors.empty() || refhost::project() == before, "wrong settings change nothing", text);
  return 0;
}
