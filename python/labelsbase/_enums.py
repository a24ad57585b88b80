"""The enumerations of the library, with the numbers that hosts store."""
from enum import IntEnum

from . import _core


def _rate_name(rate: float) -> str:
    return "fps_" + f"{rate:.3f}".rstrip("0").rstrip(".").replace(".", "_")


LabelType = IntEnum("LabelType", _core.label_types(), module=__package__)
LabelType.__doc__ = "A type of label, by the name of its class: LabelType.pal_label is timecode of 25 frames."

FrameRate = IntEnum(
    "FrameRate", [("unknown", 0)] + [(_rate_name(fps), number) for number, fps in _core.rates()], module=__package__)
FrameRate.__doc__ = "A frame rate, by frames a second: FrameRate.fps_23_976."

Medium = IntEnum("Medium", _core.media(), module=__package__)
Medium.__doc__ = "What material is on: Medium.film, Medium.src_25p."


class Family(IntEnum):
    """A family of label types."""

    none = 0
    any = 1
    no_label = 2
    timecode = 3
    key_number = 4
    feet = 5
    ink = 6
    film_frames = 7


class Generation(IntEnum):
    """How many copies material is away from the original."""

    unknown = 0
    any = 1
    first = 2
    second = 3
    third = 4
    fourth = 5


class Transfer(IntEnum):
    """How film frames become video frames."""

    none = 0
    pulldown_2_3 = 1
    pulldown_24_25 = 2
    one_to_one = 3
