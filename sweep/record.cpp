#include "sweep/record.h"

#include <fstream>
#include <iomanip>
#include <limits>
#include <stdexcept>
#include <string>

namespace sweep {
namespace {

constexpr char heading[] = "labels sweep 1";

// A line for each type, and one for each wrong sample:
//
//   type NUMBER CHECKED WRONG SECONDS BLOCKS
//   wrong NUMBER SAMPLE EXPECTED READ TEXT
void write(record const& all, std::ostream& out) {
  out << heading << '\n' << std::setprecision(std::numeric_limits<double>::max_digits10);
  for (std::size_t type = 0; type < all.size(); ++type) {
    auto const& [done, found, seconds] = all[type];
    out << "type " << type << ' ' << found.checked << ' ' << found.wrong << ' ' << seconds << ' ' << done << '\n';
    for (auto const& wrong : found.first)
      out << "wrong " << type << ' ' << wrong.sample << ' ' << wrong.expected << ' ' << wrong.read << ' '
          << wrong.text << '\n';
  }
}

bool read(std::istream& in, record& all) {
  std::string word;
  if (!std::getline(in, word) || word != heading) return false;
  std::size_t type = 0;
  while (in >> word >> type && type < all.size()) {
    auto& [done, found, seconds] = all[type];
    if (word == "type") {
      in >> found.checked >> found.wrong >> seconds >> done;
    } else {
      wrong_sample wrong{};
      in >> wrong.sample >> wrong.expected >> wrong.read;
      std::getline(in.ignore(), wrong.text);
      found.first.push_back(wrong);
    }
  }
  return in.eof();
}

}  // namespace

record load(std::filesystem::path const& file) {
  record all;
  std::ifstream in{file};
  if (in && !read(in, all)) throw std::runtime_error{file.string() + " is not the record of a sweep; remove it"};
  return all;
}

void save(record const& all, std::filesystem::path const& file) {
  auto const fresh = file.string() + ".new";
  std::ofstream out{fresh};
  write(all, out);
  out.close();
  if (!out) throw std::runtime_error{fresh + " cannot be written"};
  std::filesystem::rename(fresh, file);
}

}  // namespace sweep
