// Medium-roll identifiers in the tool.

#include "tests/tool.h"

namespace {

TEST_F(Tool, ReadsIdentifiers) {
  expect({
      {"labels roll 28,1 3 4,0 src_24p,2",
       "28,1\tout_24p\tmed?,anyGen\n3,2\tvideo\tvideo,1stGen\n"
       "4,3\taudio\taudio,2ndGen\n15,2\tsrc_24p\t24p,1stGen\n"},
      {"labels roll --ink 15 15,2", "10,1\tink\tink,anyGen\n15,2\tsrc_24p\t24p,1stGen\n"},
      {"printf '13\\n15\\n' | labels roll --for film24 | cut -f 1,4", "13,1\tfits\n15,1\tfits\n"},
      {"labels roll --for 15,1 13 17,5 | cut -f 4", "does not fit\nfits\n"},
      {"labels roll --for any,3 40,3 40,4 | cut -f 4", "fits\ndoes not fit\n"},
  });
}

TEST_F(Tool, RefusesIdentifiersThatTheCatalogueLacks) {
  std::string const medium = "; expected a number (28) or a name (out_24p) from 'labels media'\n";
  std::string const generation = "; expected 1 (any), 2 to 5 (1st to 4th) or 0 (the usual one of the medium)\n";
  auto const err = "labels: line 1: \"28,6\": unknown generation \"6\"" + generation +  //
                   "labels: line 2: \"999,1\": unknown medium \"999\"" + medium +       //
                   "labels: line 4: \"5\": unknown medium \"5\"" + medium +             //
                   "labels: line 5: \"028\": unknown medium \"028\"" + medium +         //
                   "labels: line 6: blank; blank lines are passed through\n"            //
                   "labels: line 7: \"28, 1\": unknown generation \" 1\"" +
                   generation +                                                        //
                   "labels: line 8: \"out_24\": unknown medium \"out_24\"" + medium +  //
                   "labels: line 9: \"28,\": unknown generation \"\"" + generation;
  expect({{"printf '28,6\\n999,1\\n28,1\\n5\\n028\\n\\n28, 1\\nout_24\\n28,\\n' | labels roll",
           "?\n?\n28,1\tout_24p\tmed?,anyGen\n?\n?\n\n?\n?\n?\n", err.c_str(), 1},
          {"labels roll --for 999 28", "", "labels: --for \"999\": unknown medium \"999\"", 2}});
}

}  // namespace
