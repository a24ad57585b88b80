// Reads any bytes as a list. The lines must be the bytes that were read, findings must point into them, and a
// second run must find the same.

#include <sys/mman.h>
#include <unistd.h>

#include <vector>

#include "fuzz/fuzz_input.h"
#include "lists/check.h"
#include "lists/label_finder.h"

extern int const fuzz_words = 2;

namespace {

// A file in memory, read from its beginning.
class text_file {
 public:
  explicit text_file(std::string const& text) : fd_{memfd_create("list", 0)} {
    auto const written = pwrite(fd_, text.data(), text.size(), 0);
    demand(written == static_cast<ssize_t>(text.size()), "the text is written", text);
  }
  text_file(text_file const&) = delete;
  text_file& operator=(text_file const&) = delete;
  ~text_file() { close(fd_); }
  [[nodiscard]] int fd() const { return fd_; }

 private:
  int fd_;
};

// Returns the characters of each line, and demands that the lines are the text.
std::vector<std::size_t> line_lengths(std::string const& text) {
  text_file const file{text};
  lists::line_reader lines{file.fd()};
  std::vector<std::size_t> lengths;
  std::string all;
  while (auto const next = lines.next()) {
    all.append(next->mark).append(next->text).append(next->end);
    lengths.resize(static_cast<std::size_t>(next->number));
    lengths.back() = column_of(*next, next->text.size());
  }
  demand(all == text, "the lines are the bytes that were read", text);
  return lengths;
}

void find_labels(label_t type, std::string const& text) {
  if (!labelsbase::facts_of(type).has_labels()) return;
  lists::label_finder const labels{type};
  std::size_t end = 0;
  while (auto const label = labels.next(text, end)) {
    demand(label->at >= end && label->size > 0, "a label is behind the one before", text);
    end = label->at + label->size;
    demand(end <= text.size(), "a label is within the text", text);
    auto const again = labels.next(std::string_view{text}.substr(0, end), label->at);
    demand(again && again->at == label->at && again->size == label->size, "a label is found by itself", text);
  }
}

// Checks a list. Returns its findings, a line each.
std::string findings_of(std::string const& text, std::vector<std::size_t> const& lengths,
                        std::optional<labelnames::named_type> const& rate) {
  text_file const file{text};
  lists::line_reader lines{file.fd()};
  std::int64_t found = 0;
  std::string all;
  lists::check_handlers handlers;
  handlers.found = [&](lists::finding const& what) {
    ++found;
    bool const has_line = what.line >= 1 && what.line <= static_cast<std::int64_t>(lengths.size());
    demand(has_line, "a finding has a line", text);
    bool const has_column = what.column >= 1 && what.column <= lengths[static_cast<std::size_t>(what.line - 1)];
    demand(has_column, "a finding has a column", text);
    all += std::to_string(what.line) + ':' + std::to_string(what.column) + ' ' + what.text + '\n';
  };
  handlers.measured = [&](lists::event_length const& length) {
    demand(length.frames >= 0, "no length is negative", text);
  };
  auto const result = lists::check_list(lines, {rate}, handlers);
  demand(result.findings == found, "every finding is counted", text);
  return all;
}

}  // namespace

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  fuzz_input input{data, size};
  auto const type = input.type();
  auto const rate = labelnames::find(input.word());
  auto const& text = input.text();
  find_labels(type, text);
  auto const lengths = line_lengths(text);
  auto const findings = findings_of(text, lengths, rate);
  demand(findings == findings_of(text, lengths, rate), "a list is checked the same twice", text);
  return 0;
}
