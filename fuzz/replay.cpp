// Runs a fuzz target without the fuzzer: on the files of a folder, and then on inputs drawn at random, which are
// the same in every run; or on one file alone.

#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "fuzz/fuzz_input.h"

namespace {

constexpr int drawn_inputs = 20'000;

std::string current_input;

// Keeps the input that failed, to be replayed alone.
void keep_input(int) {
  std::ofstream{"replay_failed_input", std::ios::binary} << current_input;
  std::fputs("the input is in replay_failed_input\n", stderr);
}

void run(std::string const& input) {
  current_input = input;
  // A block of exactly this size lets the sanitizers see a read behind it.
  std::vector<std::uint8_t> const bytes(input.begin(), input.end());
  LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
}

// Texts that readers accept. They are damaged before use.
constexpr std::array texts{
    " 01:00:00.00",
    "-00:00:01;02",
    "23:59:59+23",
    "00:00:00.119",
    "99:99:99:99",
    " 12:34:56 78",
    "01000000",
    "00021612",
    "2147483648",
    "-99999999999999999999",
    "  +12-3",
    "KJ1234560123+07",
    "EH123456 9999&19",
    "KJ1234560001+21.3",
    "AB121234+05",
    " 0064+01",
    "-0002+21.3",
    "000024",
    "REV: 1 MediumRollId: 28,1 reelid: A001",
    "-1.5e-308",
    "0x1.8p+1023",
    "LABEL_REV:1 pal_label  01:00:00.00 250 0.0400000000 1 MediumRollId 15,2",
    "LABEL_REV:2 keycode_35_label KJ1234560123+07 2 0.0416666667 -2",
    "FCM: DROP FRAME\r\n001 R1 V C 01:00:59:20 01:01:00:10 00:00:00:00 00:00:00:18\r\n"
    "002 R 2 AA/V D 012 01:00:00;00 01:00:01;00 00:00:00;18 00:00:01;18 \r\nM2 R 2 -015.0 01:00:00;00\r\n",
    "Heading\nFPS\t24\n\nColumn\nName\tStart\tEnd\tDuration\n\nData\na\t01:00:00:00\t01:00:01:00\t00:00:01:00\n",
    "Clip,\"In\",Out,Rec In,Rec Out,Tracks\n\"a,\n\"\"b\",01:00:00:00,01:00:01:00,23:59:59:00,00:00:00:00,B\n",
};

class drawing {
 public:
  std::string input() {
    std::string input;
    for (int i = 0; i < fuzz_words; ++i) input.append(number()).append(i + 1 < fuzz_words ? " " : "\n");
    return input + text();
  }

 private:
  std::uint32_t below(std::size_t limit) { return static_cast<std::uint32_t>(random_() % limit); }

  std::string number() {
    constexpr char const* corners[] = {"0",           "1",     "3",     "4",           "16",           "24",
                                       "25",          "64",    "90000", "2147483646",  "2147483647",   "-1",
                                       "-2147483648", "1e300", "-0.04", "4294967.296", "0.0416666667", "-1e-9",
                                       "nan",         "inf"};
    switch (below(4)) {
      case 0:
        return corners[below(std::size(corners))];
      case 1:
        return std::to_string(below(70));
      case 2:
        return std::to_string(static_cast<int>(below(6'000'000)) - 3'000'000);
      default:
        return std::to_string(static_cast<int>(random_()));
    }
  }

  char character() {
    constexpr std::string_view likely = "0123456789+&.:;,-_ AKXREV";
    return below(8) ? likely[below(likely.size())] : static_cast<char>(random_());
  }

  std::string text() {
    std::string text;
    if (below(3) == 0)
      for (auto length = below(41); length > 0; --length) text += character();
    else
      text = texts[below(texts.size())];
    for (auto damage = below(4); damage > 0 && !text.empty(); --damage) {
      auto const at = below(text.size());
      switch (below(4)) {
        case 0:
          text[at] = character();
          break;
        case 1:
          text.erase(at, below(12));
          break;
        case 2:
          text.insert(at, text.substr(below(text.size()), below(20)));
          break;
        default:
          text.insert(at, 1, character());
      }
    }
    return text;
  }

  std::mt19937 random_{20'000};
};

}  // namespace

int main(int argc, char** argv) {
  namespace fs = std::filesystem;
  std::signal(SIGABRT, keep_input);
  if (argc != 2) return std::fputs("usage: replay FOLDER | FILE\n", stderr), EXIT_FAILURE;

  std::vector<fs::path> files;
  bool const is_folder = fs::is_directory(argv[1]);
  if (is_folder)
    for (auto const& file : fs::directory_iterator{argv[1]}) files.push_back(file);
  else
    files.emplace_back(argv[1]);
  for (auto const& path : files) {
    std::ifstream file{path, std::ios::binary};
    if (!file) return std::fprintf(stderr, "cannot read %s\n", path.c_str()), EXIT_FAILURE;
    run({std::istreambuf_iterator<char>{file}, {}});
  }
  if (!is_folder) return EXIT_SUCCESS;

  drawing drawn;
  for (int i = 0; i < drawn_inputs; ++i) run(drawn.input());
  return EXIT_SUCCESS;
}
