#include "labelcheck/film.h"

#include "labelcheck/film_label.h"

namespace labelcheck {

std::variant<reading, refusal> explain_film(film_form form, std::string_view text) {
  film_label_reader<explaining_parser> in{form, text};
  int sample = 0;
  if (in.label(sample)) return reading{sample, form.prefix_of(text)};
  return refuse_text(form.type(), in.found(), nearest_film_label(form, text));
}

}  // namespace labelcheck
