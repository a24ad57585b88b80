// The picture that cadence --svg draws.

#include <algorithm>
#include <initializer_list>
#include <string_view>
#include <utility>

#include "cli/verbs/cadence.h"

namespace cli {
namespace {

using attribute = std::pair<std::string_view, std::string>;

class svg {
 public:
  void rect(int x, int y, int width, int height, std::string_view style) {
    element("rect", {{"x", n(x)}, {"y", n(y)}, {"width", n(width)}, {"height", n(height)}}, style, "");
  }

  void text(int x, int y, std::string_view style, std::string_view content) {
    element("text", {{"x", n(x)}, {"y", n(y)}}, style, content);
  }

  // Text that runs upwards.
  void upright_text(int x, int y, std::string_view style, std::string_view content) {
    element("text", {{"transform", "translate(" + n(x) + ' ' + n(y) + ") rotate(-90)"}}, style, content);
  }

  // A filled shape between the edge of a frame above and that of a frame below.
  void link(int above, int above_width, int y_above, int below, int below_width, int y_below,
            std::string_view style) {
    element("path",
            {{"d", "M" + n(above) + ' ' + n(y_above) + 'h' + n(above_width) + 'L' + n(below + below_width) + ' ' +
                       n(y_below) + 'h' + n(-below_width) + 'z'}},
            style, "");
  }

  [[nodiscard]] std::string const& content() const noexcept { return content_; }

 private:
  static std::string n(int number) { return std::to_string(number); }

  void element(std::string_view name, std::initializer_list<attribute> attributes, std::string_view style,
               std::string_view content) {
    content_.append("<").append(name).append(" class=\"").append(style).append("\"");
    for (auto const& [key, value] : attributes)
      content_.append(" ").append(key).append("=\"").append(value).append("\"");
    if (content.empty())
      content_.append("/>\n");
    else
      content_.append(">").append(escaped(content)).append("</").append(name).append(">\n");
  }

  // Key numbers of 16 mm contain "&".
  static std::string escaped(std::string_view content) {
    std::string result;
    for (char const c : content) result += c == '&' ? "&amp;" : std::string(1, c);
    return result;
  }

  std::string content_;
};

constexpr char const* style_sheet =
    "<style>\n"
    "text{font-family:'DejaVu Sans','Helvetica Neue',Arial,sans-serif;font-size:11px;fill:#24292f}\n"
    ".title{font-size:18px;font-weight:bold}\n"
    ".line{font-size:13px;fill:#57606a}\n"
    ".label{font-family:'DejaVu Sans Mono',Menlo,Consolas,monospace}\n"
    ".middle{text-anchor:middle}\n"
    ".number{text-anchor:middle;fill:#57606a}\n"
    ".letter{text-anchor:middle;font-size:20px;font-weight:bold}\n"
    ".plus{text-anchor:middle;font-size:20px;font-weight:bold;fill:#c62828}\n"
    ".film{fill:#30363d}\n"
    ".hole{fill:#fff}\n"
    ".f0{fill:#9ecbea}.f1{fill:#b5deb0}.f2{fill:#f8d58c}.f3{fill:#d9c0ee}\n"
    ".video{stroke:#57606a}\n"
    ".link{fill-opacity:.45}\n"
    ".added{fill:#fff;stroke:#c62828;stroke-width:2;stroke-dasharray:5 3}\n"
    "</style>\n";

// Sizes in pixels. A cycle has the same length on both time lines.
struct sizes {
  bool upright_labels;
  int film_width, video_width;
  int cycles_per_band;
  int label_height;

  static constexpr int margin = 24;
  static constexpr int names = 64;  // width of the names of the time lines
  static constexpr int title_height = 76;
  static constexpr int film_height = 76;
  static constexpr int link_height = 40;
  static constexpr int video_height = 52;
  static constexpr int between_bands = 36;

  [[nodiscard]] constexpr int band_height() const noexcept {
    return 2 * label_height + film_height + link_height + video_height + between_bands;
  }
};

constexpr sizes sizes_of(pulldown const& across) noexcept {
  bool const is_short = across.film_cycle == 4;
  int const cycle_width = is_short ? 460 : 1'200;
  return {.upright_labels = !is_short,
          .film_width = cycle_width / across.film_cycle,
          .video_width = cycle_width / across.video_cycle,
          .cycles_per_band = is_short ? 2 : 1,
          .label_height = is_short ? 22 : 92};
}

class cadence_picture {
 public:
  cadence_picture(cadence const& laid_out, cadence_labels const& labels) noexcept
      : cadence_{laid_out}, labels_{labels}, sizes_{sizes_of(laid_out.across)} {}

  [[nodiscard]] std::string draw();

 private:
  // Returns where a frame of a time line is drawn. A frame is `width` wide, a cycle `cycle` frames long.
  struct place {
    int x, y;
  };
  [[nodiscard]] place place_of(int frame, int cycle, int width) const noexcept {
    int const per_band = cycle * sizes_.cycles_per_band;
    return {sizes::margin + sizes::names + (frame - 1) % per_band * width,
            sizes::title_height + (frame - 1) / per_band * sizes_.band_height()};
  }
  [[nodiscard]] place film_place(int frame) const noexcept {
    auto const [x, y] = place_of(frame, cadence_.across.film_cycle, sizes_.film_width);
    return {x, y + sizes_.label_height};
  }
  [[nodiscard]] place video_place(int frame) const noexcept {
    auto const [x, y] = place_of(frame, cadence_.across.video_cycle, sizes_.video_width);
    return {x, y + sizes_.label_height + sizes::film_height + sizes::link_height};
  }

