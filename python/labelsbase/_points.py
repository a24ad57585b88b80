"""Labels at one position: reading and writing them, and sums."""
from __future__ import annotations

import operator
from dataclasses import dataclass, field
from functools import total_ordering
from typing import Literal, TypeVar, overload

from . import _core
from ._enums import LabelType
from ._types import TypeName, find_type

Illegal = Literal["refuse", "nearest", "as-is"]
Style = Literal["own", "exchange"]
Value = TypeVar("Value")

_ILLEGAL = {"refuse": _core.Illegal.refuse, "nearest": _core.Illegal.nearest, "as-is": _core.Illegal.as_is}
_STYLE = {"own": _core.Style.own, "exchange": _core.Style.exchange}

#: What the library itself returns for a text that cannot be read.
INVALID_SAMPLE: int = _core.INVALID_SAMPLE


class LabelError(ValueError):
    """A text that is not a label of its type."""

    text: str
    field: str  #: the part at fault: "hours", "frames", "prefix", ...; "label" for the whole
    reason: str  #: what is wrong: "seconds run from 00 to 59"
    position: int  #: characters from the start of the text to the place at fault
    nearest: str  #: the nearest valid label; empty if nothing is legible
    index: tuple[int, ...] | None  #: of the text in its array; None for a single text

    def __init__(self, text: str, field: str, reason: str, position: int, nearest: str,
                 index: tuple[int, ...] | None = None) -> None:
        where = "" if index is None else f"texts{list(index)}: "
        hint = f"; nearest is {nearest}" if nearest else ""
        super().__init__(f"{where}{text!r}: {reason} (character {position + 1}){hint}")
        self.text, self.field, self.reason, self.position, self.nearest = text, field, reason, position, nearest
        self.index = index

    def __reduce__(self) -> tuple:
        return type(self), (self.text, self.field, self.reason, self.position, self.nearest, self.index)


def choice(given: str, choices: dict[str, Value], name: str) -> Value:
    """Return the value of a named choice; raise if there is none."""
    if not isinstance(given, str):
        raise TypeError(f"{name} needs to be a str, not {given!r}")
    if given not in choices:
        raise ValueError(f"{name}={given!r}: expected one of {', '.join(choices)}")
    return choices[given]


def film_prefix(type: LabelType, prefix: str) -> str:
    """Return a prefix of a key number or ink number, or ""; raise TypeError or ValueError for anything else."""
    if not isinstance(prefix, str):
        raise TypeError(f"prefix needs to be a str, not {prefix!r}")
    length = _core.facts_of(type)["prefix_length"]
    if prefix and (len(prefix) != length or not (prefix.isascii() and prefix.isprintable())):
        expected = f"{length} printable characters" if length else "no prefix"
        raise ValueError(f"prefix={prefix!r}: expected {expected} for {type.name}")
    return prefix


def whole_number(value: object, name: str) -> int:
    """Return a whole number of 32 bits; raise TypeError or OverflowError for anything else."""
    if isinstance(value, bool):
        raise TypeError(f"{name} needs to be a whole number, not {value!r}")
    try:
        number = operator.index(value)  # type: ignore[arg-type]
    except TypeError:
        raise TypeError(f"{name} needs to be a whole number, not {value!r}") from None
    if not -2**31 <= number < 2**31:
        raise OverflowError(f"{name}={number} is beyond 32 bits, -2147483648 to 2147483647")
    return number


def parse(type: TypeName, text: str, *, illegal: Illegal = "refuse") -> LabelPoint:
    """Read a label.

    `illegal` says what becomes of a label that does not exist: "refuse" raises LabelError, "nearest" reads the nearest
    valid label, "as-is" reads what the library itself does, 99:99:99:99 too.

    >>> parse("29.97df", "00:01:00;02").sample
    1800
    >>> parse("25", "01:00:61:00")
    Traceback (most recent call last):
    labelsbase.LabelError: '01:00:61:00': seconds run from 00 to 59 (character 7); nearest is 01:00:59.00
    >>> parse("25", "01:00:61:00", illegal="nearest").text
    '01:00:59.00'
    """
    found = find_type(type)
    if not isinstance(text, str):
        raise TypeError(f"expected a label as str, not {text!r}")
    answer = _core.read_text(found.type, text, choice(illegal, _ILLEGAL, "illegal"))
    if len(answer) == 2:
        sample, prefix = answer
        return LabelPoint(found.type, sample, prefix)
    field_name, position, nearest, reason = answer
    raise LabelError(text, field_name, reason, position, nearest)


