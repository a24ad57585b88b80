// Reads any text as a name of a label type, in a decision list and by a user, and of a label choice.

#include "fuzz/fuzz_input.h"
#include "labelnames/names.h"
#include "labelsbase/labelcvt/label_facts.h"
#include "labelsbase/labels.h"
#include "labelsbase/uiflabels.h"

extern int const fuzz_words = 1;

namespace {

constexpr std::size_t longest_mistyped = 16;  // characters, so that a long text takes no longer

void demand_exchange_name(std::string const& text, UserLabelType family) {
  auto capitals = text;
  for (char& c : capitals) c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
  label_t const type = edlstr_to_label_type(text.c_str());
  demand(labelsbase::is_label_type(type), "a decision list names a type", text);
  demand(edlstr_to_label_type(capitals.c_str()) == type, "the case of a name does not count", text);
  if (*text.c_str())
    demand(edlstr_to_label_type((text.c_str() + std::string{" X"}).c_str()) == type, "a name ends at a blank",
           text);

  label_t const film = edlstr_to_film_label_type(text.c_str());
  demand(film == null_label_t || film == type, "film types are among them", text);
  label_t const sibling = edlstr_to_label_type(text.c_str(), family);
  demand(sibling == null_label_t || labelsbase::user_label_type(sibling) == family, "a sibling is of the family",
         text);
  if (type == null_label_t) return;
  label_t const read_back = edlstr_to_label_type(label_type_to_edlstr(type));
  demand(edlstr_to_label_type(label_type_to_edlstr(read_back)) == read_back, "a written name is read back", text);
}

void demand_class_name(std::string const& text) {
  label_t const type = get_label_type(text.c_str());
  demand(type == null_label_t || labelsbase::label_type_name(type) == std::string_view{text.c_str()},
         "a class has its name", text);
}

void demand_users_name(std::string const& text) {
  auto const named = labelnames::find(text);
  demand(!named || labelsbase::facts_of(named->type).has_labels(), "a name is that of a type with labels", text);
  if (text.size() <= longest_mistyped)
    for (auto const& near : labelnames::nearest(text))
      demand(labelnames::find(near).has_value(), "near names are names", text);

  auto const choice = config_str_to_uifLabel(text.c_str());
  demand(choice < 0 || !std::strcmp(uifLabel_to_config_str(choice), text.c_str()), "a choice has its keyword",
         text);
}

}  // namespace

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  fuzz_input input{data, size};
  auto const family = input.choice<UserLabelType>(9);
  demand_exchange_name(input.text(), family);
  demand_class_name(input.text());
  demand_users_name(input.text());
  return 0;
}
