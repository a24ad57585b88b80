// Labels, one at a time and in arrays.

#include <cstring>
#include <string>
#include <variant>

#include "c/arguments.h"
#include "labelcheck/range.h"
#include "labelcheck/sums.h"
#include "labelcheck/write.h"
#include "labelsbase/samples.h"

namespace labels_c {
namespace {

using labelcheck::reason;

static_assert(LABELS_INVALID_SAMPLE == labelsbase::invalid_sample);
static_assert(LABELS_REASON_DIGIT_COUNT == static_cast<int>(reason::digit_count) &&
                  LABELS_REASON_DROP_FRAME_SEPARATOR == static_cast<int>(reason::drop_frame_separator) &&
                  LABELS_REASON_LEFT_OUT == static_cast<int>(reason::left_out) &&
                  LABELS_REASON_LENGTH == static_cast<int>(reason::length),
              "the reasons of c.h are those of the strict reader, in its order");

bool is_style(int32_t style) noexcept { return style == LABELS_STYLE_OWN || style == LABELS_STYLE_EXCHANGE; }

// Returns why labels of a type cannot have the prefix, or an empty text.
std::string wrong_prefix(label_t type, std::string_view prefix) {
  auto const length = static_cast<std::size_t>(labelsbase::facts_of(type).film.prefix_length);
  if (prefix.empty() || length == 0) return {};
  if (prefix.size() != length)
    return "the prefix has " + std::to_string(length) + " characters; this one has " +
           std::to_string(prefix.size());
  bool const is_printable = std::ranges::all_of(prefix, [](char c) { return c > ' ' && c <= '~'; });
  return is_printable ? "" : "the prefix must be printable characters";
}

// Returns a writer for labels of a prefix, or of unknown film if it is empty. The prefix is always said, since a
// shared converter would remember one.
labelcheck::writer writer_of(label_t type, std::string_view prefix, int32_t style) {
  auto const& film = labelsbase::facts_of(type).film;
  std::string_view const unknown{film.dummy_prefix, static_cast<std::size_t>(film.prefix_length)};
  auto const how =
      style == LABELS_STYLE_EXCHANGE ? labelcheck::label_style::exchange : labelcheck::label_style::own;
  return labelcheck::writer{type, prefix.empty() ? unknown : prefix, how};
}

}  // namespace
}  // namespace labels_c

using namespace labels_c;

labels_status labels_read(int32_t type, char const* text, size_t length, labels_label* label, size_t label_size,
                          labels_fault* fault_out, size_t fault_size) {
  fault_argument const fault{fault_out, fault_size};
  return answer(fault, [&] {
    text_argument const given{text, length};
    if (!given.is_text() || !label) return fault.is(LABELS_WRONG_CALL);
    auto const read = labelcheck::read(static_cast<label_t>(type), given.view());
    if (auto const* const refused = std::get_if<labelcheck::refusal>(&read)) return fault.is(*refused);
    auto const& reading = std::get<labelcheck::reading>(read);
    labels_label found{};
    found.sample = reading.sample;
    put(found.prefix, reading.prefix);
    give(found, label, label_size);
    return fault.none();
  });
}

labels_status labels_write(int32_t type, int32_t sample, char const* prefix, size_t prefix_length, int32_t style,
                           char* text, size_t size, labels_fault* fault_out, size_t fault_size) {
  fault_argument const fault{fault_out, fault_size};
  return answer(fault, [&] {
    text_argument const head{prefix, prefix ? prefix_length : 0};
    if (!head.is_text() || !text || !is_style(style)) return fault.is(LABELS_WRONG_CALL);
    if (!has_labels(type)) return no_labels(type, fault);
    auto const kind = static_cast<label_t>(type);
    if (auto const wrong = wrong_prefix(kind, head.view()); !wrong.empty()) return fault.is(LABELS_REFUSED, wrong);

    auto writer = writer_of(kind, head.view(), style);
    auto const label = writer.write(sample);
    if (label.empty()) return fault.is(LABELS_REFUSED, labelcheck::explain_missing(kind, sample));
    if (label.size() >= size)
      return fault.is(LABELS_NO_ROOM, "the label needs " + std::to_string(label.size() + 1) + " bytes");
    text[label.copy(text, label.size())] = '\0';
    return fault.none();
  });
}

labels_status labels_read_array(int32_t type, char const* texts, size_t width, size_t count, int32_t* samples,
                                size_t* refused) {
  return answer([&]() -> labels_status {
    if (count > 0 && (!samples || (!texts && width > 0))) return LABELS_WRONG_CALL;
    if (!has_labels(type)) return LABELS_UNKNOWN;
    std::size_t wrong = 0;
    for (std::size_t i = 0; i < count; ++i) {
      std::string_view const cell{texts ? texts + i * width : "", width};
      auto const read = labelcheck::read(static_cast<label_t>(type), cell.substr(0, cell.find('\0')));
      auto const* const reading = std::get_if<labelcheck::reading>(&read);
      samples[i] = reading ? reading->sample : LABELS_INVALID_SAMPLE;
      wrong += !reading;
    }
    return count_refused(wrong, refused);
  });
}

labels_status labels_write_array(int32_t type, int32_t const* samples, size_t count, char const* prefix,
                                 size_t prefix_length, int32_t style, char* texts, size_t width, size_t* refused) {
  return answer([&]() -> labels_status {
    text_argument const head{prefix, prefix ? prefix_length : 0};
    if (!head.is_text() || !is_style(style) || (count > 0 && (!samples || (!texts && width > 0))))
      return LABELS_WRONG_CALL;
    if (!has_labels(type)) return LABELS_UNKNOWN;
    auto const kind = static_cast<label_t>(type);
    if (!wrong_prefix(kind, head.view()).empty()) return LABELS_REFUSED;

    auto writer = writer_of(kind, head.view(), style);
    std::size_t without_label = 0;
    for (std::size_t i = 0; i < count; ++i) {
      auto const label = writer.write(samples[i]);
      if (label.size() > width) {
        (void)count_refused(without_label, refused);
        return LABELS_NO_ROOM;
      }
      if (width > 0) std::memset(texts + i * width, 0, width);
      label.copy(texts + i * width, label.size());
      without_label += label.empty();
    }
    return count_refused(without_label, refused);
  });
}

labels_status labels_add(int32_t type, int32_t sample, int64_t samples, int32_t* sum, labels_fault* fault_out,
                         size_t fault_size) {
  fault_argument const fault{fault_out, fault_size};
  return answer(fault, [&] {
    if (!sum) return fault.is(LABELS_WRONG_CALL);
    if (!has_labels(type)) return no_labels(type, fault);
    auto const kind = static_cast<label_t>(type);
    if (!labelcheck::range_of(kind).has_label(sample))
      return fault.is(LABELS_REFUSED, labelcheck::explain_missing(kind, sample));
    LabelPoint start{kind, 0};
    start.sample = sample;
    auto const added = labelcheck::add_samples(start, samples);
    if (added.problem) return fault.is(LABELS_REFUSED, std::string{"the sum "} + added.problem);
    *sum = added.sample;
    return fault.none();
  });
}
