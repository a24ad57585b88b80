// Key numbers: the numbers that the maker prints along the edge of film.
#pragma once

#include "labelsbase/export.h"
#include "labelsbase/labelcvt/concrete_label.h"
#include "labelsbase/labelcvt/prefix_label.h"

namespace labelsbase {

// Film by width in millimetres, perforations a frame and, for 65 mm, perforations a key.
enum class film_gauge {
  g35,
  g16,
  g35_3perf,
  g35_2perf,
  g35_8perf,
  g65_5perf_80,
  g65_8perf_80,
  g65_10perf_80,
  g65_5perf_120,
  g65_8perf_120,
  g65_10perf_120,
  g65_15perf_120,
};

struct gauge_row;

}  // namespace labelsbase

// A prefix of maker, film type and roll, the count of keys along the film and the frame within the key, for
// example "KJ1234560123+07". Samples are perforations.
class LABELSBASE_API keycode_label : public prefix_label {
 public:
  // A count of `count_digits` digits; prefix and count have 12 characters together.
  keycode_label(labelsbase::film_gauge gauge, unsigned count_digits);

  char const* type_str() const override;
  label_t type() const override;
  UserLabelType UserType() const override;

  // Into the range of the count.
  int normalise_sample_unit(int perfs) override;
  int perfs_per_keyKode() const override;

  int get_abs_sample_from_packed_string(char const* text) override;
  int get_sample_span_from_packed_strings(char const* from, char const* to) override;

  // The label of the frame that a perforation is in. "NEGATIVE" below the first key.
  char const* get_abs_string(LabelPoint* point, int perfs) override;
  char const* get_abs_perfs_string(LabelPoint* point, int perfs) override;

  // The first perforation of the frame that a label names; without a frame, that of the key. The prefix is passed
  // over. The invalid sample for texts shorter than the prefix, and for counts and frames out of range.
  int get_abs_sample(char const* text) override;
  using variable_label::get_abs_sample;

  // Splits perforations into key and frame, rounding toward key 0.
  virtual void get_counts(int perfs);

  // The perforation within its key, negative for negative perforations.
  virtual int get_perf_offset(int perfs);

  // The perforations of key and frame; the invalid sample for a frame that the key does not have.
  virtual int get_perfs();

 protected:
  // The last split or read.
  int key_ = 0;
  int frame_ = 0;

  [[nodiscard]] bool has_frame() const noexcept;

 private:
  labelsbase::gauge_row const* gauge_;
};

// clang-format off
class LABELSBASE_API keycode_35       : public keycode_label { public: explicit keycode_35(unsigned digits)       : keycode_label{labelsbase::film_gauge::g35, digits} {} };
class LABELSBASE_API keycode_16       : public keycode_label { public: explicit keycode_16(unsigned digits)       : keycode_label{labelsbase::film_gauge::g16, digits} {} };
class LABELSBASE_API keycode_352      : public keycode_label { public: explicit keycode_352(unsigned digits)      : keycode_label{labelsbase::film_gauge::g35_2perf, digits} {} };
class LABELSBASE_API keycode_358      : public keycode_label { public: explicit keycode_358(unsigned digits)      : keycode_label{labelsbase::film_gauge::g35_8perf, digits} {} };
class LABELSBASE_API keycode_655_80   : public keycode_label { public: explicit keycode_655_80(unsigned digits)   : keycode_label{labelsbase::film_gauge::g65_5perf_80, digits} {} };
class LABELSBASE_API keycode_658_80   : public keycode_label { public: explicit keycode_658_80(unsigned digits)   : keycode_label{labelsbase::film_gauge::g65_8perf_80, digits} {} };
class LABELSBASE_API keycode_6510_80  : public keycode_label { public: explicit keycode_6510_80(unsigned digits)  : keycode_label{labelsbase::film_gauge::g65_10perf_80, digits} {} };
class LABELSBASE_API keycode_655_120  : public keycode_label { public: explicit keycode_655_120(unsigned digits)  : keycode_label{labelsbase::film_gauge::g65_5perf_120, digits} {} };
class LABELSBASE_API keycode_658_120  : public keycode_label { public: explicit keycode_658_120(unsigned digits)  : keycode_label{labelsbase::film_gauge::g65_8perf_120, digits} {} };
class LABELSBASE_API keycode_6510_120 : public keycode_label { public: explicit keycode_6510_120(unsigned digits) : keycode_label{labelsbase::film_gauge::g65_10perf_120, digits} {} };
class LABELSBASE_API keycode_6515_120 : public keycode_label { public: explicit keycode_6515_120(unsigned digits) : keycode_label{labelsbase::film_gauge::g65_15perf_120, digits} {} };
// clang-format on

// 35 mm film at 3 perforations a frame. Labels end in the perforation within the frame, counted back from its last
// one: "KJ1234560123+07.3". They name the perforation itself, and the same text serves keep strings.
class LABELSBASE_API keycode_353 : public keycode_label {
 public:
  explicit keycode_353(unsigned digits);

