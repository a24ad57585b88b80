// Checks a list: whether its labels exist, its lengths agree, its events follow each other.
//
//   lists::line_reader lines{fd};
//   auto const result = lists::check_list(lines, {}, {.found = print, .measured = {}});
//   lists::format_name(result.format)      // "decision list"
//   lists::rate_name(*result.rate)         // "25"
//   result.findings                        // 0 if all is well
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "lists/lines.h"
#include "lists/list_event.h"
#include "lists/list_format.h"
#include "lists/list_rate.h"

namespace lists {

enum class finding_kind {
  form,       // a line that cannot be read as what it seems to be
  rate,       // a rate line or a separator contradicts the rate
  label,      // a label that does not exist at the rate
  length,     // lengths that disagree
  backwards,  // an end before its beginning
  overlap,    // record time that another event has filled
  gap,        // record time between two events that nothing fills
};

inline constexpr int finding_kinds = static_cast<int>(finding_kind::gap) + 1;

// Returns "form", "rate" and so on.
[[nodiscard]] char const* kind_name(finding_kind kind) noexcept;

struct finding {
  finding_kind kind;
  std::int64_t line;   // from 1
  std::size_t column;  // from 1
  std::string text;    // what is wrong, with what was found and what was expected
  std::string event;   // its number in a decision list, its name in a log; empty if the finding is of no event
};

// The length of an event: of its record span if it has one, otherwise of its source or its marks, otherwise as
// stated.
struct event_length {
  list_event const& event;
  std::int64_t frames;
  named_type rate;
};

struct check_options {
  std::optional<named_type> rate;  // of the record labels; a list that does not say its rate may lack it
};

struct check_handlers {
  std::function<void(finding const&)> found;
  std::function<void(event_length const&)> measured;  // may be empty
};

// How the rate came to be known.
enum class rate_origin {
  unknown,
  given,    // in the options
  stated,   // by a rate line of the list
  deduced,  // the one rate at which most lengths of the events agree
};

struct check_result {
  list_format format = list_format::other;
  rate_origin origin = rate_origin::unknown;
  std::optional<named_type> rate;    // nothing if it is unknown, and then no event was checked
  std::vector<named_type> possible;  // the rates that fit alike, if it is unknown
  std::int64_t events = 0;
  std::int64_t findings = 0;
  std::map<std::string, std::int64_t> frames_by_track;  // the lengths of the events of each track
};

// Reads the whole list. Memory grows with the gaps between events only; to deduce a rate, up to 1000 events are
// held.
[[nodiscard]] check_result check_list(line_reader& lines, check_options const& options,
                                      check_handlers const& handlers);

}  // namespace lists
