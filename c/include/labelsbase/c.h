// Film and video labels for every language that calls C: C99 and later, and C++. The library liblabels_c has all
// of it inside, a small host too, and needs no other part of labelsbase.
//
//   labels_track drop;
//   labels_find("29.97df", LABELS_TERMINATED, &drop, sizeof drop, NULL, 0);                // LABELS_OK
//
//   char text[LABELS_TEXT_SIZE];
//   labels_write(drop.type, 1800, NULL, 0, LABELS_STYLE_OWN, text, sizeof text, NULL, 0);  // "00:01:00;02"
//
//   labels_label label;
//   labels_fault fault;
//   labels_read(drop.type, "00:01:00;00", 11, &label, sizeof label, &fault, sizeof fault); // LABELS_REFUSED
//   fault.message     // "drop-frame leaves out frames 00 and 01 of every minute that is not a tenth"
//   fault.nearest     // "00:01:00;02"
//
// Rules of every function:
// - Samples are frames for timecode and film frames, perforations for other film. Any number is accepted anywhere.
// - A text goes with its length in bytes, or LABELS_TERMINATED. A text that comes back is terminated.
// - A struct or buffer goes with its size in bytes. Later versions add members at the end of structs: a program
//   that passes a smaller size receives, or is read for, only the members that it knows.
// - A fault may be NULL. Otherwise it receives what is wrong, or zeros with LABELS_OK.
// - Whatever is wrong, nothing but the fault is written, unless the function says so.
// - No C++ exception comes out, and any number of threads may call.
#ifndef LABELSBASE_C_H
#define LABELSBASE_C_H

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

// The length of a text that ends in a zero byte.
#define LABELS_TERMINATED SIZE_MAX

// Bytes that hold any label and its terminator.
#define LABELS_TEXT_SIZE 32

// What a label that could not be read or converted is in an array of samples. No label has this sample.
#define LABELS_INVALID_SAMPLE (-100000000)

// How a call ended.
typedef int32_t labels_status;
enum {
  LABELS_OK = 0,
  LABELS_REFUSED = 1,     // the text is not a label, or there is no label to answer with
  LABELS_UNKNOWN = 2,     // no such name, type, rate or setting
  LABELS_WRONG_CALL = 3,  // a needed pointer is NULL, or an argument has none of its values
  LABELS_NO_ROOM = 4,     // the buffer is too small
  LABELS_NO_MEMORY = 5,
  LABELS_FAILED = 6  // an error within the library
};

// Why a text is not a label of its type, as in labelcheck/read.h.
enum {
  LABELS_REASON_NO_LABELS,
  LABELS_REASON_UNRECOGNISED,
  LABELS_REASON_MISSING,
  LABELS_REASON_DIGIT_COUNT,
  LABELS_REASON_TOO_FEW_DIGITS,
  LABELS_REASON_LEADING_ZERO,
  LABELS_REASON_RANGE,
  LABELS_REASON_SEPARATOR,
  LABELS_REASON_DROP_FRAME_SEPARATOR,
  LABELS_REASON_TRAILING,
  LABELS_REASON_POSITIVE_SIGN,
  LABELS_REASON_SIGN_COLUMN,
  LABELS_REASON_SIGNED_ZERO,
  LABELS_REASON_NEGATIVE_DROP_FRAME,
  LABELS_REASON_LEFT_OUT,
  LABELS_REASON_RESERVED,
  LABELS_REASON_PERFORATION,
  LABELS_REASON_BLANK_OR_DASH,
  LABELS_REASON_UNPRINTABLE,
  LABELS_REASON_LENGTH
};

// What is wrong. Longer texts are cut.
typedef struct labels_fault {
  char message[160];               // "seconds run from 00 to 59"
  char nearest[LABELS_TEXT_SIZE];  // the nearest label, or name in labels_find; empty if nothing is near
  const char* field;               // of labels_read: "hours", "prefix" ..., always valid; otherwise ""
  size_t position;                 // of labels_read: bytes from the start of the text to the fault; otherwise 0
  int32_t reason;                  // of labels_read: LABELS_REASON_...; otherwise -1
} labels_fault;

// A label type, and the speed of the material that it labels: 24 and 23.976 frames a second have one type.
typedef struct labels_track {
  int32_t type;  // 0 to labels_type_count() - 1
  int32_t rate;  // a code: labels_rate_facts
} labels_track;

// A name that people use for a track. The texts are always valid.
typedef struct labels_name {
  const char* names;    // separated by blanks, the one to show first: "23.976 23.98"
  const char* meaning;  // "timecode of 24 frames, slowed by 1000/1001"
  labels_track track;   // what it names
} labels_name;

// The families of types.
enum {
  LABELS_FAMILY_NONE = 0,
  LABELS_FAMILY_TIMECODE = 3,
  LABELS_FAMILY_KEY_NUMBER = 4,
  LABELS_FAMILY_FEET = 5,
  LABELS_FAMILY_INK_NUMBER = 6,
  LABELS_FAMILY_FILM_FRAMES = 7
};

