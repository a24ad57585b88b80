// rewrite: other labels in a list, a log, a sheet or any text.

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <system_error>

#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/input_file.h"
#include "cli/list_rewriter.h"
#include "cli/replacement.h"

namespace cli {
namespace {

struct arguments {
  conversion_arguments how;
  column_choice columns;
  std::vector<std::string> files;
  std::string in_place;  // "true", or the suffix of the backup; empty without the option
};

std::string in_words(std::int64_t count, char const* one) {
  return std::to_string(count) + ' ' + one + (count == 1 ? "" : "s");
}

std::string summary(list_rewriter const& done) {
  auto const& counts = done.counts();
  auto text = std::string{format_name(done.format())} + ", " + in_words(counts.lines, "line") + ": " +
              in_words(counts.found, "label") + " found, " + std::to_string(counts.changed) + " changed, " +
              std::to_string(counts.refused) + " refused";
  if (counts.others > 0) text += "; rate lines, speeds and transitions changed: " + std::to_string(counts.others);
  return text;
}

// Writes one file to the output. Ends the command with exit code 2 if it cannot be read.
list_rewriter rewrite_to(output& out, std::string const& name, label_converter& labels, arguments const& given,
                         console& io) {
  input_file const file{name};
  lists::line_reader lines{file.fd(), [&] {
                             io.flush();
                             io.show_progress(file.fd());
                           }};
  if (auto const why = lists::why_unreadable(lines.beginning())) throw std::runtime_error{name + ": " + *why};

  list_rewriter rewriter{labels, given.columns, name, out, io};
  rewriter.begin(lines.beginning());
  while (auto const next = lines.next()) {
    rewriter.take(*next);
    if (out.error() != 0) break;
  }
  if (lines.error() != 0) throw std::runtime_error{name + ": " + std::generic_category().message(lines.error())};
  return rewriter;
}

exit_status rewrite_in_place(std::string const& name, label_converter& labels, arguments const& given,
                             console& io) {
  replacement file{name};
  auto const out = std::make_unique<output>(file.fd());
  auto const done = rewrite_to(*out, name, labels, given, io);
  out->flush();
  if (out->error() != 0)
    throw std::runtime_error{name + ": " + std::generic_category().message(out->error()) +
                             "; the file is as it was"};

  auto const& counts = done.counts();
  auto text = name + ": " + summary(done);
  if (counts.refused > 0) {
    io.say(text + "; the file is as it was, because labels were refused");
    return some_refused;
  }
  bool const is_same = counts.changed + counts.others == 0 && !given.columns.added;
  if (!is_same) file.put_in_place(given.in_place == "true" ? "" : given.in_place);
  io.say(text);
  return all_well;
}

exit_status rewrite(arguments const& given, console& io) {
  if (given.columns.added && !given.columns.column)
    refuse("--add-column", *given.columns.added, "needs --column, the column whose labels it has");
  label_converter labels{given.how, io};
  if (lists::label_finder{labels.from().type}.is_bare_number() && !given.columns.column)
    refuse("--from", given.how.from, "its labels are bare numbers; name their --column");

  bool const has_input = given.files.empty() || std::ranges::find(given.files, "-") != given.files.end();
  if (!given.in_place.empty() && has_input) refuse("FILE", "-", "--in-place needs a file, not standard input");
  auto const files = given.files.empty() ? std::vector<std::string>{"-"} : given.files;
  if (given.in_place.empty() && files.size() > 1)
    refuse("FILE", files[1], "only --in-place takes more than one file");

  auto worst = all_well;
  for (auto const& file : files) {
    if (!given.in_place.empty()) {
      worst = std::max(worst, rewrite_in_place(file, labels, given, io));
      continue;
    }
    auto const done = rewrite_to(io.results, file, labels, given, io);
    io.say(file + ": " + summary(done));
    if (done.counts().refused > 0) worst = some_refused;
  }
  return worst;
}

}  // namespace

command_run commands::declare_rewrite(CLI::App& command) {
  auto const given = std::make_shared<arguments>();
  given->how.writing.style = "exchange";
  add_conversion(command, given->how);
  add_option(command, "--column", "NAME|N", given->columns.column,
             "The only column to rewrite, by its heading or its number from 1, in a log or a table");
  add_option(command, "--add-column", "NAME", given->columns.added,
             "Leave that column as it is, and add one with this heading for the new labels");
  add_flag(command, "--in-place", given->in_place,
           "Replace each FILE, whole or not at all. --in-place=.bak keeps the old one as FILE.bak");
  add_operands(command, "FILE", "Text to rewrite; - or none for standard input", given->files);
  add_examples(
      command,
      {{"echo 'Take 3 from 01:00:00:12 to 01:00:10:00' | labels rewrite --from 25 --to 29.97df",
        "Take 3 from 01:00:00;14 to 01:00:10;00\nlabels: -: text, 1 line: 2 labels found, 2 changed, 0 refused"},
       {"printf 'Shot,Start\\n12A,00:00:10:00\\n' | labels rewrite --from 24 --to feet35 --column Start "
        "--add-column Feet",
        "Shot,Start,Feet\n12A,00:00:10:00,0015+00\nlabels: -: CSV, 2 lines: 1 label found, 1 changed, 0 refused"},
       "rewrite --from 24 --to 25 --by frame --in-place=.bak cut.edl"});
  return [given](console& io) { return rewrite(*given, io); };
}

}  // namespace cli
