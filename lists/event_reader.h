// Reads the events of a list.
#pragma once

#include <memory>

#include "lists/lines.h"
#include "lists/list_event.h"
#include "lists/list_format.h"

namespace lists {

class event_reader {
 public:
  virtual ~event_reader() = default;

  // Reads the next line. Events go to the sink as soon as the lines that belong to them have been read.
  virtual void read(line const& next) = 0;

  // Sends the last event.
  virtual void finish() {}
};

// Returns the reader of a format, which sends to `sink`; null for list_format::other.
[[nodiscard]] std::unique_ptr<event_reader> make_event_reader(list_format format, list_sink& sink);

}  // namespace lists
