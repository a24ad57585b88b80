"""Conversions, labels with keep strings, rolls, frame counts and settings."""
import copy
import pickle
from fractions import Fraction

import numpy as np
import pytest

import labelsbase as labels
from labelsbase import EditLabel, Label, LabelPoint, Roll


@pytest.mark.parametrize("source, rate, target, to_rate, samples_a_frame", [
    ("25", 25, "29.97", Fraction(30000, 1001), 1), ("23.976", Fraction(24000, 1001), "24", 24, 1),
    ("29.97df", Fraction(30000, 1001), "25", 25, 1), ("feet35", 24, "25", 25, 4), ("48", 48, "feet16", 24, 1)])
def test_conversions_by_time(source, rate, target, to_rate, samples_a_frame):
    samples = np.arange(0, 500_000, 7 * samples_a_frame, dtype=np.int32)
    converted = {way: labels.convert(source, target, samples, by="time", round=way) for way in ("down", "near", "up")}
    for i in range(0, len(samples), 503):
        at = Fraction(int(samples[i]), samples_a_frame) / rate * to_rate
        expected = {"down": at.__floor__(), "near": (at + Fraction(1, 2)).__floor__(), "up": at.__ceil__()}
        assert {way: frames[i] for way, frames in converted.items()} == expected


def test_conversions_of_every_form():
    assert labels.convert("24", "29.97", ["00:00:00:00", "00:00:00:04"], transfer="2:3").tolist() == [
        "00:00:00.00", "00:00:00.05"]
    texts = labels.convert("25", "35mm", np.array([[b"01:00:00:04"]]), sync=("01:00:00:00", "KJ1234560100+00"))
    assert texts.dtype.kind == "S" and texts.tolist() == [[b"KJ1234560100+04"]]
    assert labels.convert("25", "24", np.zeros((0, 3), "S11")).shape == (0, 3)
    assert str(labels.convert("25", "30", LabelPoint("25", 25))) == "00:00:01.00"


def test_frames_through_a_pulldown():
    # AA BB BC CD DD: film frames A B C D, from each frame that the cycle can begin with
    for phase, shown in [("A", [1, 2, 4, 5]), ("B", [1, 3, 4, 5])]:
        assert [labels.film_to_video(frame, phase=phase).frame for frame in (1, 2, 3, 4)] == shown
    for frame in range(-50, 50):
        video = labels.film_to_video(frame, transfer="24:25").frame
        assert labels.video_to_film(video, transfer="24:25").frame == frame


REFUSED = [
    (lambda: labels.convert("25", "24", ["00:00:00.01"], exact=True), ValueError, "samples[0]: 1 falls between samples 0 and"),
    (lambda: labels.convert("25", "24", [0, 10**8 * 3]), ValueError, "samples[1]: 300000000 has no label; pal_label covers"),
    (lambda: labels.convert("frames", "35mm", [-1], by="frame"), ValueError, "becomes sample -4, which has no label"),
    (lambda: labels.convert("35mm", "30", [0]), ValueError, ""),
    (lambda: labels.convert("25", "24", [0], by="frames"), ValueError, "by='frames': expected one of time, frame"),
    (lambda: labels.convert("25", "24", [0], sync=0), TypeError, "sync=0: expected two"),
    (lambda: labels.convert("25", "24", [0], phase="A"), ValueError, "phase='A': expected a number"),
    (lambda: labels.convert("24", "30", [0], phase=9, transfer="2:3"), ValueError, "phase"),
    (lambda: labels.convert("25", "24", LabelPoint("24", 0)), ValueError, "expected a label of type pal_label"),
    (lambda: labels.convert("25", "24", [0.5]), TypeError, "whole numbers"),
    (lambda: labels.film_to_video(2**31 - 1), ValueError, "beyond 32 bits"),
    (lambda: labels.film_to_video(2**31), OverflowError, "beyond 32 bits"),
    (lambda: labels.clock_to_cel("1"), TypeError, "number"),
    (lambda: labels.set_option("drop-frame", "perhaps"), ValueError, "drop-frame: 'perhaps' is wrong; expected"),
    (lambda: labels.find_choice("nothing"), ValueError, "unknown label choice 'nothing'"),
    (lambda: labels.find_medium("src_26p"), ValueError, "unknown medium 'src_26p'"),
    (lambda: Roll.parse("71,1"), ValueError, "'71,1' is not a roll"),
    (lambda: Roll.parse("28,1 A001"), ValueError, "is not a roll"),
    (lambda: Roll("film", 9), ValueError, "9"),
    (lambda: Label(LabelPoint("25", 0), 2**31), OverflowError, "length=2147483648"),
    (lambda: Label(LabelPoint("25", 0), 1, pitch=float("nan")), ValueError, "more than 0"),
    (lambda: Label("00:00:00:00", 1), TypeError, "LabelPoint"),
    (lambda: Label(LabelPoint("25", 0), 10).point(11), ValueError, "samples from 0 to 10"),
    (lambda: Label(LabelPoint("25", 10**9), 10).keep_string, ValueError, "has no label"),
    (lambda: Label.from_keep("nonsense\ud800"), ValueError, "not a keep string"),
    (lambda: Label.from_keep("LABEL_REV:1 pal_label BAD 1 0.04 1"), ValueError, "start cannot be read"),
    (lambda: EditLabel.from_keep("LABEL_REV:1 pal_label 01:00:00.00 1 0.04 1 MediumRollId 99,1"), ValueError, "roll cannot be"),
]


@pytest.mark.parametrize("call, error, words", REFUSED, ids=range(len(REFUSED)))
def test_what_is_refused(call, error, words):
    with pytest.raises(error) as raised:
        call()
    assert words in str(raised.value)


KEEPS = [
    (Label, "LABEL_REV:1 pal_label 01:00:00.00 250 0.0400000000 1"),
    (Label, "LABEL_REV:1 ntsc_drop_label 00:01:00;02 30 0.0333666667 0"),
    (Label, "LABEL_REV:1 keycode_35_label KJ1234560123+07 16 0.0416666667 1"),
    (EditLabel, "LABEL_REV:1 pal_label 01:00:00.00 250 0.0400000000 1 MediumRollId 20,2"),
]


@pytest.mark.parametrize("kind, keep", KEEPS)
def test_keep_strings(kind, keep):
    label = kind.from_keep(keep)
    assert label.keep_string == keep
    for other in (eval(repr(label), vars(labels)), copy.copy(label), pickle.loads(pickle.dumps(label))):
        assert other == label and hash(other) == hash(label)


def test_rolls_and_choices():
    roll = Roll.parse("REV: 1 MediumRollId: 28,2 reelid: A001")
    assert roll == Roll("out_24p", "first", "A001") == eval(repr(roll), vars(labels)) and str(roll) == "28,2"
    assert Roll("src_24p", "first").name == "24p,1stGen" and not Roll("film24").fits(Roll("src_24p"))
    assert labels.medium_facts("src_2398p").label_type.name == "tc_24_label"
    assert labels.medium_facts("film").sample_seconds is None
    assert labels.find_choice("scene").number == 18 and len(labels.label_choices()) == 35


def test_settings_reach_the_library():
    try:
        labels.set_option("project-rate", "24")
        labels.set_option("gearing-rate", "30")
        assert (labels.clock_to_cel(4), labels.cel_to_clock(5)) == (5.0, 4.0)
    finally:
        labels.set_option("gearing-rate", "24")
