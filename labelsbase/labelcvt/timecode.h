// Timecode converters, one class a rate (SMPTE ST 12-1). Samples are frames.
//
//   field       digits   range
//   sign        1        "-" below zero, else a blank; only where the point's template begins with "-"
//   hours       2        0 to 23; reading accepts any
//   minutes     2        0 to 59; reading accepts any
//   seconds     2        0 to 59; reading accepts any
//   separator   1        "." ; ";" for drop-frame; "+" for 24 and 48 frames; reading accepts any character
//   frames      2        0 to frames a second - 1; 3 digits at 120 and 240 frames a second
//
//   label_cvt& cvt = *get_static_label_cvt(ntsc_drop_label_t);
//   LabelPoint point{cvt, 0};
//   cvt.get_abs_string(&point, 1800)                // " 00:01:00;02"
//   cvt.get_abs_sample("00:10:00;00")               // 17982
//   cvt.get_abs_sample("00:10")                     // -100000000, the invalid sample
//   cvt.get_abs_sample_from_packed_string("00100000")   // 17982
//   cvt.get_abs_smpte_string(&point, 1800)          // 0x00010042: minute 1, frame 2, drop-frame flag
//
// counts/timecode_count.h has the arithmetic and how drop-frame counts.
#pragma once

#include "labelsbase/counts/timecode_count.h"
#include "labelsbase/export.h"
#include "labelsbase/labelcvt/concrete_label.h"
#include "labelsbase/labelcvt/label_cvt.h"
#include "labelsbase/labelcvt/scratch_register.h"

// Which fields of a timecode are always written, and expected when a text is read. Other fields are left out of
// the text while they are zero, from the left.
enum timecode_format : unsigned {
  Format_hours = 1,
  Format_minutes = 2,
  Format_seconds = 4,
  Format_separator = 8,       // written even if hours, minutes and seconds are all left out
  Format_slow_timecode = 16,  // two samples (fields) make one timecode frame
  Format_full = 15,           // every converter of the library
};

// Hours, minutes, seconds and frames of a count of frames that starts again after a day.
class LABELSBASE_API timecode_label : public variable_label {
 public:
  // `frames_per_second` of the count, from 1; below 1 it counts as 1. `format`: any sum of timecode_format. The
  // separator is ".", the template "-29.59.59.29".
  timecode_label(int frames_per_second, int format);

  // Sets the separator to "." and the day to 86400 seconds of the frames per second.
  void init();

  // Returns the samples of 24 hours. In slow timecode these are frames, half as many as the fields.
  [[nodiscard]] int samples_per_day() const noexcept { return samples_per_day_; }

  // Splits a sample into its four fields and returns the frames.
  int get_abs_hmsf(int sample, short& h, short& m, short& s, short& f);

  // Returns the text of a sample. get_abs_string calls this.
  char const* sample_to_string(LabelPoint* point, int sample);

  // Returns the packed BCD digits of a sample. get_abs_smpte_string calls this.
  unsigned sample_to_smpte_string(LabelPoint* point, int sample);

  char const* type_str() const override;
  label_t type() const override;
  UserLabelType UserType() const override;

  // Wraps a sample into 0 to one whole day. Deliberate: the whole day stays, since 24:00:00:00 is a valid span.
  int normalise_sample_unit(int sample) override;

  // Reads "hhmmssff", or "hhmmssfff" at 120 and 240 frames a second. Blanks may pad a field. Returns the invalid
  // sample on failure.
  int get_abs_sample_from_packed_string(char const* text) override;

  // Returns the samples from the first text to the second, moved into 0 to one whole day.
  int get_sample_span_from_packed_strings(char const* from, char const* to) override;

  // Returns for example " 01:00:00.00" or "-00:00:01.00", without the sign column if the point's template has
  // none.
  char const* get_abs_string(LabelPoint* point, int sample) override;

  // Returns packed BCD timecode, with bit 6 set for drop-frame; 0 for negative and special samples.
  unsigned get_abs_smpte_string(LabelPoint* point, int sample) override;