  [[nodiscard]] std::string tint(int film) const { return "f" + std::to_string(cadence_.position(film) % 4); }
  void label(int x, int above, int below, bool is_above, std::string const& text);
  void names();
  void film(int frame);
  void video(cadence_frame const& frame);
  void link(cadence_frame const& frame);

  cadence const& cadence_;
  cadence_labels const& labels_;
  sizes sizes_;
  svg out_;
};

// Draws a label above or below the middle of a frame.
void cadence_picture::label(int x, int above, int below, bool is_above, std::string const& text) {
  if (!sizes_.upright_labels)
    out_.text(x, is_above ? above - 8 : below + 16, "label middle", text);
  else if (is_above)
    out_.upright_text(x + 4, above - 6, "label", text);
  else
    out_.upright_text(x + 4, below + sizes_.label_height - 8, "label", text);
}

void cadence_picture::names() {
  int const per_band = cadence_.across.film_cycle * sizes_.cycles_per_band;
  for (int frame = 1; frame <= cadence_.film_frames; frame += per_band) {
    int const y = film_place(frame).y;
    out_.text(sizes::margin, y + sizes::film_height / 2 + 5, "line", "film");
    out_.text(sizes::margin, y + sizes::film_height + sizes::link_height + sizes::video_height / 2 + 5, "line",
              "video");
  }
}

void cadence_picture::film(int frame) {
  constexpr int edge = 14;
  auto const [x, y] = film_place(frame);
  int const width = sizes_.film_width;
  out_.rect(x, y, width, sizes::film_height, "film");
  out_.rect(x + 2, y + edge, width - 4, sizes::film_height - 2 * edge, tint(frame));
  constexpr int holes = 4;
  for (int hole = 0; hole < holes; ++hole) {
    int const at = x + (2 * hole + 1) * width / (2 * holes) - 3;
    out_.rect(at, y + 4, 6, 6, "hole");
    out_.rect(at, y + sizes::film_height - 10, 6, 6, "hole");
  }
  int const middle = x + width / 2;
  out_.text(middle, y + 38, "letter", std::string(1, cadence_.letter(frame)));
  out_.text(middle, y + 54, "number", std::to_string(frame));
  label(middle, y, y + sizes::film_height, true, labels_.of_film(frame));
}

void cadence_picture::video(cadence_frame const& frame) {
  auto const [x, y] = video_place(frame.video);
  int const middle = x + sizes_.video_width / 2;
  bool const is_added = frame.film == 0;
  out_.rect(x + 2, y, sizes_.video_width - 4, sizes::video_height,
            is_added ? "added" : "video " + tint(frame.film));
  out_.text(middle, y + 26, is_added ? "plus" : "letter",
            is_added ? std::string{"+"} : std::string(1, cadence_.letter(frame.film)));
  out_.text(middle, y + 43, "number", std::to_string(frame.video));
  label(middle, y, y + sizes::video_height, false, labels_.of_video(frame.video));
}

void cadence_picture::link(cadence_frame const& frame) {
  auto const [film_x, film_y] = film_place(frame.film);
  auto const [video_x, video_y] = video_place(frame.video);
  out_.link(film_x + 2, sizes_.film_width - 4, film_y + sizes::film_height, video_x + 2, sizes_.video_width - 4,
            video_y, "link " + tint(frame.film));
}

std::string cadence_picture::draw() {
  auto const& across = cadence_.across;
  auto const title = std::string{across.name} + " pulldown, phase " + std::to_string(across.phase);
  out_.text(sizes::margin, 34, "title", title);
  out_.text(sizes::margin, 56, "line",
            std::to_string(cadence_.film_frames) + " film frames over " + std::to_string(cadence_.frames.size()) +
                " video frames. " + std::to_string(across.film_cycle) + " become " +
                std::to_string(across.video_cycle) + ": + marks the added frame of a cycle.");
  names();
  for (auto const& frame : cadence_.frames)
    if (frame.film) link(frame);
  for (int frame = 1; frame <= cadence_.film_frames; ++frame) film(frame);
  for (auto const& frame : cadence_.frames) video(frame);

  int const cycles = (cadence_.film_frames + across.film_cycle - 1) / across.film_cycle;
  int const bands = (cycles + sizes_.cycles_per_band - 1) / sizes_.cycles_per_band;
  int const band_width = std::min(cycles, sizes_.cycles_per_band) * across.video_cycle * sizes_.video_width;
  auto const width = std::to_string(2 * sizes::margin + sizes::names + std::max(band_width, 400));
  auto const height = std::to_string(sizes::title_height + bands * sizes_.band_height());
  return R"(<svg xmlns="http://www.w3.org/2000/svg" role="img" width=")" + width + R"(" height=")" + height +
         R"(" viewBox="0 0 )" + width + ' ' + height + "\">\n<title>" + title + "</title>\n" + style_sheet +
         R"(<rect width="100%" height="100%" fill="#fff"/>)" + '\n' + out_.content() + "</svg>\n";
}

}  // namespace

std::string draw(cadence const& laid_out, cadence_labels const& labels) {
  return cadence_picture{laid_out, labels}.draw();
}

}  // namespace cli
