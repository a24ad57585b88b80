// Media and medium-roll identifiers in the tool.

#include <algorithm>

#include "tests/tool.h"

namespace {

TEST_F(Tool, ListsTheMedia) {
  auto const [out, err, exit_code] = run("labels media");
  EXPECT_EQ(err, "");
  EXPECT_EQ(exit_code, 0);
  EXPECT_EQ(std::ranges::count(out, '\n'), 1 + 70 - 3);  // three numbers have no meaning
  EXPECT_EQ(run("labels media | tr -s ' ' | sed 's/^ //' | grep -E '^(number|1|3|14|17|29|45|60) '").out,
            "number name user frames/s sample label type also accepts\n"
            "1 any med? - - - all\n"
            "3 video video - - - -\n"
            "14 film24_out med? - - - 28 30\n"
            "17 src_24i 24i 24 field tc_24_label 15\n"
            "29 out_2398p med? 23.976 frame tc_24_label 28 31\n"
            "45 src_12p 12p 12 frame tc_12_label -\n"
            "60 out_125p med? 12.5 frame tc_12_label -\n");
}

TEST_F(Tool, ReadsIdentifiers) {
  struct {
    char const* line;
    char const* out;
  } const cases[] = {
      {"labels roll 28,1 3 4,0 src_24p,2",
       "28,1\tout_24p\tmed?,anyGen\n3,2\tvideo\tvideo,1stGen\n"
       "4,3\taudio\taudio,2ndGen\n15,2\tsrc_24p\t24p,1stGen\n"},
      {"labels roll --ink 15 15,2", "10,1\tink\tink,anyGen\n15,2\tsrc_24p\t24p,1stGen\n"},
      {"printf '13\\n15\\n' | labels roll --for film24 | cut -f 1,4", "13,1\tfits\n15,1\tfits\n"},
      {"labels roll --for 15,1 13 17,5 | cut -f 4", "does not fit\nfits\n"},
      {"labels roll --for any,3 40,3 40,4 | cut -f 4", "fits\ndoes not fit\n"},
  };
  for (auto const& c : cases) {
    auto const [out, err, exit_code] = run(c.line);
    EXPECT_EQ(out, c.out) << c.line;
    EXPECT_EQ(err, "") << c.line;
    EXPECT_EQ(exit_code, 0) << c.line;
  }
}

TEST_F(Tool, RefusesIdentifiersThatTheCatalogueDoesNotHave) {
  auto const [out, err, exit_code] =
      run("printf '28,6\\n71\\n28,1\\n5,1\\n-5\\n028\\n\\n28, 1\\nout_24\\n28,\\n28,1x\\n' | labels roll");
  std::string const no_medium =
      " is no medium; expected a number (28) or a name (out_24p), as 'labels media' lists them\n";
  std::string const no_generation =
      " is no generation; expected 1 (any), 2 to 5 (1st to 4th), or 0 for the usual one of the medium\n";
  EXPECT_EQ(out, "28,1\tout_24p\tmed?,anyGen\n");
  EXPECT_EQ(err, "labels: line 1: \"28,6\": \"6\"" + no_generation +         //
                     "labels: line 2: \"71\": \"71\"" + no_medium +          //
                     "labels: line 4: \"5,1\": \"5\"" + no_medium +          //
                     "labels: line 5: \"-5\": \"-5\"" + no_medium +          //
                     "labels: line 6: \"028\": \"028\"" + no_medium +        //
                     "labels: line 7: \"\": \"\"" + no_medium +              //
                     "labels: line 8: \"28, 1\": \" 1\"" + no_generation +   //
                     "labels: line 9: \"out_24\": \"out_24\"" + no_medium +  //
                     "labels: line 10: \"28,\": \"\"" + no_generation +      //
                     "labels: line 11: \"28,1x\": \"1x\"" + no_generation);
  EXPECT_EQ(exit_code, 1);
  EXPECT_EQ(run("labels roll --for 71 28").err, "labels: --for \"71\": \"71\"" + no_medium);
  EXPECT_EQ(run("labels roll --for 71 28").exit_code, 2);
}

}  // namespace
