#include "lists/check.h"

#include <iterator>
#include <utility>
#include <variant>

#include "labelsbase/labelcvt/label_facts.h"
#include "lists/event_check.h"
#include "lists/event_reader.h"
#include "lists/list_label.h"
#include "lists/record_order.h"
#include "lists/words.h"

namespace lists {
namespace {

constexpr std::size_t held_events = 1'000;

bool is_drop_frame(label_t type) noexcept { return labelsbase::facts_of(type).timecode.drop_frame; }

// Returns the rate in the code mode, if it has both modes: 30 frames a second.
named_type in_mode(named_type const& rate, bool drop_frame) noexcept {
  bool const has_modes = rate.type == ntsc_label_t || rate.type == ntsc_drop_label_t;
  if (!has_modes || is_drop_frame(rate.type) == drop_frame) return rate;
  if (drop_frame) return {ntsc_drop_label_t, Kiv::FrameRate_29_97};
  return {ntsc_label_t, rate.rate};
}

// Takes what a list says, finds its rate, and checks its events at it.
class list_checker final : public list_sink {
 public:
  list_checker(check_options const& options, check_handlers const& handlers, check_result& result)
      : handlers_{handlers}, result_{result} {
    if (options.rate) set_rate(*options.rate, rate_origin::given);
  }

  void take(list_event&& event) override {
    ++result_.events;
    if (result_.rate) return check(event);
    if (is_undecided()) held_.emplace_back(std::move(event));
    if (held_.size() == held_events) decide();
  }

  void take_broken(placed_text const& where, char const* why) override {
    report(finding_kind::form, where, '"' + where.text + "\": " + why);
  }

  // The first code mode, above all events, holds for source and record. A later one holds for the sources.
  void take_mode(placed_mode const& mode) override {
    bool const is_first = !mode_ && result_.events == 0;
    if (is_first) mode_ = mode.drop_frame;
    if (is_first && !result_.rate && mode.drop_frame) set_rate(*labelnames::find("29.97df"), rate_origin::stated);
    if (result_.rate)
      apply(mode, is_first);
    else if (!is_first && is_undecided())
      held_.emplace_back(mode);
  }

  void take_rate(placed_text const& where) override {
    auto const stated = labelnames::find(where.text);
    if (!stated || !labelsbase::facts_of(stated->type).is_timecode()) {
      report(finding_kind::rate, where,
             '"' + where.text + "\": unknown rate; expected frames a second, such as 25 or 29.97");
      return;
    }
    if (!result_.rate) {
      bool const is_number = where.text.find_first_not_of("0123456789.") == std::string::npos;
      mode_is_open_ = is_number && in_mode(*stated, true).type == ntsc_drop_label_t;
      set_rate(mode_is_open_ ? in_mode(*stated, false) : *stated, rate_origin::stated);
    } else if (labelsbase::facts_of(stated->type).timecode.frames_per_second !=
               labelsbase::facts_of(result_.rate->type).timecode.frames_per_second) {
      report(finding_kind::rate, where,
             "the list says " + where.text + " frames a second, but its rate is given as " +
                 rate_name(*result_.rate));
    }
  }

  void finish() {
    if (is_undecided()) decide();
    order_.for_each_gap([&](record_order::gap const& gap) {
      report({finding_kind::gap,
              gap.line,
              gap.column,
              frames(gap.frames) + on_track(gap.track) + " empty after line " + std::to_string(gap.after_line),
              {}});
    });
  }

 private:
  static std::string frames(std::int64_t count) {
    return std::to_string(count) + (count == 1 ? " frame" : " frames");
  }

  static std::string on_track(std::string_view track) {
    return track.empty() ? std::string{} : std::string{" of "}.append(track);
  }

  void report(finding_kind kind, placed_text const& where, std::string text, std::string const& event = {}) {
    report({kind, where.line, where.column, std::move(text), event});
  }

  void report(finding const& what) {
    ++result_.findings;
    handlers_.found(what);
  }

  void set_rate(named_type const& rate, rate_origin origin) {
    result_.rate = rate;
    result_.origin = origin;
    source_rate_ = rate;
  }

  // Whether the rate may still be deduced.
  [[nodiscard]] bool is_undecided() const noexcept { return !result_.rate && !has_decided_; }

