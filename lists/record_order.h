// Which record time the events of a list fill, track by track.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace lists {

// The tracks that an event is recorded on: "V", "A1", "A2". At most eight.
class track_names {
 public:
  // Splits the word of a decision list: "B" is A1 and V, "A" is A1, "AA/V" is A1, A2 and V, "NONE" is no track. An
  // empty word is one track without a name.
  explicit track_names(std::string_view word) noexcept;

  [[nodiscard]] auto begin() const noexcept { return names_.begin(); }
  [[nodiscard]] auto end() const noexcept { return names_.begin() + size_; }

 private:
  void add(std::string_view name) noexcept;

  std::array<std::string_view, 8> names_;
  std::ptrdiff_t size_ = 0;
};

class record_order {
 public:
  struct piece {
    std::int64_t in, out;  // frames
    std::int64_t line;
    std::size_t column;
  };

  // What another event has already filled.
  struct overlap {
    std::int64_t frames;
    std::int64_t first_line, last_line;  // of the events that fill it
  };

  // Adds a piece to a track, and returns how much of it is filled already, if any is. Events may come in any
  // order. Pieces that touch are kept as one.
  overlap add(std::string_view track, piece const& filled);

  struct gap {
    std::string_view track;
    std::int64_t frames;
    std::int64_t after_line;
    std::int64_t line;  // the event behind it, and the column of its record label
    std::size_t column;
  };

  // Calls `take` with each stretch between two events that nothing fills.
  void for_each_gap(std::function<void(gap const&)> const& take) const;

 private:
  // Events that touch, as one.
  struct run {
    std::int64_t out;
    std::int64_t first_line;
    std::size_t first_column;
    std::int64_t last_in;  // of the event that comes last
    std::int64_t last_line;
  };

  using runs_by_in = std::map<std::int64_t, run>;
  std::map<std::string, runs_by_in, std::less<>> tracks_;
};

}  // namespace lists
