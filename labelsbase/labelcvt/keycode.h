// Key numbers: the numbers that the maker prints along the edge of film (SMPTE ST 254 for 35 mm, ST 271 for 16 mm,
// ST 270 for 65 mm). Samples are perforations.
//
//   field       characters   range
//   prefix      12 - count   any printable characters: maker, film type and roll, "KJ123456"
//   count       4, 5 or 6    key 0 to 9999, 99999 or 999999
//   separator   1            "+"; "&" for 16 mm
//   frame       2            0 to frames a key - 1
//   perf        "." and 1    3-perf only: 3 for the frame's first perforation down to 1 for its last
//
//   film               perfs a frame   perfs a key   frames a key
//   35 mm              4               64            16
//   16 mm              1               20            20
//   35 mm 3-perf       3               64            21 1/3, numbered 0 to 21
//   35 mm 2, 8-perf    2, 8            64            32, 8
//   65 mm              5, 8, 10        80            16, 10, 8
//   65 mm              5, 8, 10, 15    120           24, 15, 12, 8
//
//   label_cvt& cvt = *get_static_label_cvt(keycode_35_label_t);
//   LabelPoint point{cvt, 0};
//   cvt.set_prefix(&point, "KJ123456");
//   cvt.get_abs_string(&point, 100)              // "KJ1234560001+09": key 1, perforations 36 to 39
//   cvt.get_abs_sample("KJ1234560001+09")        // 100, the frame's first perforation
//   cvt.get_abs_sample("KJ1234560001")           // 64, the key's first perforation
//   cvt.get_abs_sample("KJ1234560001+16")        // -100000000: a key has frames 00 to 15
#pragma once

#include "labelsbase/export.h"
#include "labelsbase/labelcvt/concrete_label.h"
#include "labelsbase/labelcvt/prefix_label.h"
#include "labelsbase/labelcvt/scratch_register.h"

// A prefix of maker, film type and roll, the count of keys along the film and the frame within the key, for
// example "KJ1234560123+07".
class LABELSBASE_API keycode_label : public prefix_label {
 public:
  // Key numbers of the gauge of `gauge_type`, a key-number type, with a count of `count_digits` digits. Prefix and
  // count have 12 characters together. Any other type counts as 35 mm film.
  keycode_label(label_t gauge_type, unsigned count_digits);

  char const* type_str() const override;
  label_t type() const override;
  UserLabelType UserType() const override;

  // Wraps perforations into the range of the count.
  int normalise_sample_unit(int perfs) override;

  // Returns the perforations of a key. Deliberate: 1 for 35 mm at 2 and 8 perforations a frame.
  int perfs_per_keyKode() const override;

  // Key numbers have no packed form of their own: these read the label itself.
  int get_abs_sample_from_packed_string(char const* text) override;
  int get_sample_span_from_packed_strings(char const* from, char const* to) override;

  // Returns the label of the frame that a perforation is in, or "NEGATIVE" below the first key.
  char const* get_abs_string(LabelPoint* point, int perfs) override;

  // Returns the perforation within the key as two digits, with a sign below zero.
  char const* get_abs_perfs_string(LabelPoint* point, int perfs) override;

  // Returns the first perforation of the frame that a label names, or of the key if it names no frame. Does not
  // look at the prefix. Returns the invalid sample for texts shorter than the prefix and for counts and frames out
  // of range.
  //
  //   prefix "_"* digit* (non-digit+ digit digit?)?
  int get_abs_sample(char const* text) override;
  using variable_label::get_abs_sample;

  // Splits perforations into key and frame, rounding toward key 0. get_perfs() then returns the frame's first one.
  virtual void get_counts(int perfs);

  // Returns the perforation within its key, negative below zero.
  virtual int get_perf_offset(int perfs);

  // Returns the perforation of the last split or read, or the invalid sample for a frame that the key does not
  // have.
  virtual int get_perfs();

 protected:
  // The last split or read. A text that cannot be read leaves key and frame as they were.
  labelsbase::scratch_register key_;
  labelsbase::scratch_register frame_;
  labelsbase::scratch_register perfs_left_;  // to the last perforation of the frame; 0 but for 3-perf

