// The media that material can be on, and the maps between them and the host's rates and scan modes.
#pragma once

#include <cstdint>

#include "host/frame_rate.h"
#include "host/output.h"
#include "labelsbase/export.h"
#include "labelsbase/labelcvt/label_types.h"

// A medium. The numbers are stored in identifier texts and never change. Any 32-bit value may be handed in.
//
// From 15 on a medium is a rate, a scan (p, whole frames, or i, fields) and a role: a source that material is
// captured on, or an output that an edit is played out to. A "b" marks the second rate of one nominal rate.
enum MediumRollMedium : std::int32_t {
  Medium_none = 0,  // no medium: what lookups give on failure
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

// What a medium is. A general medium (below 15) and a value without a medium have no rate and are not progressive.

// The host's code of its frame rate; 0 where it has none.
[[nodiscard]] LABELSBASE_API Kiv::FrameRate getFrameRatefromMedium(MediumRollMedium medium) noexcept;

// Whether a sample is a whole frame. Of an interlaced medium it is a field.
[[nodiscard]] LABELSBASE_API bool mediumRollIsFrameProgressive(MediumRollMedium medium) noexcept;

// Whether it has 50 or 60 whole frames a second, twice those of interlaced video.
[[nodiscard]] LABELSBASE_API bool mediumIsDoubleRateProgressive(MediumRollMedium medium) noexcept;

// Seconds per sample, by the host's frame duration. Where there is no rate, half of what the host answers for 0.
[[nodiscard]] LABELSBASE_API double getSampleDurationFromMedium(MediumRollMedium medium);

// The type of the medium's timecode; null_label_t and the assertion message where there is no rate.
[[nodiscard]] LABELSBASE_API label_t getDefaultLabelTypeForMedium(MediumRollMedium medium) noexcept;
[[nodiscard]] LABELSBASE_API label_t getLabelTypeForMediumFrameRate(MediumRollMedium medium) noexcept;

// The medium of a rate. Scan modes 3 and 4 are progressive, all others interlaced; a rate that has one scan only
// gives that one. For a rate without a medium: the assertion message, and the medium named last.

// The source of captured material; Medium_none. The host first turns the rate into its non-decimated one.
[[nodiscard]] LABELSBASE_API MediumRollMedium getMediumRollfromInputDetails(Kiv::Image::ScanMode scan,
                                                                            Kiv::FrameRate rate);

// The output of a picture; Medium_none. Deliberate: the rate counts as it stands, decimated or not.
[[nodiscard]] LABELSBASE_API MediumRollMedium getMediumRollfromOutputDetails(Kiv::Image::ScanMode scan,
                                                                             Kiv::FrameRate rate) noexcept;
[[nodiscard]] LABELSBASE_API MediumRollMedium getMediumRollfromOutputFormat(OutputFormat::Details const& format);

// The output of a measured rate in frames per second, always progressive: 23.976, 24, 25, 29.97, 30, 50, 59.94 or
// 60, within a tenth or so. Any other value, not a number included, gives Medium_out_24p without a message.
[[nodiscard]] LABELSBASE_API MediumRollMedium getMediumRollfromOutputFramerateDouble(double fps) noexcept;

// The progressive output; Medium_out_24p.
[[nodiscard]] LABELSBASE_API MediumRollMedium getOutputMediumfromFrameRate(Kiv::FrameRate rate) noexcept;

// The progressive source; Medium_src_24p.
[[nodiscard]] LABELSBASE_API MediumRollMedium
getRepresentativeSourceMediumfromFrameRate(Kiv::FrameRate rate) noexcept;

// The medium that a project of this rate edits in, and the one of the current project. Deliberate: 29.97 edits in
// the 30 frame fields, 59.94 in the 60 frames, and 48 and all the rest in the 24 frame fields.
[[nodiscard]] LABELSBASE_API MediumRollMedium getDefaultEditMediumForProject(Kiv::FrameRate rate) noexcept;
[[nodiscard]] LABELSBASE_API MediumRollMedium getDefaultEditMediumForProject();

// The medium that the current project plays out in, one of three. Deliberate: 50 frames play out as 25 interlaced,
// and 30, 59.94 and 60 as 29.97 interlaced.
[[nodiscard]] LABELSBASE_API MediumRollMedium getDefaultEditPlayoutMediumForProject();

namespace labelsbase {

inline constexpr int medium_count = Medium_out_240pb + 1;

[[nodiscard]] constexpr bool is_medium(MediumRollMedium medium) noexcept {
  return medium >= 0 && medium < medium_count;
}

// The name of the medium, for example "film" or "src_2398p"; "" for a value without a meaning.
[[nodiscard]] LABELSBASE_API char const* medium_name(MediumRollMedium medium) noexcept;

}  // namespace labelsbase
