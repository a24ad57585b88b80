// types: the label types, by the names that people use.

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/label_io.h"
#include "cli/names.h"
#include "cli/records.h"
#include "labelcheck/range.h"
#include "labelsbase/characters.h"

namespace cli {
namespace {

struct arguments {
  std::vector<std::string> words;
  std::string format;
};

// Timecode types only have counted_frames_per_second, types that count perforations the next three.
constexpr field fields[] = {
    {"name", value_type::text, "Name to use", "name"},
    {"label", value_type::text, "A label as an example", "label"},
    {"other_names", value_type::text, "Other names, separated by blanks", "other names", may_be_missing},
    {"exchange_name", value_type::text, "Name in decision lists", "exchange", may_be_missing},
    {"class_name", value_type::text, "Name of its class in the library", "class"},
    {"number", value_type::integer, "Number of the label type; as a name it is written #5", "number"},
    {"meaning", value_type::text, "What it labels", "meaning"},
    {"family", value_type::text, "Family: timecode, key-number, feet, ink or film-frames"},
    {"rate_fps", value_type::number, "Frames a second of the material"},
    {"counted_frames_per_second", value_type::integer, "Frames that a second of its labels counts", nullptr,
     may_be_missing},
    {"frames_per_key", value_type::integer, "Frame numbers of a key number, ink number or foot", nullptr,
     may_be_missing},
    {"perfs_per_frame", value_type::integer, "Perforations of a frame", nullptr, may_be_missing},
    {"perfs_per_key", value_type::integer, "Perforations of a key number, ink number or foot", nullptr,
     may_be_missing},
    {"template", value_type::text, "The largest digit of each place; ? is any character"},
};

// Frame 4 of second 3, or frame 7 of key 123.
std::string example(labelnames::named_type const& named) {
  auto const& facts = labelsbase::facts_of(named.type);
  int sample = 1234;
  if (facts.is_timecode()) sample = facts.timecode.count().join({1, 2, 3, 4});
  if (labelcheck::counts_perforations(facts)) sample = facts.film.gauge.join({123, 7, 0});
  label_writer labels{{named.type, named.rate,
                       std::string{"KJ123456"}.substr(0, static_cast<std::size_t>(facts.film.prefix_length))}};
  std::string_view label;
  return labels.write(sample, label) ? "" : std::string{label};
}

std::string in_capitals(std::string text) {
  for (char& c : text) c = labelsbase::to_upper(c);
  return text;
}

// Whether each word is part of what is said of the type.
bool has_words(std::vector<std::string> const& words, std::string const& said) {
  return std::ranges::all_of(words,
                             [&](auto const& word) { return said.find(in_capitals(word)) != std::string::npos; });
}

exit_status types(arguments const& given, console& io) {
  record_writer records{find_format(given.format), fields, io.results};
  bool has_found = false;
  for (auto const& row : labelnames::all_names()) {
    auto const named = row.named();
    auto const& facts = labelsbase::facts_of(named.type);
    auto const name = row.name();
    auto const others =
        std::string_view{row.names}.substr(std::min(name.size() + 1, std::string_view{row.names}.size()));
    auto const label = example(named);
    auto const text_or_missing = [](std::string_view text) { return text.empty() ? missing : value{text}; };
    std::string_view const exchange = facts.exchange.written ? facts.exchange.written : "";

    std::string said = row.names;
    for (std::string_view const part :
         {std::string_view{label}, exchange, std::string_view{facts.name}, std::string_view{row.meaning},
          std::string_view{family_name(facts.family)}})
      said.append(" ").append(part);
    if (!has_words(given.words, in_capitals(said + " #" + std::to_string(facts.type)))) continue;
    has_found = true;

    bool const has_perfs = labelcheck::counts_perforations(facts);
    auto const& gauge = facts.film.gauge;
    auto& converter = *get_static_label_cvt(named.type);
    auto const number = [](bool applies, int count) { return applies ? value{count} : missing; };
    records.write({
        name,
        label,
        text_or_missing(others),
        text_or_missing(exchange),
        facts.name,
        int{facts.type},
        row.meaning,
        family_name(facts.family),
        Kiv::getFramesPerSecond(named.rate),
        number(facts.is_timecode(), converter.get_modulus()),  // a setting may have slowed the count
        number(has_perfs, gauge.frames_per_count()),
        number(has_perfs, gauge.perfs_per_frame()),
        number(has_perfs, gauge.perfs_per_count()),
        converter.get_template(true).text(),
    });
  }
  if (has_found) return all_well;
  io.say("no label type has all of these words");
  return some_refused;
}

}  // namespace

command_run commands::declare_types(CLI::App& command) {
  auto const given = std::make_shared<arguments>();
  add_operands(command, "WORD", "Words to look for in names and meanings; without any, all types are listed",
               given->words);
  add_format(command, given->format, fields);
  add_examples(command, {"types", "types drop", "types 16 key"});
  return [given](console& io) { return types(*given, io); };
}

}  // namespace cli
