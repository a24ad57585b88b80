// What the tests of the strict reader share.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <random>
#include <span>
#include <string>
#include <string_view>

#include "labelcheck/label_check.h"

struct refusal_case {
  label_t type;
  std::string text;
  labelcheck::field wrong;
  std::size_t position;
  char const* rule;  // part of it
  char const* nearest;
};

inline void expect_refused(std::span<refusal_case const> cases) {
  for (auto const& c : cases) {
    auto const refused = labelcheck::check(c.type, c.text);
    ASSERT_TRUE(refused) << c.text;
    EXPECT_STREQ(field_name(refused->wrong), field_name(c.wrong)) << c.text;
    EXPECT_EQ(refused->position, c.position) << c.text;
    EXPECT_NE(refused->rule.find(c.rule), std::string::npos) << c.text << ": " << refused->rule;
    EXPECT_EQ(refused->nearest, c.nearest) << c.text;
  }
}

// The label that a refusal names must itself be one.
inline bool names_a_label(label_t type, labelcheck::refusal const& refused) {
  return refused.nearest.empty() || !labelcheck::check(type, refused.nearest);
}

// Changes, drops and adds a character, each by chance: the first `changed_in_8` times in 8, the others once in 8.
inline void damage(std::string& text, std::string_view alphabet, unsigned changed_in_8, std::mt19937& random) {
  if (random() % 8 < changed_in_8) text[random() % text.size()] = alphabet[random() % alphabet.size()];
  if (random() % 8 == 0) text.erase(random() % text.size(), 1);
  if (random() % 8 == 0) text.insert(random() % text.size(), 1, alphabet[random() % alphabet.size()]);
}

// Bytes of any kind, most of them familiar, through the types: all but one in `strange_one_in`.
inline void expect_any_bytes_taken(std::span<label_t const> types, std::string_view familiar, unsigned longest,
                                   unsigned strange_one_in) {
  std::mt19937 random{3};
  for (int i = 0; i < 100'000; ++i) {
    std::string text(random() % longest, '\0');
    for (char& c : text)
      c = random() % strange_one_in ? familiar[random() % familiar.size()] : static_cast<char>(random());
    auto const type = types[random() % types.size()];
    auto const refused = labelcheck::check(type, text);
    ASSERT_TRUE(!refused || names_a_label(type, *refused))
        << type << " \"" << text << "\" -> " << refused->nearest;
  }
}
