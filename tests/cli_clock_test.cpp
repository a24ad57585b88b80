// Clock time and cel time in the tool.

#include "tests/tool.h"

namespace {

TEST_F(Tool, TurnsClockTimeIntoCelTimeAndBack) {
  struct {
    char const* line;
    char const* out;
  } const cases[] = {
      {"labels clock 3600 -0.04 0", "3600\n-0.04\n0\n"},
      {"labels clock --project-rate 24 --output-rate 30 3600 -4", "4500\n-5\n"},
      {"labels clock --project-rate 24 --output-rate 30 --back -- 4500 -5", "3600\n-4\n"},
      {"labels clock --project-rate 24 --output-rate 29.97 3600", "4495.504495504496\n"},
      {"labels clock --project-rate 24 --output-rate 29.97 --pulled-down --back 1", "1.001\n"},
      {"labels clock --project-rate 24 --output-rate 25 24; labels clock 25 --output-rate 50 --back", "25\n24\n"},
      {"printf '1e3\\r\\n4' | labels clock --output-rate=60000/1001", "1248.7512487512488\n4.9950049950049955\n"},
      {"labels clock --set gearing-rate=30 4; labels --set gearing-rate=30 clock --set gearing-pulldown=yes 4",
       "5\n4\n"},
      {"labels clock --set gearing-rate=30 --output-rate 25 24", "25\n"},
      {"labels clock --project-rate 29.97 --output-rate 23.98 1", "1\n"},
      {"for i in 0.1 1e-300 9e98 86399.999; do labels clock --output-rate 25 $i; done |"
       " labels clock --back --output-rate 25 | awk '{printf \"%.12g\\n\", $1}'",
       "0.1\n1e-300\n9e+98\n86399.999\n"},
  };
  for (auto const& c : cases) {
    auto const [out, err, exit_code] = run(c.line);
    EXPECT_EQ(out, c.out) << c.line;
    EXPECT_EQ(err, "") << c.line;
    EXPECT_EQ(exit_code, 0) << c.line;
  }
}

TEST_F(Tool, RefusesWhatIsNoClockTime) {
  auto const [out, err, exit_code] = run("labels clock -- 1e99 x 1 '' 0x1 nan -inf 1e999 ' 2' 1:00");
  EXPECT_EQ(out, "1\n");
  std::string expected;
  for (auto const* const refused : {"1: \"1e99\"", "2: \"x\"", "4: \"\"", "5: \"0x1\"", "6: \"nan\"",
                                    "7: \"-inf\"", "8: \"1e999\"", "9: \" 2\"", "10: \"1:00\""})
    expected += std::string{"labels: argument "} + refused +
                ": expected seconds, for example 3600 or -0.04, between -1e99 and 1e99\n";
  EXPECT_EQ(err, expected);
  EXPECT_EQ(exit_code, 1);

  auto const wrong_rates = run("labels clock --project-rate fast --output-rate 31 1");
  EXPECT_EQ(wrong_rates.out, "");
  EXPECT_EQ(
      wrong_rates.err,
      "labels: --project-rate: 'fast' is wrong; expected a frame rate (24, 23.976, 29.97, 30000/1001, 12.5 ...)"
      " or code:NUMBER\n"
      "labels: --output-rate: '31' is wrong; expected a frame rate (24, 23.976, 29.97, 30000/1001, 12.5 ...),"
      " code:NUMBER or project\n");
  EXPECT_EQ(wrong_rates.exit_code, 2);
}

}  // namespace
