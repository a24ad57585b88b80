// Decision lists: labels in their columns, and what belongs to the rate of the list.

#include <algorithm>
#include <charconv>

#include "cli/list_rewriter.h"
#include "labelsbase/labelcvt/label_facts.h"
#include "lists/words.h"

namespace cli {
namespace {

labelsbase::timecode_facts const& timecode_of(label_kind const& kind) {
  return labelsbase::facts_of(kind.type).timecode;
}

// Returns the number in decimal digits, with zeros before it up to `digits`.
std::string with_digits(std::int64_t number, std::size_t digits) {
  auto text = std::to_string(number);
  return std::string(digits - std::min(digits, text.size()), '0') + text;
}

}  // namespace

void list_rewriter::take_statement(lists::line const& in) {
  std::visit([this](auto const& says) { take(says); }, lists::read_statement(in.text));
}

void list_rewriter::take(lists::event const& says) {
  has_events_ = true;
  if (!says.transition_frames.empty()) rewrite_transition(says.transition_frames);
  for (auto const label : says.labels()) {
    bool const is_source = label.data() <= says.source_out.data();
    auto const& contradicted = is_source ? of_source_ : of_record_;
    if (contradicted) {
      ++counts_.found;
      refuse(label, "line " + std::to_string(contradicted->line) + " says " + contradicted->words +
                        ", and --from does not");
    } else if (finder_.next(label, 0)) {
      take_text(label, width::fixed);
    } else if (timecode_of(labels_.from()).frames_per_second > 0) {
      ++counts_.found;
      refuse(label, "stands in the place of a label, but has not the form of --from");
    }
  }
}

// A delay between picture and sound is a length.
void list_rewriter::take(lists::remark) {
  auto rest = in_->text;
  bool const is_delay = lists::same_letters(lists::take_first_word(rest), "SPLIT:");
  take_text(in_->text, width::free, is_delay);
}

// The first frame code mode holds for the whole list, later ones for the sources.
void list_rewriter::take(lists::code_mode const& says) {
  bool const contradicts = timecode_of(labels_.from()).frames_per_second > 0 &&
                           says.drop_frame != timecode_of(labels_.from()).drop_frame;
  auto const found =
      contradicts ? std::optional{contradiction{in_->number, std::string{says.words}}} : std::nullopt;
  of_source_ = found;
  if (!has_events_) of_record_ = found;
  if (contradicts || !changes_rates_) return;
  bool const drops = timecode_of(labels_.to()).drop_frame;
  if (drops == says.drop_frame) return;
  replace(says.words, drops ? "DROP FRAME" : "NON-DROP FRAME");
  ++counts_.others;
}

void list_rewriter::take(lists::speed_effect const& says) {
  if (!of_source_) rewrite_speed(says.frames_per_second);
  if (!says.entry.empty() && !of_source_) take_text(says.entry, width::fixed);
}

// A speed of 12.5 of 25 frames is 15 of 30. Keeps the sign and the digits behind the point.
void list_rewriter::rewrite_speed(std::string_view value) {
  auto const from = timecode_of(labels_.from()).frames_per_second;
  auto const to = timecode_of(labels_.to()).frames_per_second;
  if (!changes_rates_ || from == to) return;
  bool const has_sign = value.starts_with('-') || value.starts_with('+');
  auto const digits = value.substr(has_sign ? 1 : 0);
  auto const point = std::min(digits.find('.'), digits.size());
  std::string all{digits.substr(0, point)};
  auto const places = digits.substr(std::min(point + 1, digits.size()));
  all += places;
  std::int64_t speed = 0;
  auto const [stop, error] = std::from_chars(all.data(), all.data() + all.size(), speed);
  if (error != std::errc{} || stop != all.data() + all.size() || speed > 1'000'000'000)
    return refuse(value, "expected frames a second, such as 025.0");

  std::string scaled = with_digits((speed * to + from / 2) / from, all.size());
  if (point < digits.size()) scaled.insert(scaled.size() - places.size(), ".");
  if (has_sign) scaled.insert(0, value.substr(0, 1));
  if (scaled == value) return;
  if (!replace_in_width(value, scaled)) return refuse(value, "no room for the speed " + scaled);
  ++counts_.others;
}

void list_rewriter::rewrite_transition(std::string_view frames) {
  if (!changes_rates_) return;
  int length = 0;
  std::from_chars(frames.data(), frames.data() + frames.size(), length);
  auto const scaled = labels_.length(length);
  if (!scaled || *scaled == length) return;
  auto const text = with_digits(*scaled, frames.size());
  if (!replace_in_width(frames, text)) return refuse(frames, "no room for a transition of " + text + " frames");
  ++counts_.others;
}

}  // namespace cli
