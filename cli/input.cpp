#include "cli/input.h"

#include <sys/stat.h>

#include <system_error>

#include "cli/arguments.h"
#include "labelsbase/counts/integers.h"
#include "lists/encoding.h"

namespace cli {

namespace {

bool is_file(std::string const& name) noexcept {
  struct stat found {};
  return stat(name.c_str(), &found) == 0 && S_ISREG(found.st_mode);
}

}  // namespace

void add_items(CLI::App& command, char const* name, char const* meaning, item_arguments& given) {
  add_operands(command, name, meaning, given.operands);
  add_option(command, "--refused", "TEXT [?]", given.refused,
             "Written in the place of an item that is refused, so that each has its line");
}

item_loop::item_loop(std::vector<std::string> const& operands, console& io) noexcept
    : operands_{operands}, io_{io}, lines_{io}, is_at_lines_{operands.empty()} {
  io_.place = {is_at_lines_ ? "line" : "argument", 0};
}

bool item_loop::next_operand() {
  if (next_operand_ == operands_.size()) {
    io_.place = {};
    return false;
  }
  operand_ = operands_[next_operand_++];
  if (operand_ == "-") {
    is_at_lines_ = true;
    io_.place = {"line", 0};
    return next();
  }
  operand_.erase(labelsbase::wrap_add(operand_.find_last_not_of(" \t\r"), 1U));  // npos + 1 is 0
  text_ = operand_;
  is_refused_ = false;
  io_.place = {"argument", static_cast<std::int64_t>(next_operand_)};
  return true;
}

bool item_loop::accept_first_line() {
  text_.remove_prefix(lists::utf8_mark(text_));
  if (!lists::is_utf16(text_)) return true;
  io_.say(std::string{"standard input: "} + lists::utf16_refusal);
  status_ = failed;
  return false;
}

void item_loop::refuse_long_line() {
  refuse("the line is longer than " + std::to_string(line_reader::longest_line) + " bytes");
}

void item_loop::hint_at_blank_line() {
  io_.hint("blank; blank lines are passed through");
  has_hinted_ = true;
}

bool item_loop::end_of_lines() {
  if (lines_.error() != 0) {
    io_.say("standard input: " + std::generic_category().message(lines_.error()));
    status_ = failed;
  }
  is_at_lines_ = false;
  return status_ != failed && io_.results.error() == 0 && next_operand();
}

void item_loop::refuse(std::string_view why) {
  is_refused_ = true;
  reason_ = why;
  if (status_ == all_well) status_ = some_refused;
  auto message = refusal(io_.place.text() + ":", text_, why);
  if (!is_at_lines_ && is_file(operand_))
    message.append("; this is a file: 'labels check' and 'labels rewrite' take lists, and '<")
        .append(text_)
        .append("' gives its lines");
  io_.say(message);
}

}  // namespace cli
