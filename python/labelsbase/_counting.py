"""Frames through a pulldown, clock time and cel time, and the settings of the project."""
from __future__ import annotations

from typing import NamedTuple

from . import _core
from ._convert import TRANSFERS, TransferName, phase_number
from ._points import choice, whole_number


class VideoFrame(NamedTuple):
    """The video frame that first shows a film frame."""

    frame: int  #: counted from 1
    ends_cycle: bool  #: whether the added frame comes at the end of the cycle


class FilmFrame(NamedTuple):
    """The film frame that a video frame shows."""

    frame: int  #: counted from 1
    phase: int  #: of a cycle that begins at the video frame


def film_to_video(frame: int, *, transfer: TransferName = "2:3", phase: int | str | None = None) -> VideoFrame:
    """Return the first video frame that shows a film frame. Both count from 1.

    `phase` is the place of the added video frame in the cycle: 0 to 4 for 2:3 or "A" to "D", the film frame that the
    cycle begins with, "A" by default; 0 to 24 for 24:25, 0 by default.

    >>> film_to_video(3)
    VideoFrame(frame=4, ends_cycle=False)

    Raises ValueError for an answer beyond 32 bits.
    """
    found = choice(transfer, TRANSFERS, "transfer")
    answer = _core.video_of_film(whole_number(frame, "frame"), phase_number(phase, found), -1, found)
    if answer is None:
        raise ValueError(f"frame={frame}: the video frame is beyond 32 bits")
    return VideoFrame(*answer)


def video_to_film(frame: int, *, transfer: TransferName = "2:3", phase: int | str | None = None) -> FilmFrame:
    """Return the film frame that a video frame shows; for the added frame, the film frame after it.

    >>> video_to_film(4).frame
    3

    `phase` and what is raised are those of film_to_video.
    """
    found = choice(transfer, TRANSFERS, "transfer")
    answer = _core.film_of_video(whole_number(frame, "frame"), phase_number(phase, found), found)
    if answer is None:
        raise ValueError(f"frame={frame}: the film frame is beyond 32 bits")
    return FilmFrame(*answer)


def clock_to_cel(seconds: float) -> float:
    """Return seconds of clock time, what a stopwatch shows, as seconds of the project's timeline.

    They differ where film plays at a video rate without a pulldown, and by 1000/1001. See set_option.

    >>> clock_to_cel(4.0)
    4.0
    """
    return _core.clock_to_cel(_number(seconds))


def cel_to_clock(seconds: float) -> float:
    """Return seconds of the project's timeline as seconds of clock time. Not the exact inverse for projects at 23.976.

    >>> cel_to_clock(5.0)
    5.0
    """
    return _core.cel_to_clock(_number(seconds))


def _number(seconds: object) -> float:
    if isinstance(seconds, bool) or not isinstance(seconds, (int, float)):
        raise TypeError(f"seconds need to be a number, not {seconds!r}")
    return float(seconds)


class Option(NamedTuple):
    """A setting of the project."""

    key: str
    meaning: str
    expected: str  #: the values that it accepts


def options() -> list[Option]:
    """Return the settings of the project, which set_option sets.

    >>> options()[0].key
    'project-rate'
    """
    return [Option(*row) for row in _core.settings()]


def set_option(key: str, value: str) -> None:
    """Set a setting of the project, for all threads of the process. Set "config.KEY" for a configuration value.

    >>> set_option("drop-frame", "yes")
    >>> from labelsbase import find_type
    >>> find_type("29.97").type.name
    'ntsc_drop_label'
    >>> set_option("drop-frame", "no")

    Raises ValueError for an unknown key or value, with what was expected. Changes nothing then.
    """
    if not isinstance(key, str) or not isinstance(value, str):
        raise TypeError(f"expected a key and a value as str, not {key!r} and {value!r}")
    if (wrong := _core.set_option(key, value)) is not None:
        raise ValueError(wrong)