  // Writes key_, frame_ and perfs_left_.
  void remember(labelsbase::film_place const& at) noexcept {
    key_ = at.count;
    frame_ = at.frame;
    perfs_left_ = at.perfs_left;
  }

 private:
  friend class keycode_353;

  // Reads the first `length` characters of a label, whose perforation within the frame is known already.
  [[nodiscard]] LABELSBASE_LOCAL int read_label(char const* text, std::size_t length, int perfs_left);

  // Returns the perforation of a place, or the invalid sample for a frame that the key does not have.
  [[nodiscard]] LABELSBASE_LOCAL int perfs_at(labelsbase::film_place const& at) const noexcept;

  // Write and read labels that do not fill their columns, and those of hosts' classes.
  LABELSBASE_LOCAL char const* write_any(LabelPoint* point, int perfs, char separator, bool names_perforation);
  [[nodiscard]] LABELSBASE_LOCAL int read_any(char const* text, std::size_t length, int perfs_left);

  bool reports_perfs_;
};

// clang-format off
// Key numbers of one gauge, with a count of `digits` digits, 4 to 6. The name says the gauge: 35, 16 or 65 mm, then the
// perforations of a frame and of a key where they are not the usual ones.
class LABELSBASE_API keycode_35       : public keycode_label { public: explicit keycode_35(unsigned digits); ~keycode_35() override; };
class LABELSBASE_API keycode_16       : public keycode_label { public: explicit keycode_16(unsigned digits); ~keycode_16() override; };
class LABELSBASE_API keycode_352      : public keycode_label { public: explicit keycode_352(unsigned digits); ~keycode_352() override; };
class LABELSBASE_API keycode_358      : public keycode_label { public: explicit keycode_358(unsigned digits); ~keycode_358() override; };
class LABELSBASE_API keycode_655_80   : public keycode_label { public: explicit keycode_655_80(unsigned digits); ~keycode_655_80() override; };
class LABELSBASE_API keycode_658_80   : public keycode_label { public: explicit keycode_658_80(unsigned digits); ~keycode_658_80() override; };
class LABELSBASE_API keycode_6510_80  : public keycode_label { public: explicit keycode_6510_80(unsigned digits); ~keycode_6510_80() override; };
class LABELSBASE_API keycode_655_120  : public keycode_label { public: explicit keycode_655_120(unsigned digits); ~keycode_655_120() override; };
class LABELSBASE_API keycode_658_120  : public keycode_label { public: explicit keycode_658_120(unsigned digits); ~keycode_658_120() override; };
class LABELSBASE_API keycode_6510_120 : public keycode_label { public: explicit keycode_6510_120(unsigned digits); ~keycode_6510_120() override; };
class LABELSBASE_API keycode_6515_120 : public keycode_label { public: explicit keycode_6515_120(unsigned digits); ~keycode_6515_120() override; };
// clang-format on

// 35 mm film at 3 perforations a frame. Labels end in the perforation within the frame, counted back from its last
// one: "KJ1234560123+07.3". They name the perforation itself, and keep strings hold the same text.
class LABELSBASE_API keycode_353 : public keycode_label {
 public:
  // `digits`: of the count, 4 to 6.
  explicit keycode_353(unsigned digits);
  ~keycode_353() override;

  char const* get_abs_string(LabelPoint* point, int perfs) override;
  int get_abs_sample(char const* text) override;
  using keycode_label::get_abs_sample;
  char const* get_keep_string(LabelPoint* point, int perfs) override;

  // Reads such a label, of 63 characters at most. Returns the invalid sample if it does not end in a digit.
  //
  //   key-number any digit
  int get_keep_sample(char const* text) override;

  void build_template() override;
};

