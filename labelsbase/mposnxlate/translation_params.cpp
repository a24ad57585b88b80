#include "labelsbase/mposnxlate/translation_params.h"

#include "host/config.h"
#include "host/current_project.h"
#include "labelsbase/framecounts/transfers.h"

namespace {

// Moves a phase by `delta` video frames within the cycle of a pulldown: 5 video frames from film to 30 frames a
// second, 25 from film to 25. The result has the sign of the sum.
int moved_phase(int phase, int delta, transfer_type pulldown) noexcept {
  return static_cast<int>((std::int64_t{phase} + delta) % labelsbase::find_transfer(pulldown)->video_cycle);
}

void set_output_rate(MPosn_Xlate_Params& params, Kiv::FrameRate rate) {
  params.output_rate = rate;
  params.output_1001 = Kiv::has1001Factor(rate);
}

void set_output(MPosn_Xlate_Params& params, Kiv::FrameRate rate, bool pulled_down) {
  set_output_rate(params, rate);
  params.output_pulled_down = pulled_down;
}

void set_project(MPosn_Xlate_Params& params, Kiv::FrameRate rate) {
  params.project_rate = rate;
  params.cel_resolution = Kiv::getCelResolution(rate);
}

}  // namespace

MPosn_Xlate_Params::MPosn_Xlate_Params() { init(); }

MPosn_Xlate_Params::MPosn_Xlate_Params(Kiv::OutputGearing const& gearing) : MPosn_Xlate_Params{} {
  auto const rate = gearing.getFrameRate();
  set_output(*this, rate, gearing.getUsePulldown());
}

// The host is asked in the order of the fields.
void MPosn_Xlate_Params::init() {
  using Kiv::CurrentProject;
  transfer = Transfer_one_to_one;
  sequence = 0;
  video_rate = Kiv::FrameRate_unknown;
  video_medium = Medium_none;
  cookie = invalid_cookie;
  set_project(*this, CurrentProject::getFrameRate(0));
  set_output_rate(*this, CurrentProject::getOutputImageKIVFrameRate());
  audio_sync_pulled_down = CurrentProject::vidprojAudSyncIsPulledDown();
  reserved_flag = false;
  film_fps = Kiv::getFramesPerSecond(CurrentProject::getInCameraFilmSpeed());
  output_pulled_down = CurrentProject::outputFormatIsPulledDown();
  reserved = 0;
}

void MPosn_Xlate_Params::init_for_labelgroup(transfer_type labels_transfer, int first_sequence) {
  init();
  transfer = labels_transfer;
  sequence = first_sequence;
  video_rate = output_rate;
  auto const& picture = Kiv::CurrentProject::getOutputImageFormat(0);
  auto const scan = picture.getScanMode();
  video_medium = getMediumRollfromInputDetails(scan, picture.getFrameRate());
}

void MPosn_Xlate_Params::init_to_default_filmvid_conversion(Kiv::FrameRate rate) {
  set_project(*this, Kiv::CurrentProject::getFrameRate(0));
  sequence = 0;
  video_rate = rate;
  bool const pulldown = config_int("default_film_video_conversion_pulldown", 0) != 0;
  transfer = pulldown ? Transfer_project_rate : Transfer_one_to_one;
  video_medium = getDefaultEditMediumForProject(rate);
}

void MPosn_Xlate_Params::init_to_default_playout_generation() {
  sequence = 0;
  output_pulled_down = true;
}

void MPosn_Xlate_Params::initOutputFormat(Kiv::FrameRate project, Kiv::FrameRate output, bool pulledDown) {
  init();
  set_project(*this, project);
  set_output(*this, output, pulledDown);
}

void MPosn_Xlate_Params::modify_sequence_to_playfile_std(int delta) {
  if (transfer != Transfer_project_rate) return;
  bool const at_25 = video_rate == Kiv::FrameRate_25 || video_rate == Kiv::FrameRate_50;
  sequence = moved_phase(sequence, delta, at_25 ? Transfer_24_to_25 : Transfer_2_3_pulldown);
}

MPosn_Conversion_Params::MPosn_Conversion_Params() { init(); }

void MPosn_Conversion_Params::init() {
  adjust_sequence = false;
  transfer = Transfer_one_to_one;
  convert = true;
  conversion_kind = 1;
  sequence = 0;
  rate = Kiv::CurrentProject::getFrameRate(0);
  pulldown_kind = 0;
}

void MPosn_Conversion_Params::init_to_playout_generation() {
  transfer = Transfer_none;
  convert = false;
}

void MPosn_Conversion_Params::init_to_default_filmvid_conversion() {
  convert = true;
  conversion_kind = 1;
  rate = Kiv::CurrentProject::getFrameRate(0);
  pulldown_kind = transfer == Transfer_one_to_one ? 2 : 1;
}

void MPosn_Conversion_Params::modify_sequence_to_playfile_std(int delta) {
  if (!adjust_sequence) return;
  auto const pulldown = transfer == Transfer_24_to_25 ? Transfer_24_to_25 : Transfer_2_3_pulldown;
  sequence = moved_phase(sequence, delta, pulldown);
}
