// The table of names.
#pragma once

#include "labelnames/names.h"

namespace labelnames {

// clang-format off
inline constexpr name_row rows[] = {
//   names                            type                      rate                    meaning
    {"23.976 23.98",                  tc_24_label_t,            Kiv::FrameRate_23_976,  "timecode of 24 frames, slowed by 1000/1001"},
    {"24",                            tc_24_label_t,            Kiv::FrameRate_24,      "timecode of 24 frames"},
    {"25 50i pal",                    pal_label_t,              Kiv::FrameRate_25,      "timecode of 25 frames"},
    {"29.97 59.94i ntsc",             ntsc_label_t,             Kiv::FrameRate_29_97,   "timecode of 30 frames, slowed by 1000/1001; drop-frame if the project uses it", true},
    {"29.97df 29.97drop 30df df",     ntsc_drop_label_t,        Kiv::FrameRate_29_97,   "drop-frame timecode of 30 frames, slowed by 1000/1001"},
    {"29.97ndf 29.97nondrop ndf",     ntsc_label_t,             Kiv::FrameRate_29_97,   "timecode of 30 frames, slowed by 1000/1001, without drop-frame"},
    {"30 30ndf 60i",                  ntsc_label_t,             Kiv::FrameRate_30,      "timecode of 30 frames"},
    {"47.952 47.95",                  tc_48_label_t,            Kiv::FrameRate_47_952,  "timecode of 48 frames, slowed by 1000/1001"},
    {"48",                            tc_48_label_t,            Kiv::FrameRate_48,      "timecode of 48 frames"},
    {"50",                            tc_50_label_t,            Kiv::FrameRate_50,      "timecode of 50 frames"},
    {"59.94",                         tc_60_label_t,            Kiv::FrameRate_59_94,   "timecode of 60 frames, slowed by 1000/1001"},
    {"60",                            tc_60_label_t,            Kiv::FrameRate_60,      "timecode of 60 frames"},
    {"100",                           tc_100_label_t,           Kiv::FrameRate_100,     "timecode of 100 frames"},
    {"119.88",                        tc_120_label_t,           Kiv::FrameRate_119_88,  "timecode of 120 frames, slowed by 1000/1001"},
    {"120",                           tc_120_label_t,           Kiv::FrameRate_120,     "timecode of 120 frames"},
    {"239.76",                        tc_240_label_t,           Kiv::FrameRate_239_76,  "timecode of 240 frames, slowed by 1000/1001"},
    {"240",                           tc_240_label_t,           Kiv::FrameRate_240,     "timecode of 240 frames"},
    {"11.988 11.99",                  tc_12_label_t,            Kiv::FrameRate_11_988,  "timecode of 12 frames, slowed by 1000/1001"},
    {"12",                            tc_12_label_t,            Kiv::FrameRate_12,      "timecode of 12 frames"},
    {"12.5",                          tc_12_label_t,            Kiv::FrameRate_12_5,    "timecode that counts 12 of 12.5 frames"},
    {"14.985 14.99",                  tc_15_label_t,            Kiv::FrameRate_14_985,  "timecode of 15 frames, slowed by 1000/1001"},
    {"15",                            tc_15_label_t,            Kiv::FrameRate_15,      "timecode of 15 frames"},
    {"20",                            tc_20_label_t,            Kiv::FrameRate_20,      "timecode of 20 frames"},
    {"80",                            tc_80_label_t,            Kiv::FrameRate_80,      "timecode of 80 frames"},
    {"90",                            tc_90_label_t,            Kiv::FrameRate_90,      "timecode of 90 frames"},
    {"50-duration",                   tc_50_duration_label_t,   Kiv::FrameRate_50,      "durations at 50 frames"},
    {"60-duration",                   tc_60_duration_label_t,   Kiv::FrameRate_60,      "durations at 60 frames"},
    {"35mm 35mm-4p key35",            keycode_35_label_t,       Kiv::FrameRate_24,      "key numbers of 35 mm film"},
    {"35mm-3p key35-3p",              keycode_353_label_t,      Kiv::FrameRate_24,      "key numbers of 35 mm film, 3 perforations a frame"},
    {"35mm-2p key35-2p",              keycode_352_label_t,      Kiv::FrameRate_24,      "key numbers of 35 mm film, 2 perforations a frame"},
    {"35mm-8p key35-8p",              keycode_358_label_t,      Kiv::FrameRate_24,      "key numbers of 35 mm film, 8 perforations a frame"},
    {"16mm key16",                    keycode_16_label_t,       Kiv::FrameRate_24,      "key numbers of 16 mm film"},
    {"feet35 feet35-4p",              foot_35_label_t,          Kiv::FrameRate_24,      "feet and frames of 35 mm film"},
    {"feet35-3p",                     foot_353_label_t,         Kiv::FrameRate_24,      "feet and frames of 35 mm film, 3 perforations a frame"},
    {"feet16",                        foot_16_label_t,          Kiv::FrameRate_24,      "feet and frames of 16 mm film"},
    {"ink35",                         ink_35_label_t,           Kiv::FrameRate_24,      "ink numbers of 35 mm film"},
    {"ink16",                         ink_16_label_t,           Kiv::FrameRate_24,      "ink numbers of 16 mm film"},
    {"frames",                        film_frames_label_t,      Kiv::FrameRate_24,      "film frames"},
    {"35mm-4digits",                  keycode_35_label_4_t,     Kiv::FrameRate_24,      "key numbers of 35 mm film, counts of 4 digits"},
    {"35mm-5digits",                  keycode_35_label_5_t,     Kiv::FrameRate_24,      "key numbers of 35 mm film, counts of 5 digits"},
    {"35mm-6digits",                  keycode_35_label_6_t,     Kiv::FrameRate_24,      "key numbers of 35 mm film, counts of 6 digits"},
    {"35mm-3p-4digits",               keycode_353_label_4_t,    Kiv::FrameRate_24,      "key numbers of 35 mm film, 3 perforations a frame, counts of 4 digits"},
    {"35mm-3p-5digits",               keycode_353_label_5_t,    Kiv::FrameRate_24,      "key numbers of 35 mm film, 3 perforations a frame, counts of 5 digits"},
    {"35mm-3p-6digits",               keycode_353_label_6_t,    Kiv::FrameRate_24,      "key numbers of 35 mm film, 3 perforations a frame, counts of 6 digits"},
    {"16mm-4digits",                  keycode_16_label_4_t,     Kiv::FrameRate_24,      "key numbers of 16 mm film, counts of 4 digits"},
    {"16mm-5digits",                  keycode_16_label_5_t,     Kiv::FrameRate_24,      "key numbers of 16 mm film, counts of 5 digits"},
    {"16mm-6digits",                  keycode_16_label_6_t,     Kiv::FrameRate_24,      "key numbers of 16 mm film, counts of 6 digits"},
    {"65mm-5p-80",                    keycode_655_80_label_t,   Kiv::FrameRate_24,      "key numbers of 65 mm film, 5 perforations a frame, 80 a key"},
    {"65mm-8p-80",                    keycode_658_80_label_t,   Kiv::FrameRate_24,      "key numbers of 65 mm film, 8 perforations a frame, 80 a key"},
    {"65mm-10p-80",                   keycode_6510_80_label_t,  Kiv::FrameRate_24,      "key numbers of 65 mm film, 10 perforations a frame, 80 a key"},
    {"65mm-5p-120",                   keycode_655_120_label_t,  Kiv::FrameRate_24,      "key numbers of 65 mm film, 5 perforations a frame, 120 a key"},
    {"65mm-8p-120",                   keycode_658_120_label_t,  Kiv::FrameRate_24,      "key numbers of 65 mm film, 8 perforations a frame, 120 a key"},
    {"65mm-10p-120",                  keycode_6510_120_label_t, Kiv::FrameRate_24,      "key numbers of 65 mm film, 10 perforations a frame, 120 a key"},
    {"65mm-15p-120",                  keycode_6515_120_label_t, Kiv::FrameRate_24,      "key numbers of 65 mm film, 15 perforations a frame, 120 a key"},
};
// clang-format on

}  // namespace labelnames
