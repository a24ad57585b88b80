// Timecode converters, one class a rate.
#pragma once

#include "labelsbase/export.h"
#include "labelsbase/labelcvt/concrete_label.h"
#include "labelsbase/labelcvt/label_cvt.h"
#include "labelsbase/labelcvt/reciprocal.h"

// Which fields of a timecode are always written, and expected when a text is read. Fields that are not are left
// out of the text while they are zero, from the left.
enum timecode_format : unsigned {
  Format_hours = 1,
  Format_minutes = 2,
  Format_seconds = 4,
  Format_separator = 8,       // written even when hours, minutes and seconds are all left out
  Format_slow_timecode = 16,  // two samples (fields) make one timecode frame
  Format_full = 15,           // what every converter of the library is made with
};

class timecode_label;

namespace labelsbase {

class text_writer;

struct timecode_fields {
  int hours, minutes, seconds, frames;
};

// Lets a converter of exactly one of the classes below convert in one pass. The registry and the factory know that
// of the converters that they make.
void use_one_pass(timecode_label& converter) noexcept;

}  // namespace labelsbase

// Hours, minutes, seconds and frames (SMPTE ST 12-1) of a count of frames that starts again after a day.
class LABELSBASE_API timecode_label : public variable_label {
 public:
  // `frames_per_second` of the count, from 1 up; `format` as timecode_format. The separator is ".", the template
  // that of 25 and 30 frames.
  timecode_label(int frames_per_second, int format);

  // Sets the separator to "." and the day to 86400 seconds of the frames per second.
  void init();

  [[nodiscard]] int samples_per_day() const noexcept { return samples_per_day_; }

  // Splits a sample and returns the frames.
  int get_abs_hmsf(int sample, short& h, short& m, short& s, short& f);

  // The text, packed BCD digits and back that the converter's "abs" operations stand for.
  char const* sample_to_string(LabelPoint* point, int sample);
  unsigned sample_to_smpte_string(LabelPoint* point, int sample);

  char const* type_str() const override;
  label_t type() const override;
  UserLabelType UserType() const override;

  // Into 0 .. one whole day. Deliberate: the whole day stays, since 24:00:00:00 is a valid span.
  int normalise_sample_unit(int sample) override;

  // Reads "hhmmssff", or "hhmmssfff" above 100 frames a second. A field may be padded with blanks.
  int get_abs_sample_from_packed_string(char const* text) override;
  int get_sample_span_from_packed_strings(char const* from, char const* to) override;

  // Writes for example " 01:00:00.00" or "-00:00:01.00", without the sign column where the point's template has
  // none.
  char const* get_abs_string(LabelPoint* point, int sample) override;
  unsigned get_abs_smpte_string(LabelPoint* point, int sample) override;

  // Reads such a text. Deliberate: any character separates the frames, and no field is held against its range.
  // Text that cannot be read gives the invalid sample, or 100000000 when it begins with "-".
  int get_abs_sample(char const* text) override;

  // Deprecated, and say so on every call.
  double get_V2tc(int samples) override;
  int get_abs_sample(double seconds) override;

  void build_template() override;
  bool isSpecialSlowTC() const override;

  // Splits a sample into hours_ .. frames_. A sample below zero counts back from midnight. `second_field` tells
  // which field of a frame the sample is in slow timecode, and is false otherwise.
  virtual void sample_to_hmsf(int sample, bool& second_field);

  // The sample of hours_ .. frames_. Deliberate: in slow timecode this is a count of frames, not of fields.
  virtual int hmsf_to_sample();

 protected:
  // The converter of a type of the rate table.
  timecode_label(label_t rate_type, int format);

  // Splits the number of a label, counted from midnight, into hours_ .. frames_.
  void split(int label) noexcept;

  // Whether texts in full columns may be read without the virtual hmsf_to_sample.
  [[nodiscard]] bool converts_in_one_pass() const noexcept { return one_pass_samples_ != 0; }

  // Reads the fields that the format asks for into hours_ .. frames_, as "%d:%d:%d%c%d" or the end of it.
  [[nodiscard]] bool read_fields(char const* text, unsigned format) noexcept;

  unsigned format_ = Format_full;

  // The last split or read.
  int hours_ = 0;
  int minutes_ = 0;
  int seconds_ = 0;
  int frames_ = 0;

  int samples_per_day_ = 0;  // frames, or twice the fields in slow timecode

 private:
  friend void labelsbase::use_one_pass(timecode_label& converter) noexcept;

