#include <CLI/CLI.hpp>
#include <cstdint>
#include <limits>
#include <memory>

#include "cli/arguments.h"
#include "cli/film.h"
#include "cli/items.h"
#include "cli/label_io.h"
#include "cli/label_type.h"
#include "cli/verbs.h"
#include "refhost/whole_number.h"

namespace cli {
namespace {

struct arguments {
  std::string type;
  std::optional<std::string> prefix;
  std::string label;
  std::vector<std::string> operands;
  bool perfs = false;
};

constexpr bool is_sample(std::int64_t value) noexcept {
  return value >= std::numeric_limits<std::int32_t>::min() && value <= std::numeric_limits<std::int32_t>::max();
}

// Samples in one of the user's units.
int unit_of(arguments const& given, label_cvt const& converter) {
  return given.perfs ? 1 : converter.samples_per_unit();
}

// Key numbers of three perforations a frame wrap at 22 frames a key, which no film has: past the ends of the
// count, such a sum names no frame that the film would go on with.
bool wraps_by_whole_counts(LabelPoint const& sum, std::int64_t unwrapped) {
  auto& converter = *sum.cvt();
  if (!converter.has_prefix() || sum.sample == unwrapped) return true;
  std::int64_t perfs = perfs_per_count(converter);
  for (int digits = converter.get_count_length(); digits > 0; --digits) perfs *= 10;
  return (sum.sample - unwrapped) % perfs == 0;
}

exit_status add(arguments const& given, LabelPoint const& start, console& io) {
  label_writer labels{start.cvt()->type(), start.prefix};
  int const unit = unit_of(given, *start.cvt());

  return for_each_item(given.operands, io, [&](std::string_view text) -> problem {
    if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
    auto const amount = refhost::whole_number(text);
    if (!amount) return std::string{"expected a whole number of "} + (given.perfs ? "perforations" : "frames");
    auto const samples = std::int64_t{*amount} * unit;
    if (!is_sample(samples) || !is_sample(start.sample + samples)) return "leads out of the range of samples";

    LabelPoint distance{*start.cvt(), 0};
    distance.sample = static_cast<int>(samples);
    LabelPoint const sum = start + distance;
    if (!wraps_by_whole_counts(sum, start.sample + samples)) return "leads out of the range of the count";

    std::string_view label;
    if (auto wrong = labels.write(sum.sample, label)) return wrong;
    io.results.line(label);
    return std::nullopt;
  });
}

exit_status diff(arguments const& given, LabelPoint const& a, console& io) {
  label_reader labels{a.cvt()->type(), given.prefix.value_or("")};
  int const unit = unit_of(given, *a.cvt());
  LabelPoint b{*a.cvt(), 0};

  return for_each_item(given.operands, io, [&](std::string_view text) -> problem {
    if (auto wrong = labels.read(text, b)) return wrong;
    if (std::string_view{a.prefix} != b.prefix)
      return std::string{"the prefix is "} + b.prefix + ", another roll than " + a.prefix;
    if (!is_sample(std::int64_t{a.sample} - b.sample)) return "the difference does not fit 32 bits";

    int const perfs = (a - b).sample;
    if (perfs % unit != 0)
      return "the difference is " + std::to_string(perfs) +
             " perforations, no whole number of frames; --perfs shows it";
    io.results.line(perfs / unit);
    return std::nullopt;
  });
}

using work = exit_status (*)(arguments const&, LabelPoint const&, console&);

exit_status run(arguments const& given, work verb, console& io) {
  auto const type = find_label_type(given.type, io.errors);
  if (!type || !accept_prefix(*type, given.prefix, io.errors)) return failed;
  LabelPoint first{*type, 0};
  if (given.perfs && !counts_perforations(*first.cvt())) {
    io.errors.say(std::string{"--perfs: "} + first.cvt()->type_str() + " counts no perforations; leave it out");
    return failed;
  }
  if (auto const wrong = label_reader{*type, given.prefix.value_or("")}.read(given.label, first)) {
    io.errors.say(cli::quoted(given.label) + ": " + *wrong);
    return some_refused;
  }
  return verb(given, first, io);
}

struct wording {
  char const* label;
  char const* label_meaning;
  char const* operand;
  char const* operand_meaning;
  char const* perfs_meaning;
};

verb_run declare(CLI::App& verb, work what, wording const& words) {
  auto const given = std::make_shared<arguments>();
  add_type(verb, given->type);
  verb.add_option(words.label, given->label, words.label_meaning)->required()->option_text("(required)");
  add_operands(verb, words.operand, words.operand_meaning, given->operands);
  add_prefix(verb, given->prefix);
  verb.add_flag("--perfs", given->perfs, words.perfs_meaning);
  return [given, what](console& io) { return run(*given, what, io); };
}

}  // namespace

verb_run declare_add(CLI::App& verb) {
  return declare(verb, add,
                 {"LABEL", "The label to start from", "N",
                  "Frames to go on, or back when negative. The sum wraps as the type has it: timecode at the end"
                  " of the day, key numbers and ink numbers at the end of their count",
                  "N is perforations, not frames"});
}

verb_run declare_diff(CLI::App& verb) {
  return declare(verb, diff,
                 {"A", "The label to measure to", "B",
                  "The labels to measure from. A - B in frames, as the type wraps it: timecode within the day, key"
                  " numbers and ink numbers within their count, so that it is never negative; feet and film frames"
                  " not at all. Key numbers of three perforations a frame wrap at 22 frames a key",
                  "The differences in perforations, not frames"});
}

}  // namespace cli
