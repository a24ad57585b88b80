// Reads any text as a file of settings. Wrong settings must change nothing, and right ones must be found again.

#include <sstream>

#include "fuzz/fuzz_input.h"
#include "refhost/refhost.h"

extern int const fuzz_words = 0;

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  fuzz_input const input{data, size};
  auto const& text = input.text();
  auto const load = [&] {
    std::istringstream settings{text};
    return refhost::load_settings(settings);
  };
  auto const before = refhost::project();
  refhost::project_guard const project{before};
  auto const errors = load();
  auto const after = refhost::project();
  demand(errors.empty() || after == before, "wrong settings change nothing", text);
  for (auto const& error : errors) demand(error.line > 0 && !error.message.empty(), "an error has words", text);
  demand(load().size() == errors.size() && refhost::project() == after, "settings load the same twice", text);
  return 0;
}
