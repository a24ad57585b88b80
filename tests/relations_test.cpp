// Types, media and rates are what their names say: the columns of the tables held against each other.

#include <regex>

#include "tests/testing.h"

namespace {

label_t named(std::string const& name) { return get_label_type(name.c_str()); }

// "tc_24_label" counts 24 frames a second; 0 for what is not timecode.
int fps_of(std::string const& name) {
  int fps = 0;
  if (std::sscanf(name.c_str(), "tc_%d_", &fps) == 1) return fps;
  return name == "pal_label" ? 25 : name.starts_with("ntsc_") ? 30 : 0;
}

label_t type_counting(int fps) {
  if (fps == 25) return pal_label_t;
  return fps == 30 ? ntsc_label_t : named("tc_" + std::to_string(fps) + "_label");
}

// The template of a number up to `last`: "29" for 23.
std::string digits_up_to(int last) {
  std::string text = std::to_string(last);
  std::fill(text.begin() + 1, text.end(), '9');
  return text.size() == 1 ? '0' + text : text;
}

void expect_timecode(label_cvt& cvt, int fps) {
  std::string const name = cvt.type_str(), number = std::to_string(fps);
  label_t const type = cvt.type();
  bool const drop = name == "ntsc_drop_label", duration = name.ends_with("_duration_label");
  bool const classic = type <= ntsc_drop_label_t, late = type >= tc_12_label_t;
  double const rate = classic && fps == 30 ? 30 / 1.001 : fps;
  EXPECT_EQ(cvt.UserType(), User_timecode);
  EXPECT_EQ(cvt.get_modulus(), fps);
  EXPECT_EQ(cvt.samples_per_unit(), 1);
  EXPECT_EQ(dynamic_cast<timecode_label&>(cvt).samples_per_day(), drop ? 24 * 107'892 : 86'400 * fps);
  EXPECT_EQ(cvt.get_template(true).text(), "-29.59.59." + digits_up_to(fps - 1));
  std::string const separator = drop ? ";" : fps == 24 || fps == 48 ? "+" : ".";
  EXPECT_EQ(LabelPoint(type, fps - 1).get_string(), " 00:00:00" + separator + std::to_string(fps - 1));
  EXPECT_DOUBLE_EQ(Label::get_natural_pitch(type), 1 / rate);
  EXPECT_DOUBLE_EQ(get_vid_fps(type), classic ? rate : 1.0);  // deliberate: the later rates have no video rate
  for (auto const sibling : {label_t_to_foot_label_t, label_t_to_ink_label_t, label_t_to_key_label_t})
    EXPECT_EQ(sibling(type), null_label_t);

  std::string const listed = duration ? "BAD" : fps != 30 ? number + "f" : drop ? "30f-drop" : "30f-nondrop";
  std::string const code = fps == 30 ? drop ? "ND" : "N" : fps == 25 ? "P" : (duration ? "D" : "P") + number;
  EXPECT_EQ(label_type_to_edlstr(type), listed);
  EXPECT_EQ(edlstr_to_label_type(code.c_str()), type);
  EXPECT_EQ(edlstr_to_label_type(listed.c_str()), late || duration ? null_label_t : type);  // deliberate

  TCInf const standard = label_type_to_TvStd(type);
  EXPECT_EQ(standard.drop_frame, drop);
  if (duration) {
    EXPECT_EQ(standard.frame_rate, Kiv::FrameRate_unknown);
  } else {
    bool const slow = fps == 24 || fps == 30;  // deliberate
    EXPECT_DOUBLE_EQ(Kiv::getFramesPerSecond(standard.frame_rate), slow ? fps / 1.001 : fps);
    EXPECT_EQ(TvStd_to_label_type(standard), fps == 48 ? tc_24_label_t : type);
  }
}

// "keycode_6510_120_label": 65 mm film of 10 perforations a frame, 120 to the key. "_6": a count of 6 digits.
std::regex const film_name{"(keycode|foot|ink)_(35|16|65)(\\d*)(?:_(80|120))?_label(?:_(\\d))?"};

void expect_film(label_cvt& cvt, std::smatch const& part) {
  bool const key = part[1] == "keycode", foot = part[1] == "foot", narrow = part[2] == "16";
  std::string const gauge = part[2].str() + part[3].str(), length = part[5].str();
  bool const three = gauge == "353", common = three || gauge == "35" || narrow;
  int const perfs = part[3].length() ? std::stoi(part[3]) : narrow ? 1 : 4;
  int const per_key = part[4].length() ? std::stoi(part[4]) : !narrow ? 64 : foot ? 40 : 20;
  int const frames = (per_key + perfs - 1) / perfs;  // 22 for 3 perforations, of which a key has 21 and a third
  int const digits = foot ? 0 : length.empty() ? 4 : std::stoi(length), prefix = key ? 12 - digits : foot ? 0 : 4;
  label_t const type = cvt.type();

  EXPECT_EQ(cvt.UserType(), key ? User_keycode : foot ? User_feet : User_ink);
  EXPECT_EQ(
      (std::array{cvt.get_modulus(), cvt.samples_per_unit(), cvt.get_count_length(), cvt.get_prefix_length()}),
      (std::array{frames, perfs, digits, prefix}));
  EXPECT_EQ(cvt.perfs_per_keyKode(), key && gauge != "352" && gauge != "358" ? per_key : 1);  // deliberate
  EXPECT_EQ(cvt.getFrameSeparator(), foot ? '\0' : key && narrow ? '&' : '+');
  EXPECT_FALSE(cvt.isSpecialSlowTC());
  std::string const shape = (foot ? "-9999" : std::string(static_cast<std::size_t>(digits), '9')) +
                            (foot && !three ? "." : "+") + digits_up_to(frames - 1) + (three ? ".3" : "");
  auto const& facts = labelsbase::facts_of(type).film;
  EXPECT_EQ((std::array{facts.gauge.perfs_per_count(), facts.prefix_length, facts.count_digits}),
            (std::array{per_key, prefix, foot ? 4 : digits}));
  EXPECT_EQ(facts.separator, key && narrow ? '&' : '+');
  EXPECT_EQ(cvt.get_template(true).text(), std::string(static_cast<std::size_t>(prefix), '?') + shape);
  EXPECT_EQ(cvt.get_template(false).text(), std::string(static_cast<std::size_t>(prefix), '~') + shape);
  EXPECT_EQ(Label::get_natural_pitch(type), 1.0 / (24 * perfs));
  if (!foot) {
    int const span = static_cast<int>(std::lround(std::pow(10, digits))) * frames * perfs;
    for (int const sample : {INT_MIN, INT_MAX, span, span - 1, span + 7, -1, -span}) {
      long long const rest = sample % span;
      EXPECT_EQ(cvt.normalise_sample_unit(sample), rest < 0 ? rest + span : rest) << sample;
    }
  }

  std::string listed = (key ? "F" : "I") + gauge;
  if (part[4].length()) listed += "_" + part[4].str();
  if (!length.empty()) listed += "_" + length;
  EXPECT_EQ(label_type_to_edlstr(type), foot ? "BAD" : listed);
  EXPECT_EQ(edlstr_to_label_type(foot ? "BAD" : listed.c_str()), foot ? null_label_t : type);
  EXPECT_EQ(edlstr_to_film_label_type(listed.c_str()), key ? type : null_label_t);
  EXPECT_TRUE(label_type_to_TvStd(type).frame_rate == Kiv::FrameRate_unknown && get_vid_fps(type) == 1.0);

  EXPECT_EQ(label_t_to_foot_label_t(type), common ? named("foot_" + gauge + "_label") : null_label_t);
  EXPECT_EQ(label_t_to_key_label_t(type), key ? type : named("keycode_" + gauge + "_label"));
  bool const has_ink = common && !(foot && three);  // deliberate
  EXPECT_EQ(label_t_to_ink_label_t(type),
            has_ink ? named(narrow ? "ink_16_label" : "ink_35_label") : null_label_t);
}

TEST(Types, AreWhatTheirNamesSay) {
  for (int t = 0; t < numLabelCvts; ++t) {
    auto& cvt = *get_static_label_cvt(label_t{t});
    if (cvt.type() != t) continue;
    std::string const name = cvt.type_str();
    SCOPED_TRACE(name);
    EXPECT_EQ(labelsbase::user_label_type(cvt.type()), cvt.UserType());
    std::smatch part;
    if (int const fps = fps_of(name))
      expect_timecode(cvt, fps);
    else if (std::regex_match(name, part, film_name))
      expect_film(cvt, part);
    else
      EXPECT_TRUE(name == "film_frames_label" || name == "dummy_label");
  }
}

// "src_2997p": a source of 30000/1001 whole frames a second. A "b" marks the slower rate of two.
TEST(Media, RunAsTheirNamesSay) {
  int media = 0;
  for (int m = 0; m < labelsbase::medium_count; ++m) {
    auto const medium = MediumRollMedium{m};
    std::string const name = labelsbase::medium_name(medium);
    SCOPED_TRACE(name);
    std::smatch part;
    if (!std::regex_match(name, part, std::regex{"(src|out)_(\\d+)([pi])(b?)"})) continue;
    ++media;
    int const number = std::stoi(part[2]);
    bool const source = part[1] == "src", frames = part[3] == "p", slow = number > 1000 || part[4].length();
    double const nominal = number > 1000 ? std::round(number / 100.0) : number == 125 ? 12.5 : number;
    double const fps = slow ? nominal / 1.001 : nominal;
    Kiv::FrameRate const rate = getFrameRatefromMedium(medium);
    label_t const type = type_counting(static_cast<int>(nominal));
    bool const at_48 = nominal == 48;

    EXPECT_DOUBLE_EQ(Kiv::getFramesPerSecond(rate), fps);
    for (auto const of : {Kiv::getFrameDuration, Kiv::getCelResolution}) EXPECT_DOUBLE_EQ(of(rate), 1 / fps);
    EXPECT_EQ(Kiv::has1001Factor(rate), slow);
    EXPECT_EQ(Kiv::getNonDecimatedFrameRate(rate), rate);
    EXPECT_EQ(Kiv::getEditResolutionFrameGearing(rate, Kiv::FrameRate_15), 15 / nominal);
    EXPECT_EQ(Kiv::getEditResolutionFrameGearing(Kiv::FrameRate_12, rate), nominal / 12);

    EXPECT_EQ(mediumRollIsFrameProgressive(medium), frames);
    EXPECT_EQ(mediumIsDoubleRateProgressive(medium), nominal == 50 || nominal == 60);
    EXPECT_DOUBLE_EQ(getSampleDurationFromMedium(medium), (frames ? 1 : 0.5) / fps);
    for (auto const of : {getDefaultLabelTypeForMedium, getLabelTypeForMediumFrameRate})
      EXPECT_EQ(of(medium), type);
    std::string const word = (number == 125 ? "12.5" : std::to_string(static_cast<int>(nominal))) + part[3].str();
    EXPECT_EQ(MediumRollId_to_UserString({medium, Gen_any}), (source && !at_48 ? word : "med?") + ",anyGen");

    bool const one_scan = nominal != 24 && nominal != 25 && nominal != 30;
    for (int const mode : {INT_MIN, -1, 0, 1, 2, 3, 4, 5, INT_MAX}) {
      auto const scan = Kiv::Image::ScanMode{mode};
      if (!one_scan && frames != (mode == 3 || mode == 4)) continue;
      EXPECT_EQ((source ? getMediumRollfromInputDetails : getMediumRollfromOutputDetails)(scan, rate), m);
    }
    if (frames) {
      EXPECT_EQ(source ? getRepresentativeSourceMediumfromFrameRate(rate) : getOutputMediumfromFrameRate(rate), m);
    }

    EXPECT_DOUBLE_EQ(getDefaultTimecodeFrameRate(rate), at_48 ? 24 : fps);  // deliberate: 48 counts 24
    label_t const counted = at_48 ? tc_24_label_t : type;
    EXPECT_TRUE(getDefaultLabelTypeforFrameRate(rate) == counted && TvStd_to_label_type({rate, false}) == counted);
    EXPECT_EQ(TvStd_to_label_type({rate, true}), nominal == 30 ? ntsc_drop_label_t : counted);

    char decimal[32], fraction[32];
    std::snprintf(decimal, sizeof decimal, "%.5g", fps);  // "119.88"
    std::snprintf(fraction, sizeof fraction, "%.0f/%d", nominal * 1000, slow ? 1001 : 1000);
    for (char const* text : {decimal, fraction}) {
      refhost::project_guard const project{{}};
      EXPECT_FALSE(refhost::set_option("project-rate", text)) << text;
      EXPECT_EQ(refhost::project().frame_rate, rate) << text;
    }
  }
  EXPECT_EQ(media, labelsbase::medium_count - Medium_src_24p);
}

}  // namespace