// What a label type is. The texts are always valid. Numbers that do not apply are 0.
typedef struct labels_type {
  const char* name;           // "pal_label"; "" if it has none
  const char* exchange_name;  // in edit decision lists: "25f"; "" if it has none
  int64_t first_sample;       // the first sample with a label; 0 for a type without labels
  int64_t last_sample;        // the last sample with a label, itself included; 0 for a type without labels
  int32_t family;             // LABELS_FAMILY_...
  int32_t has_labels;         // 1, or 0 for the bases of the families
  int32_t natural_rate;       // a code: labels_rate_facts
  int32_t frames_per_second;  // that timecode counts
  int32_t drop_frame;         // 1 if timecode leaves labels out (SMPTE ST 12-1)
  int32_t samples_per_frame;  // perforations of a frame of film, otherwise 1
  int32_t samples_per_count;  // perforations of a key, ink number or foot
  int32_t prefix_length;      // characters
  int32_t count_digits;       // of the key or ink number; the fewest of feet and film frames
  int32_t separator;          // before the frames, as an ASCII code
  int32_t feet_type;          // the type that counts the same film in feet
  int32_t ink_type;           // the type that counts the same film by ink numbers
  int32_t key_type;           // the type that counts the same film by key numbers
} labels_type;

// Frames a second of a rate, in lowest terms: 30000 / 1001.
typedef struct labels_rate {
  int32_t numerator;    // 30000
  int32_t denominator;  // 1001
} labels_rate;

// What a label says.
typedef struct labels_label {
  int32_t sample;   // frames for timecode and film frames, perforations for other film
  char prefix[24];  // of key numbers and ink numbers; otherwise empty
} labels_label;

// How labels are written.
enum {
  LABELS_STYLE_OWN = 0,      // as the type writes them: "01:00:00.00", "01:00:00;00", "01:00:00+00"
  LABELS_STYLE_EXCHANGE = 1  // timecode as other systems write it: ":" before the frames, ";" for drop-frame only
};

// What two tracks have in common.
enum {
  LABELS_BY_USUAL = 0,  // as labelconvert/request.h says: timecode by time, film by frame
  LABELS_BY_TIME = 1,   // a second is a second
  LABELS_BY_FRAME = 2   // a frame is a frame, whatever the rates
};

// Where an instant lies between two frames.
enum { LABELS_ROUND_NEAR = 0, LABELS_ROUND_DOWN = 1, LABELS_ROUND_UP = 2 };

// How film becomes video.
enum {
  LABELS_TRANSFER_NONE = 0,
  LABELS_TRANSFER_2_3_PULLDOWN = 1,  // 4 film frames become 5 video frames: phases 0 to 4
  LABELS_TRANSFER_24_TO_25 = 2       // 24 film frames become 25 video frames: phases 0 to 24
};

// What is to be converted into what. Zeros are the usual choices.
typedef struct labels_conversion {
  labels_track from;  // the track that is converted
  labels_track to;    // the track that it is converted to
  int32_t by;         // LABELS_BY_...; not used with a transfer
  int32_t round;      // LABELS_ROUND_...
  int32_t sync_from;  // one instant as a sample of the track that is converted
  int32_t sync_to;    // the same instant as a sample of the other track
  int32_t transfer;   // LABELS_TRANSFER_...
  int32_t phase;      // of the pulldown at that instant
} labels_conversion;

// Samples of the track that is converted to.
typedef struct labels_answer {
  int32_t sample;  // rounded as asked
  int32_t before;  // the frame before the instant; `sample` if a frame begins at it
  int32_t after;   // the frame after the instant; `sample` if a frame begins at it
} labels_answer;

// --- the library ---

// Returns the version of the library, "14.5.0.0".
const char* labels_version(void);

// Returns a status in words, "the text is not a label". Returns "unknown status" for any other number.
const char* labels_status_text(labels_status status);

// Changes a setting of the host inside: "project-rate" to "25", "drop-frame" to "yes", or "config.KEY" to any
// text. Returns LABELS_UNKNOWN, and in the fault the settings or values that exist, if there is no such one.
// "config.50p_timecode_type" and "config.60p_timecode_type" work before the first label only.
labels_status labels_set_option(const char* key, size_t key_length, const char* value, size_t value_length,
                                labels_fault* fault, size_t fault_size);

// --- types, names and rates ---

// Finds a track by a name of labels_name_at, a class or exchange name, or "#" and a number: "29.97df", "25p",
// "35mm", "pal_label", "30f-drop", "#5". Letters may be of either case. Returns LABELS_UNKNOWN for any other text.
labels_status labels_find(const char* name, size_t length, labels_track* track, size_t track_size,
                          labels_fault* fault, size_t fault_size);

// Returns how many rows of names there are.
size_t labels_name_count(void);

