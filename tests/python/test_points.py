"""Single labels."""
import copy
import pickle

import pytest

import labelsbase as labels
from labelsbase import LabelPoint


def test_points_are_values():
    points = [LabelPoint("29.97df", 1800), LabelPoint("35mm", 7900, "KJ123456"), LabelPoint("25", -1), LabelPoint("25", 0)]
    for point in points:
        for other in (eval(repr(point)), copy.deepcopy(point), pickle.loads(pickle.dumps(point)),
                      labels.parse(point.type, point.text)):
            assert other == point and hash(other) == hash(point)
    assert len(set(points)) == 4 and str(points[1]) == "KJ1234560123+07"
    assert points[2] < points[3] <= points[3] and points[2] != points[0]
    with pytest.raises(TypeError):
        points[0] < points[2]
    with pytest.raises(AttributeError):
        points[0].sample = 1


# A label, frames to add, the sum.
SUMS = [
    ("29.97df", "00:00:59;29", 1, "00:01:00;02"), ("25", "23:59:59.24", 1, "00:00:00.00"),
    ("25", "00:00:00.00", -1, "23:59:59.24"), ("35mm", "KJ1234560001+00", 16, "KJ1234560002+00"),
    ("feet35", "0000+15", 2, "0001+01"), ("frames", "000009", -9, "000000"),
]


@pytest.mark.parametrize("type, text, frames, total", SUMS)
def test_sums(type, text, frames, total):
    start = labels.parse(type, text)
    assert str(start + frames) == str(frames + start) == str(start - -frames) == total
    assert abs((start + frames) - start) in (abs(frames), 25 * 86400 - abs(frames))


REFUSED = [
    (lambda: labels.parse("25", b"00:00:00.00"), TypeError, "expected a label as str"),
    (lambda: LabelPoint("25", 1.0), TypeError, "sample needs to be a whole number, not 1.0"),
    (lambda: LabelPoint("25", True), TypeError, "not True"),
    (lambda: LabelPoint("25", -2**31 - 1), OverflowError, "sample=-2147483649 is beyond 32 bits"),
    (lambda: LabelPoint("25", 0, "KJ"), ValueError, "expected no prefix for pal_label"),
    (lambda: LabelPoint("25", 10**9).text, ValueError, "sample 1000000000 has no label"),
    (lambda: LabelPoint("25", 0) + 1.5, TypeError, "frames needs to be a whole number"),
    (lambda: LabelPoint("25", 0) - LabelPoint("24", 0), ValueError, "have no distance"),
    (lambda: LabelPoint("35mm", 4) - LabelPoint("35mm", 1), ValueError, "not whole frames apart"),
    (lambda: labels.find_type("#4"), ValueError, "unknown label type '#4'"),
    (lambda: labels.find_type(labels.LabelType.timecode_label), ValueError, "has no labels of its own"),
]


@pytest.mark.parametrize("call, error, words", REFUSED, ids=range(len(REFUSED)))
def test_what_is_refused(call, error, words):
    with pytest.raises(error) as raised:
        call()
    assert words in str(raised.value)


def test_refusals_say_why():
    with pytest.raises(labels.LabelError) as raised:
        labels.parse("25", "01:00:61:00")
    error = pickle.loads(pickle.dumps(raised.value))
    assert (error.field, error.reason, error.position, error.nearest) == (
        "seconds", "seconds run from 00 to 59", 6, "01:00:59.00")


def test_names():
    for name, type in [("25", 5), (25, 5), ("29.97df", 7), (23.976, 8), ("35mm", 10), ("#25", 25), ("pal_label", 5),
                       (labels.LabelType.pal_label, 5), ("30f-drop", 7)]:
        assert labels.find_type(name).type == type
    assert labels.find_type("23.976").rate.name == "fps_23_976" and labels.find_type(24).rate.name == "fps_24"
