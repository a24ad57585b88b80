// Reads any text as a keep string of a label, an edit label and a point. A label must be kept again as it was
// read, and a query that refuses must change nothing.

#include "fuzz/fuzz_input.h"
#include "labelcheck/range.h"
#include "labelsbase/labels.h"
#include "refhost/refhost.h"

extern int const fuzz_words = 3;

namespace {

constexpr auto keep_size = Label::keep_string_size;

// Writes a keep string with guard bytes around it. Returns an empty text for one that fills its buffer, and so may
// have been cut.
template <class Kept>
std::string kept(Kept& label, std::string const& text) {
  guarded<keep_size> buffer;
  std::string const written = label.make_keep_string(buffer.text());
  buffer.demand_whole(text);
  demand(written == label.make_keep_string(buffer.text()), "a label is kept the same twice", text);
  return written.size() + 1 < keep_size ? written : "";
}

template <class Kept>
void demand_kept(Kept& label, std::string const& text) {
  // Starts that have no label of their own are kept as another one, or as a placeholder, which film reads as a
  // number.
  if (!labelcheck::range_of(label.start.converter->type()).has_label(label.start.sample)) return;
  auto const first = kept(label, text);
  Kept again{first.c_str()};
  demand(first.empty() || kept(again, text) == first, "a label is kept as it was read", text);
}

// Both kinds of label read the fields that they share alike.
void demand_same(Label const& label, EditLabel const& edit, std::string const& text) {
  demand(label.start.sample == edit.start.sample && label.start.converter == edit.start.converter,
         "both kinds read the same start", text);
  demand(label.revision == edit.revision && label.length == edit.length && label.bounded == edit.bounded &&
             !std::memcmp(&label.pitch, &edit.pitch, sizeof label.pitch),
         "both kinds read the same fields", text);
}

void demand_queries(EditLabel& label, int offset, std::string const& text) {
  demand(std::strlen(label.get_string(offset)) <= LabelPoint::text_length, "a text fits its buffer", text);
  demand(std::strlen(label.get_perfs_string(offset)) <= LabelPoint::text_length, "a text fits its buffer", text);
  unsigned packed = 0xC0FFEE;
  bool const is_packed = label.get_smpte(offset, packed);
  demand(is_packed == (label.cmp(offset) == 0), "a label packs the offsets in range", text);
  demand(is_packed || packed == 0xC0FFEE, "a refused offset packs nothing", text);
  (void)label.posn_to_sample(label.get_abs_posn_extrapolate(offset));
  (void)label.abs_posn_to_sample(label.get_abs_posn(offset));
  label.fixup_pitch();
}

void demand_point(label_t type, int sample, std::string const& text) {
  LabelPoint point{type, sample};
  point.cvt()->set_prefix(&point, text.c_str());
  std::string const written = point.get_keep_string();
  demand(written.size() <= LabelPoint::text_length, "a text fits its buffer", text);
  if (!labelcheck::range_of(type).has_label(point.sample)) return;
  int const read = point.cvt()->get_keep_sample(written.c_str());
  demand(written == point.cvt()->get_keep_string(&point, read), "a point is kept as it was read", written);
}

}  // namespace

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  refhost::diagnostic_guard const silent{[](std::string_view) {}};
  fuzz_input input{data, size};
  auto const type = input.type();
  int const sample = input.number(), offset = input.number();
  auto const& text = input.text();

  Label label{text.c_str()};
  EditLabel edit{text.c_str()};
  demand_same(label, edit, text);
  demand_kept(label, text);
  demand_kept(edit, text);
  (void)edit.contains(label);
  demand_queries(edit, offset, text);
  demand_point(type, sample, text);
  return 0;
}