// Writes the row of names at `index`, from 0, in the order in which to show them. Returns LABELS_UNKNOWN after
// the last.
labels_status labels_name_at(size_t index, labels_name* name, size_t name_size);

// Returns how many label types there are, those without labels included. Types count from 0.
int32_t labels_type_count(void);

// Writes the facts of a type. Returns LABELS_UNKNOWN for a number that is not a type.
labels_status labels_type_facts(int32_t type, labels_type* facts, size_t facts_size);

// Returns the timecode type of the current project, 8 (24 frames) if no option was set.
int32_t labels_project_type(void);

// Writes the frames a second of a rate's code. Returns LABELS_UNKNOWN for a code that is not a rate.
labels_status labels_rate_facts(int32_t rate, labels_rate* facts, size_t facts_size);

// --- labels ---

// Reads a label strictly: only what the type writes, with ":" for the separator before the frames of timecode.
// Returns LABELS_REFUSED for any other bytes, and LABELS_UNKNOWN for a type without labels.
//
//   labels_read(5, "01:00:00.00", 11, &label, sizeof label, NULL, 0);   // label.sample is 90000
labels_status labels_read(int32_t type, const char* text, size_t length, labels_label* label, size_t label_size,
                          labels_fault* fault, size_t fault_size);

// Writes the label of a sample. Key numbers and ink numbers take a prefix of the type's length; with none (NULL or
// length 0), they have that of unknown film, "XX000000". Other types ignore it. Returns LABELS_REFUSED if the
// sample has no label or the prefix is wrong, and LABELS_NO_ROOM if `size` is too small; LABELS_TEXT_SIZE never
// is.
labels_status labels_write(int32_t type, int32_t sample, const char* prefix, size_t prefix_length, int32_t style,
                           char* text, size_t size, labels_fault* fault, size_t fault_size);

// Reads `count` labels of `width` bytes each, without a gap. A label that is shorter ends in a zero byte. Writes a
// sample for each, LABELS_INVALID_SAMPLE if it was refused, and how many were, unless `refused` is NULL. Returns
// LABELS_REFUSED if any was; labels_read says why.
labels_status labels_read_array(int32_t type, const char* texts, size_t width, size_t count, int32_t* samples,
                                size_t* refused);

// Writes the labels of `count` samples, `width` bytes each, filled up with zero bytes; one of `width` bytes has no
// terminator. Samples without a label become empty texts. Returns LABELS_REFUSED if there was any, and
// LABELS_NO_ROOM at the first label that is too long: those before it are written. `refused` receives how many
// were without a label, unless it is NULL.
labels_status labels_write_array(int32_t type, const int32_t* samples, size_t count, const char* prefix,
                                 size_t prefix_length, int32_t style, char* texts, size_t width, size_t* refused);

// Adds samples to the sample of a label. Timecode goes on at the end of the day, key numbers and ink numbers at
// the end of their count. Returns LABELS_REFUSED for a sample without a label, for sums beyond 32 bits, and for
// those at which the keys of the film do not go on.
//
//   labels_add(7, 2589407, 1, &sum, NULL, 0);   // drop-frame 23:59:59;29 and a frame: 0
labels_status labels_add(int32_t type, int32_t sample, int64_t samples, int32_t* sum, labels_fault* fault,
                         size_t fault_size);

// --- conversion ---

// Converts the sample of a label. Returns LABELS_REFUSED for a sample without a label, for an answer beyond 32
// bits, and, with the reason in the fault, for tracks that do not fit together as asked.
labels_status labels_convert(const labels_conversion* conversion, size_t conversion_size, int32_t sample,
                             labels_answer* answer, size_t answer_size, labels_fault* fault, size_t fault_size);

// Converts `count` samples likewise. `converted` may be `samples`. A sample that is refused becomes
// LABELS_INVALID_SAMPLE; `refused` receives how many were, unless it is NULL. Returns LABELS_REFUSED if any was.
labels_status labels_convert_array(const labels_conversion* conversion, size_t conversion_size,
                                   const int32_t* samples, size_t count, int32_t* converted, size_t* refused);

// Writes the first video frame that shows a film frame. Frames count from 1; `phase` says where the cycle adds its
// frame. Returns LABELS_WRONG_CALL for another transfer, LABELS_REFUSED for a result beyond 32 bits.
//
//   labels_film_to_video(2, 0, LABELS_TRANSFER_2_3_PULLDOWN, &video);   // video is 3
labels_status labels_film_to_video(int32_t film, int32_t phase, int32_t transfer, int32_t* video);

// Writes the film frame that a video frame shows; for the added frame, the film frame after it. `next_phase`
// receives the phase of a cycle that begins at this video frame, unless it is NULL. Fails as labels_film_to_video
// does.
labels_status labels_video_to_film(int32_t video, int32_t phase, int32_t transfer, int32_t* film,
                                   int32_t* next_phase);

#ifdef __cplusplus
}
#endif

#endif
