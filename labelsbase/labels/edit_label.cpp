#include "labelsbase/labels/edit_label.h"

#include <cstring>

#include "host/print.h"
#include "labelsbase/labelcvt/label_cvt.h"
#include "labelsbase/mposnxlate/clock_cel.h"
#include "labelsbase/support/text.h"

using namespace labelsbase;

constinit std::atomic<int> EditLabel::howmany{1};

namespace {

bool are_equal(MediumRollIdent const& a, MediumRollIdent const& b) noexcept {
  return a.medium == b.medium && a.generation == b.generation;
}

}  // namespace

EditLabel::EditLabel(Label const& label, MediumRollIdent const& roll) : Label{label} { init(roll); }

EditLabel::EditLabel(EditLabel const& other)
    : Label{other}, medium_roll{other.medium_roll}, reserved_flag{other.reserved_flag} {
  howmany.fetch_add(1, std::memory_order_relaxed);
}

EditLabel::EditLabel(EditLabel&& other) noexcept
    : Label{static_cast<Label&&>(other)}, medium_roll{other.medium_roll}, reserved_flag{other.reserved_flag} {
  howmany.fetch_add(1, std::memory_order_relaxed);
}

EditLabel::EditLabel(char const* keep) : Label{keep} {
  howmany.fetch_add(1, std::memory_order_relaxed);
  char const* const word = std::strstr(or_empty(keep), MediumRollId_name_str());
  if (word)
    MediumRollId_from_string(word + std::strlen(MediumRollId_name_str()), medium_roll,
                             start.converter->UserType());
  else
    medium_roll = {Medium_any, Gen_any};
  if (revision == 2) diagnostic_print("WARNING: Beta labels. Sometime, run FIXLABEL (call us if confused).\n");
}

EditLabel& EditLabel::operator=(EditLabel const& other) {
  if (this == &other) return *this;
  Label::operator=(other);
  medium_roll = other.medium_roll;
  return *this;
}

// NOLINTNEXTLINE(performance-noexcept-move-constructor)
EditLabel& EditLabel::operator=(EditLabel&& other) {
  if (this == &other) return *this;
  Label::operator=(static_cast<Label&&>(other));
  medium_roll = other.medium_roll;
  return *this;
}

EditLabel::~EditLabel() { howmany.fetch_sub(1, std::memory_order_relaxed); }

void EditLabel::init(MediumRollIdent const& roll) {
  medium_roll = roll;
  fixup_pitch();
  pitch_fixed = false;
  reserved_flag = 1;
  howmany.fetch_add(1, std::memory_order_relaxed);
}

void EditLabel::set_type(label_t type) {
  Label::set_type(type);
  fixup_pitch();
}

bool EditLabel::is_valid() const {
  return start.converter->UserType() != User_none && medium_roll.medium != Medium_none &&
         medium_roll.generation != Gen_unknown;
}

void EditLabel::set_MediumRoll(MediumRollIdent const& roll) {
  if (are_equal(roll, medium_roll)) return;
  medium_roll = roll;
  fixup_pitch();
  pitch_fixed = true;
}

bool EditLabel::operator==(EditLabel const& other) const {
  return Label::operator==(other) && are_equal(medium_roll, other.medium_roll);
}

char* EditLabel::make_keep_string(char* buffer) {
  char* const text = buffer ? buffer : keep_buffer_;
  std::size_t const size = buffer ? keep_string_size : sizeof keep_buffer_;
  std::size_t const label_length = write_keep_string(text, size);

  char roll[identifier_text_size];
  MediumRollId_to_string(roll, medium_roll);
  text_writer{text + label_length, size - label_length}.put(' ').put(MediumRollId_name_str()).put(' ').put(roll);
  return text;
}

EditLabel const& invalid_edit_label() {
  // It was counted from the start.
  static EditLabel const invalid = [] {
    EditLabel::howmany.fetch_sub(1, std::memory_order_relaxed);
    return EditLabel{get_invalid_label(), get_invalid_MediumRollIdent()};
  }();
  return invalid;
}

double transform_KIVtime_to_CELtime(double clock_seconds) { return mPosn_Xlate_ClockToCel(clock_seconds); }
double transform_CELtime_to_KIVtime(double cel_seconds) { return mPosn_Xlate_CelToClock(cel_seconds); }
