// Runs the strict reader on any text. A reading must be what the library reads, and what it writes; a refusal must
// point into the text and name a label that is valid; and a second run must answer the same.

#include "fuzz/fuzz_input.h"
#include "labelcheck/read.h"
#include "labelsbase/characters.h"
#include "labelsbase/labels.h"

extern int const fuzz_words = 1;

namespace {

using labelcheck::reading;
using labelcheck::refusal;

bool is_same(std::variant<reading, refusal> const& a, std::variant<reading, refusal> const& b) {
  if (a.index() != b.index()) return false;
  if (auto const* const x = std::get_if<reading>(&a))
    return x->sample == std::get<reading>(b).sample && x->prefix == std::get<reading>(b).prefix;
  auto const& x = std::get<refusal>(a);
  auto const& y = std::get<refusal>(b);
  return x.wrong == y.wrong && x.why == y.why && x.position == y.position && x.nearest == y.nearest &&
         explain(x) == explain(y);
}

// Returns a label with what the strict reader is free about made alike: the blank in front of it, and the
// separator before its frames, which may be ":".
std::string alike(std::string text) {
  if (text.starts_with(' ')) text.erase(0, 1);
  for (char& c : text)
    if (c == '.' || c == ';' || c == '+') c = ':';
  return text;
}

void demand_reading(label_t type, std::string const& text, reading const& label) {
  auto& converter = *get_static_label_cvt(type);
  auto const prefix_length = static_cast<std::size_t>(converter.get_prefix_length());
  demand(label.sample == converter.get_abs_sample(text.c_str()), "the library reads the same sample", text);
  demand(label.prefix == text.substr(0, prefix_length), "the prefix begins the text", text);

  LabelPoint point{converter, 0};
  converter.set_prefix(&point, text.c_str());
  std::string const written = converter.get_abs_string(&point, label.sample);
  bool const is_minus_a_day = label.sample == 0 && text.starts_with('-');
  demand(is_minus_a_day || alike(written) == alike(text), "the library writes what is valid", text);
}

void demand_refusal(label_t type, std::string const& text, refusal const& refused) {
  demand(refused.position <= text.size(), "a refusal points into the text", text);
  demand(!explain(refused).empty(), "a refusal has words", text);
  demand(refused.nearest.empty() || labelcheck::read(type, refused.nearest).index() == 0,
         "the nearest label is valid", text);
}

}  // namespace

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  fuzz_input input{data, size};
  auto const type = input.type();
  auto const& text = input.text();

  auto const result = labelcheck::read(type, text);
  demand(is_same(result, labelcheck::read(type, text)), "a text reads the same twice", text);
  if (auto const* const label = std::get_if<reading>(&result))
    demand_reading(type, text, *label);
  else
    demand_refusal(type, text, std::get<refusal>(result));
  return 0;
}
