#include "labelsbase/MediumRoll/medium.h"

#include "host/current_project.h"
#include "labelsbase/MediumRoll/medium_rows.h"
#include "labelsbase/support/broken.h"

using namespace labelsbase;

namespace {

constexpr char medium_roll_module[] = "labelsbase/MediumRoll";

struct media_index {
  static constexpr int roles = role_output + 1;
  static constexpr int rates = Kiv::FrameRate_239_76 + 1;

  MediumRollMedium media[roles][rates][2];  // progressive last
};

// The rows by role, rate and scan, so that finding one is no search. A rate of one scan stands under both.
constexpr media_index media_by_rate = [] {
  media_index result{};
  for (auto const& row : medium_rows) {
    if (row.role == role_none) continue;
    auto& scans = result.media[row.role][row.rate];
    scans[row.progressive] = row.medium;
    auto& other_scan = scans[!row.progressive];
    if (other_scan == Medium_none) other_scan = row.medium;
  }
  return result;
}();

// Medium_none for a rate without one.
MediumRollMedium find_medium(medium_role role, Kiv::FrameRate rate, bool progressive) noexcept {
  return rate >= 0 && rate < media_index::rates ? media_by_rate.media[role][rate][progressive] : Medium_none;
}

bool is_progressive(Kiv::Image::ScanMode scan) noexcept {
  return scan == Kiv::Image::ScanMode_progressive || scan == Kiv::Image::ScanMode_segmented_frame;
}

struct measured_rate_row {
  double above_fps;
  double below_fps;
  MediumRollMedium medium;
};

// Deliberate: bounds that two rows share, 23.99 among them, are in neither.
// clang-format off
constexpr measured_rate_row measured_rate_rows[] = {
    {23.0,  23.99, Medium_out_2398p},
    {23.99, 24.1,  Medium_out_24p},
    {24.9,  25.1,  Medium_out_25p},
    {29.0,  29.99, Medium_out_2997p},
    {29.99, 30.1,  Medium_out_30p},
    {49.9,  50.1,  Medium_out_50p},
    {59.8,  59.99, Medium_out_5994p},
    {59.99, 60.1,  Medium_out_60p},
};
// clang-format on

}  // namespace

namespace labelsbase {

char const* medium_name(MediumRollMedium medium) noexcept { return is_medium(medium) ? row_of(medium).name : ""; }

}  // namespace labelsbase

Kiv::FrameRate getFrameRatefromMedium(MediumRollMedium medium) noexcept { return row_of(medium).rate; }

bool mediumRollIsFrameProgressive(MediumRollMedium medium) noexcept { return row_of(medium).progressive; }

bool mediumIsDoubleRateProgressive(MediumRollMedium medium) noexcept { return row_of(medium).double_rate; }

double getSampleDurationFromMedium(MediumRollMedium medium) {
  auto const& row = row_of(medium);
  double const frame_seconds = Kiv::getFrameDuration(row.rate);
  return row.progressive ? frame_seconds : frame_seconds * 0.5;
}

label_t getDefaultLabelTypeForMedium(MediumRollMedium medium) noexcept {
  label_t const type = row_of(medium).label_type;
  if (type == null_label_t) broken("false", medium_roll_module, 696);
  return type;
}

label_t getLabelTypeForMediumFrameRate(MediumRollMedium medium) noexcept {
  return getDefaultLabelTypeForMedium(medium);
}

MediumRollMedium getMediumRollfromInputDetails(Kiv::Image::ScanMode scan, Kiv::FrameRate rate) {
  auto const medium = find_medium(role_source, Kiv::getNonDecimatedFrameRate(rate), is_progressive(scan));
  if (medium == Medium_none) broken("0", medium_roll_module, 224);
  return medium;
}

MediumRollMedium getMediumRollfromOutputDetails(Kiv::Image::ScanMode scan, Kiv::FrameRate rate) noexcept {
  auto const medium = find_medium(role_output, rate, is_progressive(scan));
  if (medium == Medium_none) broken("0", medium_roll_module, 361);
  return medium;
}

MediumRollMedium getMediumRollfromOutputFormat(OutputFormat::Details const& format) {
  auto const scan = format.getScanMode();
  return getMediumRollfromOutputDetails(scan, format.getFrameRate());
}

MediumRollMedium getMediumRollfromOutputFramerateDouble(double fps) noexcept {
  for (auto const& row : measured_rate_rows)
    if (row.above_fps < fps && fps < row.below_fps) return row.medium;
  return Medium_out_24p;
}

MediumRollMedium getOutputMediumfromFrameRate(Kiv::FrameRate rate) noexcept {
  auto const medium = find_medium(role_output, rate, true);
  if (medium != Medium_none) return medium;
  broken("false", medium_roll_module, 520);
  return Medium_out_24p;
}

MediumRollMedium getRepresentativeSourceMediumfromFrameRate(Kiv::FrameRate rate) noexcept {
  auto const medium = find_medium(role_source, rate, true);
  if (medium != Medium_none) return medium;
  broken("false", medium_roll_module, 577);
  return Medium_src_24p;
}

MediumRollMedium getDefaultEditMediumForProject(Kiv::FrameRate rate) noexcept {
  switch (rate) {
    case Kiv::FrameRate_25:
      return Medium_src_25i;
    case Kiv::FrameRate_30:
    case Kiv::FrameRate_29_97:
      return Medium_src_30i;
    case Kiv::FrameRate_50:
      return Medium_src_50p;
    case Kiv::FrameRate_60:
    case Kiv::FrameRate_59_94:
      return Medium_src_60p;
    default:
      return Medium_src_24i;
  }
}

MediumRollMedium getDefaultEditMediumForProject() {
  return getDefaultEditMediumForProject(Kiv::CurrentProject::getFrameRate(0));
}

MediumRollMedium getDefaultEditPlayoutMediumForProject() {
  switch (Kiv::CurrentProject::getFrameRate(0)) {
    case Kiv::FrameRate_25:
    case Kiv::FrameRate_50:
      return Medium_out_25i;
    case Kiv::FrameRate_30:
    case Kiv::FrameRate_29_97:
    case Kiv::FrameRate_60:
    case Kiv::FrameRate_59_94:
      return Medium_out_2997i;
    default:
      return Medium_out_24i;
  }
}