  // Reads such a text. Deliberate: any character separates the frames, and no field is checked against its range.
  // Returns the invalid sample if the text cannot be read, or 100000000 if that text begins with "-".
  //
  //   "-"? number ":" number ":" number any number
  int get_abs_sample(char const* text) override;

  // Deprecated: both print an assertion message on every call.
  double get_V2tc(int samples) override;
  int get_abs_sample(double seconds) override;

  void build_template() override;
  bool isSpecialSlowTC() const override;

  // Splits a sample into hours_ to frames_. A sample below zero counts back from midnight. `second_field` receives
  // whether the sample is the second field of a frame; always false unless the timecode is slow.
  virtual void sample_to_hmsf(int sample, bool& second_field);

  // Returns the sample of hours_ to frames_. Deliberate: in slow timecode this is a count of frames, not of
  // fields.
  virtual int hmsf_to_sample();

 protected:
  // Timecode of a type by its row in the table of label types. A type without timecode counts 25 frames a second.
  timecode_label(label_t rate_type, int format);

  // Declares that no class overrides sample_to_hmsf and hmsf_to_sample from here on, so that conversions need not
  // call them. The registry declares it of the converters that it makes.
  void settle_arithmetic() noexcept;

  unsigned format_;  // a sum of timecode_format

  // The fields of the last conversion.
  labelsbase::scratch_register hours_;
  labelsbase::scratch_register minutes_;
  labelsbase::scratch_register seconds_;
  labelsbase::scratch_register frames_;

  int samples_per_day_ = 0;  // what samples_per_day returns

  // Reads the fields that `format` asks for: all four, or from minutes or from seconds on.
  [[nodiscard]] bool read_fields(char const* text, unsigned format,
                                 labelsbase::timecode_fields& fields) const noexcept;

  // Writes hours_ to frames_.
  void remember(labelsbase::timecode_fields const& fields) noexcept;

  // Reads hours_ to frames_.
  [[nodiscard]] labelsbase::timecode_fields remembered() const noexcept;

  // Whether labels in full columns read by the count alone.
  [[nodiscard]] bool reads_plainly() const noexcept { return plain_samples_ != 0; }

 private:
  friend class ntsc_drop_label;

  LABELSBASE_LOCAL void use_setting(labelsbase::timecode_facts const& facts);

  // Split a sample and join fields as sample_to_hmsf and hmsf_to_sample do. Where no class overrides those, the
  // result does not pass through the scratch registers, so threads may convert side by side.
  [[nodiscard]] LABELSBASE_LOCAL labelsbase::timecode_fields split(int sample, bool& second_field);
  [[nodiscard]] LABELSBASE_LOCAL int join(labelsbase::timecode_fields const& fields);

  // Returns the fields of a sample by a count.
  [[nodiscard]] LABELSBASE_LOCAL labelsbase::timecode_fields fields_at(int sample,
                                                                       labelsbase::timecode_count const& count,
                                                                       bool& second_field) const noexcept;

  // Returns the count without drop-frame, by the modulus, which hosts' classes may set.
  [[nodiscard]] LABELSBASE_LOCAL labelsbase::timecode_count plain_count() const noexcept;

  // Writes the label of a sample in full columns. The sample must split plainly.
  LABELSBASE_LOCAL void put_columns(char* out, int sample) noexcept;
  LABELSBASE_LOCAL char const* write_any(LabelPoint* point, int sample);
  [[nodiscard]] LABELSBASE_LOCAL unsigned pack_any(int sample);
  [[nodiscard]] LABELSBASE_LOCAL int read_any(char const* text);

  // Whether the fields of a sample within the day follow from the count alone, and fill their columns.
  [[nodiscard]] bool splits_plainly(int sample) const noexcept {
    return static_cast<unsigned>(sample) < plain_samples_;
  }

  labelsbase::timecode_count count_;
  unsigned plain_samples_ = 0;  // samples from 0 up that split plainly; 0 if a class may override the arithmetic
  int frame_digits_ = 2;
  int typed_frames_ = 29;  // the frames of the template
};

