// Timecode: its texts and its packed digits.

#include "labelsbase/labelcvt/drop_frame.h"
#include "labelsbase/labelcvt/timecode.h"
#include "labelsbase/support/broken.h"
#include "labelsbase/support/digits.h"
#include "labelsbase/support/text.h"

using namespace labelsbase;

namespace {

// Whether two digits stand at `text`; `value` receives their number.
inline bool read_pair(char const* text, int& value) noexcept {
  auto const tens = static_cast<unsigned>(text[0]) - '0';
  if (tens > 9) return false;
  auto const units = static_cast<unsigned>(text[1]) - '0';
  if (units > 9) return false;
  value = static_cast<int>(tens * 10 + units);
  return true;
}

// Nearly every text is "dd:dd:dd?dd" or "dd:dd:dd?ddd", after the blank of the sign column or without. Those are
// read in one pass; any other may be a label all the same.
inline bool read_columns(char const* text, timecode_fields& fields) noexcept {
  text += *text == ' ';
  if (!read_pair(text, fields.hours) || text[2] != ':') return false;
  if (!read_pair(text + 3, fields.minutes) || text[5] != ':') return false;
  if (!read_pair(text + 6, fields.seconds) || !text[8] || is_digit(text[8])) return false;
  if (!read_pair(text + 9, fields.frames)) return false;
  if (!is_digit(text[11])) return true;
  fields.frames = fields.frames * 10 + (text[11] - '0');
  return !is_digit(text[12]);
}

// Two decimal digits side by side, the tens unmasked.
constexpr unsigned bcd(int value) noexcept {
  auto const v = static_cast<unsigned>(value);
  return (v / 10) << 4 | v % 10;
}

constexpr unsigned packed(timecode_fields const& fields, bool drop) noexcept {
  unsigned const drop_flag = drop ? 0x40U : 0U;
  return bcd(fields.hours) << 24 | bcd(fields.minutes) << 16 | bcd(fields.seconds) << 8 | bcd(fields.frames) |
         drop_flag;
}

}  // namespace

inline timecode_fields timecode_label::split_in_one_pass(int sample) const noexcept {
  int const label = drop_frame_ ? drop_frame::label_number(sample) : sample;
  int const seconds = per_frames_per_second_.quotient(label);
  int const minutes = seconds / 60;
  int const hours = seconds / 3600;
  return {hours, minutes - hours * 60, seconds - minutes * 60, label - seconds * modulus_};
}

char const* timecode_label::sample_to_string(LabelPoint* point, int sample) {
  if (!point || !is_one_pass(sample)) return write_any(point, sample);

  char* out = point->text;
  if (*point->label_template.text() == '-') *out++ = ' ';

  auto const [hours, minutes, seconds, frames] = split_in_one_pass(sample);
  put_pair(out, hours);
  out[2] = ':';
  put_pair(out + 3, minutes);
  out[5] = ':';
  put_pair(out + 6, seconds);
  out[8] = separator_;
  if (frame_digits_ == 2) {
    put_pair(out + 9, frames);
    out[11] = '\0';
  } else {
    out[9] = static_cast<char>('0' + frames / 100);
    put_pair(out + 10, frames % 100);
    out[12] = '\0';
  }
  return point->text;
}

// The general form.
char const* timecode_label::write_any(LabelPoint* point, int sample) {
  if (is_special_sample(sample)) return get_invalid_string(point, sample);
  if (!point) return "";

  text_writer out{point->text};
  if (*point->label_template.text() == '-') {
    out.put(sample < 0 ? '-' : ' ');
    if (sample < 0) sample = wrap_negate(sample);
  } else if (sample < 0) {
    broken("abs_sample >= 0", labelcvt_module);
  }

  bool second_field = false;
  sample_to_hmsf(sample, second_field);
  char separator = separator_;
  if (isSpecialSlowTC()) separator = second_field ? ':' : '.';
  write_fields(out, separator);
  return point->text;
}

