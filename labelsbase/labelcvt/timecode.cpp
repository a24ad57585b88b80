#include "labelsbase/labelcvt/timecode.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

#include "host/config.h"
#include "labelsbase/samples.h"
#include "labelsbase/support/broken.h"
#include "labelsbase/support/digits.h"
#include "labelsbase/support/text.h"

using namespace labelsbase;

namespace {

constexpr timecode_count ntsc_drop = facts_of(ntsc_drop_label_t).timecode.count();

// Types without timecode count as this one does.
constexpr timecode_facts const& timecode_of(label_t type) noexcept {
  return facts_of(facts_of(type).is_timecode() ? type : pal_label_t).timecode;
}

// Returns the largest frames of a template, which bounds single digits: 29 for 24 frames a second, 199 for 120.
constexpr int typed_frames(int frames_per_second) noexcept {
  int nines = 9;
  while (nines < (frames_per_second - 1) / 10) nines = nines * 10 + 9;
  return (frames_per_second - 1) / (nines + 1) * (nines + 1) + nines;
}

static_assert(typed_frames(24) == 29 && typed_frames(60) == 59 && typed_frames(100) == 99 &&
              typed_frames(120) == 199);

// Reads a label in full columns, as nearly every text has them. Returns false for any other, which may be a label
// all the same.
//
//   " "? dd ":" dd ":" dd non-digit dd d?
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

// Writes "hh:mm:ss". Each field has two digits.
inline void put_time(char* out, timecode_fields const& fields) noexcept {
  put_pair(out, fields.hours);
  out[2] = ':';
  put_pair(out + 3, fields.minutes);
  out[5] = ':';
  put_pair(out + 6, fields.seconds);
}

// Writes frames of two or three digits, and the terminator.
inline void put_frames(char* out, int frames, int digits) noexcept {
  if (digits == 2) {
    put_pair(out, frames);
    out[2] = '\0';
  } else {
    *out = static_cast<char>('0' + frames / 100);
    put_pair(out + 1, frames % 100);
    out[3] = '\0';
  }
}

// Writes the fields that `format` asks for. Fields that it does not ask for are left out while they are zero, from
// the left. A sample more than a day below zero has negative fields.
void put_fields(text_writer& out, timecode_fields const& fields, unsigned format, char separator,
                int frame_digits) noexcept {
  bool written = false;

  // Once a field is written, all that follow are, with two digits. The first one has one digit below 10 unless the
  // format asks for it.
  auto const field = [&](int value, timecode_format always, char const* after) {
    if (!written && !(format & always) && value == 0) return;
    bool const one_digit = !written && !(format & always) && value > 0;
    out.number(value, one_digit ? 1 : 2).put(after);
    written = true;
  };
  field(fields.hours, Format_hours, ":");
  field(fields.minutes, Format_minutes, ":");
  field(fields.seconds, Format_seconds, "");

  // Deliberate: a format without fields and separator shows nothing in the first second.
  if (!written && !(format & Format_separator)) return;
  out.put(separator).number(fields.frames, frame_digits);
}

bool has_sign_column(LabelPoint const& point) noexcept { return *point.label_template.text() == '-'; }

// Returns two decimal digits side by side, the tens unmasked.
constexpr unsigned bcd(int value) noexcept {
  auto const v = static_cast<unsigned>(value);
  return (v / 10) << 4 | v % 10;
}

// The same for every field of a sample within the day: looked up, for the benchmark's row sample_to_bcd.
constexpr auto bcd_of_fields = [] {
  constexpr std::size_t values = [] {
    int most = 60;
    for (auto const& facts : all_label_facts) most = std::max(most, facts.timecode.frames_per_second);
    return static_cast<std::size_t>(most);
  }();
  std::array<std::uint16_t, values> digits{};
  for (std::size_t i = 0; i < values; ++i) digits[i] = static_cast<std::uint16_t>(bcd(static_cast<int>(i)));
  return digits;
}();

// Packs fields whose digits `digits_of` returns.
constexpr unsigned packed(timecode_fields const& fields, bool drop, auto digits_of) noexcept {
  unsigned const drop_flag = drop ? 0x40U : 0U;
  return digits_of(fields.hours) << 24 | digits_of(fields.minutes) << 16 | digits_of(fields.seconds) << 8 |
         digits_of(fields.frames) | drop_flag;
}

// Prints the assertion message for a sample that should not be negative. The types with three digits of frames
// report from lines of their own: hosts tell them apart in their logs.
void report_negative(label_t type) noexcept {
  int line = __LINE__;
  if (type == tc_120_label_t) line = __LINE__;
  if (type == tc_240_label_t) line = __LINE__;
  broken("abs_sample >= 0", labelcvt_module, line);
}

}  // namespace