  void decide() {
    has_decided_ = true;
    std::vector<list_event const*> events;
    for (auto const& each : held_)
      if (auto const* const event = std::get_if<list_event>(&each)) events.push_back(event);
    auto const rates = rates_that_fit(events, mode_);
    if (rates.size() == 1)
      set_rate(rates.front(), rate_origin::deduced);
    else
      result_.possible = rates;

    for (auto const& each : std::exchange(held_, {})) {
      if (!result_.rate) break;
      if (auto const* const event = std::get_if<list_event>(&each))
        check(*event);
      else
        apply(std::get<placed_mode>(each), false);
    }
  }

  void apply(placed_mode const& mode, bool is_first) {
    if (is_first && is_drop_frame(result_.rate->type) != mode.drop_frame)
      report(finding_kind::rate, mode.words,
             "the list says " + mode.words.text + ", but its rate is given as " + rate_name(*result_.rate));
    if (is_first) return;
    source_rate_ = in_mode(*result_.rate, mode.drop_frame);
    if (is_drop_frame(source_rate_.type) != mode.drop_frame)
      report(finding_kind::rate, mode.words,
             "the list says " + mode.words.text + ", but its rate is " + rate_name(*result_.rate));
  }

  void check(list_event const& event) {
    check_marks(event);
    auto const lengths =
        check_event(event, source_rate_, *result_.rate, [this](auto const& what) { report(what); });
    if (lengths.record && lengths.record_in) check_order(event, *lengths.record_in, *lengths.record);

    for (auto const& length : {lengths.record, lengths.source, lengths.mark}) {
      if (!length) continue;
      for (auto const track : track_names{event.tracks}) result_.frames_by_track[std::string{track}] += *length;
      if (handlers_.measured) handlers_.measured({event, *length, *result_.rate});
      break;
    }
  }

  // Reports the first label whose separator says drop-frame in a list that is not.
  void check_marks(list_event const& event) {
    for (auto const* label : {&event.source.in, &event.source.out, &event.record.in, &event.record.out}) {
      if (!marks_drop_frame(label->text)) continue;
      if (std::exchange(mode_is_open_, false)) set_rate(in_mode(*result_.rate, true), rate_origin::stated);
      bool const is_source = label == &event.source.in || label == &event.source.out;
      auto const& rate = is_source ? source_rate_ : *result_.rate;
      if (is_drop_frame(rate.type) || std::exchange(has_reported_marks_, true)) continue;
      report(finding_kind::rate, *label,
             '"' + label->text + "\": \";\" marks drop-frame, but the rate is " + rate_name(rate) +
                 "; further labels like it are not reported",
             event.name.text);
    }
  }

  void check_order(list_event const& event, std::int64_t in, std::int64_t length) {
    // Past midnight, a list goes on behind the events before it.
    auto const day = frames_per_day(result_.rate->type);
    if (in + day / 2 < last_in_) in += day;
    last_in_ = in;

    auto const& label = event.record.in;
    record_order::overlap widest{};
    std::string_view on;
    for (auto const track : track_names{event.tracks}) {
      auto const over = order_.add(track, {in, in + length, label.line, label.column});
      if (over.frames > widest.frames) {
        widest = over;
        on = track;
      }
    }
    if (widest.frames == 0) return;
    auto const others = widest.first_line == widest.last_line ? "line " + std::to_string(widest.first_line)
                                                              : "lines " + std::to_string(widest.first_line) +
                                                                    " to " + std::to_string(widest.last_line);
    report(finding_kind::overlap, label, frames(widest.frames) + on_track(on) + " already recorded in " + others,
           event.name.text);
  }

  check_handlers const& handlers_;
  check_result& result_;
  named_type source_rate_{null_label_t, Kiv::FrameRate_unknown};
  std::optional<bool> mode_;   // of the list as a whole
  bool mode_is_open_ = false;  // the rate line has left open whether labels are drop-frame
  bool has_decided_ = false;
  bool has_reported_marks_ = false;
  std::vector<std::variant<list_event, placed_mode>> held_;
  record_order order_;
  std::int64_t last_in_ = 0;  // of the record, in frames
};

}  // namespace

char const* kind_name(finding_kind kind) noexcept {
  constexpr char const* names[] = {"form", "rate", "label", "length", "backwards", "overlap", "gap"};
  static_assert(std::size(names) == finding_kinds);
  return names[static_cast<int>(kind)];
}

check_result check_list(line_reader& lines, check_options const& options, check_handlers const& handlers) {
  check_result result;
  result.format = recognise(lines.beginning());
  list_checker checker{options, handlers, result};
  auto const events = make_event_reader(result.format, checker);
  if (!events) return result;
  while (auto const next = lines.next()) events->read(*next);
  events->finish();
  checker.finish();
  return result;
}

}  // namespace lists
