// Labels that know the medium and the roll that they were taken from.
#pragma once

#include <atomic>

#include "labelsbase/MediumRoll/medium_roll.h"
#include "labelsbase/export.h"
#include "labelsbase/framecounts/count_types.h"
#include "labelsbase/labels/label.h"

// A label whose medium decides the real speed of the material, and so its pitch: 30 frame timecode runs at 30
// frames a second on one medium, at 30000/1001 on another.
class LABELSBASE_API EditLabel : public Label {
 public:
  // Live edit labels, indicative only. The invalid edit label counts from the start, and every call of init counts
  // like a constructor.
  static std::atomic<int> howmany;

  MediumRollIdent medium_roll;

  // Whether the pitch was corrected after construction.
  bool pitch_fixed = false;

  int reserved_flag = 1;  // the host's; nothing here reads it

  // A label on a medium and roll, at the speed that this gives it.
  EditLabel(Label const& label, MediumRollIdent const& roll);

  // A copy, at the pitch of the other.
  EditLabel(EditLabel const& other);

  // A keep string: that of a label, and then "MediumRollId 15,2". Without this word the medium and roll are {1,
  // 1}. The pitch is the one that was kept. Strings of revision 2 are read, with a warning on the host's
  // diagnostic print.
  EditLabel(char const* keep);

  // The label part, the medium and the roll.
  EditLabel& operator=(EditLabel const& other);

  ~EditLabel();

  // Sets the medium and roll, the speed that they give the label, and the reserved flag.
  void init(MediumRollIdent const& roll);

  void set_type(label_t type);

  // Whether the type is one of labels, and medium and generation are known.
  [[nodiscard]] bool is_valid() const;

  [[nodiscard]] MediumRollIdent& get_MediumRoll() noexcept { return medium_roll; }
  [[nodiscard]] MediumRollIdent const& get_MediumRoll() const noexcept { return medium_roll; }
  void set_MediumRoll(MediumRollIdent const& roll);

  // Equal labels on one medium and roll.
  [[nodiscard]] bool operator==(EditLabel const& other) const;

  // As that of a label; null: into a buffer of this object, until the next such call.
  char* make_keep_string(char* buffer);

  // Gives the label the speed of its type on its medium. Types without a rule keep their pitch.
  void fixup_pitch();

  // Gives a label on the audio medium the speed of sound that is in sync with picture on medium `picture`, through
  // the transfer between them and the host's film speed. Labels on other media stay as they are.
  void fix_audio_label_pitch(transfer_type transfer, MediumRollMedium picture);

  // Whether the two media are one for playout, or for the generation before.
  [[nodiscard]] bool equivalentPlayoutLabelMediumRolls(EditLabel const& other) const noexcept;
  [[nodiscard]] bool equivalentPreviousGenerationMediumRolls(EditLabel const& other) const noexcept;

 private:
  char keep_buffer_[512] = {};
};

// The one invalid edit label: an invalid label on no medium.
[[nodiscard]] LABELSBASE_API EditLabel const& invalid_edit_label();

// Seconds of clock time as seconds of cel time, and back, through the current project's output gearing.
[[nodiscard]] LABELSBASE_API double transform_KIVtime_to_CELtime(double clock_seconds);
[[nodiscard]] LABELSBASE_API double transform_CELtime_to_KIVtime(double cel_seconds);
