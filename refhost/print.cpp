#include "host/print.h"

#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <mutex>
#include <string>
#include <string_view>
#include <utility>

#include "refhost/refhost.h"

namespace {

constinit std::mutex sink_mutex;

// Never destroyed: diagnostics are printed until the process ends.
refhost::diagnostic_sink& sink() {
  static auto& the_sink = *new refhost::diagnostic_sink;
  return the_sink;
}

// Calls the sink outside the lock, so that a sink can print and set sinks itself.
void hand_over(std::string_view text) {
  auto const current = [] {
    std::scoped_lock const lock{sink_mutex};
    return sink();
  }();
  if (current) return current(text);
  std::fwrite(text.data(), 1, text.size(), stderr);
}

}  // namespace

void diagnostic_print(char const* format, ...) {
  if (!format) return;
  std::va_list arguments;
  va_start(arguments, format);
  int const length = std::vsnprintf(nullptr, 0, format, arguments);
  va_end(arguments);
  if (length <= 0) return;

  std::string text(static_cast<std::size_t>(length), '\0');
  va_start(arguments, format);
  std::vsnprintf(text.data(), text.size() + 1, format, arguments);
  va_end(arguments);
  hand_over(text);
}

namespace refhost {

diagnostic_guard::diagnostic_guard(diagnostic_sink new_sink) {
  std::scoped_lock const lock{sink_mutex};
  before_ = std::exchange(sink(), std::move(new_sink));
}

diagnostic_guard::~diagnostic_guard() {
  std::scoped_lock const lock{sink_mutex};
  sink().swap(before_);
}

}  // namespace refhost
