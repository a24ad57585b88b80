// What the tests of the strict reader share.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <random>
#include <span>
#include <string>
#include <string_view>

#include "labelcheck/read.h"
#include "labelsbase/labels.h"

struct refusal_case {
  label_t type;
  std::string text;
  labelcheck::field wrong;
  labelcheck::reason why;
  std::size_t position;
  char const* nearest;
  char const* words = "";  // of the explanation, where they say more than the reason
};

inline void expect_refused(std::span<refusal_case const> cases) {
  for (auto const& c : cases) {
    auto const result = labelcheck::read(c.type, c.text);
    ASSERT_EQ(result.index(), 1U) << c.text;
    auto const& refused = std::get<labelcheck::refusal>(result);
    auto const words = explain(refused);
    EXPECT_TRUE(refused.wrong == c.wrong && refused.why == c.why) << c.text << ": " << words;
    EXPECT_EQ(refused.position, c.position) << c.text;
    EXPECT_EQ(refused.nearest, c.nearest) << c.text;
    EXPECT_NE(words.find(c.words), std::string::npos) << c.text << ": " << words;
  }
}

// Leaves the point at the sample that a text reads as, and returns true if that sample writes the text.
inline bool is_written(LabelPoint& point, std::string const& text) {
  point.sample = point.cvt()->get_abs_sample(text.c_str());
  std::string const written = point.get_string();
  return text == written || ' ' + text == written;
}

// Reads labels of a type and damaged ones. `is_label` says in another way whether a text is one, and
// leaves the point at the sample that it reads as.
inline void expect_only_written(label_t type, std::string_view alphabet, auto some_label, auto is_label) {
  std::mt19937 random{5};
  LabelPoint point{type, 0};
  int valid = 0;
  for (int i = 0; i < 2'000; ++i) {
    std::string text = some_label(point, random);
    if (random() % 2) text[random() % text.size()] = alphabet[random() % alphabet.size()];
    if (random() % 8 == 0) text.erase(random() % text.size(), 1);
    if (random() % 8 == 0) text.insert(random() % text.size(), 1, alphabet[random() % alphabet.size()]);

    auto const result = labelcheck::read(type, text);
    auto const* const label = std::get_if<labelcheck::reading>(&result);
    bool const is_right = is_label(point, text) ? label && label->sample == point.sample : !label;
    ASSERT_TRUE(is_right) << point.cvt()->type_str() << " \"" << text << '"';
    valid += label != nullptr;
  }
  EXPECT_TRUE(valid > 500 && valid < 1'750) << point.cvt()->type_str() << ": " << valid;
}
