// The timecode of frame 90000 at 25 frames a second, by the installed package, and back.
#include <cstdio>
#include <string>

std::string shown(int sample);
int checked(char const* label);

int main() {
  auto const label = shown(90000);
  std::puts(label.c_str());
  return label == " 01:00:00.00" && checked("01:00:00.00") == 90000 ? 0 : 1;
}
