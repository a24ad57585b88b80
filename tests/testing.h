// What the tests of the library share: the interface, the host, converters as a host derives them, and rows of
// labels.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <initializer_list>
#include <limits>
#include <map>
#include <memory>
#include <random>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "host/current_project.h"
#include "labelsbase/MediumRoll.h"
#include "labelsbase/framecounts.h"
#include "labelsbase/labelcvt/rate_facts.h"
#include "labelsbase/labels.h"
#include "labelsbase/mposnxlate.h"
#include "refhost/refhost.h"

inline constexpr int invalid = labelsbase::invalid_sample;

inline constexpr int code_behind_the_last = std::end(labelsbase::all_rate_facts)[-1].rate + 1;  // of the rates

inline label_cvt& shared(label_t type) { return *get_static_label_cvt(type); }

// What a call prints on standard output.
template <typename Call>
std::string said_by(Call call) {
  testing::internal::CaptureStdout();
  call();
  return testing::internal::GetCapturedStdout();
}

struct written_row {
  label_t type;
  int sample;
  char const* text;
};

struct read_row {
  label_t type;
  char const* text;
  int sample;
};

inline void expect_written(std::initializer_list<written_row> rows) {
  for (auto const& row : rows) {
    std::unique_ptr<label_cvt> const cvt{make_any_label_cvt(row.type)};
    LabelPoint point{*cvt, 0};
    EXPECT_STREQ(cvt->get_abs_string(&point, row.sample), row.text) << cvt->type_str() << ' ' << row.sample;
  }
}

// By the shared converters, row after row.
inline void expect_read(std::initializer_list<read_row> rows) {
  for (auto const& row : rows)
    EXPECT_EQ(shared(row.type).get_abs_sample(row.text), row.sample) << (row.text ? row.text : "null");
}

// A timecode converter whose fields can be read and set.
template <class Timecode>
class open_timecode : public Timecode {
 public:
  using Timecode::Timecode;

  std::array<int, 4> split(int sample) {
    bool second_field = false;
    this->sample_to_hmsf(sample, second_field);
    return {this->hours_, this->minutes_, this->seconds_, this->frames_};
  }

  int join(std::array<int, 4> const& fields) {
    this->hours_ = fields[0];
    this->minutes_ = fields[1];
    this->seconds_ = fields[2];
    this->frames_ = fields[3];
    return this->hmsf_to_sample();
  }
};