timecode_label::timecode_label(int frames_per_second, int format)
    : variable_label{frames_per_second, 1}, format_{static_cast<unsigned>(format)} {
  timecode_ = this;
  init();
  timecode_label::build_template();
}

timecode_label::timecode_label(label_t rate_type, int format)
    : variable_label{timecode_of(rate_type).frames_per_second, 1}, format_{static_cast<unsigned>(format)} {
  auto const& facts = timecode_of(rate_type);
  timecode_ = this;
  init();
  if (facts.setting) use_setting(facts);
  if (facts.drop_frame) {
    count_ = facts.count();
    samples_per_day_ = count_.labels_per_day();
  }
  separator_ = facts.separator;
  frame_digits_ = facts.frame_digits();
  typed_frames_ = typed_frames(facts.frames_per_second);
  timecode_label::build_template();
}

void timecode_label::init() {
  modulus_ = std::max(modulus_, 1);
  separator_ = '.';
  count_ = timecode_count{modulus_, count_.is_drop_frame()};
  samples_per_day_ = wrap_mul(modulus_, 86'400);
}

void timecode_label::use_setting(timecode_facts const& facts) {
  int const setting = config_int(facts.setting, 1);
  if (setting == 2) format_ |= Format_slow_timecode;
  if (setting == 2 || setting == 3) modulus_ = facts.slow_frames_per_second;
  init();
}

// In slow timecode, only sample 0 has the number of its frame.
void timecode_label::settle_arithmetic() noexcept {
  auto const samples = static_cast<unsigned>(format_ & Format_slow_timecode ? 1 : samples_per_day_);
  plain_samples_ = format_ & Format_hours ? samples : 0;
}

char const* timecode_label::type_str() const { return label_type_name(timecode_label_t); }
label_t timecode_label::type() const { return timecode_label_t; }
UserLabelType timecode_label::UserType() const { return User_timecode; }
bool timecode_label::isSpecialSlowTC() const { return (format_ & Format_slow_timecode) != 0; }

// The template keeps its text even if a setting slows the count.
void timecode_label::build_template() {
  char shape[32];
  text_writer{shape}.put("-29.59.59.").number(typed_frames_);
  set_templates(shape);
}

// --- Arithmetic ---

int timecode_label::normalise_sample_unit(int sample) { return wrap_span(sample, samples_per_day_); }

void timecode_label::remember(timecode_fields const& fields) noexcept {
  hours_ = fields.hours;
  minutes_ = fields.minutes;
  seconds_ = fields.seconds;
  frames_ = fields.frames;
}

timecode_fields timecode_label::remembered() const noexcept { return {hours_, minutes_, seconds_, frames_}; }

timecode_fields timecode_label::fields_at(int sample, timecode_count const& count,
                                          bool& second_field) const noexcept {
  bool const is_slow = (format_ & Format_slow_timecode) != 0;
  second_field = is_slow && (sample & 1) != 0;
  if (is_slow) sample /= 2;
  return count.split(wrap_into_day(sample, samples_per_day_));
}

timecode_fields timecode_label::split(int sample, bool& second_field) {
  if (!reads_plainly()) {
    sample_to_hmsf(sample, second_field);
    return remembered();
  }
  auto const fields = fields_at(sample, count_, second_field);
  remember(fields);
  return fields;
}

int timecode_label::join(timecode_fields const& fields) {
  remember(fields);
  return reads_plainly() ? count_.join(fields) : hmsf_to_sample();
}

void timecode_label::sample_to_hmsf(int sample, bool& second_field) {
  remember(fields_at(sample, plain_count(), second_field));
}

int timecode_label::hmsf_to_sample() { return plain_count().join(remembered()); }

timecode_count timecode_label::plain_count() const noexcept {
  bool const is_own = count_.frames_per_second() == modulus_ && !count_.is_drop_frame();
  return is_own ? count_ : timecode_count{modulus_};
}

void ntsc_drop_label::sample_to_hmsf(int sample, bool& second_field) {
  second_field = false;
  remember(ntsc_drop.split(wrap_into_day(sample, ntsc_drop.labels_per_day())));
}

int ntsc_drop_label::hmsf_to_sample() { return ntsc_drop.join(remembered()); }

int timecode_label::get_abs_hmsf(int sample, short& h, short& m, short& s, short& f) {
  bool second_field = false;
  auto const fields = split(sample, second_field);
  h = static_cast<short>(fields.hours);
  m = static_cast<short>(fields.minutes);
  s = static_cast<short>(fields.seconds);
  f = static_cast<short>(fields.frames);
  return fields.frames;
}

double timecode_label::get_V2tc(int samples) {
  broken("0", labelcvt_module);
  return samples / get_vid_fps(type());
}

int timecode_label::get_abs_sample(double seconds) {
  broken("0", labelcvt_module);
  return to_int(std::floor((seconds + 0.0001) * get_vid_fps(type())));
}

// --- Texts and packed digits ---

char const* timecode_label::sample_to_string(LabelPoint* point, int sample) {
  if (!point || !splits_plainly(sample)) return write_any(point, sample);
  char* out = point->text;
  if (has_sign_column(*point)) *out++ = ' ';
  put_columns(out, sample);
  return point->text;
}

inline void timecode_label::put_columns(char* out, int sample) noexcept {
  out[8] = separator_;
  auto const fields = count_.split_from_zero(static_cast<unsigned>(sample));
  remember(fields);
  put_time(out, fields);
  put_frames(out + 9, fields.frames, frame_digits_);
}

char const* timecode_label::write_any(LabelPoint* point, int sample) {
  if (is_special_sample(sample)) return get_invalid_string(point, sample);
  if (!point) return "";

  text_writer out{point->text};
  if (has_sign_column(*point)) {
    out.put(sample < 0 ? '-' : ' ');
    if (sample < 0) sample = wrap_negate(sample);
  } else if (sample < 0) {
    report_negative(type());
  }

  bool const is_slow = (format_ & Format_slow_timecode) != 0;
  if (int const within = wrap_into_day(sample, samples_per_day_); !is_slow && splits_plainly(within)) {
    put_columns(out.end(), within);
    return point->text;
  }
  bool second_field = false;
  auto const fields = split(sample, second_field);
  char const separator = !is_slow ? separator_ : second_field ? ':' : '.';
  put_fields(out, fields, format_, separator, frame_digits_);
  return point->text;
}

bool timecode_label::read_fields(char const* text, unsigned format, timecode_fields& fields) const noexcept {
  text_reader in{text};
  auto const field = [&](int& value) {
    auto const number = in.number();
    if (number) value = *number;
    return number.has_value();
  };
  fields = {0, 0, seconds_, frames_};
  if (format & Format_hours) {
    if (!field(fields.hours) || !in.literal(':') || !field(fields.minutes) || !in.literal(':')) return false;
  } else if (format & Format_minutes) {
    if (!field(fields.minutes) || !in.literal(':')) return false;
  } else if (!(format & Format_seconds)) {
    return false;
  }
  return field(fields.seconds) && in.character() && field(fields.frames);
}

int timecode_label::get_abs_sample(char const* text) {
  timecode_fields fields;
  text = or_empty(text);
  if (!reads_plainly() || !read_columns(text, fields)) return read_any(text);
  remember(fields);
  return count_.join(fields);
}

// A function of its own: nearly every text has full columns, and reading those needs no stack.
[[gnu::noinline]] int timecode_label::read_any(char const* text) {
  timecode_fields fields;
  bool const negative = *text == '-';
  bool const in_columns = negative && reads_plainly() && read_columns(text + 1, fields);
  bool const is_read = in_columns || read_fields(text + negative, format_, fields);
  remember(fields);
  if (!is_read) return negative ? unreadable_negative_sample : invalid_sample;
  int const sample = join(fields);
  return negative ? wrap_negate(sample) : sample;
}

int ntsc_drop_label::get_abs_sample(char const* text) {
  timecode_fields fields;
  text = or_empty(text);
  if (!reads_plainly() || !read_columns(text, fields)) return read_any(text);
  remember(fields);
  return ntsc_drop.join(fields);
}

// Drop-frame reads whole labels only, whatever the format says.
[[gnu::noinline]] int ntsc_drop_label::read_any(char const* text) {
  timecode_fields fields;
  if (*text == '-') return 0;
  bool const is_read = read_fields(text, Format_hours, fields);
  remember(fields);
  return is_read ? join(fields) : invalid_sample;
}

int timecode_label::get_abs_sample_from_packed_string(char const* text) {
  text_reader in{text};
  auto const hours = in.number(2);
  auto const minutes = in.number(2);
  auto const seconds = in.number(2);
  auto const frames = in.number(frame_digits_);
  if (!hours || !minutes || !seconds || !frames) return invalid_sample;
  return join({*hours, *minutes, *seconds, *frames});
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
  if (!splits_plainly(sample)) return pack_any(sample);
  auto const fields = count_.split_from_zero(static_cast<unsigned>(sample));
  remember(fields);
  return packed(fields, count_.is_drop_frame(),
                [](int field) -> unsigned { return bcd_of_fields[static_cast<unsigned>(field)]; });
}

[[gnu::noinline]] unsigned timecode_label::pack_any(int sample) {
  if (sample < 0 || is_special_sample(sample)) return 0;
  bool second_field = false;
  return packed(split(sample, second_field), type() == ntsc_drop_label_t, bcd);
}

unsigned timecode_label::get_abs_smpte_string(LabelPoint* point, int sample) {
  return sample_to_smpte_string(point, sample);
}

// Constructors and destructors are defined here, so that the classes' tables of virtual functions are the
// library's alone.
// clang-format off
pal_label::pal_label(int format) : timecode_rate{format} {}
pal_label::~pal_label() = default;
ntsc_label::ntsc_label(int format) : timecode_rate{format} {}
ntsc_label::~ntsc_label() = default;
tc_24_label::tc_24_label(int format) : timecode_rate{format} {}
tc_24_label::~tc_24_label() = default;
tc_48_label::tc_48_label(int format) : timecode_rate{format} {}
tc_48_label::~tc_48_label() = default;
tc_50_label::tc_50_label(int format) : timecode_rate{format} {}
tc_50_label::~tc_50_label() = default;
tc_60_label::tc_60_label(int format) : timecode_rate{format} {}
tc_60_label::~tc_60_label() = default;
tc_50_duration_label::tc_50_duration_label(int format) : timecode_rate{format} {}
tc_50_duration_label::~tc_50_duration_label() = default;
tc_60_duration_label::tc_60_duration_label(int format) : timecode_rate{format} {}
tc_60_duration_label::~tc_60_duration_label() = default;
tc_12_label::tc_12_label(int format) : timecode_rate{format} {}
tc_12_label::~tc_12_label() = default;
tc_15_label::tc_15_label(int format) : timecode_rate{format} {}
tc_15_label::~tc_15_label() = default;
tc_20_label::tc_20_label(int format) : timecode_rate{format} {}
tc_20_label::~tc_20_label() = default;
tc_80_label::tc_80_label(int format) : timecode_rate{format} {}
tc_80_label::~tc_80_label() = default;
tc_90_label::tc_90_label(int format) : timecode_rate{format} {}
tc_90_label::~tc_90_label() = default;
tc_100_label::tc_100_label(int format) : timecode_rate{format} {}
tc_100_label::~tc_100_label() = default;
tc_120_label::tc_120_label(int format) : timecode_rate{format} {}
tc_120_label::~tc_120_label() = default;
tc_240_label::tc_240_label(int format) : timecode_rate{format} {}
tc_240_label::~tc_240_label() = default;
ntsc_drop_label::ntsc_drop_label(int format) : timecode_rate{format} {}
ntsc_drop_label::~ntsc_drop_label() = default;
// clang-format on