  char const* get_abs_string(LabelPoint* point, int perfs) override;
  int get_abs_sample(char const* text) override;
  using keycode_label::get_abs_sample;
  char const* get_keep_string(LabelPoint* point, int perfs) override;

  // The invalid sample too for a text that does not end in a digit.
  int get_keep_sample(char const* text) override;

  void build_template() override;
  void get_counts(int perfs) override;
  int get_perfs() override;

 protected:
  int remainder_ = 0;  // perforations to the frame's last one, of the last split or read
};

// clang-format off
class LABELSBASE_API keycode_35_label         : public labelsbase::concrete_label<keycode_35_label_t, keycode_35>               { public: keycode_35_label()         : concrete_label{4} {} };
class LABELSBASE_API keycode_35_label_4       : public labelsbase::concrete_label<keycode_35_label_4_t, keycode_35>             { public: keycode_35_label_4()       : concrete_label{4} {} };
class LABELSBASE_API keycode_35_label_5       : public labelsbase::concrete_label<keycode_35_label_5_t, keycode_35>             { public: keycode_35_label_5()       : concrete_label{5} {} };
class LABELSBASE_API keycode_35_label_6       : public labelsbase::concrete_label<keycode_35_label_6_t, keycode_35>             { public: keycode_35_label_6()       : concrete_label{6} {} };
class LABELSBASE_API keycode_16_label         : public labelsbase::concrete_label<keycode_16_label_t, keycode_16>               { public: keycode_16_label()         : concrete_label{4} {} };
class LABELSBASE_API keycode_16_label_4       : public labelsbase::concrete_label<keycode_16_label_4_t, keycode_16>             { public: keycode_16_label_4()       : concrete_label{4} {} };
class LABELSBASE_API keycode_16_label_5       : public labelsbase::concrete_label<keycode_16_label_5_t, keycode_16>             { public: keycode_16_label_5()       : concrete_label{5} {} };
class LABELSBASE_API keycode_16_label_6       : public labelsbase::concrete_label<keycode_16_label_6_t, keycode_16>             { public: keycode_16_label_6()       : concrete_label{6} {} };
class LABELSBASE_API keycode_353_label        : public labelsbase::concrete_label<keycode_353_label_t, keycode_353>             { public: keycode_353_label()        : concrete_label{4} {} };
class LABELSBASE_API keycode_353_label_4      : public labelsbase::concrete_label<keycode_353_label_4_t, keycode_353>           { public: keycode_353_label_4()      : concrete_label{4} {} };
class LABELSBASE_API keycode_353_label_5      : public labelsbase::concrete_label<keycode_353_label_5_t, keycode_353>           { public: keycode_353_label_5()      : concrete_label{5} {} };
class LABELSBASE_API keycode_353_label_6      : public labelsbase::concrete_label<keycode_353_label_6_t, keycode_353>           { public: keycode_353_label_6()      : concrete_label{6} {} };
class LABELSBASE_API keycode_352_label        : public labelsbase::concrete_label<keycode_352_label_t, keycode_352>             { public: keycode_352_label()        : concrete_label{4} {} };
class LABELSBASE_API keycode_358_label        : public labelsbase::concrete_label<keycode_358_label_t, keycode_358>             { public: keycode_358_label()        : concrete_label{4} {} };
class LABELSBASE_API keycode_655_80_label     : public labelsbase::concrete_label<keycode_655_80_label_t, keycode_655_80>       { public: keycode_655_80_label()     : concrete_label{4} {} };
class LABELSBASE_API keycode_658_80_label     : public labelsbase::concrete_label<keycode_658_80_label_t, keycode_658_80>       { public: keycode_658_80_label()     : concrete_label{4} {} };
class LABELSBASE_API keycode_6510_80_label    : public labelsbase::concrete_label<keycode_6510_80_label_t, keycode_6510_80>     { public: keycode_6510_80_label()    : concrete_label{4} {} };
class LABELSBASE_API keycode_655_120_label    : public labelsbase::concrete_label<keycode_655_120_label_t, keycode_655_120>     { public: keycode_655_120_label()    : concrete_label{4} {} };
class LABELSBASE_API keycode_658_120_label    : public labelsbase::concrete_label<keycode_658_120_label_t, keycode_658_120>     { public: keycode_658_120_label()    : concrete_label{4} {} };
class LABELSBASE_API keycode_6510_120_label   : public labelsbase::concrete_label<keycode_6510_120_label_t, keycode_6510_120>   { public: keycode_6510_120_label()   : concrete_label{4} {} };
class LABELSBASE_API keycode_6515_120_label   : public labelsbase::concrete_label<keycode_6515_120_label_t, keycode_6515_120>   { public: keycode_6515_120_label()   : concrete_label{4} {} };
// clang-format on
