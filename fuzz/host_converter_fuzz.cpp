// Makes converters of a host's own with any numbers: rates, formats, gauges, perforations and digits. They must
// stay in their buffers and answer the same twice; with numbers that make sense, a label must be read back.

#include "fuzz/fuzz_input.h"
#include "labelsbase/labels.h"

extern int const fuzz_words = 6;

namespace {

struct own_prefix : prefix_label {
  own_prefix(int frames, int perfs, int length, unsigned digits) : prefix_label{frames, perfs, length} {
    set_count_len(digits);
  }
  char const* get_abs_string(LabelPoint* point, int sample) override {
    return write_label(point, wrap_to_counts(sample), typed_frames(), '+', sample & 3);
  }
  int get_abs_sample(char const* text) override { return read_count(text, std::strlen(text), '_'); }
  using variable_label::get_abs_sample;
};

struct own_timecode : timecode_label {
  own_timecode(label_t rate_type, int format) : timecode_label{rate_type, format} {}
};

// Uses a converter in every way that labels do.
void exercise(label_cvt& cvt, int sample, double pitch, std::string const& text) {
  cvt.build_template();
  LabelPoint point{cvt, sample};
  cvt.set_prefix(&point, text.c_str());
  std::string const written = cvt.get_abs_string(&point, sample);
  demand(written.size() <= LabelPoint::text_length, "a text fits its buffer", text);
  demand(written == cvt.get_abs_string(&point, sample), "a sample is written the same twice", text);
  demand(std::strlen(cvt.get_abs_perfs_string(&point, sample)) <= LabelPoint::text_length,
         "a text fits its buffer", text);
  int const read = cvt.get_abs_sample(text.c_str());
  demand(read == cvt.get_abs_sample(text.c_str()), "a text reads the same twice", text);
  (void)cvt.get_abs_sample_from_packed_string(text.c_str());
  (void)cvt.get_sample_span_from_packed_strings(text.c_str(), written.c_str());
  (void)cvt.normalise_sample_unit(read);
  (void)cvt.get_abs_smpte_string(&point, sample);
  auto packed = static_cast<unsigned>(sample);
  bool drop = false;
  (void)cvt.get_samples_from_SMPTETc(packed, drop);
  short h = 0, m = 0, s = 0, f = 0;
  (void)(point + point - point).get_hmsf(h, m, s, f);
  point.modify_count_length(5);

  Label label{cvt};
  label.pitch = pitch;
  label.length = sample;
  (void)label.get_string(read);
  (void)label.posn_to_sample(label.sample_to_posn(read));
  guarded<Label::keep_string_size> buffer;
  label.make_keep_string(buffer.text());
  buffer.demand_whole(text);
}

bool is_from_one_to(int value, int most) { return value >= 1 && value <= most; }

// Demands that the label of a sample within `samples` names its frame.
void demand_read_back(label_cvt& cvt, int sample, int samples, int unit) {
  LabelPoint point{cvt, 0};
  sample = static_cast<int>(static_cast<unsigned>(sample) % static_cast<unsigned>(samples));
  std::string const text = cvt.get_abs_string(&point, sample);
  demand(cvt.get_abs_sample(text.c_str()) == sample - sample % unit, "a label is read back", text);
}

}  // namespace

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  fuzz_input input{data, size};
  int const a = input.number(), b = input.number(), c = input.number(), d = input.number(),
            sample = input.number();
  double const pitch = input.real();
  auto const& text = input.text();
  auto const any_type = static_cast<label_t>(a);

  variable_label variable{a, b};
  own_prefix prefix{a, b, c, static_cast<unsigned>(d)};
  keycode_35 key{static_cast<unsigned>(d)};
  keycode_353 key_3_perf{static_cast<unsigned>(d)};
  keycode_label key_of_gauge{any_type, static_cast<unsigned>(d)};
  foot_label feet{a, b, c};
  ink_label ink{a, b};
  timecode_label timecode{a, c};
  pal_label pal{c};
  own_timecode timecode_of_type{any_type, c};
  for (label_cvt* const cvt : std::initializer_list<label_cvt*>{
           &variable, &prefix, &key, &key_3_perf, &key_of_gauge, &feet, &ink, &timecode, &pal, &timecode_of_type})
    exercise(*cvt, sample, pitch, text);

  if (timecode_label whole{a, Format_full}; is_from_one_to(a, 100)) demand_read_back(whole, sample, a * 86'400, 1);
  if (is_from_one_to(a, 100) && is_from_one_to(b, 100)) {
    demand_read_back(ink, sample, 10'000 * a * b, b);
    if (c >= 4 && c <= 8) demand_read_back(feet, sample, 10'000 * a * b, b);
  }
  return 0;
}
