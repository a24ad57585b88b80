// What a list says of one event, with the place of every text, whichever format the list has.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "lists/lines.h"

namespace lists {

// A text and where it stands. Short texts such as labels are held without allocation.
struct placed_text {
  std::string text;
  std::int64_t line = 0;   // from 1
  std::size_t column = 0;  // of its first character, from 1

  [[nodiscard]] bool empty() const noexcept { return text.empty(); }
};

// Returns the part of a line with its place.
[[nodiscard]] inline placed_text place(line const& in, std::string_view part) {
  if (part.empty()) return {{}, in.number, in.column};
  return {std::string{part}, in.number, column_of(in, static_cast<std::size_t>(part.data() - in.text.data()))};
}

struct span_of_labels {
  placed_text in, out;
  placed_text length;  // as the list states it, if it does

  [[nodiscard]] bool is_whole() const noexcept { return !in.empty() && !out.empty(); }
};

struct list_event {
  placed_text name;  // the number in a decision list, the clip in a log
  std::string reel;
  std::string tracks;
  placed_text transition_frames;  // empty for a cut
  span_of_labels source, record, mark;
  std::optional<placed_text> speed;  // frames a second, from a speed effect
  std::vector<placed_text> others;   // labels in other columns
};

// A frame code mode, stated in the list.
struct placed_mode {
  placed_text words;
  bool drop_frame;
};

// Takes what a list says, in its order.
class list_sink {
 public:
  virtual ~list_sink() = default;
  virtual void take(list_event&& event) = 0;
  virtual void take_mode(placed_mode const& mode) = 0;
  virtual void take_rate(placed_text const& frames_per_second) = 0;         // the heading of a log has it
  virtual void take_broken(placed_text const& where, char const* why) = 0;  // something that cannot be read
};

}  // namespace lists
