#include "labelcheck/read.h"

#include "labelcheck/film.h"
#include "labelcheck/timecode.h"

namespace labelcheck {

std::variant<reading, refusal> read(label_t type, std::string_view text) {
  auto const& facts = labelsbase::facts_of(type);
  if (facts.is_timecode()) return read_timecode(facts, text);
  if (facts.is_film()) return read_film(facts, text);
  return refusal{.why = reason::no_labels, .type = type};
}

}  // namespace labelcheck