namespace labelsbase {

// Timecode of one type, by its row in the table of label types.
template <label_t rate_type>
class timecode_rate : public concrete_label<rate_type, timecode_label> {
 protected:
  // `format`: any sum of timecode_format.
  explicit timecode_rate(int format) : concrete_label<rate_type, timecode_label>{rate_type, format} {}
};

}  // namespace labelsbase

// clang-format off
// Timecode of one label type. `format`: any sum of timecode_format; Format_full writes and reads whole labels.
class LABELSBASE_API pal_label            : public labelsbase::timecode_rate<pal_label_t>            { public: pal_label(int format); ~pal_label() override; };
class LABELSBASE_API ntsc_label           : public labelsbase::timecode_rate<ntsc_label_t>           { public: ntsc_label(int format); ~ntsc_label() override; };
class LABELSBASE_API tc_24_label          : public labelsbase::timecode_rate<tc_24_label_t>          { public: tc_24_label(int format); ~tc_24_label() override; };
class LABELSBASE_API tc_48_label          : public labelsbase::timecode_rate<tc_48_label_t>          { public: tc_48_label(int format); ~tc_48_label() override; };
class LABELSBASE_API tc_50_label          : public labelsbase::timecode_rate<tc_50_label_t>          { public: tc_50_label(int format); ~tc_50_label() override; };
class LABELSBASE_API tc_60_label          : public labelsbase::timecode_rate<tc_60_label_t>          { public: tc_60_label(int format); ~tc_60_label() override; };
class LABELSBASE_API tc_50_duration_label : public labelsbase::timecode_rate<tc_50_duration_label_t> { public: tc_50_duration_label(int format); ~tc_50_duration_label() override; };
class LABELSBASE_API tc_60_duration_label : public labelsbase::timecode_rate<tc_60_duration_label_t> { public: tc_60_duration_label(int format); ~tc_60_duration_label() override; };
class LABELSBASE_API tc_12_label          : public labelsbase::timecode_rate<tc_12_label_t>          { public: tc_12_label(int format); ~tc_12_label() override; };
class LABELSBASE_API tc_15_label          : public labelsbase::timecode_rate<tc_15_label_t>          { public: tc_15_label(int format); ~tc_15_label() override; };
class LABELSBASE_API tc_20_label          : public labelsbase::timecode_rate<tc_20_label_t>          { public: tc_20_label(int format); ~tc_20_label() override; };
class LABELSBASE_API tc_80_label          : public labelsbase::timecode_rate<tc_80_label_t>          { public: tc_80_label(int format); ~tc_80_label() override; };
class LABELSBASE_API tc_90_label          : public labelsbase::timecode_rate<tc_90_label_t>          { public: tc_90_label(int format); ~tc_90_label() override; };
class LABELSBASE_API tc_100_label         : public labelsbase::timecode_rate<tc_100_label_t>         { public: tc_100_label(int format); ~tc_100_label() override; };
class LABELSBASE_API tc_120_label         : public labelsbase::timecode_rate<tc_120_label_t>         { public: tc_120_label(int format); ~tc_120_label() override; };
class LABELSBASE_API tc_240_label         : public labelsbase::timecode_rate<tc_240_label_t>         { public: tc_240_label(int format); ~tc_240_label() override; };
// clang-format on

// NTSC drop-frame timecode: leaves out frame labels 00 and 01 of every minute that is not a multiple of ten.
class LABELSBASE_API ntsc_drop_label : public labelsbase::timecode_rate<ntsc_drop_label_t> {
 public:
  // `format`: any sum of timecode_format. Drop-frame reads all fields, whatever the format.
  ntsc_drop_label(int format);
  ~ntsc_drop_label() override;

  using timecode_label::get_abs_sample;

  // Deliberate: a text that begins with "-" reads as 0, since drop-frame labels are never negative.
  int get_abs_sample(char const* text) override;

  void sample_to_hmsf(int sample, bool& second_field) override;

  // Deliberate: a label that is left out reads as one of the last two samples of the minute before.
  int hmsf_to_sample() override;

 private:
  [[nodiscard]] LABELSBASE_LOCAL int read_any(char const* text);
};
