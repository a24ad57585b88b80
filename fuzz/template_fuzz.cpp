// Takes any text as a template. Each of its characters must accept as many characters as the rules say, and a
// placeholder must have the template's shape.

#include "fuzz/fuzz_input.h"
#include "labelsbase/labelcvt/label_cvt.h"

extern int const fuzz_words = 1;

namespace {

// How many of the 256 characters a position accepts.
int accepted_by(char c) {
  if (c >= '0' && c <= '9') return c - '0' + 1;
  if ((c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z')) return c - 'A' + 1;
  if (c == '-') return 3;
  return c == '?' ? 94 : 0;
}

void demand_position(LabelTemplate const& shape, std::string const& text, unsigned at) {
  int accepted = 0;
  for (int c = -128; c < 128; ++c) accepted += shape.isValidChar(static_cast<char>(c), at);
  demand(accepted == (at < text.size() ? accepted_by(text[at]) : 0), "a position accepts what it should", text);
  demand(!accepted || !shape.isAtSeparator(at), "nothing is typed at a separator", text);
  demand(at < text.size() || !shape.isAtSeparator(at), "there is no separator past the end", text);
}

}  // namespace

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  fuzz_input input{data, size};
  int const sample = input.number();
  std::string const text = input.text().c_str();

  LabelTemplate const shape{text.c_str()};
  demand(shape.text() == text, "a template keeps its text", text);
  constexpr unsigned checked = 14;  // positions, so that a long text takes no longer
  for (unsigned at = 0; at < checked; ++at) demand_position(shape, text, at);
  demand_position(shape, text, static_cast<unsigned>(text.size()));

  std::string_view const placeholder = shape.getInvalidString(sample);
  demand(placeholder.size() == text.size(), "a placeholder has the length of its template", text);
  for (unsigned at = 0; at < text.size(); ++at)
    demand(!shape.isAtSeparator(at) || text[at] == '+' || placeholder[at] == text[at],
           "a placeholder has its separators", text);

  LightweightString<char> const shared{text.c_str()};
  LabelTemplate const same{shared};
  demand(same.text() == text && placeholder == same.getInvalidString(sample), "both forms are one", text);
  return 0;
}
