// The speed of edit labels on their media.

#include "host/current_project.h"
#include "labelsbase/MediumRoll/media_families.h"
#include "labelsbase/labelcvt/label_cvt.h"
#include "labelsbase/labels/edit_label.h"
#include "labelsbase/labels/pitch_rows.h"

using namespace labelsbase;

namespace {

// Returns the frames a second at which the picture shows 24 frame film, for sound of the first generation: 24 if
// the film keeps its speed. Returns 0 for a picture that is not a video source at 24, 25, 30, 50 or 60.
int picture_fps(MediumRollMedium picture, bool pulled_down, Kiv::FrameRate film_speed) noexcept {
  if (picture == Medium_film24) return 0;
  int const fps = source_family_fps(picture);
  bool const filmed_at_this_speed =
      (fps == 30 && film_speed == Kiv::FrameRate_30) || (fps == 25 && film_speed == Kiv::FrameRate_25);
  return fps != 0 && (pulled_down || filmed_at_this_speed) ? 24 : fps;
}

}  // namespace

void EditLabel::fixup_pitch() {
  auto const* const row = pitch_row_of(start.converter->type());
  if (!row) return;
  pitch = row->pitch_on(medium_roll.medium);
  pitch_fixed = true;
}

void EditLabel::fix_audio_label_pitch(transfer_type transfer, MediumRollMedium picture) {
  if (medium_roll.medium != Medium_audio) return;
  auto const film_speed = Kiv::CurrentProject::getInCameraFilmSpeed();
  fixup_pitch();

  auto const* const row = pitch_row_of(start.converter->type());
  double const in_sync = 1.0 / (row && row->sound_at_own_rate ? row->frames_per_second() : 24);
  double fixed = in_sync;
  bool const pulled_down = transfer == Transfer_project_rate;
  if (!pulled_down && transfer != Transfer_one_to_one) {
    if (is_slowed_source(picture)) fixed = in_sync * 1.001;
  } else if (medium_roll.generation == Gen_1st) {
    int const fps = picture_fps(picture, pulled_down, film_speed);
    if (fps == 0) return;
    if (fps != 24) fixed = in_sync * fps / 24;
  }
  pitch = fixed;
  pitch_fixed = true;
}

bool EditLabel::equivalentPlayoutLabelMediumRolls(EditLabel const& other) const noexcept {
  return are_one_playout(medium_roll.medium, other.medium_roll.medium);
}

bool EditLabel::equivalentPreviousGenerationMediumRolls(EditLabel const& other) const noexcept {
  if (medium_roll.generation == Gen_1st || other.medium_roll.generation == Gen_1st) return false;
  int const family = source_family_fps(medium_roll.medium);
  return family != 0 && family == source_family_fps(other.medium_roll.medium);
}
