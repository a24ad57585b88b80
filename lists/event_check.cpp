#include "lists/event_check.h"

#include <charconv>
#include <cmath>
#include <cstdlib>

#include "labelsbase/labelcvt/label_facts.h"
#include "lists/list_label.h"

namespace lists {
namespace {

std::string frames_in_words(std::int64_t frames) {
  return std::to_string(frames) + (frames == 1 ? " frame" : " frames");
}

// Returns the number that a speed effect says. It has a sign, digits and a point at most.
double speed_of(std::string_view text) noexcept {
  if (text.starts_with('+')) text.remove_prefix(1);
  double speed = 0;
  std::from_chars(text.data(), text.data() + text.size(), speed);
  return speed;
}

class event_checker {
 public:
  event_checker(list_event const& event, named_type const& source_rate, named_type const& record_rate,
                std::function<void(finding const&)> const& found)
      : event_{event}, source_rate_{source_rate}, record_rate_{record_rate}, found_{found} {}

  measured_event run() {
    measured_event measured;
    bool const may_reverse = event_.speed && speed_of(event_.speed->text) < 0;
    measured.source = span("source", event_.source, source_rate_.type, may_reverse);
    measured.record = span("record", event_.record, record_rate_.type, false);
    measured.mark = span("mark", event_.mark, source_rate_.type, false);
    for (auto const& other : event_.others) read(other, source_rate_.type);
    if (measured.source && measured.record) compare(*measured.source, *measured.record);
    if (measured.record) check_transition(*measured.record);
    if (measured.record) measured.record_in = read_quietly(event_.record.in);
    return measured;
  }

 private:
  void report(finding_kind kind, placed_text const& where, std::string text, std::size_t further = 0) const {
    found_({kind, where.line, where.column + further, std::move(text), event_.name.text});
  }

  std::optional<std::int64_t> read_quietly(placed_text const& label) const {
    auto const result = read_list_label(record_rate_.type, label.text);
    return result.index() == 0 ? std::optional<std::int64_t>{std::get<int>(result)} : std::nullopt;
  }

  std::optional<std::int64_t> read(placed_text const& label, label_t type) const {
    auto const result = read_list_label(type, label.text);
    if (auto const* const frame = std::get_if<int>(&result)) return *frame;
    auto const& refused = std::get<labelcheck::refusal>(result);
    auto text = '"' + label.text + "\": " + explain(refused);
    if (!refused.nearest.empty()) text += "; nearest is " + refused.nearest;
    report(finding_kind::label, label, std::move(text), refused.position);
    return std::nullopt;
  }

  // Returns the length of a span. Reports labels that do not exist, an end before the beginning, and another
  // length than the list states.
  std::optional<std::int64_t> span(std::string name, span_of_labels const& labels, label_t type,
                                   bool may_reverse) const {
    std::optional<std::int64_t> in, out, stated;
    if (!labels.in.empty()) in = read(labels.in, type);
    if (!labels.out.empty()) out = read(labels.out, type);
    if (!labels.length.empty()) stated = read(labels.length, type);
    if (!in || !out) return stated;

    auto length = *length_of(type, labels);
    if (length < 0 && may_reverse) length = -length;
    if (length < 0) {
      report(finding_kind::backwards, labels.out,
             name + " ends at " + labels.out.text + ", before it begins at " + labels.in.text);
      return std::nullopt;
    }
    if (stated && *stated != length)
      report(finding_kind::length, labels.length,
             "the list says " + frames_in_words(*stated) + ", but from " + labels.in.text + " to " +
                 labels.out.text + " are " + std::to_string(length));
    return length;
  }

  // Systems write the source of a speed effect as long as it plays or as long as it is recorded. A frame of
  // rounding is right either way.
  void compare(std::int64_t source, std::int64_t record) const {
    if (std::abs(source - record) <= (event_.speed ? 1 : 0)) return;
    auto text = "source has " + frames_in_words(source) + ", record " + std::to_string(record);
    if (event_.speed) {
      auto const rate = labelsbase::facts_of(record_rate_.type).timecode.frames_per_second;
      auto const expected = static_cast<double>(record) * std::abs(speed_of(event_.speed->text)) / rate;
      if (std::abs(static_cast<double>(source) - expected) <= 1) return;
      text += "; at the speed " + event_.speed->text + " source has " +
              frames_in_words(static_cast<std::int64_t>(std::llround(std::min(expected, 1e15))));
    }
    report(finding_kind::length, event_.source.in, std::move(text));
  }

  void check_transition(std::int64_t record) const {
    auto const& digits = event_.transition_frames;
    if (digits.empty()) return;
    std::int64_t frames = 0;
    std::from_chars(digits.text.data(), digits.text.data() + digits.text.size(), frames);
    if (frames > record)
      report(finding_kind::length, digits,
             "the transition takes " + frames_in_words(frames) + ", but the event has " + std::to_string(record));
  }

  list_event const& event_;
  named_type source_rate_, record_rate_;
  std::function<void(finding const&)> const& found_;
};

}  // namespace

measured_event check_event(list_event const& event, named_type const& source_rate, named_type const& record_rate,
                           std::function<void(finding const&)> const& found) {
  return event_checker{event, source_rate, record_rate, found}.run();
}

}  // namespace lists
