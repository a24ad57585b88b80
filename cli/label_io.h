// Labels as users write and read them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "cli/input.h"
#include "labelcheck/read.h"
#include "labelsbase/labels.h"

namespace CLI {
class App;
}

namespace cli {

// What a label says.
using label_parts = labelcheck::reading;

// Reads a label strictly, prefix included, or returns what is wrong with it.
[[nodiscard]] problem read_label(label_t type, std::string_view text, label_parts& out);

// The arguments TYPE and --prefix.
struct label_arguments {
  std::string type;
  std::optional<std::string> prefix;
};

// The labels that a command works on.
struct label_kind {
  label_t type;
  std::string prefix;  // empty if none was given
};

void add_label_kind(CLI::App& command, label_arguments& given);

// Refuses an unknown type and a prefix that its labels cannot have.
[[nodiscard]] label_kind find_label_kind(label_arguments const& given);

// Reads labels strictly. If the kind has a prefix, labels may be written without it, but not with another.
class label_reader {
 public:
  explicit label_reader(label_kind const& kind);

  // As read_label. The prefix is valid until the next call.
  [[nodiscard]] problem read(std::string_view text, label_parts& out);

 private:
  [[nodiscard]] bool lacks_prefix(std::string_view text) const noexcept;

  label_kind kind_;
  std::size_t prefix_length_;
  std::size_t count_digits_;
  std::string whole_;  // prefix and label
};

// The samples that labels of a type can express.
struct sample_range {
  std::int64_t first, last;
  std::int64_t feet_run = 0;  // samples after which feet of whole frames start again at 0; 0 for other types
  int frame_samples = 1;      // samples of a frame

  // Whether the label would be "-0000+00": zero has no sign.
  [[nodiscard]] bool is_negative_zero(std::int64_t sample) const noexcept;
};

// Writes samples as labels. Positive labels have no sign column.
class label_writer {
 public:
  explicit label_writer(label_kind const& kind);

  // Writes the label of a sample, or returns why it has none. The label is valid until the next call.
  [[nodiscard]] problem write(int sample, std::string_view& label);

 private:
  [[nodiscard]] problem missing_label(int sample) const;

  LabelPoint negative_;
  LabelPoint positive_;
  sample_range range_;
};

// Copies a prefix into the point; the part that does not fit is left out.
void set_prefix(LabelPoint& point, std::string_view prefix) noexcept;

}  // namespace cli
