#include <atomic>
#include <mutex>
#include <thread>
#include <type_traits>

#include "host/current_project.h"
#include "host/output.h"
#include "refhost/refhost.h"

namespace {

// A lock that is held for no longer than it takes to copy the settings. For the benchmark's row clock_to_cel,
// which reads them twice: a std::mutex would take a third of it.
class short_lock {
 public:
  void lock() noexcept {
    while (taken_.test_and_set(std::memory_order_acquire)) std::this_thread::yield();
  }
  void unlock() noexcept { taken_.clear(std::memory_order_release); }

 private:
  std::atomic_flag taken_;
};

constinit short_lock project_lock;
constinit refhost::project_settings current;
static_assert(std::is_trivially_destructible_v<refhost::project_settings>);

// Reads the settings at every call, so a reference to it stays valid when they change.
class output_picture final : public OutputFormat::Details {
 public:
  Kiv::Image::ScanMode getScanMode() const override { return refhost::project().output_scan; }
  Kiv::FrameRate getFrameRate() const override { return Kiv::CurrentProject::getOutputImageKIVFrameRate(); }
};

}  // namespace

namespace refhost {

project_settings project() {
  std::scoped_lock const lock{project_lock};
  return current;
}

void set_project(project_settings const& settings) {
  std::scoped_lock const lock{project_lock};
  current = settings;
}

}  // namespace refhost

namespace Kiv {

using refhost::project;

// This host keeps no earlier revisions: their rate is unknown.
FrameRate CurrentProject::getFrameRate(int revision) {
  return revision == 0 ? project().frame_rate : FrameRate_unknown;
}

bool CurrentProject::getUseDropFrameTimecode() { return project().drop_frame; }

double CurrentProject::getCelResolution() { return Kiv::getCelResolution(getFrameRate()); }

FrameRate CurrentProject::getInCameraFilmSpeed() { return project().film_speed; }

OutputFormat::Details const& CurrentProject::getOutputImageFormat(int) {
  static auto const& picture = *new output_picture;  // never destroyed
  return picture;
}

FrameRate CurrentProject::getOutputImageKIVFrameRate() {
  auto const settings = project();
  return settings.output_rate.value_or(settings.frame_rate);
}

bool CurrentProject::vidprojAudSyncIsPulledDown() { return project().audio_sync_pulled_down; }

bool CurrentProject::outputFormatIsPulledDown() { return project().output_pulled_down; }

// Any option but 1 leaves the gearing at FrameRate_unknown without pulldown.
OutputGearing::OutputGearing(int option) {
  if (option != 1) return;
  auto const settings = project();
  rate_ = settings.gearing_rate.value_or(settings.frame_rate);
  use_pulldown_ = settings.gearing_pulldown;
}

}  // namespace Kiv
