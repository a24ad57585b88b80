#include "cli/label_type.h"

#include <algorithm>

#include "refhost/whole_number.h"

namespace cli {
namespace {

// The first named type that `matches` holds for; null_label_t when there is none.
template <typename Matches>
label_t first_type(Matches matches) {
  for (int number = 0; number < numLabelCvts; ++number) {
    auto const type = static_cast<label_t>(number);
    if (*labelsbase::label_type_name(type) && matches(type)) return type;
  }
  return null_label_t;
}

bool equal_in_any_case(std::string_view a, std::string_view b) noexcept {
  auto const lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
  return std::ranges::equal(a, b, {}, lower, lower);
}

// As the library reads it, but the whole of it: the library stops at a blank and after 11 characters. And some
// types have a name that is only written ("12f").
label_t type_of_exchange_name(std::string const& name) {
  bool const is_word = name.size() <= 11 && name.find_first_of(" \t\n\v\f\r") == std::string::npos;
  auto const type = is_word && !name.empty() ? edlstr_to_label_type(name.c_str()) : null_label_t;
  if (type != null_label_t || name.empty()) return type;
  return first_type([&](label_t t) { return equal_in_any_case(name, exchange_name(t)); });
}

label_t type_named(std::string const& text) {
  if (auto const number = refhost::whole_number(text)) return first_type([&](label_t t) { return t == *number; });
  auto const type = first_type([&](label_t t) { return text == labelsbase::label_type_name(t); });
  return type != null_label_t ? type : type_of_exchange_name(text);
}

}  // namespace

std::string_view exchange_name(label_t type) noexcept {
  std::string_view const name = label_type_to_edlstr(type);
  return name == "BAD" ? std::string_view{} : name;
}

char const* family_name(UserLabelType family) noexcept {
  switch (family) {
    case User_timecode:
      return "timecode";
    case User_keycode:
      return "key-number";
    case User_feet:
      return "feet";
    case User_ink:
      return "ink";
    case User_film_frames:
      return "film-frames";
    case User_any:
      return "any";
    case User_none:
    case User_no_label:
      break;
  }
  return "-";
}

label_cvt* converter_of(label_t type) {
  auto* const converter = get_static_label_cvt(type);
  return converter->type() == type && type != dummy_label_t ? converter : nullptr;
}

std::optional<label_t> find_label_type(std::string const& text, messages& errors) {
  auto const type = type_named(text);
  if (type == null_label_t) {
    errors.say(quoted(text) +
               " is no label type; expected a class name (pal_label), a number (5) or an exchange name (25f), as"
               " 'labels types' lists them");
    return std::nullopt;
  }
  if (!converter_of(type)) {
    errors.say(quoted(text) + ": there is no converter for " + labelsbase::label_type_name(type) +
               "; expected a type that has a template in 'labels types'");
    return std::nullopt;
  }
  return type;
}

}  // namespace cli
