"""Labels in arrays: all of a day, every form of array, and what is refused."""
import random
from concurrent.futures import ThreadPoolExecutor

import numpy as np
import pytest

import labelsbase as labels

# type, frames a second, separator before the frames
TIMECODE = [
    ("pal_label", 25, "."), ("ntsc_label", 30, "."), ("ntsc_drop_label", 30, ";"), ("tc_24_label", 24, "+"),
    ("tc_48_label", 48, "+"), ("tc_50_label", 50, "."), ("tc_60_label", 60, "."), ("tc_50_duration_label", 50, "."),
    ("tc_60_duration_label", 60, "."), ("tc_12_label", 12, "."), ("tc_15_label", 15, "."), ("tc_20_label", 20, "."),
    ("tc_80_label", 80, "."), ("tc_90_label", 90, "."), ("tc_100_label", 100, "."), ("tc_120_label", 120, "."),
    ("tc_240_label", 240, "."),
]


def counted(type, sample, rate, separator):
    if type == "ntsc_drop_label":  # two labels are left out at each minute but the tenth
        tens, rest = divmod(sample, 17982)
        sample += 18 * tens + (2 * ((rest - 2) // 1798) if rest > 1 else 0)
    seconds, frame = divmod(sample, rate)
    return (f"{seconds // 3600:02}:{seconds // 60 % 60:02}:{seconds % 60:02}{separator}"
            f"{frame:0{3 if rate > 100 else 2}}")


def test_every_label_of_the_day_comes_back():
    def hour(job):
        type, rate, separator, first, last = job
        samples = np.arange(first, last, dtype=np.int32)
        texts = labels.to_text(type, samples, dtype="S")
        for at in range(0, len(samples), 997):
            assert texts[at].decode() == counted(type, int(samples[at]), rate, separator)
        assert np.array_equal(labels.to_samples(type, texts), samples)
        return len(samples)

    jobs = []
    for type, rate, separator in TIMECODE:
        day = 2589408 if type == "ntsc_drop_label" else rate * 86400
        jobs += [(type, rate, separator, first, min(first + rate * 3600, day)) for first in range(0, day, rate * 3600)]
    with ThreadPoolExecutor(2) as threads:
        assert sum(threads.map(hour, jobs)) == 1024 * 86400 + 2589408


WHOLE = np.arange(0, 60000, 7, dtype=np.int32)
FORMS = {
    "strided": WHOLE[::3], "backwards": WHOLE[::-1], "cube": WHOLE[:600].reshape(10, 5, 12).transpose(2, 0, 1),
    "empty": WHOLE[:0], "scalar": WHOLE[5], "big-endian": WHOLE.astype(">i4"), "64 bits": WHOLE.astype(np.int64),
    "bytes": (WHOLE % 100).astype(np.uint8), "list": WHOLE[:9].tolist(), "broadcast": np.broadcast_to(WHOLE[:4], (3, 4)),
}


@pytest.mark.parametrize("form", FORMS)
@pytest.mark.parametrize("kind", "SU")
def test_arrays_of_every_form(form, kind):
    samples = FORMS[form]
    texts = labels.to_text("29.97df", samples, dtype=kind)
    flat = [counted("ntsc_drop_label", int(sample), 30, ";") for sample in np.asarray(samples).flat]
    assert texts.shape == np.shape(samples) and texts.astype(str).ravel().tolist() == flat
    texts.flags.writeable = False
    assert np.array_equal(labels.to_samples("29.97df", texts), samples)
    assert np.array_equal(labels.to_samples("29.97df", texts.astype(f">{kind}20")[()]), samples)
    assert labels.is_valid("29.97df", texts).all()


def test_out_is_filled_in_place():
    records = np.zeros(3, dtype=[("scene", "S4"), ("start", "S14"), ("name", "U3")])
    records["scene"], records["name"] = b"12A", "Ann"
    assert labels.to_text("25", [0, 25, -25], out=records["start"]).base is records
    assert records["start"].tolist() == [b"00:00:00.00", b"00:00:01.00", b"-00:00:01.00"]
    assert records["scene"].tolist() == [b"12A"] * 3 and records["name"].tolist() == ["Ann"] * 3
    for out, error in [(np.zeros(3, "S10"), ValueError), (np.zeros(2, "S11"), ValueError), (np.zeros(3), TypeError),
                       (np.zeros(3, ">U11"), TypeError), ([""] * 3, TypeError),
                       (np.broadcast_to(np.zeros(1, "S11"), 3), ValueError)]:
        with pytest.raises(error):
            labels.to_text("25", [0, 1, 2], out=out)

    samples = np.zeros((2, 3), np.int32)
    labels.to_samples("25", ["00:00:00.07"] * 3, out=samples[1])
    assert samples.tolist() == [[0, 0, 0], [7, 7, 7]]
    with pytest.raises(TypeError):
        labels.to_samples("25", ["00:00:00.07"], out=np.zeros(1))


def test_what_is_refused_late_in_a_long_array():
    starts = np.zeros(1000, dtype=[("scene", "S1"), ("start", "U11")])["start"]
    samples = np.arange(1000)
    with pytest.raises(ValueError, match=r"samples\[777\]: -1 has no label"):
        labels.to_text("29.97df", np.where(samples == 777, -1, samples), out=starts)
    assert starts[776] == "00:00:25;26" and starts[777:].tolist() == [""] * 223
    labels.to_text("29.97df", samples, out=starts)
    starts[900] = "00:00:30;\u0130\u0130"  # their lowest bytes are those of "00"
    read = np.zeros(1000, np.int32)
    with pytest.raises(labels.LabelError, match=r"texts\[900\]"):
        labels.to_samples("29.97df", starts, out=read)
    assert read[:900].tolist() == list(range(900)) and read[901:].tolist() == [0] * 99
    assert labels.is_valid("29.97df", starts).nonzero()[0].tolist() == [*range(900), *range(901, 1000)]


DAY = 25 * 86400
REFUSED = [
    (lambda: labels.to_text("25", [0.5]), TypeError, "samples need to be whole numbers, not float64"),
    (lambda: labels.to_text("25", [True]), TypeError, "not bool"),
    (lambda: labels.to_text("25", ["1"]), TypeError, "whole numbers"),
    (lambda: labels.to_text("25", [[0, 1], [2, 2**31]]), OverflowError, "samples[1, 1]: 2147483648 is beyond 32 bits"),
    (lambda: labels.to_text("25", [0, -10**30]), OverflowError, "samples[1]: -1000000000000000000000000000000 is"),
    (lambda: labels.to_text("35mm", [0, 4, -1]), ValueError, "samples[2]: -1 has no label; keycode_35_label covers"),
    (lambda: labels.to_text("25", [0], dtype="f"), TypeError, "expected 'S' or 'U'"),
    (lambda: labels.to_text("25", [0], style="edl"), ValueError, "style='edl': expected one of own, exchange"),
    (lambda: labels.to_text("35mm", [0], prefix="KJ"), ValueError, "expected 8 printable characters"),
    (lambda: labels.to_text("29.79", [0]), ValueError, "nearest: 29.97"),
    (lambda: labels.to_text(None, [0]), TypeError, "name of a label type"),
    (lambda: labels.to_text(labels.FrameRate.fps_25, [0]), TypeError, "name of a label type"),
    (lambda: labels.to_samples("25", [["00:00:00.00"], ["00:00:61.00"]]), labels.LabelError, "texts[1, 0]: '00:00:61"),
    (lambda: labels.to_samples("25", ["00:00:00.00", None]), TypeError, "texts[1]: expected a label as str, not None"),
    (lambda: labels.to_samples("25", [1]), TypeError, "not int64"),
    (lambda: labels.to_samples("25", ["00:00:00.00"], illegal="keep"), ValueError, "refuse, nearest, as-is"),
    (lambda: labels.to_samples("25", ["00:00:00.00"], errors="ignore"), ValueError, "raise, mask"),
    (lambda: labels.add("foot_35_label", [0, 2**31 - 1], 1), ValueError, "samples[1]"),
    (lambda: labels.add("25", [0], 0.5), TypeError, "frames need"),
    (lambda: labels.diff("feet35", [2**31 - 1], [-1]), ValueError, "beyond 32 bits"),
]


@pytest.mark.parametrize("call, error, words", REFUSED, ids=range(len(REFUSED)))
def test_what_is_refused(call, error, words):
    with pytest.raises(error) as raised:
        call()
    assert words in str(raised.value)


def test_illegal_labels_and_masks():
    texts = ["00:01:00;02", "00:01:00;00", "00:00:61;00", "nothing", ""]
    samples, mask = labels.to_samples("29.97df", texts, errors="mask")
    assert samples.tolist() == [1800] + [labels.INVALID_SAMPLE] * 4 and mask.tolist() == [False] + [True] * 4
    samples, mask = labels.to_samples("29.97df", texts, illegal="nearest", errors="mask")
    assert samples.tolist()[:3] == [1800, 1800, 1770] and mask.tolist() == [False] * 3 + [True] * 2
    assert labels.to_samples("25", ["99:99:99:99"], illegal="as-is")[0] == (99 * 3600 + 99 * 60 + 99) * 25 + 99


def test_sums_wrap_as_labels_count():
    assert labels.add("25", [DAY - 1, 0], [[1], [-1]]).tolist() == [[0, 1], [DAY - 2, DAY - 1]]
    assert labels.add("35mm-3p", 0, [1, 2]).tolist() == [3, 6]
    assert labels.diff("25", [10, 0], [4, 1]).tolist() == [6, DAY - 1]


def test_arrays_read_any_text_as_parse_does():
    draw = random.Random(25)
    near = ["01:00:61:00", "-00:00:00.00", "KJ1234560123+07", "0016+15", " 12:34:56;78"]
    for _ in range(3000):
        text = list(draw.choice(near))
        for _ in range(draw.randrange(4)):
            text[draw.randrange(len(text))] = draw.choice("0159:;.+- \x01\x7fé€\ud800😀" + "KJ" * 2)
        text = "".join(text)[:draw.randrange(20)].rstrip("\0")
        type = draw.choice(["25", "29.97df", "35mm", "feet35", "frames", "120"])
        for illegal in ("refuse", "nearest", "as-is"):
            try:
                expected = labels.parse(type, text, illegal=illegal).sample
            except labels.LabelError as error:
                expected = labels.INVALID_SAMPLE
                assert error.position <= len(text) and labels.is_valid(type, error.nearest) == (error.nearest != "")
                assert eval(repr(error.args)) and error.__reduce__()[1][0] == text
            samples, mask = labels.to_samples(type, np.array([text]), illegal=illegal, errors="mask")
            assert samples[0] == expected and mask[0] == (expected == labels.INVALID_SAMPLE)


def test_eight_threads():
    samples = np.arange(0, 600_000, 4, dtype=np.int32)

    def work(number):
        type, prefix = [("25", ""), ("35mm", "KJ123456"), ("35mm", "EA654321"), ("feet35", ""), ("35mm", "")][number % 5]
        texts = labels.to_text(type, samples, prefix=prefix)
        start = prefix or ("XX000000" if type == "35mm" else "")
        return np.char.startswith(texts, start).all() and np.array_equal(labels.to_samples(type, texts), samples)

    with ThreadPoolExecutor(8) as threads:
        assert all(threads.map(work, range(20)))
