#include "lists/lines.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>

#include "labelsbase/characters.h"
#include "lists/encoding.h"

namespace lists {
namespace {

constexpr std::size_t block_size = 4 * line_reader::longest_line;

// Every byte of UTF-8 but the later ones of a character.
constexpr bool begins_character(char c) noexcept { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }

// Whether a label may have the character inside.
constexpr bool is_of_label(char c) noexcept {
  return labelsbase::is_alphanumeric(c) || std::string_view{":;.,+&-_"}.find(c) != std::string_view::npos;
}

// Returns the size of a piece of a line that goes on: up to the last character that no label has.
std::size_t piece_size(std::string_view text) noexcept {
  text = text.substr(0, line_reader::longest_line);
  for (std::size_t size = text.size(); size > text.size() / 2; --size)
    if (!is_of_label(text[size - 1]) && begins_character(text[size - 1])) return size;
  return text.size();
}

std::size_t characters_in(std::string_view text) noexcept {
  return static_cast<std::size_t>(std::ranges::count_if(text, begins_character));
}

}  // namespace

std::size_t column_of(line const& in, std::size_t byte) noexcept {
  return in.column + characters_in(in.text.substr(0, byte));
}

line_reader::line_reader(int fd, std::function<void()> before_reading)
    : fd_{fd}, before_reading_{std::move(before_reading)}, block_(block_size) {}

std::string_view line_reader::beginning() {
  begin();
  return unread();
}

// Reads the first block. A pipe may deliver it in parts.
void line_reader::begin() {
  if (std::exchange(has_begun_, true)) return;
  while (end_ < longest_line && unread().find('\n') == std::string_view::npos && refill()) {
  }
  mark_size_ = utf8_mark(unread());
  auto const text = unread();
  auto const is_classic = text.find('\n') == std::string_view::npos && text.find('\r') != std::string_view::npos;
  if (is_classic) line_end_ = '\r';
}

std::optional<line> line_reader::next() {
  begin();
  std::size_t searched = mark_size_;
  for (;;) {
    auto const text = unread();
    auto const end = text.find(line_end_, searched);
    if (end != std::string_view::npos && end <= longest_line) {
      bool const has_return = line_end_ == '\n' && end > mark_size_ && text[end - 1] == '\r';
      return take(end - mark_size_ - (has_return ? 1 : 0), has_return ? 2 : 1);
    }
    if (text.size() - mark_size_ > longest_line && text.size() > mark_size_)
      return take(piece_size(text.substr(mark_size_)), 0);
    searched = text.size();
    if (refill()) continue;
    if (text.empty() || error_ != 0) return std::nullopt;
    return take(text.size() - mark_size_, 0);
  }
}

line line_reader::take(std::size_t text_size, std::size_t end_size) {
  auto rest = unread();
  line taken;
  taken.mark = rest.substr(0, mark_size_);
  rest.remove_prefix(std::exchange(mark_size_, 0));
  taken.text = rest.substr(0, text_size);
  taken.end = rest.substr(text_size, end_size);
  taken.number = number_;
  taken.column = column_;
  taken.goes_on = end_size == 0 && rest.size() > text_size;
  begin_ += taken.mark.size() + text_size + end_size;
  if (taken.goes_on) {
    column_ += characters_in(taken.text);
  } else {
    column_ = 1;
    ++number_;
  }
  return taken;
}

// Reads more behind what is unread. Returns whether there is more.
bool line_reader::refill() {
  if (begin_ > 0) std::memmove(block_.data(), block_.data() + begin_, end_ - begin_);
  end_ -= std::exchange(begin_, 0);

  if (before_reading_) before_reading_();
  ssize_t size = 0;
  do {
    size = ::read(fd_, block_.data() + end_, block_.size() - end_);
  } while (size < 0 && errno == EINTR);
  if (size < 0) error_ = errno;
  if (size <= 0) return false;
  end_ += static_cast<std::size_t>(size);
  bytes_ += size;
  return true;
}

std::optional<std::string> why_unreadable(std::string_view beginning) {
  using namespace std::string_view_literals;
  if (is_utf16(beginning)) return utf16_refusal;
  auto const last = beginning.find_last_not_of("\0\x1A"sv);
  auto const text = beginning.substr(0, last == std::string_view::npos ? 0 : last + 1);
  auto const nul = text.find('\0');
  if (nul == std::string_view::npos) return std::nullopt;

  auto const before = text.substr(0, nul);
  auto const number = std::ranges::count(before, '\n') + 1;
  auto const start = before.find_last_of('\n');
  auto const column = nul - (start == std::string_view::npos ? 0 : start + 1) + 1;
  return "the text contains a NUL byte (line " + std::to_string(number) + ", column " + std::to_string(column) +
         "); expected text";
}

}  // namespace lists
