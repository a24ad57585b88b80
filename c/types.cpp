// The library, its types, names and rates.

#include <array>
#include <cstdint>
#include <string>

#include "c/arguments.h"
#include "labelcheck/range.h"
#include "labelconvert/tracks.h"
#include "labelnames/names.h"
#include "labelsbase/version.h"
#include "refhost/refhost.h"

namespace labels_c {
namespace {

constexpr std::array<char const*, LABELS_FAILED + 1> status_texts{
    "no error",
    "the text is not a label, or there is no label to answer with",
    "no such name, type, rate or setting",
    "a needed pointer is NULL, or an argument has none of its values",
    "the buffer is too small",
    "no memory is left",
    "an error within the library",
};

char const* or_empty(char const* text) noexcept { return text ? text : ""; }

labels_track track_of(labelnames::named_type const& named) noexcept { return {named.type, named.rate}; }

labels_type facts_in_c(labelsbase::label_facts const& facts) {
  auto const range = facts.has_labels() ? labelcheck::range_of(facts.type) : labelcheck::sample_range{};
  bool const has_counts = labelcheck::counts_perforations(facts) && facts.is_film();
  return {
      .name = facts.name,
      .exchange_name = or_empty(facts.exchange.written),
      .first_sample = range.first,
      .last_sample = range.last,
      .family = facts.family,
      .has_labels = facts.has_labels(),
      .natural_rate = labelnames::natural_rate(facts.type),
      .frames_per_second = facts.timecode.frames_per_second,
      .drop_frame = facts.timecode.drop_frame,
      .samples_per_frame = facts.samples_per_frame(),
      .samples_per_count = has_counts ? facts.film.gauge.perfs_per_count() : 0,
      .prefix_length = facts.film.prefix_length,
      .count_digits = facts.film.count_digits,
      .separator = facts.is_timecode() ? facts.timecode.separator
                   : has_counts        ? facts.film.separator
                                       : 0,
      .feet_type = facts.siblings.feet,
      .ink_type = facts.siblings.ink,
      .key_type = facts.siblings.key,
  };
}

}  // namespace
}  // namespace labels_c

using namespace labels_c;

char const* labels_version() { return labelsBaseDllVersionStr(); }

char const* labels_status_text(labels_status status) {
  bool const is_known = status >= 0 && status <= LABELS_FAILED;
  return is_known ? status_texts[static_cast<std::size_t>(status)] : "unknown status";
}

labels_status labels_set_option(char const* key, size_t key_length, char const* value, size_t value_length,
                                labels_fault* fault_out, size_t fault_size) {
  fault_argument const fault{fault_out, fault_size};
  return answer(fault, [&] {
    text_argument const name{key, key_length};
    text_argument const text{value, value_length};
    if (!name.is_text() || !text.is_text()) return fault.is(LABELS_WRONG_CALL);
    if (auto const wrong = refhost::set_option(name.view(), text.view())) return fault.is(LABELS_UNKNOWN, *wrong);
    return fault.none();
  });
}

labels_status labels_find(char const* name, size_t length, labels_track* track, size_t track_size,
                          labels_fault* fault_out, size_t fault_size) {
  fault_argument const fault{fault_out, fault_size};
  return answer(fault, [&] {
    text_argument const text{name, length};
    if (!text.is_text() || !track) return fault.is(LABELS_WRONG_CALL);
    if (auto const named = labelnames::find(text.view())) {
      give(track_of(*named), track, track_size);
      return fault.none();
    }
    auto const near = labelnames::nearest(text.view());
    constexpr std::size_t shown = 60;
    auto message = "no label type is named \"" + std::string{text.view().substr(0, shown)};
    message += text.view().size() > shown ? "...\"" : "\"";
    return fault.is(LABELS_UNKNOWN, message, near.empty() ? "" : near.front());
  });
}

size_t labels_name_count() { return labelnames::all_names().size(); }

labels_status labels_name_at(size_t index, labels_name* name, size_t name_size) {
  return answer([&]() -> labels_status {
    if (!name) return LABELS_WRONG_CALL;
    if (index >= labels_name_count()) return LABELS_UNKNOWN;
    auto const& row = labelnames::all_names()[index];
    give(labels_name{row.names, row.meaning, track_of(row.named())}, name, name_size);
    return LABELS_OK;
  });
}

int32_t labels_type_count() { return numLabelCvts; }

labels_status labels_type_facts(int32_t type, labels_type* facts, size_t facts_size) {
  return answer([&]() -> labels_status {
    if (!facts) return LABELS_WRONG_CALL;
    auto const asked = static_cast<label_t>(type);
    if (!labelsbase::is_label_type(asked)) return LABELS_UNKNOWN;
    give(facts_in_c(labelsbase::facts_of(asked)), facts, facts_size);
    return LABELS_OK;
  });
}

int32_t labels_project_type() { return getDefaultLabelTypeForProject(); }

labels_status labels_rate_facts(int32_t rate, labels_rate* facts, size_t facts_size) {
  if (!facts) return LABELS_WRONG_CALL;
  auto const asked = static_cast<Kiv::FrameRate>(rate);
  if (labelsbase::facts_of(asked).rate == Kiv::FrameRate_unknown) return LABELS_UNKNOWN;
  auto const exact = labelconvert::frames_per_second(asked);
  give(labels_rate{static_cast<int32_t>(exact.numerator), static_cast<int32_t>(exact.denominator)}, facts,
       facts_size);
  return LABELS_OK;
}
