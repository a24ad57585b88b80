"""What material is on: media, rolls, and the label choices of a user interface."""
from __future__ import annotations

import re
from dataclasses import dataclass
from typing import Union

from . import _core
from ._enums import Family, FrameRate, Generation, LabelType, Medium

#: A medium as callers name it: "src_25p", a Medium, or its number.
MediumName = Union[str, int, Medium]


def find_medium(name: MediumName) -> Medium:
    """Return the medium of a name or number.

    >>> find_medium("src_25p").value
    19

    Raises ValueError for an unknown one, TypeError for anything but a name or number.
    """
    if isinstance(name, str) and name in Medium.__members__:
        return Medium[name]
    if isinstance(name, bool) or not isinstance(name, (str, int)):
        raise TypeError(f"expected a medium, such as 'src_25p', not {name!r}")
    if isinstance(name, str) or name not in Medium._value2member_map_:
        raise ValueError(f"unknown medium {name!r}; expected a name of labelsbase.Medium, such as 'src_25p'")
    return Medium(name)


@dataclass(frozen=True)
class MediumFacts:
    """How material runs on a medium."""

    medium: Medium
    rate: FrameRate  #: FrameRate.unknown for general media, such as film
    label_type: LabelType | None  #: of its timecode; None for general media
    progressive: bool  #: whether a sample is a whole frame; False for fields and for general media
    sample_seconds: float | None  #: seconds of a sample, a frame or a field; None for general media


def medium_facts(medium: MediumName) -> MediumFacts:
    """Return how material runs on a medium.

    >>> medium_facts("src_25i").sample_seconds
    0.02

    Raises as find_medium does.
    """
    found = find_medium(medium)
    rate = FrameRate(_core.medium_rate(found))
    if rate == FrameRate.unknown:
        return MediumFacts(found, rate, None, False, None)
    return MediumFacts(found, rate, LabelType(_core.medium_label_type(found)), _core.medium_is_progressive(found),
                       _core.medium_sample_seconds(found))


@dataclass(frozen=True, init=False, repr=False)
class Roll:
    """What material is on: a medium, the generation of the copy, and the reel if it has one.

    >>> Roll("out_24p", "first", "A001")
    Roll('out_24p', 'first', 'A001')
    """

    medium: Medium
    generation: Generation
    reel: str

    def __init__(self, medium: MediumName, generation: Generation | str | int = Generation.any, reel: str = "") -> None:
        """Raise ValueError for an unknown medium or generation, "none" included; TypeError for wrong types."""
        found = find_medium(medium)
        if not isinstance(generation, (int, str)) or isinstance(generation, bool):
            raise TypeError(f"expected a generation, such as 'first', not {generation!r}")
        number = Generation.__members__.get(generation) if isinstance(generation, str) else generation
        if found == Medium.none or number not in list(Generation)[1:]:
            raise ValueError(f"{found.name}, {generation!r}: expected a medium, and a generation such as 'any' or 'first'")
        if not isinstance(reel, str):
            raise TypeError(f"reel needs to be a str, not {reel!r}")
        object.__setattr__(self, "medium", found)
        object.__setattr__(self, "generation", Generation(number))
        object.__setattr__(self, "reel", reel)

    def __repr__(self) -> str:
        reel = f", {self.reel!r}" if self.reel else ""
        return f"Roll({self.medium.name!r}, {self.generation.name!r}{reel})"

    @classmethod
    def parse(cls, text: str, family: Family = Family.none) -> Roll:
        """Read an identifier, "28,1", or a stored roll with its reel.

        A missing generation becomes the usual one of the medium; only then, the family "ink" makes it an ink roll.

        >>> Roll.parse("REV: 1 MediumRollId: 28,1 reelid: A001").reel
        'A001'
        >>> Roll.parse("3").generation.name
        'first'

        Raises ValueError for any other text.
        """
        if not isinstance(text, str):
            raise TypeError(f"expected a roll as str, not {text!r}")
        medium, generation, reel = 0, 0, ""
        if text.startswith("REV"):
            medium, generation, reel = _core.read_reel(text)
        elif re.fullmatch(r"\d{1,2}(,[0-5])?", text, re.ASCII):
            medium, generation = _core.read_roll(text, family)
        if medium not in Medium._value2member_map_ or medium == Medium.none:
            raise ValueError(f"{text!r} is not a roll; expected a medium from 1 to 70 and a generation from 0 to 5, such "
                             "as '28,1', or 'REV: 1 MediumRollId: 28,1 reelid: A001'")
        return cls(medium, generation, reel)

    @property
    def name(self) -> str:
        """The medium and generation for users: "24p,1stGen"."""
        return _core.roll_for_users(self.medium, self.generation)

    def fits(self, wanted: Roll) -> bool:
        """Return whether this roll can stand where `wanted` is asked for. Reels are not compared.

        >>> Roll("src_24p", "first").fits(Roll("film24"))
        True
        """
        return _core.roll_fits(wanted.medium, wanted.generation, self.medium, self.generation)

    def __str__(self) -> str:
        """Return the identifier: "28,2"."""
        return _core.write_roll(self.medium, self.generation)


@dataclass(frozen=True)
class LabelChoice:
    """What a user can choose to see of an item: a label, a reel, a scene. Hosts save the keyword."""

    number: int
    keyword: str  #: of two choices with one keyword, the first is read
    text_id: int  #: of its name on screen
    family: Family  #: of the labels that it shows; Family.no_label for a reel or a note
    roll: Roll | None  #: which of an item's labels it shows; None for a note


def label_choices() -> list[LabelChoice]:
    """Return the label choices by number.

    >>> label_choices()[6].keyword
    'KeyKode'
    """
    return [_choice(number) for number in range(_core.CHOICE_COUNT)]


def find_choice(keyword: str) -> LabelChoice:
    """Return the first choice with a keyword, in exact case.

    >>> find_choice("Ink_code").roll.medium.name
    'ink'

    Raises ValueError for an unknown keyword.
    """
    if not isinstance(keyword, str):
        raise TypeError(f"expected a keyword as str, not {keyword!r}")
    number = _core.find_choice(keyword)
    if number < 0:
        raise ValueError(f"unknown label choice {keyword!r}; expected a keyword of label_choices(), such as 'KeyKode'")
    return _choice(number)


def _choice(number: int) -> LabelChoice:
    keyword, text_id, family, medium, generation = _core.choice_of(number)
    return LabelChoice(number, keyword, text_id, Family(family), Roll(medium, generation) if medium else None)
