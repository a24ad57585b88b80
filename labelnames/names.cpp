#include "labelnames/names.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <iterator>
#include <utility>

#include "host/current_project.h"
#include "labelnames/comparison.h"
#include "labelnames/name_rows.h"
#include "labelsbase/labelcvt/label_facts.h"
#include "labelsbase/labelcvt/rate_facts.h"

namespace labelnames {
namespace {

using labelsbase::all_label_facts;
using labelsbase::label_facts;

constexpr bool is_called(label_facts const& facts, std::string_view text) noexcept {
  auto const is = [text](char const* name) { return name && *name && is_same_name(name, text); };
  return is(facts.name) || is(facts.exchange.written) || is(facts.exchange.read) || is(facts.exchange.read_long);
}

// Types without labels have no names here, though the base of ink numbers writes the name of 35 mm ink.
constexpr label_facts const* type_called(std::string_view text) noexcept {
  auto const* const found = std::ranges::find_if(
      all_label_facts, [text](auto const& facts) { return facts.has_labels() && is_called(facts, text); });
  return found == std::end(all_label_facts) ? nullptr : found;
}

constexpr bool is_called(name_row const& row, std::string_view text) noexcept {
  std::string_view names = row.names;
  for (auto name = take_name(names); !name.empty(); name = take_name(names))
    if (is_same_name(name, text)) return true;
  return false;
}

constexpr name_row const* row_called(std::string_view text) noexcept {
  auto const* const found =
      std::ranges::find_if(rows, [text](name_row const& row) { return is_called(row, text); });
  return found == std::end(rows) ? nullptr : found;
}

// "25p" and "25 fps" are the rate 25.
constexpr name_row const* rate_called(std::string_view text) noexcept {
  plain_name const plain{text};
  auto rate = plain.text();
  for (std::string_view const unit : {"FPS", "P"}) {
    if (!rate.ends_with(unit)) continue;
    rate.remove_suffix(unit.size());
    auto const* const row = row_called(rate);
    bool const is_rate =
        row && labelsbase::facts_of(row->type).is_timecode() && labelsbase::is_digit(rate.front());
    return is_rate ? row : nullptr;
  }
  return nullptr;
}

std::optional<named_type> type_numbered(std::string_view digits) noexcept {
  std::int32_t number = 0;
  auto const* const end = digits.data() + digits.size();
  auto const [stop, error] = std::from_chars(digits.data(), end, number);
  auto const type = static_cast<label_t>(number);
  if (error != std::errc{} || stop != end || !labelsbase::facts_of(type).has_labels()) return std::nullopt;
  return named_type{type, natural_rate(type)};
}

// The compiler names the row at fault as the arguments of these templates.
template <label_t first_at_fault>
struct every_label_type_has_a_name {
  static_assert(first_at_fault == null_label_t, "this label type lacks its row in name_rows.h");
  static constexpr bool holds = true;
};

template <Kiv::FrameRate first_at_fault>
struct every_rate_has_a_name {
  static_assert(first_at_fault == Kiv::FrameRate_unknown, "this rate lacks its row in name_rows.h");
  static constexpr bool holds = true;
};

template <label_t type, bool each_means_it>
struct names_mean_one_type {
  static_assert(each_means_it, "another label type has a name of this type");
  static constexpr bool holds = true;
};

consteval label_t first_without_name() {
  for (auto const& facts : all_label_facts)
    if (facts.has_labels() && std::ranges::count(rows, facts.type, &name_row::type) == 0) return facts.type;
  return null_label_t;
}

consteval Kiv::FrameRate first_rate_without_name() {
  for (auto const& facts : labelsbase::all_rate_facts) {
    auto const is_its_row = [&](name_row const& row) {
      return row.rate == facts.rate && row.type == facts.timecode_type;
    };
    if (std::ranges::none_of(rows, is_its_row)) return facts.rate;
  }
  return Kiv::FrameRate_unknown;
}

consteval bool each_means_its_type(name_row const& row) {
  std::string_view names = row.names;
  for (auto name = take_name(names); !name.empty(); name = take_name(names)) {
    auto const* const type = type_called(name);
    if (row_called(name) != &row || (type && type->type != row.type)) return false;
  }
  return true;
}

// Asks row by row: compilers limit the steps of one question.
template <std::size_t... row>
consteval bool every_name_means_one_type(std::index_sequence<row...>) {
  return (names_mean_one_type<rows[row].type, each_means_its_type(rows[row])>::holds && ...);
}

static_assert(every_label_type_has_a_name<first_without_name()>::holds);
static_assert(every_rate_has_a_name<first_rate_without_name()>::holds);
static_assert(every_name_means_one_type(std::make_index_sequence<std::size(rows)>{}));

}  // namespace

std::string_view name_row::name() const noexcept {
  std::string_view all = names;
  return take_name(all);
}

named_type name_row::named() const {
  bool const drop_frame = drop_by_project && Kiv::CurrentProject::getUseDropFrameTimecode();
  return {drop_frame ? ntsc_drop_label_t : type, rate};
}

std::span<name_row const> all_names() noexcept { return rows; }

std::optional<named_type> find(std::string_view text) {
  if (text.starts_with('#')) return type_numbered(text.substr(1));
  if (auto const* const row = row_called(text)) return row->named();
  if (auto const* const facts = type_called(text)) return named_type{facts->type, natural_rate(facts->type)};
  if (auto const* const row = rate_called(text)) return row->named();
  return std::nullopt;
}

Kiv::FrameRate natural_rate(label_t type) noexcept {
  auto const& facts = labelsbase::facts_of(type);
  if (!facts.has_labels()) return Kiv::FrameRate_unknown;
  if (facts.timecode.at_host_speed) return facts.standard_rate;
  int const counted = facts.is_timecode() ? facts.timecode.frames_per_second : 24;
  for (auto const& row : labelsbase::all_rate_facts)
    if (row.nominal_fps == counted && !row.has_1001_factor) return row.rate;
  return Kiv::FrameRate_unknown;
}

}  // namespace labelnames
