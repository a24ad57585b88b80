// Film was transferred through a 2:3 pulldown, and the telecine gave one sync point: this key number was on this
// frame of the tape. Which key number is on each frame of a log?
//
//   $ key_number_log KJ1234560100+00 01:00:00:00 01:00:00:00 01:00:00:02 01:00:01:00 01:00:00:60
//   01:00:00:00  KJ1234560100+00
//   01:00:00:02  KJ1234560100+01
//   01:00:01:00  KJ1234560101+08
//   01:00:00:60  frames run from 00 to 29
#include <cstdio>
#include <string>

#include "labelcheck/read.h"
#include "labelcheck/write.h"
#include "labelconvert/conversion.h"

int main(int count, char** arguments) {
  if (count < 3) {
    std::fputs("usage: key_number_log KEY-NUMBER TIMECODE TIMECODE...\n", stderr);
    return 2;
  }
  auto const key = labelcheck::read(keycode_35_label_t, arguments[1]);
  auto const tape = labelcheck::read(ntsc_label_t, arguments[2]);
  for (auto const* const read : {&key, &tape})
    if (auto const* const refused = std::get_if<labelcheck::refusal>(read)) {
      std::fprintf(stderr, "sync point: %s\n", labelcheck::explain(*refused).c_str());
      return 1;
    }
  auto const& [key_sample, prefix] = std::get<labelcheck::reading>(key);

  labelconvert::conversion const film_of{{
      .from = {ntsc_label_t, Kiv::FrameRate_29_97},
      .to = {keycode_35_label_t, Kiv::FrameRate_24},
      .sync = {.from = std::get<labelcheck::reading>(tape).sample, .to = key_sample},
      .transfer = Transfer_2_3_pulldown,
  }};
  labelcheck::writer keys{keycode_35_label_t, prefix};

  for (int i = 3; i < count; ++i) {
    auto const read = labelcheck::read(ntsc_label_t, arguments[i]);
    std::string told = "before the first key of the roll";
    if (auto const* const refused = std::get_if<labelcheck::refusal>(&read))
      told = labelcheck::explain(*refused);
    else if (auto const film = film_of.of(std::get<labelcheck::reading>(read).sample); film && film->sample >= 0)
      told = keys.write(film->sample);
    std::printf("%s  %s\n", arguments[i], told.c_str());
  }
}