// clang-format off
// Key numbers of one label type. A name that ends in a number has that many digits in the count, any other has 4.
class LABELSBASE_API keycode_35_label       : public labelsbase::concrete_label<keycode_35_label_t, keycode_35>             { public: keycode_35_label(); ~keycode_35_label() override; };
class LABELSBASE_API keycode_35_label_4     : public labelsbase::concrete_label<keycode_35_label_4_t, keycode_35>           { public: keycode_35_label_4(); ~keycode_35_label_4() override; };
class LABELSBASE_API keycode_35_label_5     : public labelsbase::concrete_label<keycode_35_label_5_t, keycode_35>           { public: keycode_35_label_5(); ~keycode_35_label_5() override; };
class LABELSBASE_API keycode_35_label_6     : public labelsbase::concrete_label<keycode_35_label_6_t, keycode_35>           { public: keycode_35_label_6(); ~keycode_35_label_6() override; };
class LABELSBASE_API keycode_16_label       : public labelsbase::concrete_label<keycode_16_label_t, keycode_16>             { public: keycode_16_label(); ~keycode_16_label() override; };
class LABELSBASE_API keycode_16_label_4     : public labelsbase::concrete_label<keycode_16_label_4_t, keycode_16>           { public: keycode_16_label_4(); ~keycode_16_label_4() override; };
class LABELSBASE_API keycode_16_label_5     : public labelsbase::concrete_label<keycode_16_label_5_t, keycode_16>           { public: keycode_16_label_5(); ~keycode_16_label_5() override; };
class LABELSBASE_API keycode_16_label_6     : public labelsbase::concrete_label<keycode_16_label_6_t, keycode_16>           { public: keycode_16_label_6(); ~keycode_16_label_6() override; };
class LABELSBASE_API keycode_353_label      : public labelsbase::concrete_label<keycode_353_label_t, keycode_353>           { public: keycode_353_label(); ~keycode_353_label() override; };
class LABELSBASE_API keycode_353_label_4    : public labelsbase::concrete_label<keycode_353_label_4_t, keycode_353>         { public: keycode_353_label_4(); ~keycode_353_label_4() override; };
class LABELSBASE_API keycode_353_label_5    : public labelsbase::concrete_label<keycode_353_label_5_t, keycode_353>         { public: keycode_353_label_5(); ~keycode_353_label_5() override; };
class LABELSBASE_API keycode_353_label_6    : public labelsbase::concrete_label<keycode_353_label_6_t, keycode_353>         { public: keycode_353_label_6(); ~keycode_353_label_6() override; };
class LABELSBASE_API keycode_352_label      : public labelsbase::concrete_label<keycode_352_label_t, keycode_352>           { public: keycode_352_label(); ~keycode_352_label() override; };
class LABELSBASE_API keycode_358_label      : public labelsbase::concrete_label<keycode_358_label_t, keycode_358>           { public: keycode_358_label(); ~keycode_358_label() override; };
class LABELSBASE_API keycode_655_80_label   : public labelsbase::concrete_label<keycode_655_80_label_t, keycode_655_80>     { public: keycode_655_80_label(); ~keycode_655_80_label() override; };
class LABELSBASE_API keycode_658_80_label   : public labelsbase::concrete_label<keycode_658_80_label_t, keycode_658_80>     { public: keycode_658_80_label(); ~keycode_658_80_label() override; };
class LABELSBASE_API keycode_6510_80_label  : public labelsbase::concrete_label<keycode_6510_80_label_t, keycode_6510_80>   { public: keycode_6510_80_label(); ~keycode_6510_80_label() override; };
class LABELSBASE_API keycode_655_120_label  : public labelsbase::concrete_label<keycode_655_120_label_t, keycode_655_120>   { public: keycode_655_120_label(); ~keycode_655_120_label() override; };
class LABELSBASE_API keycode_658_120_label  : public labelsbase::concrete_label<keycode_658_120_label_t, keycode_658_120>   { public: keycode_658_120_label(); ~keycode_658_120_label() override; };
class LABELSBASE_API keycode_6510_120_label : public labelsbase::concrete_label<keycode_6510_120_label_t, keycode_6510_120> { public: keycode_6510_120_label(); ~keycode_6510_120_label() override; };
class LABELSBASE_API keycode_6515_120_label : public labelsbase::concrete_label<keycode_6515_120_label_t, keycode_6515_120> { public: keycode_6515_120_label(); ~keycode_6515_120_label() override; };
// clang-format on
