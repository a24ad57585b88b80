#include "labelsbase/support/broken.h"

#include <cstdio>

#include "labelsbase/support/text.h"

void labelsbase::broken(char const* expression, char const* module, int line) noexcept {
  char message[256];
  text_writer out{message};
  out.put("assertion failed ").put(expression).put(" at ").put(module);
  out.put(" line ").number(line).put('\n');
  std::fwrite(message, 1, out.length(), stdout);
}
