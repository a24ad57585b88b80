// Labels that know the medium and the roll that their material is on.
//
//   EditLabel label{ntsc_label_t, {Medium_src_2997i, Gen_1st}};
//   label.pitch                                              // 1001.0 / 30000, the medium runs at 29.97
//   label.set_MediumRoll({Medium_src_30i, Gen_1st});
//   label.pitch                                              // 1.0 / 30
//   EditLabel kept = "LABEL_REV:1 pal_label 01:00:00.00 250 0.0400000000 1 MediumRollId 20,2";
//   kept.medium_roll.medium == Medium_src_25i                // true
#pragma once

#include <atomic>

#include "labelsbase/MediumRoll/medium_roll.h"
#include "labelsbase/export.h"
#include "labelsbase/framecounts/count_types.h"
#include "labelsbase/labels/label.h"

// A label with the speed of its medium: 30 frame timecode runs at 30 frames a second on one medium, and at
// 30000/1001 on another.
class LABELSBASE_API EditLabel : public Label {
 public:
  // How many edit labels there are, more or less: the invalid one counts from the start, and every call of init
  // counts like a constructor.
  static std::atomic<int> howmany;

  MediumRollIdent medium_roll;  // the medium and generation of the material

  // Whether the pitch was corrected after construction.
  bool pitch_fixed = false;

  int reserved_flag = 1;  // the host's; nothing here reads it

  // A label on a medium and roll, at the speed of its type there.
  EditLabel(Label const& label, MediumRollIdent const& roll);

  // A copy, at the pitch of the other.
  EditLabel(EditLabel const& other);

  // Reads a keep string: a label's, then "MediumRollId 15,2" anywhere after it. Without this word the medium and
  // the roll are {Medium_any, Gen_any}. The pitch is the one that was kept. A string of revision 2 also prints a
  // warning on the host's diagnostic print.
  EditLabel(char const* keep);

  // Copies the label part and the medium and roll.
  EditLabel& operator=(EditLabel const& other);

  // Moves as copying does, without a change of use counts. The other label keeps its value, but not its template.
  EditLabel(EditLabel&& other) noexcept;
  // NOLINTNEXTLINE(performance-noexcept-move-constructor): hosts' converters may throw
  EditLabel& operator=(EditLabel&& other);

  ~EditLabel();

  // Sets the medium and roll, the speed of the type there, and the reserved flag. Clears pitch_fixed.
  void init(MediumRollIdent const& roll);

  // Sets the type, at its speed on the medium.
  void set_type(label_t type);

  // Returns whether the type has labels and both the medium and the generation are known.
  [[nodiscard]] bool is_valid() const;

  // Returns the medium and generation of the material.
  [[nodiscard]] MediumRollIdent& get_MediumRoll() noexcept { return medium_roll; }
  [[nodiscard]] MediumRollIdent const& get_MediumRoll() const noexcept { return medium_roll; }

  // Sets the medium and roll, the speed of the type there, and pitch_fixed. The same medium and roll change
  // nothing.
  void set_MediumRoll(MediumRollIdent const& roll);

  // Returns whether the labels are equal and on one medium and roll.
  [[nodiscard]] bool operator==(EditLabel const& other) const;

  // Like Label::make_keep_string, with the roll appended. If `buffer` is null, uses this object's own, valid until
  // the next call.
  char* make_keep_string(char* buffer);

  // Sets the pitch of the type on its medium, and pitch_fixed. Types without a rule stay as they are.
  void fixup_pitch();

  // Sets the pitch of a label on Medium_audio to that of sound in sync with picture on medium `picture`, through
  // the transfer between them and the host's film speed. Labels on other media stay as they are.
  void fix_audio_label_pitch(transfer_type transfer, MediumRollMedium picture);

  // Returns whether both media are outputs of one rate: 24, 25, 30, 50, 60 or their 1001 rates. The scan may
  // differ.
  [[nodiscard]] bool equivalentPlayoutLabelMediumRolls(EditLabel const& other) const noexcept;

  // Returns whether either medium can replace the other as the generation before: neither is of the first
  // generation, and both are sources of 24 frames, of 25 and 50, or of 30 and 60. A 1001 rate counts as its whole
  // rate.
  [[nodiscard]] bool equivalentPreviousGenerationMediumRolls(EditLabel const& other) const noexcept;

 private:
  char keep_buffer_[512] = {};
};

// Returns the one invalid edit label: an invalid label on no medium.
[[nodiscard]] LABELSBASE_API EditLabel const& invalid_edit_label();

// Returns seconds of clock time as seconds of cel time, at the current project's output gearing.
[[nodiscard]] LABELSBASE_API double transform_KIVtime_to_CELtime(double clock_seconds);

// Returns seconds of cel time as seconds of clock time, at the current project's output gearing.
[[nodiscard]] LABELSBASE_API double transform_CELtime_to_KIVtime(double cel_seconds);
