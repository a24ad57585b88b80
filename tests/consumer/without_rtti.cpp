// A host that is built without run-time type information and without exceptions makes converters, derives from
// them and deletes them. The classes of the library stay those of the library: this program defines no vtable of
// theirs.
#include <cstdio>
#include <cstring>

#include "labelsbase/labels.h"

namespace own {

class timecode : public pal_label {
 public:
  using pal_label::pal_label;
  char const* type_str() const override { return "own::timecode"; }
};

class key_number : public keycode_35_label {
 public:
  char const* get_prefix(LabelPoint const*) const override { return "ZZ999999"; }
};

}  // namespace own

namespace {

struct expectation {
  label_cvt* converter;
  char const* text;  // of sample -1, moved up by a day where the type has days
  int frames;        // of that timecode, else 0
};

bool holds(expectation const& expected) {
  LabelPoint point{*expected.converter, 0};
  point.sample = -1;
  point.constrain_positive();
  short hours, minutes, seconds, frames;
  int const got = point.get_hmsf(hours, minutes, seconds, frames);
  bool const same = std::strcmp(point.get_string(), expected.text) == 0 && got == expected.frames;
  if (!same) std::printf("%s: %s, frames %d\n", expected.converter->type_str(), point.get_string(), got);
  return same;
}

}  // namespace

int main() {
  expectation const expectations[] = {
      {new pal_label(Format_full), " 23:59:59.24", 24},       {new own::timecode(Format_full), " 23:59:59.24", 24},
      {new keycode_35_label, "XX0000000000+00", 0},           {new own::key_number, "ZZ9999990000+00", 0},
      {make_any_label_cvt(ntsc_label_t), " 23:59:59.29", 29},
  };
  int failures = 0;
  for (auto const& expected : expectations) {
    if (!holds(expected)) ++failures;
    delete expected.converter;
  }
  return failures;
}
