#include "cli/items.h"

#include <unistd.h>

#include <cstdint>
#include <system_error>

#include "cli/line_reader.h"

namespace cli {
namespace {

// Counts the items and reports the refused ones.
class item_run {
 public:
  item_run(char const* place, console& io) noexcept : place_{place}, io_{io} {}

  void done(std::string_view item, problem const& wrong) {
    ++number_;
    if (!wrong) return;
    status_ = some_refused;
    io_.errors.say(place_ + std::to_string(number_) + ": " + quoted(item) + ": " + *wrong);
  }

  // Nobody gets the results when they cannot be written.
  [[nodiscard]] bool is_pointless() const noexcept { return io_.results.error() != 0; }
  [[nodiscard]] exit_status status() const noexcept { return status_; }

 private:
  std::string place_;  // "line "
  console& io_;
  std::int64_t number_ = 0;
  exit_status status_ = all_well;
};

exit_status for_each_line(console& io, item_taker const& take) {
  item_run run{"line ", io};
  problem const too_long = "the line is longer than " + std::to_string(line_reader::longest_line) + " bytes";
  line_reader lines{STDIN_FILENO, [&io] { io.flush(); }};
  while (!run.is_pointless()) {
    auto const line = lines.next();
    if (!line) break;
    run.done(line->text, line->too_long ? too_long : take(line->text));
  }
  if (lines.error() == 0) return run.status();
  io.errors.say("standard input: " + std::generic_category().message(lines.error()));
  return failed;
}

}  // namespace

exit_status for_each_item(std::vector<std::string> const& operands, console& io, item_taker const& take) {
  if (operands.empty()) return for_each_line(io, take);

  item_run run{"argument ", io};
  for (auto const& operand : operands) run.done(operand, take(operand));
  return run.status();
}

}  // namespace cli
