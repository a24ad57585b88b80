// The names of label types in edit decision lists.

#include <string_view>

#include "labelsbase/labelcvt/label_facts.h"
#include "labelsbase/labelcvt/label_types.h"
#include "labelsbase/support/enumerators.h"
#include "labelsbase/support/text.h"

using namespace labelsbase;

namespace {

// Returns the first type, in table order, whose `name` is `code`.
constexpr label_t first_type_with(char const* exchange_names::*name, std::string_view code) noexcept {
  for (auto const& facts : all_label_facts)
    if (facts.exchange.*name && code == facts.exchange.*name) return facts.type;
  return null_label_t;
}

// Returns the type that a whole code in capitals names, by the short codes first, or null_label_t.
constexpr label_t type_named(std::string_view code) noexcept {
  label_t const type = first_type_with(&exchange_names::read, code);
  return type ? type : first_type_with(&exchange_names::read_long, code);
}

// Returns the first type with labels one of whose names means another type, or null_label_t.
consteval label_t first_with_the_name_of_another() {
  for (auto const& facts : all_label_facts) {
    if (!facts.has_labels()) continue;
    for (auto const* const code : {facts.exchange.read, facts.exchange.read_long})
      if (code && type_named(code) != facts.type) return facts.type;
    for (auto const& other : all_label_facts)
      if (other.has_labels() && other.type != facts.type && facts.exchange.written && other.exchange.written &&
          std::string_view{facts.exchange.written} == other.exchange.written)
        return facts.type;
  }
  return null_label_t;
}

static_assert(is_null<first_with_the_name_of_another()>, "another label type has an exchange name of this type");

}  // namespace

char const* label_type_to_edlstr(label_t type) noexcept {
  auto const* const name = facts_of(type).exchange.written;
  return name ? name : "BAD";
}

label_t edlstr_to_label_type(char const* text) noexcept {
  if (!text || !*text) return null_label_t;

  char code[11];
  std::size_t length = 0;
  for (; length < sizeof code && text[length] && !is_blank(text[length]); ++length)
    code[length] = to_upper(text[length]);

  return type_named({code, length});
}

label_t edlstr_to_label_type(char const* text, UserLabelType family) noexcept {
  label_t const type = edlstr_to_label_type(text);
  switch (family) {
    case User_feet:
      return label_t_to_foot_label_t(type);
    case User_ink:
      return label_t_to_ink_label_t(type);
    case User_keycode:
      return label_t_to_key_label_t(type);
    default:
      return null_label_t;
  }
}

label_t edlstr_to_film_label_type(char const* text) noexcept {
  label_t const type = edlstr_to_label_type(text);
  bool const has_converter = type != keycode_label_t;
  return user_label_type(type) == User_keycode && has_converter ? type : null_label_t;
}
