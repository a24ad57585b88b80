#include "labelcheck/parser.h"

#include <utility>

namespace labelcheck {

refusal refuse_text(label_t type, fault const& found, std::string nearest) {
  if (nearest.empty()) return {.type = type};
  return {.wrong = found.wrong,
          .why = found.why,
          .position = found.position,
          .nearest = std::move(nearest),
          .type = type,
          .next = found.next,
          .number = found.number};
}

}  // namespace labelcheck
