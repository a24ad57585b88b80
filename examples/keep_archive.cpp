// How do I keep the ranges of rolls in a file, and find the roll that a frame is on?
//
//   $ keep_archive 01:59:59.24
//   LABEL_REV:1 pal_label  01:00:00.00 15000 0.0400000000 1
//   LABEL_REV:1 pal_label  01:50:00.00 15000 0.0400000000 1
//   roll 2, 9:59.24 from its start
#include <cstdio>
#include <sstream>
#include <string>
#include <vector>

#include "labelcheck/read.h"
#include "labelsbase/labels.h"

namespace {

// Ten minutes from a frame on.
Label roll_from(int first_frame) {
  Label roll = pal_label_t;
  roll.start.sample = first_frame;
  roll.length = 10 * 60 * 25;
  return roll;
}

}  // namespace

int main(int count, char** arguments) {
  auto const wanted = labelcheck::read(pal_label_t, count == 2 ? arguments[1] : "");
  if (auto const* const refused = std::get_if<labelcheck::refusal>(&wanted)) {
    std::fprintf(stderr, "keep_archive TIMECODE: %s\n", labelcheck::explain(*refused).c_str());
    return 2;
  }
  int const frame = std::get<labelcheck::reading>(wanted).sample;

  std::stringstream file;  // stands for a file: a line for each roll
  for (int const first : {60 * 60 * 25, 110 * 60 * 25}) {
    char text[Label::keep_string_size];
    file << roll_from(first).make_keep_string(text) << '\n';
  }
  std::fputs(file.str().c_str(), stdout);

  int number = 0;
  for (std::string line; std::getline(file, line);) {
    Label const roll{line.c_str()};
    ++number;
    if (!roll.contains(frame)) continue;
    int const offset = frame - roll.get_start();
    std::printf("roll %d, %d:%02d.%02d from its start\n", number, offset / 1500, offset / 25 % 60, offset % 25);
  }
}