  LABELSBASE_LOCAL void use_setting(char const* key, int slow_fps);
  [[nodiscard]] bool is_one_pass(int sample) const noexcept {
    return static_cast<unsigned>(sample) < one_pass_samples_;
  }
  [[nodiscard]] LABELSBASE_LOCAL labelsbase::timecode_fields split_in_one_pass(int sample) const noexcept;
  [[gnu::cold, gnu::noinline]] LABELSBASE_LOCAL char const* write_any(LabelPoint* point, int sample);
  LABELSBASE_LOCAL void write_fields(labelsbase::text_writer& out, char separator) const noexcept;
  [[nodiscard, gnu::cold, gnu::noinline]] LABELSBASE_LOCAL int read_any(char const* text);

  // Samples from 0 to here are written, and texts in full columns read, in one pass without the virtual split. 0
  // for converters that need the general way: other formats, slow timecode, and classes that may override the
  // split.
  unsigned one_pass_samples_ = 0;
  bool drop_frame_ = false;
  int frame_digits_ = 2;
  labelsbase::reciprocal per_frames_per_second_;
  char const* shape_ = "-29.59.59.29";
};

namespace labelsbase {

template <label_t rate_type>
class timecode_rate : public concrete_label<rate_type, timecode_label> {
 public:
  explicit timecode_rate(int format) : concrete_label<rate_type, timecode_label>{rate_type, format} {}
};

// The converter as a timecode converter; null for any other kind.
[[nodiscard]] timecode_label* as_timecode(label_cvt* converter);

}  // namespace labelsbase

// clang-format off
class LABELSBASE_API pal_label            : public labelsbase::timecode_rate<pal_label_t>            { public: using timecode_rate::timecode_rate; };
class LABELSBASE_API ntsc_label           : public labelsbase::timecode_rate<ntsc_label_t>           { public: using timecode_rate::timecode_rate; };
class LABELSBASE_API tc_24_label          : public labelsbase::timecode_rate<tc_24_label_t>          { public: using timecode_rate::timecode_rate; };
class LABELSBASE_API tc_48_label          : public labelsbase::timecode_rate<tc_48_label_t>          { public: using timecode_rate::timecode_rate; };
class LABELSBASE_API tc_50_label          : public labelsbase::timecode_rate<tc_50_label_t>          { public: using timecode_rate::timecode_rate; };
class LABELSBASE_API tc_60_label          : public labelsbase::timecode_rate<tc_60_label_t>          { public: using timecode_rate::timecode_rate; };
class LABELSBASE_API tc_50_duration_label : public labelsbase::timecode_rate<tc_50_duration_label_t> { public: using timecode_rate::timecode_rate; };
class LABELSBASE_API tc_60_duration_label : public labelsbase::timecode_rate<tc_60_duration_label_t> { public: using timecode_rate::timecode_rate; };
class LABELSBASE_API tc_12_label          : public labelsbase::timecode_rate<tc_12_label_t>          { public: using timecode_rate::timecode_rate; };
class LABELSBASE_API tc_15_label          : public labelsbase::timecode_rate<tc_15_label_t>          { public: using timecode_rate::timecode_rate; };
class LABELSBASE_API tc_20_label          : public labelsbase::timecode_rate<tc_20_label_t>          { public: using timecode_rate::timecode_rate; };
class LABELSBASE_API tc_80_label          : public labelsbase::timecode_rate<tc_80_label_t>          { public: using timecode_rate::timecode_rate; };
class LABELSBASE_API tc_90_label          : public labelsbase::timecode_rate<tc_90_label_t>          { public: using timecode_rate::timecode_rate; };
class LABELSBASE_API tc_100_label         : public labelsbase::timecode_rate<tc_100_label_t>         { public: using timecode_rate::timecode_rate; };
class LABELSBASE_API tc_120_label         : public labelsbase::timecode_rate<tc_120_label_t>         { public: using timecode_rate::timecode_rate; };
class LABELSBASE_API tc_240_label         : public labelsbase::timecode_rate<tc_240_label_t>         { public: using timecode_rate::timecode_rate; };
// clang-format on

// NTSC drop-frame timecode (SMPTE ST 12-1): frame labels 0 and 1 are left out at the start of every minute but
// each tenth, so that 30 frame labels keep up with 30000/1001 frames a second.
class LABELSBASE_API ntsc_drop_label : public labelsbase::timecode_rate<ntsc_drop_label_t> {
 public:
  using timecode_rate::timecode_rate;

  using timecode_label::get_abs_sample;

  // Deliberate: a text that begins with "-" reads as 0, since drop-frame labels are never negative.
  int get_abs_sample(char const* text) override;

  void sample_to_hmsf(int sample, bool& second_field) override;

  // Deliberate: a label that is left out reads as one of the last two samples of the minute before.
  int hmsf_to_sample() override;
};