// The general form: fields that are zero may be left out, and a sample more than a day below zero has negative
// ones.
void timecode_label::write_fields(text_writer& out, char separator) const noexcept {
  bool written = false;

  // Once a field is written, all that follow are, with two digits. The first one has one digit below 10 unless the
  // format asks for it.
  auto const field = [&](int value, timecode_format always, char const* after) {
    if (!written && !(format_ & always) && value == 0) return;
    bool const one_digit = !written && !(format_ & always) && value > 0;
    out.number(value, one_digit ? 1 : 2).put(after);
    written = true;
  };
  field(hours_, Format_hours, ":");
  field(minutes_, Format_minutes, ":");
  field(seconds_, Format_seconds, "");

  // Deliberate: a format without fields and separator shows nothing in the first second.
  if (!written && !(format_ & Format_separator)) return;
  out.put(separator).number(frames_, frame_digits_);
}

// The general form: "%d:%d:%d%c%d", or the part of it that the format asks for.
bool timecode_label::read_fields(char const* text, unsigned format) noexcept {
  text_reader in{text};
  auto const field = [&](int& value) {
    auto const number = in.number();
    if (number) value = *number;
    return number.has_value();
  };

  hours_ = minutes_ = 0;
  if (format & Format_hours) {
    if (!field(hours_) || !in.literal(':') || !field(minutes_) || !in.literal(':')) return false;
  } else if (format & Format_minutes) {
    if (!field(minutes_) || !in.literal(':')) return false;
  } else if (!(format & Format_seconds)) {
    return false;
  }
  return field(seconds_) && in.character() && field(frames_);
}

int timecode_label::get_abs_sample(char const* text) {
  timecode_fields fields;
  text = or_empty(text);
  if (converts_in_one_pass() && read_columns(text, fields)) {
    auto const [hours, minutes, seconds, frames] = fields;
    return ((hours * 60 + minutes) * 60 + seconds) * modulus_ + frames;
  }
  return read_any(text);
}

// The general form.
int timecode_label::read_any(char const* text) {
  bool const negative = *text == '-';
  if (!read_fields(text + negative, format_)) return negative ? unreadable_negative_sample : invalid_sample;
  int const sample = hmsf_to_sample();
  return negative ? wrap_negate(sample) : sample;
}

int ntsc_drop_label::get_abs_sample(char const* text) {
  timecode_fields fields;
  text = or_empty(text);
  if (converts_in_one_pass() && read_columns(text, fields)) return drop_frame::sample_of(fields);
  if (*text == '-') return 0;
  return read_fields(text, Format_hours) ? hmsf_to_sample() : invalid_sample;
}

int timecode_label::get_abs_sample_from_packed_string(char const* text) {
  text_reader in{text};
  auto const hours = in.number(2);
  auto const minutes = in.number(2);
  auto const seconds = in.number(2);
  auto const frames = in.number(frame_digits_);
  if (!hours || !minutes || !seconds || !frames) return invalid_sample;

  hours_ = *hours;
  minutes_ = *minutes;
  seconds_ = *seconds;
  frames_ = *frames;
  return hmsf_to_sample();
}

int timecode_label::get_sample_span_from_packed_strings(char const* from, char const* to) {
  int const start = get_abs_sample_from_packed_string(from);
  return normalise_sample_unit(wrap_sub(get_abs_sample_from_packed_string(to), start));
}

char const* timecode_label::get_abs_string(LabelPoint* point, int sample) {
  return sample_to_string(point, sample);
}

// Deliberate: frames are packed as counted, so from 40 up their tens reach the drop-frame bit and beyond.
unsigned timecode_label::sample_to_smpte_string(LabelPoint*, int sample) {
  if (is_one_pass(sample)) return packed(split_in_one_pass(sample), drop_frame_);
  if (sample < 0 || is_special_sample(sample)) return 0;
  bool second_field = false;
  sample_to_hmsf(sample, second_field);
  return packed({hours_, minutes_, seconds_, frames_}, type() == ntsc_drop_label_t);
}

unsigned timecode_label::get_abs_smpte_string(LabelPoint* point, int sample) {
  return sample_to_smpte_string(point, sample);
}
