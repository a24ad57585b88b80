// Statements of edit decision lists: CMX 3600 and its relatives.
//
//   001  TAPE1    V     C        01:00:00:00 01:00:02:00 10:00:00:00 10:00:02:00
//   M2   TAPE1        012.5                01:00:00:00
//
//   line       = [ event | code-mode | speed | channels | title | remark ] blank*
//   event      = number reel tracks transition label label label label       source in, out, record in, out
//   transition = "C" | kind length                                           length: frames, 1 to 5 digits
//   kind       = "D" | "K" | "KB" | "K" "B" | "KO" | "K" "O" | "W" digit+
//   number     = digit+, at most 8
//   reel       = any text, blanks included, up to the tracks                 8, 32 and 128 character reels
//   tracks     = any word: "V", "A", "AA/V", "A2", "B", "NONE"
//   code-mode  = "FCM:" ( "DROP FRAME" | "NON-DROP FRAME" | "NON DROP FRAME" )
//   speed      = "M2" reel number label                                      frames a second, with a sign
//   channels   = "AUD" ( "3" | "4" )+                                    more tracks of the event above
//   title      = "TITLE:" text
//   remark     = any other line
//
// Words are separated by blanks. Labels are any words in their places, so that a list with a bad label can be told
// from a line that is no event.
#pragma once

#include <array>
#include <string_view>
#include <variant>

namespace lists {

struct event {
  std::string_view number, reel, tracks, transition;
  std::string_view transition_frames;  // empty for a cut
  std::string_view source_in, source_out, record_in, record_out;

  [[nodiscard]] std::array<std::string_view, 4> labels() const noexcept {
    return {source_in, source_out, record_in, record_out};
  }
};

// The frame code mode of the events that follow.
struct code_mode {
  std::string_view words;  // "NON-DROP FRAME"
  bool drop_frame;
};

// The speed at which the event before it plays.
struct speed_effect {
  std::string_view reel;
  std::string_view frames_per_second;  // "012.5", "-025.0"
  std::string_view entry;              // the label at which it begins; may be empty
};

// Audio channels that an event is recorded on besides its tracks.
struct audio_channels {
  bool third, fourth;
};

struct title {
  std::string_view text;
};

// A line that begins like an event, with a number, but lacks some of it.
struct broken_event {
  std::string_view number;
};

struct remark {};  // comments, effect names, blank lines and other statements

using statement = std::variant<remark, event, code_mode, speed_effect, audio_channels, title, broken_event>;

// Returns what a line says. The parts are views into the line.
[[nodiscard]] statement read_statement(std::string_view line) noexcept;

// Whether a word has the shape of timecode: four numbers with three separators, as in "01:00:00:00".
[[nodiscard]] bool looks_like_timecode(std::string_view word) noexcept;

}  // namespace lists
