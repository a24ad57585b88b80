#include "labelcheck/film_form.h"

#include "labelcheck/text.h"

namespace labelcheck {

std::string written(film_form const& form, film_label const& label) {
  std::string text{label.negative ? "-" : ""};
  text += label.prefix;
  append_number(text, label.count, form.digits());
  if (form.has_frames()) append_number(text += form.separator(), label.frames, 2);
  if (form.names_perforation()) append_number(text += '.', label.perforation, 1);
  return text;
}

}  // namespace labelcheck
