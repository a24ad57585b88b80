// Labels as users write and read them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "cli/items.h"
#include "cli/messages.h"
#include "labelsbase/labels.h"

namespace CLI {
class App;
}

namespace cli {

// --prefix, the prefix of key numbers and ink numbers.
void add_prefix(CLI::App& verb, std::optional<std::string>& prefix);

// Whether labels of the type can have this prefix. Says so when they cannot.
[[nodiscard]] bool accept_prefix(label_t type, std::optional<std::string> const& prefix, messages& errors);

// Reads labels strictly. With a prefix, they may be written without it, and none may have another.
class label_reader {
 public:
  label_reader(label_t type, std::string prefix);

  // Gives the point the sample and the prefix of a label, or says what is wrong with it. The text is terminated.
  [[nodiscard]] problem read(std::string_view text, LabelPoint& point);

 private:
  [[nodiscard]] bool lacks_prefix(std::string_view text) const noexcept;
  [[nodiscard]] problem read_whole(std::string_view text, LabelPoint& point) const;
  [[nodiscard]] problem read_without_prefix(std::string_view text, LabelPoint& point);

  label_cvt& converter_;
  std::size_t prefix_length_;
  std::string prefix_;
  std::string whole_;  // of the label in hand
};

// Shows samples as labels. A positive label has no sign column.
class label_writer {
 public:
  label_writer(label_t type, std::string_view prefix);

  // The label at a sample, or what is wrong with it: film has no labels before the first key number, and none that
  // its type would not read. Good until the next call.
  [[nodiscard]] problem write(int sample, std::string_view& label);

 private:
  [[nodiscard]] problem film_problem(int sample, std::string_view label) const;

  LabelPoint negative_;
  LabelPoint positive_;
};

}  // namespace cli
