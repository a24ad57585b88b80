#include "cli/cadence.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cerrno>
#include <fstream>
#include <memory>
#include <system_error>

#include "cli/label_type.h"
#include "cli/verbs.h"

namespace cli {
namespace {

struct arguments {
  pulldown_arguments across;
  int film_frames = 24;
  std::optional<std::string> picture;
  std::string timecode = "00:00:00:00";
  std::string film_type = "F35";
  std::optional<std::string> key;
  bool drop = false;
};

int first_video_frame(pulldown const& across, int film) {
  int video = 0;
  film_frames_to_video_frames(film, &video, across.phase, -1, across.transfer);
  return video;
}

// An added frame stands with the film frame before it, or at the start of a cycle with the one after it.
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

// A line of film frames, of their letters and of video frames, so many cycles at a time.
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

// The labels that the time lines begin with; says what is wrong with them.
std::optional<cadence_labels> find_labels(arguments const& given, pulldown const& across, messages& errors) {
  auto const video_type = across.video_cycle == 25 ? pal_label_t : given.drop ? ntsc_drop_label_t : ntsc_label_t;
  auto const film_type = find_label_type(given.film_type, errors);
  if (!film_type) return std::nullopt;
  auto const film = counted_label::of(*film_type, errors);
  auto const video = counted_label::of(video_type, errors);
  if (!film || !video) return std::nullopt;
  if (!film->has_keys()) {
    errors.say("--film " + cli::quoted(given.film_type) +
               " has no key numbers; expected a key-number type, as F35");
    return std::nullopt;
  }

  cadence_labels labels{*film, 0, 1, *video, 0};
  counted_label::digits digits;
  if (auto const wrong = video->read(given.timecode, 0, digits)) {
    errors.say("--timecode " + cli::quoted(given.timecode) + ": " + *wrong);
    return std::nullopt;
  }
  timecode_to_video_frames(&labels.frames_before_video, digits, video->label(), video->drop());
  --labels.frames_before_video;

  if (!given.key) return labels;
  if (auto const wrong = film->read(*given.key, labels.key_phase, digits)) {
    errors.say("--key " + cli::quoted(*given.key) + ": " + *wrong);
    return std::nullopt;
  }
  keycode_to_film_frames(&labels.frames_before_film, digits, labels.key_phase, &labels.key_phase, film->label(),
                         film->frames_per_key());
  --labels.frames_before_film;
  return labels;
}

bool write_file(std::string const& name, std::string const& text, messages& errors) {
  errno = 0;
  std::ofstream file{name, std::ios::binary};
  file << text;
  file.close();
  if (!file.fail()) return true;
  errors.say("--svg " + cli::quoted(name) + ": " + std::generic_category().message(errno ? errno : EIO));
  return false;
}

exit_status run(arguments const& given, console& io) {
  auto const across = find_pulldown(given.across, io.errors);
  if (!across) return failed;
  if (across->film_cycle == across->video_cycle) {
    io.errors.say("--transfer none has no cadence; expected 2:3 or 24:25");
    return failed;
  }
  auto const laid_out = lay_out(*across, given.film_frames);
  if (!given.picture) {
    write_table(laid_out, io.results);
    return all_well;
  }
  if (given.drop && across->video_cycle == 25) {
    io.errors.say("--drop: timecode of 25 frames a second is never drop-frame; leave it out");
    return failed;
  }
  auto const labels = find_labels(given, *across, io.errors);
  if (!labels) return failed;
  return write_file(*given.picture, draw(laid_out, *labels), io.errors) ? all_well : failed;
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

verb_run declare_cadence(CLI::App& verb) {
  auto const given = std::make_shared<arguments>();
  add_pulldown(verb, given->across, "2:3");
  verb.add_option("--frames", given->film_frames, "Film frames to lay out")
      ->option_text("N [24]")
      ->allow_extra_args(false)
      ->check(CLI::Range(1, 100'000));
  verb.add_option("--svg", given->picture, "Draw it into this file, with a label at every frame")
      ->option_text("FILE")
      ->allow_extra_args(false);
  verb.add_option("--timecode", given->timecode, "In the picture, the timecode of video frame 1")
      ->option_text("LABEL [00:00:00:00]")
      ->allow_extra_args(false);
  verb.add_flag("--drop", given->drop, "In the picture, drop-frame timecode");
  verb.add_option("--film", given->film_type, "In the picture, the type of the key numbers")
      ->option_text("TYPE [F35]")
      ->allow_extra_args(false);
  verb.add_option("--key", given->key, "In the picture, the key number of film frame 1")
      ->option_text("LABEL [0000+00]")
      ->allow_extra_args(false);
  return [given](console& io) { return run(*given, io); };
}

}  // namespace cli
