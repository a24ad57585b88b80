// Labels of one type turned into those of another: the options that commands have for it, and what these do.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "cli/console.h"
#include "cli/input.h"
#include "cli/label_io.h"
#include "labelconvert/conversion.h"

namespace CLI {
class App;
}

namespace cli {

struct conversion_arguments {
  std::string from, to;
  std::optional<std::string> prefix;  // of the labels to write
  std::optional<std::string> by;
  std::optional<std::string> sync;
  std::string transfer = "none";
  std::optional<std::string> phase;
  std::string round = "near";
  bool exact = false;
  reading_arguments reading;
  writing_arguments writing;
};

// Declares --from, --to and the options that say how labels of the two types belong together.
void add_conversion(CLI::App& command, conversion_arguments& given);

// Converts labels as the options say.
//
//   label_converter labels{given, io};       // refuses options that do not fit together
//   std::string_view label;
//   labels.convert("01:00:00:00", label)     // nothing is wrong; label is "5400+00"
class label_converter {
 public:
  label_converter(conversion_arguments const& given, console& io);

  [[nodiscard]] label_kind const& from() const noexcept { return tracks_.from; }
  [[nodiscard]] label_kind const& to() const noexcept { return tracks_.to; }

  // Writes the label that belongs to a label of the first type, or returns what is wrong. The label is valid until
  // the next call.
  [[nodiscard]] problem convert(std::string_view text, std::string_view& label);

  // As convert, for a label that says a length: the sync point does not move it.
  [[nodiscard]] problem convert_length(std::string_view text, std::string_view& label);

  // Returns the samples that a length in samples of the first type takes in the other, or nothing if they do not
  // fit.
  [[nodiscard]] std::optional<int> length(int samples) const noexcept;

  // Whether a frame begins at the instant of the label that was converted last.
  [[nodiscard]] bool is_exact() const noexcept { return is_exact_; }

 private:
  // Both kinds of labels, with the prefixes that --sync names.
  struct tracks {
    label_kind from, to;
    labelconvert::sync_point sync;
  };

  [[nodiscard]] static tracks find_tracks(conversion_arguments const& given);
  [[nodiscard]] static labelconvert::conversion plan(conversion_arguments const& given, tracks const& both);
  [[nodiscard]] problem convert(labelconvert::conversion const& how, std::string_view text,
                                std::string_view& label);
  [[nodiscard]] problem falls_between(labelconvert::answer const& found);

  tracks tracks_;
  labelconvert::conversion conversion_;
  labelconvert::conversion lengths_;  // from zero to zero
  label_reader reader_;
  label_writer writer_;
  bool exact_only_;
  bool is_exact_ = true;
};

}  // namespace cli