@total_ordering
@dataclass(frozen=True, init=False, repr=False, slots=True)
class LabelPoint:
    """A label at one position: a type, a sample, and the prefix of key numbers and ink numbers.

    Samples are frames for timecode and film frames, perforations for other film.

    >>> point = LabelPoint("29.97df", 1800)
    >>> str(point), point.sample
    ('00:01:00;02', 1800)
    >>> point - 1
    LabelPoint('ntsc_drop_label', 1799)
    >>> (LabelPoint("25", 100) - LabelPoint("25", 25)).__class__.__name__
    'int'

    Sums count frames and wrap: timecode at the end of the day, key numbers after the last key. Points of one type and
    prefix compare by their samples.
    """

    type: LabelType
    sample: int
    prefix: str = field(default="")

    def __init__(self, type: TypeName, sample: int, prefix: str = "") -> None:
        """Accept any sample of 32 bits, with a label or not. Raise OverflowError for others, ValueError for a prefix of
        another length than the type has, TypeError for a sample that is not a whole number."""
        found = find_type(type)
        object.__setattr__(self, "type", found.type)
        object.__setattr__(self, "sample", whole_number(sample, "sample"))
        object.__setattr__(self, "prefix", film_prefix(found.type, prefix))

    @property
    def text(self) -> str:
        """The label in the style of its type. Raises ValueError if the sample has no label."""
        return self.to_text()

    def to_text(self, style: Style = "own") -> str:
        """Return the label: in the style of its type, or as other systems write timecode.

        >>> LabelPoint("25", 90000).to_text("exchange")
        '01:00:00:00'
        """
        text = _core.write_text(self.type, self.sample, self.prefix, choice(style, _STYLE, "style"))
        if not text:
            raise ValueError(f"sample {self.sample} {_core.explain_missing(self.type, self.sample)}")
        return text

    def __str__(self) -> str:
        return self.text

    def __repr__(self) -> str:
        prefix = f", {self.prefix!r}" if self.prefix else ""
        return f"LabelPoint({self.type.name!r}, {self.sample}{prefix})"

    def __lt__(self, other: LabelPoint) -> bool:
        if not isinstance(other, LabelPoint) or (self.type, self.prefix) != (other.type, other.prefix):
            return NotImplemented
        return self.sample < other.sample

    def __add__(self, frames: int) -> LabelPoint:
        if isinstance(frames, LabelPoint):
            return NotImplemented
        return self._plus(whole_number(frames, "frames"))

    __radd__ = __add__

    @overload
    def __sub__(self, other: LabelPoint) -> int: ...
    @overload
    def __sub__(self, other: int) -> LabelPoint: ...
    def __sub__(self, other: LabelPoint | int) -> LabelPoint | int:
        """Return the point some frames earlier, or the frames between two points of one type and prefix."""
        if not isinstance(other, LabelPoint):
            return self._plus(-whole_number(other, "frames"))
        if (self.type, self.prefix) != (other.type, other.prefix):
            raise ValueError(f"{self!r} and {other!r} have no distance: the types or prefixes differ")
        frames, rest = divmod(self.sample - other.sample, _core.facts_of(self.type)["samples_per_frame"])
        if rest:
            raise ValueError(f"{self} and {other} are not whole frames apart; subtract their samples")
        return frames

    def _plus(self, frames: int) -> LabelPoint:
        samples = frames * _core.facts_of(self.type)["samples_per_frame"]
        found = _core.add_samples(self.type, self.sample, self.prefix, samples)
        if isinstance(found, str):
            raise ValueError(f"{self!r} and {frames} frames: the sum {found}")
        return LabelPoint(self.type, found, self.prefix)
