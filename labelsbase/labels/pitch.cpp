// The speed of edit labels, and the media that share one.

#include <algorithm>
#include <iterator>

#include "host/current_project.h"
#include "labelsbase/labelcvt/label_cvt.h"
#include "labelsbase/labels/edit_label.h"
#include "labelsbase/labels/pitch_rows.h"

using namespace labelsbase;

namespace {

bool is_one_of(std::span<MediumRollMedium const> media, MediumRollMedium medium) noexcept {
  return std::ranges::find(media, medium) != media.end();
}

// The sources of one nominal rate: interchangeable as a generation before.
constexpr MediumRollMedium sources_24[] = {Medium_film24, Medium_src_24p, Medium_src_2398p, Medium_src_24i,
                                           Medium_src_2398i};
constexpr MediumRollMedium sources_25[] = {Medium_src_25p, Medium_src_25i, Medium_src_50p};
constexpr MediumRollMedium sources_30[] = {Medium_src_30p,   Medium_src_2997p, Medium_src_30i,
                                           Medium_src_2997i, Medium_src_60p,   Medium_src_5994p};

// Pictures whose sound runs slower by 1000/1001.
constexpr MediumRollMedium slowed_pictures[] = {Medium_src_2398p, Medium_src_2398i, Medium_src_2997p,
                                                Medium_src_2997i, Medium_src_5994p};

// The picture's frames a second that first generation sound of 24 frame film is slowed by; 24 where it is not, 0
// where the picture's medium says nothing about it.
int picture_fps(MediumRollMedium picture, bool pulled_down, Kiv::FrameRate film_speed) noexcept {
  if (is_one_of(sources_30, picture)) return pulled_down || film_speed == Kiv::FrameRate_30 ? 24 : 30;
  if (is_one_of(sources_25, picture)) return pulled_down || film_speed == Kiv::FrameRate_25 ? 24 : 25;
  return is_one_of(sources_24, picture) && picture != Medium_film24 ? 24 : 0;
}

}  // namespace

void EditLabel::fixup_pitch() {
  auto const* const row = pitch_row_of(start.converter->type());
  if (!row) return;
  if (row->film_at_24 && medium_roll.medium == Medium_film)
    pitch = 1.0 / 24;
  else
    pitch = is_one_of(row->at, medium_roll.medium) ? row->pitch_there : row->pitch;
  pitch_fixed = true;
}

void EditLabel::fix_audio_label_pitch(transfer_type transfer, MediumRollMedium picture) {
  if (medium_roll.medium != Medium_audio) return;
  auto const film_speed = Kiv::CurrentProject::getInCameraFilmSpeed();
  fixup_pitch();

  auto const* const row = pitch_row_of(start.converter->type());
  double const in_sync = 1.0 / (row ? row->sound_fps : 24);
  double fixed = in_sync;
  bool const pulled_down = transfer == Transfer_project_rate;
  if (!pulled_down && transfer != Transfer_one_to_one) {
    if (is_one_of(slowed_pictures, picture)) fixed = in_sync * 1.001;
  } else if (medium_roll.generation == Gen_1st) {
    int const fps = picture_fps(picture, pulled_down, film_speed);
    if (fps == 0) return;
    if (fps != 24) fixed = in_sync * fps / 24;
  }
  pitch = fixed;
  pitch_fixed = true;
}

bool EditLabel::equivalentPlayoutLabelMediumRolls(EditLabel const& other) const noexcept {
  auto const is_output = [](MediumRollMedium medium) {
    return medium >= Medium_out_24p && medium <= Medium_out_5994p;
  };
  auto const mine = medium_roll.medium;
  auto const theirs = other.medium_roll.medium;
  return is_output(mine) && is_output(theirs) && getFrameRatefromMedium(mine) == getFrameRatefromMedium(theirs);
}

bool EditLabel::equivalentPreviousGenerationMediumRolls(EditLabel const& other) const noexcept {
  if (medium_roll.generation == Gen_1st || other.medium_roll.generation == Gen_1st) return false;
  auto const holds_both = [&](std::span<MediumRollMedium const> sources) {
    return is_one_of(sources, medium_roll.medium) && is_one_of(sources, other.medium_roll.medium);
  };
  return holds_both(sources_24) || holds_both(sources_25) || holds_both(sources_30);
}
