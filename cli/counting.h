// What frame counts need: labels as they know them, and the pulldown between film and video.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "cli/input.h"
#include "labelsbase/framecounts.h"
#include "labelsbase/labelcvt/label_facts.h"

namespace CLI {
class App;
}

namespace cli {

// A label type that frame counts know: timecode, or key numbers without their prefix.
class counted_label {
 public:
  using digits = char[labelsbase::count_text_size];

  // Returns nothing if labels of the type cannot be counted.
  [[nodiscard]] static std::optional<counted_label> of(label_t type) noexcept;

  [[nodiscard]] label_type label() const noexcept { return label_; }
  [[nodiscard]] int drop() const noexcept { return facts_->timecode.drop_frame ? 1 : 0; }
  [[nodiscard]] bool has_keys() const noexcept { return facts_->family == User_keycode; }
  [[nodiscard]] bool has_key_phase() const noexcept { return label_ == Label_keycode_3perf; }

  // Whole frames of a key; 0 for timecode.
  [[nodiscard]] int frames_per_key() const noexcept { return frames_per_key_; }
  void set_frames_per_key(int frames) noexcept { frames_per_key_ = frames; }

  // The digits of the key, as frame counts take them.
  [[nodiscard]] unsigned char key_digits() const noexcept;

  // Reads "01:00:00:00" or "01000000", and "1234+07" or "123407", with a prefix or without. Returns what is wrong,
  // or nothing if `out` holds the digits. The text must be terminated.
  [[nodiscard]] problem read(std::string_view text, int key_phase, digits& out) const;

  // Returns digits as people write them: "01:00:00;00" or "1234+07".
  [[nodiscard]] std::string shown(digits const& text) const;

 private:
  counted_label(labelsbase::label_facts const& facts, label_type label, int frames_per_key) noexcept
      : facts_{&facts}, label_{label}, frames_per_key_{frames_per_key} {}

  [[nodiscard]] problem read_timecode(std::string_view text, digits& out) const;
  [[nodiscard]] problem read_key(std::string_view text, int key_phase, digits& out) const;

  labelsbase::label_facts const* facts_;
  label_type label_;
  int frames_per_key_;
};

// Finds a counted type as find_label_type does. Refuses unknown types and those that cannot be counted.
[[nodiscard]] counted_label find_counted_label(std::string_view where, std::string const& text);

// The options --transfer and --phase.
struct pulldown_arguments {
  std::string transfer;
  std::string phase = "0";
};

// A transfer and the phase of its cycle.
struct pulldown {
  char const* name;  // "2:3"
  transfer_type transfer;
  int film_cycle;   // film frames of a cycle
  int video_cycle;  // video frames that they become
  int phase;

  [[nodiscard]] bool has_cadence() const noexcept { return film_cycle != video_cycle; }
  [[nodiscard]] bool adds_at_the_start() const noexcept { return phase == film_cycle; }
};

void add_pulldown(CLI::App& command, pulldown_arguments& given, char const* default_transfer);

// Refuses an unknown transfer and a phase that the transfer does not have.
[[nodiscard]] pulldown find_pulldown(pulldown_arguments const& given);

}  // namespace cli
