// Labels as users write and read them.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "cli/console.h"
#include "cli/input.h"
#include "host/frame_rate.h"
#include "labelcheck/range.h"
#include "labelcheck/read.h"
#include "labelcheck/write.h"
#include "labelsbase/labels.h"

namespace CLI {
class App;
}

namespace cli {

// --- Which labels ---

// The arguments TYPE and --prefix, or the options of a command that stand for them.
struct label_arguments {
  std::string type{};
  std::optional<std::string> prefix{};
  char const* type_argument = "TYPE";
  char const* prefix_option = "--prefix";
};

// The labels that a command works on.
struct label_kind {
  label_t type;
  Kiv::FrameRate rate;  // of the material: 24 and 23.976 have one type
  std::string prefix;   // empty if none was given
};

void add_label_kind(CLI::App& command, label_arguments& given);

// Refuses an unknown type and a prefix that its labels cannot have.
[[nodiscard]] label_kind find_label_kind(label_arguments const& given);

// --- Reading ---

// What a label says.
using label_parts = labelcheck::reading;

// Reads a label strictly, prefix included, or returns what is wrong with it.
[[nodiscard]] problem read_label(label_t type, std::string_view text, label_parts& out);

// The options --illegal, --entry and --at.
struct reading_arguments {
  std::string illegal = "refuse";
  std::string entry = "full";
  std::optional<std::string> at{};
};

void add_reading(CLI::App& command, reading_arguments& given);

// Reads labels as users write them:
// - If the kind has a prefix, labels may be written without it, but not with another.
// - ":", ";", "." and "+" may come before the frames of every timecode, and ";" before all fields. The first label
//   whose separator belongs to another kind of timecode is reported.
// - --illegal nearest reads the nearest valid label in place of one that is refused. as-is reads what the library
// does.
// - --entry short reads short_entry.h; sums count from --at.
class label_reader {
 public:
  explicit label_reader(label_kind const& kind);

  // Refuses values that the options do not have. Reports hints to `io`, which must outlive the reader.
  label_reader(label_kind const& kind, reading_arguments const& given, console& io);

  // Returns what is wrong with the text, or nothing if `out` is filled. The prefix is valid until the next call,
  // and while the text is.
  [[nodiscard]] problem read(std::string_view text, label_parts& out);

 private:
  enum class illegal_labels { refuse, nearest, as_is };

  [[nodiscard]] static illegal_labels find_illegal(std::string const& text);
  [[nodiscard]] static bool is_short_entry(std::string const& text);

  [[nodiscard]] problem read_entry(std::string_view text, label_parts& out);
  [[nodiscard]] problem read_full(std::string_view text, label_parts& out);
  [[nodiscard]] problem read_refused(labelcheck::refusal const& refused, std::string_view text,
                                     std::string_view untyped, label_parts& out);
  [[nodiscard]] problem read_as_library(std::string_view text, label_parts& out);
  [[nodiscard]] bool read_other_separators(std::string_view text, label_parts& out);
  [[nodiscard]] bool lacks_prefix(std::string_view text) const noexcept;

  label_kind kind_;
  std::size_t prefix_length_;
  std::size_t count_digits_;
  illegal_labels illegal_ = illegal_labels::refuse;
  bool short_entry_ = false;
  console* io_ = nullptr;           // null: no hints
  bool has_hinted_ = false;         // at a separator of another kind
  std::optional<LabelPoint> at_{};  // of --at
  std::string whole_;               // prefix and label
  std::string respelt_;             // another spelling of the label
};

// --- Writing ---

// The option --style.
struct writing_arguments {
  std::string style = "own";
};

using labelcheck::label_style;

void add_writing(CLI::App& command, writing_arguments& given);

// Refuses any other style.
[[nodiscard]] label_style find_label_style(writing_arguments const& given);

// Writes samples as labels. Positive labels have no sign column.
class label_writer {
 public:
  explicit label_writer(label_kind const& kind, label_style style = label_style::own)
      : type_{kind.type}, labels_{kind.type, kind.prefix, style} {}

  // Writes the label of a sample, or returns why it has none. The label is valid until the next call.
  [[nodiscard]] problem write(int sample, std::string_view& label) {
    label = labels_.write(sample);
    return label.empty() ? problem{labelcheck::explain_missing(type_, sample)} : std::nullopt;
  }

 private:
  label_t type_;
  labelcheck::writer labels_;
};

// Copies a prefix into the point; the part that does not fit is left out.
void set_prefix(LabelPoint& point, std::string_view prefix) noexcept;

// --- Counting ---

// Declares --perfs, which counts perforations instead of frames.
void add_perfs(CLI::App& command, bool& perfs);

// Returns the samples of what a command counts: 1 with --perfs, otherwise those of a frame. Refuses --perfs for
// types whose samples are frames.
[[nodiscard]] int samples_per_count(label_kind const& kind, bool perfs);

}  // namespace cli
