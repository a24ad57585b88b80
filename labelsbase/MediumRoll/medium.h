// The media that material can be on, and the maps between them and the host's rates and scan modes.
#pragma once

#include <cstdint>

#include "host/frame_rate.h"
#include "host/output.h"
#include "labelsbase/export.h"
#include "labelsbase/labelcvt/label_types.h"

// A medium. The numbers are stored in identifier texts and never change. Callers may hand in any 32-bit value.
//
// Media 0 to 14 are general: they have no rate, and mediumRollIsFrameProgressive is false for them. From 15 on,
// the name of a medium says its role, rate and scan:
//
//   Medium_src_2997i    a source, which material is captured on; 29.97; interlaced: a sample is a field
//   Medium_out_24p      an output, which an edit is played out to; 24; progressive: a sample is a frame
//   Medium_src_120pb    "b" marks the second rate of one nominal rate: 119.88 beside 120
enum MediumRollMedium : std::int32_t {
  Medium_none = 0,  // no medium; what lookups return on failure
  Medium_any = 1,   // matches every medium
  Medium_film,
  Medium_video,
  Medium_audio,
  Medium_reserved_5,
  Medium_reserved_6,
  Medium_clock,   // real playback time at the output
  Medium_output,  // the current output picture, whichever that is
  Medium_reserved_9,
  Medium_ink,         // ink-numbered roll
  Medium_lab,         // laboratory roll
  Medium_cel,         // the project's internal timeline
  Medium_film24,      // 24 frame film picture: a source
  Medium_film24_out,  // its output counterpart
  Medium_src_24p,
  Medium_src_2398p,
  Medium_src_24i,
  Medium_src_2398i,
  Medium_src_25p,
  Medium_src_25i,
  Medium_src_30p,
  Medium_src_2997p,
  Medium_src_30i,
  Medium_src_2997i,
  Medium_src_50p,
  Medium_src_60p,
  Medium_src_5994p,
  Medium_out_24p,
  Medium_out_2398p,
  Medium_out_24i,
  Medium_out_2398i,
  Medium_out_25p,
  Medium_out_25i,
  Medium_out_30p,
  Medium_out_2997p,
  Medium_out_30i,
  Medium_out_2997i,
  Medium_out_50p,
  Medium_out_60p,
  Medium_out_5994p,
  Medium_src_48p,
  Medium_src_48pb,
  Medium_out_48p,
  Medium_out_48pb,
  Medium_src_12p,
  Medium_src_12pb,
  Medium_src_125p,  // 12.5
  Medium_src_15p,
  Medium_src_15pb,
  Medium_src_20p,
  Medium_src_80p,
  Medium_src_90p,
  Medium_src_100p,
  Medium_src_120p,
  Medium_src_120pb,
  Medium_src_240p,
  Medium_src_240pb,
  Medium_out_12p,
  Medium_out_12pb,
  Medium_out_125p,
  Medium_out_15p,
  Medium_out_15pb,
  Medium_out_20p,
  Medium_out_80p,
  Medium_out_90p,
  Medium_out_100p,
  Medium_out_120p,
  Medium_out_120pb,
  Medium_out_240p,
  Medium_out_240pb,
};

// Each of these takes any value; values that are not a medium count as general media.

// Returns the host's code of the frame rate, or FrameRate_unknown (0) for general media.
[[nodiscard]] LABELSBASE_API Kiv::FrameRate getFrameRatefromMedium(MediumRollMedium medium) noexcept;

// Returns whether a sample is a whole frame; false for interlaced media, whose samples are fields, and for general
// media.
[[nodiscard]] LABELSBASE_API bool mediumRollIsFrameProgressive(MediumRollMedium medium) noexcept;

// Returns whether the medium has 50 or 60 (59.94) whole frames a second, twice the frames of interlaced video.
[[nodiscard]] LABELSBASE_API bool mediumIsDoubleRateProgressive(MediumRollMedium medium) noexcept;

