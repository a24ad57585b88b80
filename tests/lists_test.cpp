// Lists: their lines, statements, cells, and what is wrong in them.

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "lists/check.h"
#include "lists/decision_list.h"
#include "lists/record_order.h"
#include "lists/table.h"

namespace lists {
namespace {

using namespace std::string_literals;

// A file in memory, read from its beginning.
class text_file {
 public:
  explicit text_file(std::string const& text) : fd_{memfd_create("list", 0)} {
    EXPECT_EQ(pwrite(fd_, text.data(), text.size(), 0), static_cast<ssize_t>(text.size()));
  }
  text_file(text_file const&) = delete;
  text_file& operator=(text_file const&) = delete;
  ~text_file() { close(fd_); }
  [[nodiscard]] int fd() const { return fd_; }

 private:
  int fd_;
};

TEST(Lines, AreTheBytesThatWereRead) {
  std::string const words(100'000, 'x');
  std::string labels;
  for (int i = 0; i < 30'000; ++i) labels += "01:00:00:00 ";
  struct {
    std::string text;
    std::vector<std::string> shown;  // "number:column text" of each piece
  } const cases[] = {
      {"", {}},
      {"a", {"1:1 a"}},
      {"a \r\nb\n\n\x1A", {"1:1 a ", "2:1 b", "3:1 ", "4:1 \x1A"}},
      {"\xEF\xBB\xBF"
       "a\nb",
       {"1:1 a", "2:1 b"}},
      {"a\rb\r", {"1:1 a", "2:1 b"}},
      {"a\r\rb\n", {"1:1 a\r\rb"}},
      {words + "\nb", {"1:1 " + words.substr(0, 65'536), "1:65537 " + words.substr(65'536), "2:1 b"}},
  };
  for (auto const& c : cases) {
    text_file const file{c.text};
    line_reader lines{file.fd()};
    std::string all;
    std::vector<std::string> shown;
    while (auto const next = lines.next()) {
      all.append(next->mark).append(next->text).append(next->end);
      shown.push_back(std::to_string(next->number) + ":" + std::to_string(next->column) + " " +
                      std::string{next->text});
    }
    EXPECT_EQ(all, c.text);
    EXPECT_EQ(shown, c.shown);
  }
  text_file const file{labels};
  line_reader lines{file.fd()};
  while (auto const next = lines.next()) EXPECT_TRUE(next->text.ends_with(' ') && next->text.starts_with("01"));
  EXPECT_EQ(lines.bytes(), static_cast<std::int64_t>(labels.size()));
}

TEST(Lines, NameWhatIsNoText) {
  struct {
    std::string bytes;
    char const* why;  // a part of it; empty for text
  } const cases[] = {
      {"T\303\244pe\r\n", ""},
      {"001 A\n\x1A\x1A\0\0"s, ""},
      {"", ""},
      {"\xFF\xFET\0"s, "UTF-16;"},
      {"\xFE\xFF\0T"s, "UTF-16;"},
      {"T\0I\0T\0"s, "UTF-16;"},
      {"\0T\0I\0T"s, "UTF-16;"},
      {"ab\nc\0d"s, "NUL byte (line 2, column 2)"},
  };
  for (auto const& [bytes, why] : cases) {
    auto const found = why_unreadable(bytes);
    EXPECT_EQ(found.has_value(), *why != '\0') << why;
    EXPECT_NE(found.value_or("").find(why), std::string::npos) << found.value_or("");
  }
}

TEST(DecisionList, ReadsStatements) {
  struct {
    char const* line;
    char const* parts;  // separated by "|"; the labels of an event are left out
  } const cases[] = {
      {"001  TAPE1 V C 01:00:00:00 01:00:01:00 10:00:00:00 10:00:01:00 \x1A", "event|001|TAPE1|V|C|"},
      {"000123 A_REEL_OF_32_CHARACTERS_IN_LENGTH AA/V  D    012 01:00:00:00 x 10:00:00:00 10:00:01:00",
       "event|000123|A_REEL_OF_32_CHARACTERS_IN_LENGTH|AA/V|D|012"},
      {"1 MY REEL A2 W001 025 01:00:00;00 01:00:01;00 10:00:00;00 10:00:01;00", "event|1|MY REEL|A2|W001|025"},
      {"2 R V K B 000 01:00:00:00 01:00:01:00 10:00:00:00 10:00:01:00", "event|2|R|V|K B|000"},
      {"2 R V KO 010 01:00:00:00 01:00:01:00 10:00:00:00 10:00:01:00", "event|2|R|V|KO|010"},
      {"003 V C 01:00:00:00 01:00:01:00 10:00:00:00 10:00:01:00", "event|003||V|C|"},
      {"004 R V X 01:00:00:00 01:00:01:00 10:00:00:00 10:00:01:00", "broken|004"},
      {"004 R V C 01:00:00:00 01:00:01:00", "broken|004"},
      {"004 R V D 00012 01:00:00:00 01:00:01:00 10:00:00:00 10:00:01:00", "event|004|R|V|D|00012"},
      {"004 R V C no label at all", "broken|004"},
      {"004 C 01:00:00:00 01:00:01:00 10:00:00:00 10:00:01:00", "broken|004"},
      {"M2   R 1   -025.0   01:00:00:00 ", "speed|R 1|-025.0|01:00:00:00"},
      {"m2 R +12", "speed|R|+12|"},
      {"AUD  3  4", "audio|3|4"},
      {"aud 4", "audio||4"},
      {"AUD 5", "remark"},
      {"AUD", "remark"},
      {"M2 R fast 01:00:00:00", "remark"},
      {"FCM: DROP FRAME\t", "mode|DROP FRAME|1"},
      {"FCM: NON DROP FRAME", "mode|NON DROP FRAME|0"},
      {"FCM: OTHER", "remark"},
      {"TITLE:   A B ", "title|A B"},
      {"123456789 R V C 01:00:00:00 01:00:01:00 10:00:00:00 10:00:01:00", "remark"},
      {"* FROM CLIP NAME: 001", "remark"},
      {"", "remark"},
  };
  struct {
    std::string operator()(remark) { return "remark"; }
    std::string operator()(title const& t) { return "title|" + std::string{t.text}; }
    std::string operator()(broken_event const& b) { return "broken|" + std::string{b.number}; }
    std::string operator()(code_mode const& m) {
      return "mode|" + std::string{m.words} + (m.drop_frame ? "|1" : "|0");
    }
    std::string operator()(speed_effect const& s) {
      return joined({"speed", s.reel, s.frames_per_second, s.entry});
    }
    std::string operator()(audio_channels const& a) {
      return joined({"audio", a.third ? "3" : "", a.fourth ? "4" : ""});
    }
    std::string operator()(event const& e) {
      return joined({"event", e.number, e.reel, e.tracks, e.transition, e.transition_frames});
    }
    static std::string joined(std::vector<std::string_view> const& parts) {
      std::string all;
      for (auto const part : parts) all.append(all.empty() ? "" : "|").append(part);
      return all;
    }
  } shown;
  for (auto const& [line, parts] : cases) EXPECT_EQ(std::visit(shown, read_statement(line)), parts) << line;
}

TEST(Table, SplitsQuotedCellsOverLines) {
  row_splitter cells{',', true};
  std::string shown;
  for (std::string const text : {"a,\"b,\"\"c\",", "d\"e,\"f", "g\",h", "", "\"\",i"}) {
    cells.start({.text = text});
    for (cell each; cells.take(each);) shown += std::to_string(each.index) + "[" + std::string{each.value()} + "]";
    shown += cells.goes_on() ? "+" : ";";
  }
  EXPECT_EQ(shown, "0[a]1[b,\"\"c]2[];0[d\"e]1[f]+1[g]2[h];0[];0[]1[i];");
}

// Holds the runs of a track against a count of each frame.
TEST(RecordOrder, FindsWhatIsFilledAndWhatIsNot) {
  std::mt19937 draw{7};
  for (int round = 0; round < 300; ++round) {
    record_order order;
    std::vector<int> filled(60);
    for (int line = 1; line <= 8; ++line) {
      auto const in = static_cast<std::int64_t>(draw() % 50);
      auto const out = in + static_cast<std::int64_t>(draw() % 9);
      bool was_free = true;
      for (auto at = in; at < out; ++at) was_free = filled[static_cast<std::size_t>(at)]++ == 0 && was_free;
      EXPECT_EQ(order.add("V", {in, out, line, 1}).frames == 0, was_free);
    }
    auto const first = std::ranges::find_if(filled, [](int n) { return n > 0; });
    auto const last = std::find_if(filled.rbegin(), filled.rend(), [](int n) { return n > 0; }).base();
    std::int64_t empty = 0;
    order.for_each_gap([&](record_order::gap const& gap) { empty += gap.frames; });
    EXPECT_EQ(empty, first < last ? std::count(first, last, 0) : 0);
  }
}

TEST(Check, FindsWhatIsWrong) {
  auto const event = [](std::string const& source, std::string const& record, std::string const& number = "001") {
    auto const full = [](std::string const& s) { return "01:00:" + s.substr(0, 5) + " 01:00:" + s.substr(6); };
    return number + "  R        V     C        " + full(source) + " " + full(record) + " \r\n";
  };
  auto const at_25 = event("00:20 01:10", "00:00 00:15", "000");  // 15 frames: at 25 alone
  struct {
    std::string list, rate, found, ends;  // found: "line:column kind", separated by blanks; ends: the rate
  } const cases[] = {
      {at_25 + event("00:00 01:00", "00:15 01:15"), "", "", "25"},
      {event("00:00 00:10", "00:00 00:10"), "", "", ""},  // agrees at every rate
      {event("00:00 00:10", "00:00 00:10"), "29.97df", "", "29.97df"},
      {at_25 + event("00:00 01:25", "00:15 01:15"), "", "2:51 label", "25"},
      {at_25 + event("00:00 00:10", "00:15 01:02"), "", "2:30 length", "25"},
      {at_25 + event("00:10 00:00", "00:15 01:00"), "", "2:42 backwards", "25"},
      {at_25 + event("00:00 00:10", "00:14 00:24"), "", "2:54 overlap", "25"},
      {at_25 + event("00:00 00:10", "00:16 01:01"), "", "2:54 gap", "25"},
      {at_25 + "AUD 3 4\n002 R A4 C 01:00:00:00 01:00:01:00 01:00:00:14 01:00:01:14\n", "", "3:36 overlap", "25"},
      {"001 R NONE C 01:00:00:00 01:00:01:00 01:00:00:00 01:00:01:00\nAUD 3\n002 R A3 C 01:00:00:00 01:00:01:00 "
       "01:00:01:01 01:00:02:01\n",
       "25", "3:36 gap", "25"},
      {"001 R A/A2/A3/A4/A5/A6/A7/A8/V C 01:00:00:00 01:00:01:00 01:00:00:00 01:00:01:00\n"
       "002 R A8 C 01:00:00:00 01:00:01:00 01:00:00:24 01:00:01:24\n",
       "25", "2:36 overlap", "25"},
      {event("00:00 00:10", "00:15 01:00") + at_25, "25", "", "25"},  // in any order
      {event("00:00 00:10", "00:10 00:20") + "M2 R 050.0 01:00:00:00\n", "25", "", "25"},
      {event("00:00 00:20", "00:10 00:20") + "M2 R 050.0 01:00:00:00\n", "25", "", "25"},
      {event("00:00 01:00", "00:10 00:20") + "M2 R 050.0 01:00:00:00\n", "25", "1:30 length", "25"},
      {event("00:00 00:11", "00:10 00:20") + "M2 R 050.0 01:00:00:00\n", "25", "", "25"},
      {event("01:00 00:15", "00:10 00:20") + "M2 R -025.0 01:00:01:00\n", "25", "", "25"},
      {event("00:00 00:10", "00:10 00:20") + "M2 S -025.0 01:00:01:00\n", "25", "2:4 form", "25"},
      {"FCM: DROP FRAME\n" + event("00:00 00:10", "00:10 00:20"), "", "", "29.97df"},
      {"FCM: DROP FRAME\n" + event("00:00 00:10", "00:10 00:20"), "25", "1:6 rate", "25"},
      {at_25 + "FCM: DROP FRAME\n" + event("00:00 00:10", "00:15 01:00"), "", "2:6 rate", "25"},
      {at_25 + "FCM: DROP FRAME\n" + event("00:00 00:10", "00:15 01:00"), "25", "2:6 rate", "25"},
      {"FCM: NON-DROP FRAME\n" + event("00:00 00;10", "00:10 00;20"), "30", "2:42 rate", "30"},
      {"FCM: DROP FRAME\n001 R V C 01:01:00:00 01:01:01:00 01:01:00:02 01:01:01:00\nFCM: NON-DROP FRAME\n"
       "002 R V C 01:02:00:00 01:02:01:00 01:01:01:00 01:01:02:00\n",
       "", "2:20 label", "29.97df"},
      {"001 R V C 23:59:59:00 00:00:01:00 01:00:00:00 01:00:02:00\n", "24", "", "24"},
      {"001 R V C 23:59:59:00 00:00:01:00 23:59:59:00 00:00:01:00\n002 R V C 01:00:00:00 01:00:01:00 00:00:01:00 "
       "00:00:02:00\n003 R V C 01:00:00:00 01:00:01:00 00:00:01:23 00:00:02:23\n",
       "24", "3:35 overlap", "24"},
      {"001 R V D 30 01:00:00:00 01:00:01:00 01:00:00:00 01:00:01:00\n002 R V C 01:00:00:00\n", "24",
       "1:11 length 2:1 form", "24"},
      {"Heading\nFPS\t25\n\nColumn\nName\tStart\tEnd\tDuration\tFilm TC\n\nData\n"
       "a\t01:00:00:00\t01:00:01:00\t00:00:01:00\t01:00:00:24\nb\t01:00:00:00\t01:00:01:00\t00:00:01:01\n",
       "", "9:27 length", "25"},
      {"Heading\nFPS\t29.97\nColumn\nStart\tEnd\nData\n01;01;00;00\t01;01;01;00\n", "", "6:10 label", "29.97df"},
      {"Heading\nFPS\t24\nColumn\nStart\tEnd\nData\n01:00:00:00\t01:00:01:00\n", "25", "2:5 rate", "25"},
      {"Heading\nFPS\t7\nColumn\nStart\tEnd\nData\n01:00:00:00\t01:00:01:00\n", "25", "2:5 rate", "25"},
      {"In,Out,Rec In,Rec Out\n01:00:00:00,01:00:00:25,00:00:00:00,00:00:01:00\n", "25", "2:22 label", "25"},
      {"Clip,\"In,\",Out,Rec In,Rec Out\n\"a\n\"\"b\",01:00:00:20,\"01:00:01:10\",00:00:00:00,00:00:00:15\n"
       "c,01:00:00:00,01:00:00:25,00:00:00:15,00:00:01:15\n",
       "25", "4:24 label", "25"},
      {"just a text\n", "25", "", ""},
  };
  for (auto const& c : cases) {
    text_file const file{c.list};
    line_reader lines{file.fd()};
    std::string found;
    check_options const options{c.rate.empty() ? std::nullopt : labelnames::find(c.rate)};
    auto const take = [&found](finding const& what) {
      found.append(found.empty() ? "" : " ").append(std::to_string(what.line) + ":" + std::to_string(what.column));
      found.append(" ").append(kind_name(what.kind));
    };
    auto const result = check_list(lines, options, {take, {}});
    EXPECT_EQ(found, c.found) << c.list;
    EXPECT_EQ(result.format == list_format::other || !result.rate ? "" : rate_name(*result.rate), c.ends)
        << c.list;
  }
}

}  // namespace
}  // namespace lists
