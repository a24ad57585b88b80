// How do I check what people type into a field, tell them what is wrong, and offer what they meant?
//
//   $ form_field 30f-drop 00:01:00;00
//   00:01:00;00
//            ^ drop-frame leaves out frames 00 and 01 of every minute that is not a tenth
//   Did you mean 00:01:00;02?
#include <cstdio>
#include <string>

#include "labelcheck/read.h"

namespace {

// What a form shows below the field; empty for a valid label. `sample` receives the answer.
std::string advice(label_t type, char const* typed, int& sample) {
  auto const read = labelcheck::read(type, typed);
  if (auto const* const reading = std::get_if<labelcheck::reading>(&read)) {
    sample = reading->sample;
    return {};
  }
  auto const& refused = std::get<labelcheck::refusal>(read);
  auto text = std::string(refused.position, ' ') + "^ " + labelcheck::explain(refused);
  if (!refused.nearest.empty()) text += "\nDid you mean " + refused.nearest + "?";
  return text;
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 3) {
    std::fputs("usage: form_field TYPE LABEL\n", stderr);
    return 2;
  }
  int sample = 0;
  auto const below = advice(edlstr_to_label_type(arguments[1]), arguments[2], sample);
  std::puts(arguments[2]);
  if (below.empty())
    std::printf("sample %d\n", sample);
  else
    std::puts(below.c_str());
}
