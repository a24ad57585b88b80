"""Label types: their names and what they count."""
from __future__ import annotations

from dataclasses import dataclass
from enum import IntEnum
from typing import NamedTuple, Union

from . import _core
from ._enums import Family, FrameRate, LabelType

#: A label type as callers name it: "29.97df", "35mm", a LabelType, or a number as a rate: 25, 29.97.
TypeName = Union[str, int, float, LabelType]


class NamedType(NamedTuple):
    """A label type, and the rate of the material that it labels: 23.976 and 24 have one type."""

    type: LabelType
    rate: FrameRate


def find_type(name: TypeName) -> NamedType:
    """Return the type that a name means, and the rate of its material.

    Names are those of the command-line tool: "25", "29.97df", "23.976", "35mm", "feet35"; the exchange names of edit
    decision lists, "30f-drop"; class names, "pal_label"; "#25" for the type of that number. A bare number is a rate.
    "29.97" is drop-frame if the project setting "drop-frame" says so.

    >>> find_type("29.97df").type.name
    'ntsc_drop_label'
    >>> find_type(25).rate.name
    'fps_25'

    Raises ValueError for an unknown name, with the nearest ones, and TypeError for anything but a name or number.
    """
    if isinstance(name, LabelType):
        facts = _core.facts_of(name)
        if not facts["has_labels"]:
            raise ValueError(f"{name.name} has no labels of its own; it is the base of other types")
        return NamedType(name, FrameRate(facts["natural_rate"]))
    if isinstance(name, (bool, IntEnum)) or not isinstance(name, (str, int, float)):
        raise TypeError(f"expected the name of a label type, such as '25' or '29.97df', not {name!r}")
    text = name if isinstance(name, str) else f"{name:g}"
    found = _core.find_name(text)
    if found is None:
        near = _core.nearest_names(text)
        raise ValueError(
            f"unknown label type {text!r}; " +
            (f"nearest: {', '.join(near)}" if near else "expected a name such as '25', '29.97df' or '35mm'"))
    return NamedType(LabelType(found[0]), FrameRate(found[1]))


@dataclass(frozen=True)
class LabelFacts:
    """What labels of a type count. Samples are frames for timecode and film frames, perforations for other film."""

    type: LabelType
    name: str
    family: Family
    is_timecode: bool
    is_film: bool
    frames_per_second: int  #: counted by timecode; 0 for film
    drop_frame: bool  #: whether labels are left out (SMPTE ST 12-1)
    samples_per_frame: int
    frames_per_count: int  #: of a key number, ink number or foot, rounded down; 1 for other types
    prefix_length: int  #: characters before the count of key numbers and ink numbers; 0 for other types
    exchange_name: str | None  #: in edit decision lists


def facts(name: TypeName) -> LabelFacts:
    """Return the facts of a label type.

    >>> facts("35mm").samples_per_frame
    4

    Raises as find_type does.
    """
    type_ = find_type(name).type
    row = _core.facts_of(type_)
    known = {key: row[key] for key in LabelFacts.__dataclass_fields__ if key not in ("type", "family")}
    return LabelFacts(type=type_, family=Family(row["family"]), **known)


def type_names() -> dict[str, str]:
    """Return the names that people use for label types, the usual one of each, with their meanings.

    >>> type_names()["29.97df"]
    'drop-frame timecode of 30 frames, slowed by 1000/1001'
    """
    return {names.split()[0]: meaning for names, _, _, meaning in _core.all_names()}
