// Clock time and cel time in the tool.

#include "tests/tool.h"

namespace {

TEST_F(Tool, TurnsClockTimeIntoCelTimeAndBack) {
  expect({
      {"labels clock 3600 -0.04 0", "3600\n-0.04\n0\n"},
      {"labels clock --project-rate 24 --output-rate 30 3600 -4", "4500\n-5\n"},
      {"labels clock --project-rate 24 --output-rate 30 --back -- 4500 -5", "3600\n-4\n"},
      {"labels clock --project-rate 24 --output-rate 29.97 --pulled-down --back 1", "1.001\n"},
      {"printf '1e3\\r\\n4' | labels clock --output-rate=60000/1001", "1248.7512487512488\n4.9950049950049955\n"},
      {"labels clock --set gearing-rate=30 4; labels --set gearing-rate=30 clock --set gearing-pulldown=yes 4",
       "5\n4\n"},
      {"labels clock --set gearing-rate=30 --output-rate 25 24", "25\n"},
      {"for i in 0.1 1e-300 9e98 86399.999; do labels clock --output-rate 25 $i; done |"
       " labels clock --back --output-rate 25 | awk '{printf \"%.12g\\n\", $1}'",
       "0.1\n1e-300\n9e+98\n86399.999\n"},
  });
}

TEST_F(Tool, RefusesInvalidClockTimes) {
  std::string expected;
  for (auto const* const refused : {"1: \"1e99\"", "3: \"\"", "4: \"0x1\"", "5: \"nan\"", "6: \"-inf\"",
                                    "7: \"1e999\"", "8: \" 2\"", "9: \"1:00\""})
    expected += std::string{"labels: argument "} + refused +
                ": expected seconds, for example 3600 or -0.04, between -1e99 and 1e99\n";
  expect({{"labels clock -- 1e99 1 '' 0x1 nan -inf 1e999 ' 2' 1:00", "?\n1\n?\n?\n?\n?\n?\n?\n?\n",
           expected.c_str(), 1}});

  auto const wrong_rates = run("labels clock --project-rate fast --output-rate 31 1");
  EXPECT_EQ(wrong_rates.out, "");
  EXPECT_EQ(wrong_rates.err.find("labels: --project-rate"), 0U);
  EXPECT_NE(wrong_rates.err.find("\nlabels: --output-rate"), std::string::npos) << "both are reported";
  EXPECT_EQ(wrong_rates.exit_code, 2);
}

}  // namespace
