#include "labelcheck/read.h"

#include <array>
#include <cstddef>
#include <utility>

#include "labelcheck/film.h"
#include "labelcheck/film_label.h"
#include "labelcheck/timecode.h"
#include "labelcheck/timecode_label.h"

using labelsbase::facts_of;
using labelsbase::is_label_type;

namespace labelcheck {
namespace {

using answer = std::variant<reading, refusal>;

// Reads the labels of one type. The compiler knows its facts and makes a reader of its own for each row of the
// table, for the benchmarks strict_reading.
template <label_t type>
[[gnu::flatten]] answer read_as(std::string_view text) {
  static constexpr auto const& facts = facts_of(type);
  [[maybe_unused]] int sample = 0;
  if constexpr (facts.is_timecode()) {
    quick_parser in{text};
    if (take_timecode(in, form_of(facts), sample)) return reading{sample, {}};
    return explain_timecode(facts, text);
  } else if constexpr (facts.is_film()) {
    film_form const form{facts};
    film_label_reader<quick_parser> in{form, text};
    if (in.label(sample)) return reading{sample, form.prefix_of(text)};
    return explain_film(form, text);
  } else {
    return refusal{.why = reason::no_labels, .type = type};
  }
}

template <int... types>
constexpr std::array<label_reader, numLabelCvts> readers_of(std::integer_sequence<int, types...>) {
  return {read_as<static_cast<label_t>(types)>...};
}

// The reader of type `t` is readers[t].
constexpr auto readers = readers_of(std::make_integer_sequence<int, numLabelCvts>{});

}  // namespace

label_reader reader_of(label_t type) noexcept {
  return readers[static_cast<std::size_t>(is_label_type(type) ? type : null_label_t)];
}

answer read(label_t type, std::string_view text) {
  if (!is_label_type(type)) return refusal{.why = reason::no_labels, .type = type};
  return readers[static_cast<std::size_t>(type)](text);
}

}  // namespace labelcheck
