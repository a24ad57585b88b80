// cadence: shows which film frame each video frame comes from, as a table or a picture.

#include "cli/verbs/cadence.h"

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <memory>
#include <system_error>

#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/records.h"

namespace cli {
namespace {

struct arguments {
  pulldown_arguments across;
  std::string film_frames = "24";
  std::optional<std::string> picture;
  std::string timecode = "00:00:00:00";
  std::string film_type = "F35";
  std::optional<std::string> key;
  bool drop = false;
  std::string format;
};

constexpr field fields[] = {
    {"video_frame", value_type::integer, "Video frame, from 1"},
    {"film_frame", value_type::integer, "Film frame that it shows, from 1; none for an added frame", nullptr,
     may_be_missing},
    {"letter", value_type::text, "Place of the film frame in its cycle, from A", nullptr, may_be_missing},
    {"timecode", value_type::text, "Timecode of the video frame"},
    {"key_number", value_type::text, "Key number of the film frame", nullptr, may_be_missing},
};

int first_video_frame(pulldown const& across, int film) {
  int video = 0;
  film_frames_to_video_frames(film, &video, across.phase, -1, across.transfer);
  return video;
}

// The library counts an added video frame to the film frame before it, or at the start of a cycle to the one
// after.
cadence lay_out(pulldown const& across, int film_frames) {
  cadence result{across, {}, film_frames};
  int const last = across.adds_at_the_start() ? first_video_frame(across, film_frames)
                                              : first_video_frame(across, film_frames + 1) - 1;
  for (int video = 1; video <= last; ++video) {
    int film = 0;
    int ignored_phase = 0;
    video_frames_to_film_frames(video, &film, across.phase, &ignored_phase, across.transfer);
    bool const is_added = first_video_frame(across, film) != video;
    result.frames.push_back({video, is_added ? 0 : film});
  }
  return result;
}

// Writes a line of film frames, one of their letters and one of video frames, some cycles at a time.
void write_table(cadence const& laid_out, output& results) {
  constexpr std::size_t columns_wanted = 15;
  auto const cycle = static_cast<std::size_t>(laid_out.across.video_cycle);
  auto const block = (columns_wanted + cycle - 1) / cycle * cycle;
  auto const width = std::max<std::size_t>(std::to_string(laid_out.frames.back().video).size() + 1, 3);

  auto const write = [&](std::string line, std::size_t begin, auto const& cell) {
    for (auto i = begin; i < std::min(begin + block, laid_out.frames.size()); ++i) {
      std::string const text = cell(laid_out.frames[i]);
      line += std::string(width - text.size(), ' ') + text;
    }
    line.erase(line.find_last_not_of(' ') + 1);
    results.line(line);
  };
  for (std::size_t begin = 0; begin < laid_out.frames.size(); begin += block) {
    if (begin != 0) results.line("");
    write("film ", begin, [](auto const& f) { return f.film ? std::to_string(f.film) : ""; });
    write("     ", begin, [&](auto const& f) { return std::string(1, f.film ? laid_out.letter(f.film) : '+'); });
    write("video", begin, [](auto const& f) { return std::to_string(f.video); });
  }
}

// Finds the labels that the time lines begin with, or refuses what names them.
cadence_labels find_labels(arguments const& given, pulldown const& across) {
  auto const film = find_counted_label("--film", given.film_type);
  if (!film.has_keys()) refuse("--film", given.film_type, "expected a key-number type, for example F35");
  auto const video = counted_label::of(across.video_cycle == 25 ? pal_label_t
                                       : given.drop             ? ntsc_drop_label_t
                                                                : ntsc_label_t);

  cadence_labels labels{film, 0, 1, *video, 0};
  counted_label::digits digits;
  if (auto const wrong = video->read(given.timecode, 0, digits)) refuse("--timecode", given.timecode, *wrong);
  timecode_to_video_frames(&labels.frames_before_video, digits, video->label(), video->drop());
  --labels.frames_before_video;

  if (!given.key) return labels;
  if (auto const wrong = film.read(*given.key, labels.key_phase, digits)) refuse("--key", *given.key, *wrong);
  keycode_to_film_frames(&labels.frames_before_film, digits, labels.key_phase, &labels.key_phase, film.label(),
                         film.frames_per_key());
  --labels.frames_before_film;
  return labels;
}

void write_file(std::string const& name, std::string const& text) {
  errno = 0;
  std::ofstream file{name, std::ios::binary};
  file << text;
  file.close();
  if (file.fail()) refuse("--svg", name, std::generic_category().message(errno ? errno : EIO));
}

void write_rows(cadence const& laid_out, cadence_labels const& labels, format how, output& results) {
  record_writer rows{how, fields, results};
  for (auto const& [video, film] : laid_out.frames) {
    auto const timecode = labels.of_video(video);
    if (film == 0) {
      rows.write({video, missing, missing, timecode, missing});
      continue;
    }
    auto const letter = laid_out.letter(film);
    auto const key_number = labels.of_film(film);
    rows.write({video, film, std::string_view{&letter, 1}, timecode, key_number});
  }
}

exit_status run(arguments const& given, console& io) {
  auto const across = find_pulldown(given.across);
  if (!across.has_cadence()) refuse("--transfer", given.across.transfer, "has no cadence; expected 2:3 or 24:25");
  auto const laid_out = lay_out(across, number_in("--frames", given.film_frames, 1, 100'000));
  if (given.drop && across.video_cycle == 25)
    refuse("--transfer", given.across.transfer,
           "timecode of 25 frames a second has no drop-frame; leave out --drop");
  auto const labels = find_labels(given, across);
  auto const how = find_format(given.format);

  if (given.picture) write_file(*given.picture, draw(laid_out, labels));
  if (how != format::text)
    write_rows(laid_out, labels, how, io.results);
  else if (!given.picture)
    write_table(laid_out, io.results);
  return all_well;
}

}  // namespace

std::string cadence_labels::of_film(int frame) const {
  counted_label::digits digits = "";
  int ignored_phase = 0;
  film_frames_to_keycode(frames_before_film + frame, digits, key_phase, &ignored_phase, film.label(),
                         film.frames_per_key(), film.key_digits());
  return film.shown(digits);
}

std::string cadence_labels::of_video(int frame) const {
  counted_label::digits digits = "";
  video_frames_to_timecode(frames_before_video + frame, digits, video.label(), video.drop());
  return video.shown(digits);
}

command_run commands::declare_cadence(CLI::App& command) {
  auto const given = std::make_shared<arguments>();
  add_pulldown(command, given->across, "2:3");
  add_option(command, "--frames", "N [24]", given->film_frames, "Film frames to lay out, 1 to 100000");
  add_option(command, "--svg", "FILE", given->picture, "Draw a picture with a label at every frame into FILE");
  add_format(command, given->format, fields);
  add_option(command, "--timecode", "LABEL [00:00:00:00]", given->timecode,
             "Timecode of video frame 1, for --svg and --format");
  add_flag(command, "--drop", given->drop, "Drop-frame timecode");
  add_option(command, "--film", "TYPE [F35]", given->film_type, "Type of the key numbers");
  add_option(command, "--key", "LABEL [0000+00]", given->key, "Key number of film frame 1");
  add_examples(command, {{"cadence --transfer 2:3 --phase 1 --frames 12",
                          "film   1  2     3  4  5  6     7  8  9 10    11 12\n       A  B  +  C  D  A  B  +  C  "
                          "D  A  B  +  C  D\nvideo  1  2  3  4  5  6  7  8  9 10 11 12 13 14 15"},
                         {"cadence --frames 2 --format csv --timecode 01:00:00:00 --key 1234+00",
                          "video_frame,film_frame,letter,timecode,key_number\n1,1,A,01:00:00.00,1234+00\n"
                          "2,,,01:00:00.01,\n3,2,B,01:00:00.02,1234+01"},
                         "cadence --transfer 24:25 --svg cadence.svg --key 1234+00"});
  return [given](console& io) { return run(*given, io); };
}

}  // namespace cli
