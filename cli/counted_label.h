// Labels as frame counts know them: timecode and key numbers in digits, without a prefix.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "cli/items.h"
#include "cli/messages.h"
#include "labelsbase/framecounts.h"
#include "labelsbase/labelcvt.h"

namespace cli {

class counted_label {
 public:
  using digits = char[labelsbase::count_text_size];

  // Says so when labels of the type cannot be counted.
  [[nodiscard]] static std::optional<counted_label> of(label_t type, messages& errors);

  [[nodiscard]] label_type label() const noexcept { return label_; }
  [[nodiscard]] int drop() const { return converter_->type() == ntsc_drop_label_t ? 1 : 0; }
  [[nodiscard]] bool has_keys() const { return converter_->UserType() == User_keycode; }
  [[nodiscard]] bool has_key_phase() const noexcept { return label_ == Label_keycode_3perf; }

  // Of the type's film, unless another number is asked for. 0 for timecode.
  [[nodiscard]] int frames_per_key() const noexcept { return frames_per_key_; }
  void set_frames_per_key(int frames) noexcept { frames_per_key_ = frames; }

  // The keys that the type counts, as the frame counts take them.
  [[nodiscard]] unsigned char key_digits() const;

  // Reads "01:00:00:00" or "01000000"; "1234+07", "123407" or either after a prefix. Nothing when `out` holds the
  // digits, else what is wrong.
  [[nodiscard]] problem read(std::string_view text, int key_phase, digits& out) const;

  // As people write it: "01:00:00;00", "1234+07".
  [[nodiscard]] std::string shown(digits const& text) const;

 private:
  counted_label(label_cvt& converter, label_type label, int frames_per_key) noexcept
      : converter_{&converter}, label_{label}, frames_per_key_{frames_per_key} {}

  [[nodiscard]] problem read_timecode(std::string_view text, digits& out) const;
  [[nodiscard]] problem read_key(std::string_view text, int key_phase, digits& out) const;

  label_cvt* converter_;
  label_type label_;
  int frames_per_key_;
};

}  // namespace cli
