// The host's splitter of texts.
#pragma once

// Splits a text at any of the separator characters. A run of separators counts as one, and those at the start and
// the end give no empty token. The text is copied: it may change or go while tokens are read.
class tokeniser {
 public:
  // Null texts read as empty ones.
  tokeniser(char const* text, char const* separators);
  ~tokeniser();
  tokeniser(tokeniser const&) = delete;
  tokeniser& operator=(tokeniser const&) = delete;

  // The next token, terminated, good for the life of the tokeniser; null when none is left.
  char const* next();

 private:
  struct state;
  state* state_ = nullptr;
};
