"""Labels over a range of material, and the keep strings in which hosts store them."""
from __future__ import annotations

import math
from dataclasses import dataclass
from typing import Any

from . import _core
from ._enums import LabelType, Medium
from ._media import Roll
from ._points import INVALID_SAMPLE, LabelPoint, whole_number


@dataclass(frozen=True, init=False)
class Label:
    """A range of material: its first label, its length in samples, and how long a sample lasts.

    >>> label = Label(LabelPoint("25", 90000), 250)
    >>> label.keep_string
    'LABEL_REV:1 pal_label 01:00:00.00 250 0.0400000000 1'
    >>> Label.from_keep(label.keep_string) == label
    True
    >>> str(label.point(25)), label.seconds(25)
    ('01:00:01.00', 3601.0)
    """

    start: LabelPoint
    length: int  #: samples from the start to the end
    pitch: float  #: seconds per sample
    bounded: bool  #: whether offsets outside 0 to `length` are out of range

    def __init__(self, start: LabelPoint, length: int, pitch: float | None = None, bounded: bool = True) -> None:
        """Without `pitch`, the material runs at the natural speed of the type: film at 24 frames a second.

        Raise TypeError for wrong types, OverflowError beyond 32 bits, ValueError for a pitch that is not above 0.
        """
        if not isinstance(start, LabelPoint):
            raise TypeError(f"start needs to be a LabelPoint, not {start!r}")
        if not isinstance(bounded, bool):
            raise TypeError(f"bounded needs to be a bool, not {bounded!r}")
        object.__setattr__(self, "start", start)
        object.__setattr__(self, "length", whole_number(length, "length"))
        object.__setattr__(self, "pitch", _seconds(_core.natural_pitch(start.type) if pitch is None else pitch))
        object.__setattr__(self, "bounded", bounded)

    @classmethod
    def from_keep(cls, text: str) -> Label:
        """Read a keep string. Fields that are missing are 0, as hosts read them.

        Raises ValueError if the type or the start cannot be read, or the pitch is not above 0.
        """
        kept, start = _kept(_core.read_keep, text)
        return cls(start, kept.length, kept.pitch, kept.bounded)

    @property
    def keep_string(self) -> str:
        """The label as hosts store it: revision, type, start, frames, seconds per frame, bounded."""
        return _core.write_keep(_kept_fields(self, Roll(Medium.any)))

    def point(self, offset: int) -> LabelPoint:
        """Return the label at an offset in samples. Raises ValueError outside the range of a bounded label."""
        offset = whole_number(offset, "offset")
        if self.bounded and not 0 <= offset <= self.length:
            raise ValueError(f"offset={offset}: expected samples from 0 to {self.length}")
        return LabelPoint(self.start.type, self.start.sample + offset, self.start.prefix)

    def seconds(self, offset: int) -> float:
        """Return the position at an offset: seconds from the zero point of the type. Raises as point does."""
        return self.point(offset).sample * self.pitch


@dataclass(frozen=True, init=False)
class EditLabel(Label):
    """A label that knows the medium its material is on, and so how fast it runs.

    >>> from labelsbase import Roll
    >>> EditLabel(LabelPoint("29.97", 0), 30, Roll("src_30i")).pitch == 1 / 30
    True
    >>> EditLabel(LabelPoint("25", 90000), 250, Roll("src_25i", "first")).keep_string
    'LABEL_REV:1 pal_label 01:00:00.00 250 0.0400000000 1 MediumRollId 20,2'
    """

    roll: Roll

    def __init__(self, start: LabelPoint, length: int, roll: Roll, pitch: float | None = None,
                 bounded: bool = True) -> None:
        """Without `pitch`, the material runs at the speed of the type on the medium. Raise as Label does."""
        if not isinstance(roll, Roll):
            raise TypeError(f"roll needs to be a Roll, not {roll!r}")
        Label.__init__(self, start, length, pitch, bounded)
        if pitch is None:
            pitch = _core.pitch_on(start.type, roll.medium, roll.generation)
            object.__setattr__(self, "pitch", pitch)
        object.__setattr__(self, "roll", roll)

    @classmethod
    def from_keep(cls, text: str) -> EditLabel:
        """Read a keep string. Without a roll, the medium and the generation are "any". Raises as Label.from_keep."""
        kept, start = _kept(_core.read_edit_keep, text)
        try:
            roll = Roll(kept.medium, kept.generation)
        except ValueError as wrong:
            raise ValueError(f"{text!r}: the roll cannot be read; {wrong}") from None
        return cls(start, kept.length, roll, kept.pitch, kept.bounded)

    @property
    def keep_string(self) -> str:
        """The label as hosts store it: as a Label, then the medium and generation."""
        return _core.write_edit_keep(_kept_fields(self, self.roll))


def _kept_fields(label: Label, roll: Roll) -> Any:
    start = label.start
    if not _core.has_label(start.type, start.sample):
        raise ValueError(f"the start, sample {start.sample}, {_core.explain_missing(start.type, start.sample)}")
    return _core.Kept(start.type, start.prefix, start.sample, label.length, label.pitch, label.bounded, roll.medium,
                      roll.generation)


def _seconds(pitch: object) -> float:
    if isinstance(pitch, bool) or not isinstance(pitch, (int, float)):
        raise TypeError(f"pitch needs to be seconds per sample, not {pitch!r}")
    if not (math.isfinite(pitch) and pitch > 0):
        raise ValueError(f"pitch={pitch}: expected seconds per sample, more than 0")
    return float(pitch)


def _kept(read: Any, text: str) -> tuple[Any, LabelPoint]:
    if not isinstance(text, str):
        raise TypeError(f"expected a keep string as str, not {text!r}")
    kept = read(text)
    if not _core.facts_of(kept.type)["has_labels"]:
        raise ValueError(f"{text!r} is not a keep string; expected 'LABEL_REV:1 pal_label 01:00:00.00 250 0.04 1'")
    if kept.sample == INVALID_SAMPLE:
        raise ValueError(f"{text!r}: the start cannot be read as a label of type {LabelType(kept.type).name}")
    return kept, LabelPoint(LabelType(kept.type), kept.sample, kept.prefix)
