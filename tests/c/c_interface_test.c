/* The C interface, compiled as C99. */
#include <labelsbase/c.h>
#include <stdio.h>
#include <string.h>

static int failures = 0;

#define EXPECT(condition) \
  ((condition) ? (void)0 : (void)(++failures, printf("%s:%d: %s\n", __FILE__, __LINE__, #condition)))
#define EXPECT_TEXT(got, expected) \
  (strcmp((got), (expected)) == 0 ? (void)0 : (void)(++failures, printf("%d: \"%s\"\n", __LINE__, (got))))

static labels_fault fault;
#define FAULT &fault, sizeof fault

static void names_lead_to_types_and_rates(void) {
  static const struct {
    const char* name;
    int32_t type, numerator, denominator;
  } cases[] = {
      {"29.97df", 7, 30000, 1001}, {"25p", 5, 25, 1},  {"23.976", 8, 24000, 1001},
      {"12.5", 44, 25, 2},         {"#10", 10, 24, 1},
  };
  labels_track track;
  labels_rate rate;
  labels_name name;
  labels_type type;
  for (size_t i = 0; i < sizeof cases / sizeof cases[0]; ++i) {
    EXPECT(labels_find(cases[i].name, LABELS_TERMINATED, &track, sizeof track, FAULT) == LABELS_OK);
    EXPECT(labels_rate_facts(track.rate, &rate, sizeof rate) == LABELS_OK);
    EXPECT(track.type == cases[i].type && rate.numerator == cases[i].numerator &&
           rate.denominator == cases[i].denominator);
  }
  EXPECT(labels_find("29.79", LABELS_TERMINATED, &track, sizeof track, FAULT) == LABELS_UNKNOWN);
  EXPECT_TEXT(fault.nearest, "29.97");
  EXPECT_TEXT(fault.message, "no label type is named \"29.79\"");

  size_t rows = 0;
  while (labels_name_at(rows, &name, sizeof name) == LABELS_OK) ++rows;
  EXPECT(rows == labels_name_count() && rows > 40);
  EXPECT(labels_type_facts(12, &type, sizeof type) == LABELS_OK);
  EXPECT(type.samples_per_frame == 3 && type.samples_per_count == 64 && type.feet_type == 16);
  EXPECT_TEXT(type.name, "keycode_353_label");
  EXPECT(labels_type_facts(labels_type_count(), &type, sizeof type) == LABELS_UNKNOWN);
}

static void labels_go_there_and_back(void) {
  static const struct {
    int32_t type, sample;
    const char *prefix, *text;
    int32_t style;
  } cases[] = {
      {5, 90000, "", "01:00:00.00", LABELS_STYLE_OWN}, {5, -1, "", "-00:00:00:01", LABELS_STYLE_EXCHANGE},
      {7, 1800, "", "00:01:00;02", LABELS_STYLE_OWN},  {10, 64, "KJ123456", "KJ1234560001+00", LABELS_STYLE_OWN},
      {14, -64, "", "-0001+00", LABELS_STYLE_OWN},     {10, 0, NULL, "XX0000000000+00", LABELS_STYLE_OWN},
  };
  char text[LABELS_TEXT_SIZE];
  labels_label label;
  for (size_t i = 0; i < sizeof cases / sizeof cases[0]; ++i) {
    EXPECT(labels_write(cases[i].type, cases[i].sample, cases[i].prefix, LABELS_TERMINATED, cases[i].style, text,
                        sizeof text, FAULT) == LABELS_OK);
    EXPECT_TEXT(text, cases[i].text);
    EXPECT(labels_read(cases[i].type, text, strlen(text), &label, sizeof label, FAULT) == LABELS_OK);
    EXPECT(label.sample == cases[i].sample && fault.message[0] == '\0');
    if (cases[i].prefix) EXPECT_TEXT(label.prefix, cases[i].prefix);
  }
}

static void refusals_give_reasons(void) {
  char text[LABELS_TEXT_SIZE] = "as it was";
  labels_label label = {7, "as it was"};
  int32_t sum = 0;
  EXPECT(labels_read(5, "01:00:61:00", 11, &label, sizeof label, FAULT) == LABELS_REFUSED);
  EXPECT_TEXT(fault.message, "seconds run from 00 to 59");
  EXPECT_TEXT(fault.nearest, "01:00:59.00");
  EXPECT_TEXT(fault.field, "seconds");
  EXPECT(fault.position == 6 && fault.reason == LABELS_REASON_RANGE && label.sample == 7);
  EXPECT(labels_read(99, "01:00:61:00", 11, &label, sizeof label, FAULT) == LABELS_UNKNOWN);
  EXPECT_TEXT(fault.message, "there is no label type 99");
  EXPECT(labels_write(10, -1, NULL, 0, 0, text, sizeof text, FAULT) == LABELS_REFUSED);
  EXPECT_TEXT(fault.message, "has no label; keycode_35_label covers samples 0 to 1279999");
  EXPECT(labels_write(10, 0, "KJ12", 4, 0, text, sizeof text, FAULT) == LABELS_REFUSED);
  EXPECT_TEXT(fault.message, "the prefix has 8 characters; this one has 4");
  EXPECT(labels_write(5, 0, NULL, 0, 0, text, 11, FAULT) == LABELS_NO_ROOM);
  EXPECT_TEXT(fault.message, "the label needs 12 bytes");
  EXPECT_TEXT(text, "as it was");
  EXPECT(labels_add(7, 2589407, 1, &sum, FAULT) == LABELS_OK && sum == 0);
  EXPECT(labels_add(7, 0, INT64_MAX, &sum, FAULT) == LABELS_REFUSED);
  EXPECT(labels_set_option("project-rate", LABELS_TERMINATED, "26", 2, FAULT) == LABELS_UNKNOWN);
  EXPECT(labels_set_option("project-rate", LABELS_TERMINATED, "25", 2, FAULT) == LABELS_OK);
  EXPECT(labels_project_type() == 5);
}

static void null_and_small_sizes_are_answered(void) {
  size_t refused = 9;
  int32_t sample = 0;
  labels_track short_track = {1, 2};
  labels_label label;
  EXPECT(labels_find("25", 2, &short_track, sizeof short_track.type, NULL, 0) == LABELS_OK);
  EXPECT(short_track.type == 5 && short_track.rate == 2);
  EXPECT(labels_find(NULL, 2, &short_track, sizeof short_track, FAULT) == LABELS_WRONG_CALL);
  EXPECT(labels_find("25", 2, NULL, 0, NULL, 0) == LABELS_WRONG_CALL);
  EXPECT(labels_read(5, NULL, LABELS_TERMINATED, &label, sizeof label, FAULT) == LABELS_WRONG_CALL);
  EXPECT(labels_write(5, 0, NULL, 0, 7, NULL, 0, FAULT) == LABELS_WRONG_CALL);
  EXPECT(labels_read_array(5, NULL, 0, 0, NULL, &refused) == LABELS_OK && refused == 0);
  EXPECT(labels_read_array(5, NULL, 1, 1, &sample, &refused) == LABELS_WRONG_CALL);
  EXPECT(labels_convert(NULL, 0, 0, NULL, 0, FAULT) == LABELS_WRONG_CALL);
  EXPECT(labels_film_to_video(1, 0, LABELS_TRANSFER_2_3_PULLDOWN, NULL) == LABELS_WRONG_CALL);
  EXPECT_TEXT(labels_status_text(-1), "unknown status");
}

static void arrays_and_conversions(void) {
  int32_t samples[] = {25, INT32_MAX, -25};
  size_t refused = 0;
  char texts[3][12];
  labels_answer answer;
  labels_conversion to_drop;
  int32_t video = 0, film = 0, phase = 0;
  memset(&to_drop, 0, sizeof to_drop);
  labels_find("25", 2, &to_drop.from, sizeof to_drop.from, NULL, 0);
  labels_find("29.97df", 7, &to_drop.to, sizeof to_drop.to, NULL, 0);
  EXPECT(labels_convert(&to_drop, sizeof to_drop, 25, &answer, sizeof answer, FAULT) == LABELS_OK);
  EXPECT(answer.sample == 30 && answer.before == 29 && answer.after == 30);
  EXPECT(labels_write_array(5, samples, 3, NULL, 0, LABELS_STYLE_EXCHANGE, texts[0], 12, &refused) ==
         LABELS_REFUSED);
  EXPECT(memcmp(texts, "00:00:01:00\0\0\0\0\0\0\0\0\0\0\0\0\0-00:00:01:00", 36) == 0 && refused == 1);
  EXPECT(labels_write_array(5, samples, 3, NULL, 0, 0, texts[0], 11, &refused) == LABELS_NO_ROOM);
  EXPECT(labels_convert_array(&to_drop, sizeof to_drop, samples, 2, samples, &refused) == LABELS_REFUSED);
  EXPECT(samples[0] == 30 && samples[1] == LABELS_INVALID_SAMPLE && refused == 1);
  to_drop.transfer = LABELS_TRANSFER_2_3_PULLDOWN;
  EXPECT(labels_convert(&to_drop, sizeof to_drop, 25, &answer, sizeof answer, FAULT) == LABELS_REFUSED);
  EXPECT(strlen(fault.message) > 10);
  EXPECT(labels_film_to_video(2, 0, LABELS_TRANSFER_2_3_PULLDOWN, &video) == LABELS_OK && video == 3);
  EXPECT(labels_video_to_film(3, 0, LABELS_TRANSFER_2_3_PULLDOWN, &film, &phase) == LABELS_OK && film == 2 &&
         phase == 3);
}

int main(void) {
  names_lead_to_types_and_rates();
  labels_go_there_and_back();
  refusals_give_reasons();
  null_and_small_sizes_are_answered();
  arrays_and_conversions();
  return failures;
}
