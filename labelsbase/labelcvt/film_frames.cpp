#include "labelsbase/labelcvt/film_frames.h"

#include "labelsbase/samples.h"
#include "labelsbase/support/text.h"

using namespace labelsbase;

film_frames_label::film_frames_label() : concrete_label{999'999, 1} { film_frames_label::build_template(); }
film_frames_label::~film_frames_label() = default;

void film_frames_label::build_template() { set_templates("-999999"); }

char const* film_frames_label::get_abs_string(LabelPoint* point, int frames) {
  if (is_special_sample(frames)) return get_invalid_string(point, frames);
  if (!point) return "";
  text_writer{point->text}.signed_digits(frames, facts_of(kind).film.count_digits);
  return point->text;
}

int film_frames_label::get_abs_sample(char const* text) {
  return text_reader{text}.number().value_or(invalid_sample);
}
