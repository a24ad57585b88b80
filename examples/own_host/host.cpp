// A host of one's own: everything that the headers in host/ declare, for a project of 29.97 frames a second in
// drop-frame.
#include <atomic>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "counting_memory.h"
#include "host/config.h"
#include "host/cookie.h"
#include "host/current_project.h"
#include "host/frame_rate.h"
#include "host/os.h"
#include "host/output.h"
#include "host/print.h"
#include "host/tokeniser.h"

// --- memory that counts ---

namespace {

constinit std::atomic<int> allocated{0};
constinit std::atomic<int> live{0};

struct counting_services final : Kiv::OperatingServices, Kiv::Allocator, Kiv::ReferenceCounts {
  Kiv::Allocator& allocator() noexcept override { return *this; }
  Kiv::ReferenceCounts& reference_counts() noexcept override { return *this; }

  void* allocate(std::size_t bytes) noexcept override {
    void* const block = std::malloc(bytes > 0 ? bytes : 1);
    if (block) ++allocated, ++live;
    return block;
  }
  void free(void* block) noexcept override {
    if (block) --live;
    std::free(block);
  }

  void increment(std::int32_t& count) noexcept override { std::atomic_ref{count}.fetch_add(1); }
  bool decrement(std::int32_t& count) noexcept override { return std::atomic_ref{count}.fetch_sub(1) == 1; }
};

constinit counting_services services;  // built by the compiler: ready before any static object

}  // namespace

int blocks_allocated() noexcept { return allocated; }
int blocks_live() noexcept { return live; }
Kiv::OperatingServices& OS() noexcept { return services; }

// --- the project and its rates ---

namespace Kiv {

double getFramesPerSecond(FrameRate rate) {
  if (rate == FrameRate_25) return 25;
  return rate == FrameRate_29_97 ? 30000.0 / 1001 : 24;  // positive for every code
}
double getFrameDuration(FrameRate rate) { return 1 / getFramesPerSecond(rate); }
double getCelResolution(FrameRate rate) { return getFrameDuration(rate); }
double getEditResolutionFrameGearing(FrameRate, FrameRate) { return 1; }  // played out as it is edited
FrameRate getNonDecimatedFrameRate(FrameRate rate) { return rate; }
bool has1001Factor(FrameRate rate) { return rate == FrameRate_29_97; }

FrameRate CurrentProject::getFrameRate(int) { return FrameRate_29_97; }
bool CurrentProject::getUseDropFrameTimecode() { return true; }
double CurrentProject::getCelResolution() { return getFrameDuration(getFrameRate()); }
FrameRate CurrentProject::getInCameraFilmSpeed() { return FrameRate_24; }
FrameRate CurrentProject::getOutputImageKIVFrameRate() { return getFrameRate(); }
bool CurrentProject::vidprojAudSyncIsPulledDown() { return false; }
bool CurrentProject::outputFormatIsPulledDown() { return false; }

OutputFormat::Details const& CurrentProject::getOutputImageFormat(int) {
  struct picture final : OutputFormat::Details {
    Image::ScanMode getScanMode() const override { return Image::ScanMode_interlaced_lower_first; }
    FrameRate getFrameRate() const override { return CurrentProject::getFrameRate(); }
  };
  static picture const output;
  return output;
}
OutputGearing::OutputGearing(int) : rate_{CurrentProject::getFrameRate()} {}

}  // namespace Kiv

// --- settings, messages, texts ---

int config_int(char const* key, int default_value) {
  return std::strcmp(key, "60p_timecode_type") == 0 ? 2 : default_value;  // 59.94 counts two fields a frame
}

constinit Cookie const invalid_cookie{};

void diagnostic_print(char const* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  std::vfprintf(stderr, format, arguments);
  va_end(arguments);
}

struct tokeniser::state {
  char* text;
  char* separators;
  char* rest;
};

tokeniser::tokeniser(char const* text, char const* separators)
    : state_{static_cast<state*>(std::malloc(sizeof(state)))} {
  if (!state_) return;
  *state_ = {strdup(text), strdup(separators), nullptr};
  state_->rest = state_->text;
}
tokeniser::~tokeniser() {
  if (!state_) return;
  std::free(state_->text);
  std::free(state_->separators);
  std::free(state_);
}
char const* tokeniser::next() {
  bool const works = state_ && state_->text && state_->separators;
  return works ? strtok_r(nullptr, state_->separators, &state_->rest) : nullptr;  // a run counts as one
}
