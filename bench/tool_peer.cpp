// What a C program does with sscanf and printf, line by line: `tool_peer read|show FAMILY`, beside which
// bench/tool.py measures the tool.

#include <cstdio>
#include <cstring>

namespace {

struct family {
  char const* name;
  int frames_per_unit;  // frames of a second, key or foot
  char const* read;     // of film: count and frames
  char const* write;    // of film, in the same order
};

constexpr family families[] = {
    {"25", 25, nullptr, nullptr},
    {"29.97df", 30, nullptr, nullptr},
    {"35mm", 16, "KJ123456%4d+%2d", "KJ123456%04d+%02d\n"},
    {"ink35", 16, "AB12%4d+%2d", "AB12%04d+%02d\n"},
    {"feet35", 16, "%d+%2d", "%04d+%02d\n"},
};

bool is_drop(family const& asked) { return asked.frames_per_unit == 30; }

bool read(family const& asked, char const* line) {
  int hours = 0, minutes = 0, seconds = 0, frames = 0;
  char separator = 0;
  if (asked.read) {
    if (std::sscanf(line, asked.read, &seconds, &frames) != 2) return false;
  } else if (std::sscanf(line, "%2d:%2d:%2d%c%2d", &hours, &minutes, &seconds, &separator, &frames) != 5) {
    return false;
  }
  int count = ((hours * 60 + minutes) * 60 + seconds) * asked.frames_per_unit + frames;
  int const all_minutes = hours * 60 + minutes;
  if (is_drop(asked)) count -= 2 * (all_minutes - all_minutes / 10);
  return std::printf("%d\n", count) > 0;
}

bool show(family const& asked, char const* line) {
  int count = 0;
  if (std::sscanf(line, "%d", &count) != 1) return false;
  if (is_drop(asked)) {
    int const in_ten = count % 17982;
    count += 18 * (count / 17982) + (in_ten < 2 ? 0 : 2 * ((in_ten - 2) / 1798));
  }
  int const units = count / asked.frames_per_unit;
  int const frames = count % asked.frames_per_unit;
  if (asked.write) return std::printf(asked.write, units, frames) > 0;
  return std::printf("%02d:%02d:%02d%c%02d\n", units / 3600, units / 60 % 60, units % 60,
                     is_drop(asked) ? ';' : '.', frames) > 0;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  auto const work = std::strcmp(argv[1], "read") == 0 ? read : show;
  for (auto const& each : families) {
    if (std::strcmp(each.name, argv[2]) != 0) continue;
    char line[128];
    while (std::fgets(line, sizeof line, stdin))
      if (!work(each, line)) return 1;
    return 0;
  }
  return 2;
}
