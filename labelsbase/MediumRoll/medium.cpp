#include "labelsbase/MediumRoll/medium.h"

#include <algorithm>
#include <iterator>

#include "host/current_project.h"
#include "labelsbase/MediumRoll/media_families.h"
#include "labelsbase/MediumRoll/medium_rows.h"
#include "labelsbase/labelcvt/rate_facts.h"
#include "labelsbase/support/broken.h"

using namespace labelsbase;

namespace {

// Where the assertion messages of this room say that they come from. Hosts know each message by its module and
// line, so the numbers stay as they are wherever the code moves.
constexpr char message_module[] = "labelsbase/MediumRoll";
constexpr int line_of_input_details = 224;
constexpr int line_of_output_details = 361;
constexpr int line_of_output_by_rate = 520;
constexpr int line_of_source_by_rate = 577;
constexpr int line_of_default_label_type = 696;

// The sources and outputs by rate and scan, so that finding one takes no search. A rate that has only one scan is
// entered under both.
struct media_by_rate {
  static constexpr int codes = std::end(all_rate_facts)[-1].rate + 1;

  struct scans {
    MediumRollMedium interlaced, progressive;
  };
  scans sources[codes];
  scans outputs[codes];
};

constexpr media_by_rate media = [] {
  media_by_rate result{};
  auto const enter = [](MediumRollMedium& own, MediumRollMedium& other, MediumRollMedium medium) {
    own = medium;
    if (other == Medium_none) other = medium;
  };
  for (auto const& row : medium_rows) {
    if (row.role == medium_role::general) continue;
    auto& [interlaced, progressive] =
        row.role == medium_role::source ? result.sources[row.rate] : result.outputs[row.rate];
    row.progressive ? enter(progressive, interlaced, row.medium) : enter(interlaced, progressive, row.medium);
  }
  return result;
}();

// Returns the medium of a rate, or Medium_none if the rate has none.
MediumRollMedium find_medium(media_by_rate::scans const (&by_rate)[media_by_rate::codes], Kiv::FrameRate rate,
                             bool progressive) noexcept {
  if (rate < 0 || rate >= media_by_rate::codes) return Medium_none;
  return progressive ? by_rate[rate].progressive : by_rate[rate].interlaced;
}

bool is_progressive(Kiv::Image::ScanMode scan) noexcept {
  return scan == Kiv::Image::ScanMode_progressive || scan == Kiv::Image::ScanMode_segmented_frame;
}

// The output of a measured rate, in frames per second. Deliberate: a bound that two rows share, 23.99 for example,
// is in neither.
struct measured_rate_row {
  double above_fps;
  double below_fps;
  MediumRollMedium medium;
};

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

// The media of a project.
struct project_row {
  Kiv::FrameRate rate;
  MediumRollMedium edit;
  MediumRollMedium playout;
};

// Deliberate: 29.97 edits in the fields of 30, and 59.94 in the frames of 60; 50 plays out in the fields of 25,
// and 30, 59.94 and 60 in those of 29.97.
// clang-format off
constexpr project_row project_rows[] = {
//   project                edits in        plays out in
    {Kiv::FrameRate_25,     Medium_src_25i, Medium_out_25i},
    {Kiv::FrameRate_30,     Medium_src_30i, Medium_out_2997i},
    {Kiv::FrameRate_29_97,  Medium_src_30i, Medium_out_2997i},
    {Kiv::FrameRate_50,     Medium_src_50p, Medium_out_25i},
    {Kiv::FrameRate_60,     Medium_src_60p, Medium_out_2997i},
    {Kiv::FrameRate_59_94,  Medium_src_60p, Medium_out_2997i},
};
constexpr project_row other_projects =
    {Kiv::FrameRate_unknown, Medium_src_24i, Medium_out_24i};
// clang-format on

project_row const& project_row_of(Kiv::FrameRate rate) noexcept {
  auto const* const row = std::ranges::find(project_rows, rate, &project_row::rate);
  return row == std::end(project_rows) ? other_projects : *row;
}

}  // namespace

char const* labelsbase::medium_name(MediumRollMedium medium) noexcept {
  return is_medium(medium) ? row_of(medium).name : "";
}

Kiv::FrameRate getFrameRatefromMedium(MediumRollMedium medium) noexcept { return row_of(medium).rate; }

bool mediumRollIsFrameProgressive(MediumRollMedium medium) noexcept { return row_of(medium).progressive; }

bool mediumIsDoubleRateProgressive(MediumRollMedium medium) noexcept {
  auto const& row = row_of(medium);
  int const family = family_fps(row);
  return family != 0 && facts_of(row.rate).nominal_fps == 2 * family;
}

double getSampleDurationFromMedium(MediumRollMedium medium) {
  auto const& row = row_of(medium);
  double const frame_seconds = Kiv::getFrameDuration(row.rate);
  return row.progressive ? frame_seconds : frame_seconds * 0.5;
}

label_t getDefaultLabelTypeForMedium(MediumRollMedium medium) noexcept {
  label_t const type = facts_of(row_of(medium).rate).timecode_type;
  if (type == null_label_t) broken("false", message_module, line_of_default_label_type);
  return type;
}

label_t getLabelTypeForMediumFrameRate(MediumRollMedium medium) noexcept {
  return getDefaultLabelTypeForMedium(medium);
}

MediumRollMedium getMediumRollfromInputDetails(Kiv::Image::ScanMode scan, Kiv::FrameRate rate) {
  auto const medium = find_medium(media.sources, Kiv::getNonDecimatedFrameRate(rate), is_progressive(scan));
  if (medium == Medium_none) broken("0", message_module, line_of_input_details);
  return medium;
}

MediumRollMedium getMediumRollfromOutputDetails(Kiv::Image::ScanMode scan, Kiv::FrameRate rate) noexcept {
  auto const medium = find_medium(media.outputs, rate, is_progressive(scan));
  if (medium == Medium_none) broken("0", message_module, line_of_output_details);
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
  auto const medium = find_medium(media.outputs, rate, true);
  if (medium != Medium_none) return medium;
  broken("false", message_module, line_of_output_by_rate);
  return Medium_out_24p;
}

MediumRollMedium getRepresentativeSourceMediumfromFrameRate(Kiv::FrameRate rate) noexcept {
  auto const medium = find_medium(media.sources, rate, true);
  if (medium != Medium_none) return medium;
  broken("false", message_module, line_of_source_by_rate);
  return Medium_src_24p;
}

MediumRollMedium getDefaultEditMediumForProject(Kiv::FrameRate rate) noexcept { return project_row_of(rate).edit; }

MediumRollMedium getDefaultEditMediumForProject() {
  return getDefaultEditMediumForProject(Kiv::CurrentProject::getFrameRate(0));
}

MediumRollMedium getDefaultEditPlayoutMediumForProject() {
  return project_row_of(Kiv::CurrentProject::getFrameRate(0)).playout;
}
