#include "lists/event_reader.h"

#include <array>
#include <utility>

#include "lists/columns.h"
#include "lists/decision_list.h"
#include "lists/log.h"
#include "lists/table.h"
#include "lists/words.h"

namespace lists {
namespace {

constexpr char const* too_long = "the line is longer than 65536 bytes";

// An event may have two lines, for the two sides of a transition. Speed effects follow the last of them, each with
// the reel and the first source label of the line that it belongs to.
class decision_list_reader final : public event_reader {
 public:
  explicit decision_list_reader(list_sink& sink) noexcept : sink_{sink} {}

  void read(line const& next) override {
    if (!next.is_whole()) {
      if (next.column == 1) sink_.take_broken(place(next, next.text.substr(0, 20)), too_long);
      return;
    }
    std::visit([&](auto const& says) { take(next, says); }, read_statement(next.text));
  }

  void finish() override {
    for (std::size_t i = 0; i < size_; ++i) sink_.take(std::move(sides_[i]));
    size_ = 0;
  }

 private:
  void take(line const&, remark) {}
  void take(line const&, title const&) {}

  void take(line const& in, event const& says) {
    if (size_ == sides_.size() || (size_ > 0 && sides_[0].name.text != says.number)) finish();
    auto& side = sides_[size_++];
    side = {};
    side.name = place(in, says.number);
    side.reel = says.reel;
    side.tracks = says.tracks;
    side.transition_frames = place(in, says.transition_frames);
    side.source = {place(in, says.source_in), place(in, says.source_out), {}};
    side.record = {place(in, says.record_in), place(in, says.record_out), {}};
  }

  void take(line const& in, code_mode const& says) {
    finish();
    sink_.take_mode({place(in, says.words), says.drop_frame});
  }

  void take(line const& in, speed_effect const& says) {
    list_event* of = nullptr;
    for (std::size_t i = 0; i < size_; ++i) {
      auto& side = sides_[i];
      if (side.speed || !same_letters(side.reel, says.reel)) continue;
      bool const is_entry = side.source.in.text == says.entry;
      if (!of || is_entry) of = &side;
      if (is_entry) break;
    }
    if (of)
      of->speed = place(in, says.frames_per_second);
    else
      sink_.take_broken(place(in, says.reel.empty() ? says.frames_per_second : says.reel),
                        "the speed effect belongs to no event above it: expected the reel of one");
  }

  void take(line const&, audio_channels const& says) {
    if (size_ == 0) return;
    auto& tracks = sides_[size_ - 1].tracks;
    if (says.third) tracks += "/A3";
    if (says.fourth) tracks += "/A4";
  }

  void take(line const& in, broken_event const& says) {
    finish();
    sink_.take_broken(place(in, says.number),
                      "expected an event: number, reel, tracks, transition and four labels");
  }

  list_sink& sink_;
  std::array<list_event, 8> sides_;
  std::size_t size_ = 0;
};

// Rows below a heading, in logs and sheets.
class table_reader {
 public:
  table_reader(list_sink& sink, char delimiter, bool has_quotes) noexcept
      : sink_{sink}, cells_{delimiter, has_quotes} {}

  void read_heading(line const& next) {
    cells_.start(next);
    for (cell each; cells_.take(each);)
      if (each.begins) roles_.push_back(role_of(each.value()));
  }

  // Whether the heading goes on with the next line.
  [[nodiscard]] bool goes_on() const noexcept { return cells_.goes_on(); }

  void read_row(line const& next) {
    cells_.start(next);
    for (cell each; cells_.take(each);)
      if (each.begins && each.ends) take(next, each);
    if (cells_.goes_on()) return;
    sink_.take(std::exchange(row_, {}));
  }

 private:
  void take(line const& in, cell const& each) {
    auto const value = each.value();
    if (value.empty()) return;
    auto const role = each.index < roles_.size() ? roles_[each.index] : column_role::other;
    switch (role) {
      case column_role::name:
        row_.name = place(in, value);
        return;
      case column_role::tracks:
        row_.tracks = value;
        return;
      case column_role::other_rate:
        return;
      default:
        break;
    }
    if (placed_text* const label = label_of(role))
      *label = place(in, value);
    else if (looks_like_timecode(value))
      row_.others.push_back(place(in, value));
  }

  placed_text* label_of(column_role role) noexcept {
    switch (role) {
      case column_role::source_in:
        return &row_.source.in;
      case column_role::source_out:
        return &row_.source.out;
      case column_role::source_length:
        return &row_.source.length;
      case column_role::record_in:
        return &row_.record.in;
      case column_role::record_out:
        return &row_.record.out;
      case column_role::record_length:
        return &row_.record.length;
      case column_role::mark_in:
        return &row_.mark.in;
      case column_role::mark_out:
        return &row_.mark.out;
      case column_role::mark_length:
        return &row_.mark.length;
      default:
        return nullptr;
    }
  }

  list_sink& sink_;
  row_splitter cells_;
  std::vector<column_role> roles_;
  list_event row_;
};

class log_reader final : public event_reader {
 public:
  explicit log_reader(list_sink& sink) noexcept : sink_{sink}, rows_{sink, '\t', false} {}

  void read(line const& next) override {
    auto const part = next.column == 1 ? sections_.next(next.text) : part_;
    part_ = part;
    if (part == log_part::names) rows_.read_heading(next);
    if (part == log_part::row) rows_.read_row(next);
    if (part != log_part::heading) return;
    auto const [key, value] = read_log_entry(next.text);
    if (same_letters(key, "FPS")) sink_.take_rate(place(next, value));
  }

 private:
  list_sink& sink_;
  table_reader rows_;
  log_sections sections_;
  log_part part_ = log_part::blank;
};

class sheet_reader final : public event_reader {
 public:
  explicit sheet_reader(list_sink& sink) noexcept : sink_{sink} {}

  void read(line const& next) override {
    if (!rows_) {
      if (trimmed(next.text).empty()) return;
      auto const delimiter = delimiter_of(next.text);
      rows_ = std::make_unique<table_reader>(sink_, delimiter, delimiter != '\t');
      rows_->read_heading(next);
      is_heading_ = rows_->goes_on();
    } else if (is_heading_) {
      rows_->read_heading(next);
      is_heading_ = rows_->goes_on();
    } else if (!trimmed(next.text).empty() || rows_->goes_on()) {
      rows_->read_row(next);
    }
  }

 private:
  list_sink& sink_;
  std::unique_ptr<table_reader> rows_;
  bool is_heading_ = false;
};

}  // namespace

std::unique_ptr<event_reader> make_event_reader(list_format format, list_sink& sink) {
  switch (format) {
    case list_format::decision_list:
      return std::make_unique<decision_list_reader>(sink);
    case list_format::log:
      return std::make_unique<log_reader>(sink);
    case list_format::sheet:
      return std::make_unique<sheet_reader>(sink);
    case list_format::other:
      break;
  }
  return nullptr;
}

}  // namespace lists
