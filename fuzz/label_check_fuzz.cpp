// Runs the strict reader on any text. A reading must be what the library reads; a refusal must point into the text
// and name a label that is valid; and a second run must answer the same.

#include "fuzz/fuzz_input.h"
#include "labelcheck/read.h"
#include "labelsbase/labels.h"

extern int const fuzz_numbers = 1;

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

}  // namespace

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  fuzz_input input{data, size};
  auto const type = static_cast<label_t>(input.number<std::uint32_t>() % numLabelCvts);
  auto const text = input.rest();

  auto const result = labelcheck::read(type, text);
  demand(is_same(result, labelcheck::read(type, text)), "a text reads the same twice", text);
  if (auto const* const label = std::get_if<reading>(&result)) {
    auto& converter = *get_static_label_cvt(type);
    auto const prefix_length = static_cast<std::size_t>(converter.get_prefix_length());
    demand(label->sample == converter.get_abs_sample(text.c_str()), "the library reads the same sample", text);
    demand(label->prefix == text.substr(0, prefix_length), "the prefix begins the text", text);
  } else {
    auto const& refused = std::get<refusal>(result);
    demand(refused.position <= text.size(), "a refusal points into the text", text);
    demand(!explain(refused).empty(), "a refusal has words", text);
    demand(refused.nearest.empty() || labelcheck::read(type, refused.nearest).index() == 0,
           "the nearest label is valid", text);
  }
  return 0;
}
