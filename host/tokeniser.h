// The host's splitter of texts.
#pragma once

#include "host/language.h"

// Splits a text at any of a set of separator characters. A run of separators counts as one. Separators at the
// start and at the end produce no empty tokens. The tokeniser works on a copy of the text.
//
//   tokeniser t{": REV: 1 ", ": "};  // t.next() returns "REV", then "1", then null
class tokeniser {
 public:
  // Neither `text` nor `separators` is ever null. If the host is out of memory, there are no tokens.
  tokeniser(char const* text, char const* separators);
  ~tokeniser();
  tokeniser(tokeniser const&) = delete;
  tokeniser& operator=(tokeniser const&) = delete;

  // Returns the next token, terminated, or null after the last one. The token stays valid as long as the
  // tokeniser.
  char const* next();

 private:
  struct state;
  state* state_ = nullptr;
};