// Returns the seconds per sample: the host's frame duration, or half of it for a field. General media return half
// of the host's duration for rate code 0.
[[nodiscard]] LABELSBASE_API double getSampleDurationFromMedium(MediumRollMedium medium);

// Returns the type of the medium's timecode: tc_24_label_t for Medium_src_2398p. General media print the assertion
// message and return null_label_t. The two functions are the same; hosts know both names.
[[nodiscard]] LABELSBASE_API label_t getDefaultLabelTypeForMedium(MediumRollMedium medium) noexcept;
[[nodiscard]] LABELSBASE_API label_t getLabelTypeForMediumFrameRate(MediumRollMedium medium) noexcept;

// Returns the source medium for captured material, or Medium_none and the assertion message if the rate has no
// medium. Scan modes 3 and 4 are progressive and all others interlaced; a rate with one scan returns its medium
// for both. The host first replaces a decimated rate by the full one.
//
//   getMediumRollfromInputDetails(Kiv::Image::ScanMode_progressive, Kiv::FrameRate_25)   // Medium_src_25p
[[nodiscard]] LABELSBASE_API MediumRollMedium getMediumRollfromInputDetails(Kiv::Image::ScanMode scan,
                                                                            Kiv::FrameRate rate);

// Returns the output medium of a picture, by the same rules. Deliberate: a decimated rate is not replaced.
[[nodiscard]] LABELSBASE_API MediumRollMedium getMediumRollfromOutputDetails(Kiv::Image::ScanMode scan,
                                                                             Kiv::FrameRate rate) noexcept;

// Returns the output medium of a format's scan mode and frame rate.
[[nodiscard]] LABELSBASE_API MediumRollMedium getMediumRollfromOutputFormat(OutputFormat::Details const& format);

// Returns the progressive output of a measured rate in frames per second: 23.976, 24, 25, 29.97, 30, 50, 59.94 or
// 60, within a tenth or so. Any other value, NaN included, returns Medium_out_24p without a message.
[[nodiscard]] LABELSBASE_API MediumRollMedium getMediumRollfromOutputFramerateDouble(double fps) noexcept;

// Returns the progressive output of a rate, or Medium_out_24p and the assertion message if the rate has no medium.
[[nodiscard]] LABELSBASE_API MediumRollMedium getOutputMediumfromFrameRate(Kiv::FrameRate rate) noexcept;

// Returns the progressive source of a rate, or Medium_src_24p and the assertion message if the rate has no medium.
[[nodiscard]] LABELSBASE_API MediumRollMedium
getRepresentativeSourceMediumfromFrameRate(Kiv::FrameRate rate) noexcept;

// Returns the source medium that a project of this rate edits in; Medium_src_24i for all rates but 25, 30, 29.97,
// 50, 60 and 59.94. Without a rate, returns that of the current project. Deliberate: 29.97 edits in the 30 frame
// fields, 59.94 in the 60 frames and 48 in the 24 frame fields.
[[nodiscard]] LABELSBASE_API MediumRollMedium getDefaultEditMediumForProject(Kiv::FrameRate rate) noexcept;
[[nodiscard]] LABELSBASE_API MediumRollMedium getDefaultEditMediumForProject();

// Returns the output medium that the current project plays out in: the fields of 25 for 25 and 50 frames a second,
// those of 29.97 for 30, 29.97, 60 and 59.94, and those of 24 for all other rates.
[[nodiscard]] LABELSBASE_API MediumRollMedium getDefaultEditPlayoutMediumForProject();

namespace labelsbase {

// The number of media, Medium_none included: media are numbered from 0 to medium_count - 1.
inline constexpr int medium_count = Medium_out_240pb + 1;

// Returns whether the value is from 0 to medium_count - 1.
[[nodiscard]] constexpr bool is_medium(MediumRollMedium medium) noexcept {
  return medium >= 0 && medium < medium_count;
}

// Returns the name of the medium, for example "film" or "src_2398p", or "" for a value without a meaning.
[[nodiscard]] LABELSBASE_API char const* medium_name(MediumRollMedium medium) noexcept;

}  // namespace labelsbase
