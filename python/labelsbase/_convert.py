"""Labels of one type as labels of another: the same instant, or the same frame."""
from __future__ import annotations

from typing import Any, Literal

import numpy as np

from . import _core
from ._arrays import _first, _pieces, _texts, _whole_numbers, to_samples, to_text
from ._enums import LabelType, Transfer
from ._points import LabelPoint, choice, parse, whole_number
from ._types import TypeName, find_type

Shared = Literal["time", "frame"]
Rounding = Literal["down", "near", "up"]
TransferName = Literal["none", "2:3", "24:25"]

TRANSFERS = {"none": Transfer.none, "2:3": Transfer.pulldown_2_3, "24:25": Transfer.pulldown_24_25}

_SHARED = {"time": _core.Shared.time, "frame": _core.Shared.frame}
_ROUNDING = {"down": _core.Rounding.down, "near": _core.Rounding.near, "up": _core.Rounding.up}


def phase_number(phase: int | str | None, transfer: Transfer) -> int:
    """Return the phase of a pulldown: a number, or for 2:3 the film frame that the cycle begins with, "A" to "D"."""
    if phase is None:
        phase = "A" if transfer == Transfer.pulldown_2_3 else 0
    if not isinstance(phase, str):
        return whole_number(phase, "phase")
    if transfer != Transfer.pulldown_2_3 or len(phase) != 1 or phase not in _core.FRAMES_BY_PHASE:
        raise ValueError(f"phase={phase!r}: expected a number, or A, B, C or D with transfer='2:3'")
    return _core.FRAMES_BY_PHASE.index(phase)


def _sync_point(type: LabelType, given: object, name: str) -> LabelPoint:
    if isinstance(given, str):
        return parse(type, given)
    if isinstance(given, LabelPoint):
        if given.type != type:
            raise ValueError(f"{name}={given!r}: expected a label of type {type.name}")
        return given
    return LabelPoint(type, whole_number(given, name))


def convert(from_type: TypeName, to_type: TypeName, labels: Any, *, by: Shared | None = None,
            sync: tuple[Any, Any] = (0, 0), round: Rounding = "near", transfer: TransferName = "none",
            phase: int | str | None = None, exact: bool = False, prefix: str = "") -> Any:
    """Convert labels to those of another type: a LabelPoint to one, samples to samples, texts to texts.

    Samples are frames for timecode and film frames, perforations for other film. The types name the rates too: labels of
    "23.976" and "24" look alike and last differently.

    by        what both labels share, counted from `sync`: "time", the instant, or "frame". Without it, timecodes share
              the time, film labels the frame, film and timecode of 24 or 25 frames the frame. Film and other timecode
              need `by` or `transfer`.
    sync      one instant in both types: two samples, texts or points
    round     for an instant between two frames: "down", "near" (halfway, the later one) or "up"
    transfer  "2:3" or "24:25", the pulldown between film and video
    phase     of the pulldown at the sync point: a number from 0, or "A" to "D" for 2:3; the usual one is "A"
    exact     whether to raise ValueError for an instant between two frames
    prefix    of the key numbers or ink numbers to write, if `sync` does not name it

    >>> convert("25", "29.97df", ["01:00:00.00", "01:00:01.00"])
    array(['01:00:00;00', '01:00:01;00'], dtype='<U11')
    >>> convert("25", "feet35", [100])
    array([400], dtype=int32)
    >>> convert("24", "35mm", LabelPoint("24", 16), sync=("00:00:00+00", "KJ1234560100+00"))
    LabelPoint('keycode_35_label', 6464, 'KJ123456')
    >>> convert("25", "29.97df", ["00:00:01.00"], exact=True)
    Traceback (most recent call last):
    ValueError: samples[0]: 25 falls between samples 29 and 30 of ntsc_drop_label; expected a frame, since exact=True

    Raises ValueError for what cannot be converted, and for a sample or an answer without a label.
    """
    (source, source_rate), (target, target_rate) = find_type(from_type), find_type(to_type)
    moved = choice(transfer, TRANSFERS, "transfer")
    if not isinstance(sync, (tuple, list)) or len(sync) != 2:
        raise TypeError(f"sync={sync!r}: expected two samples, labels or points")
    here, there = _sync_point(source, sync[0], "sync[0]"), _sync_point(target, sync[1], "sync[1]")
    conversion = _core.Conversion(
        source, source_rate, target, target_rate, None if by is None else choice(by, _SHARED, "by"),
        (here.sample, there.sample), choice(round, _ROUNDING, "round"), moved, phase_number(phase, moved))
    prefix = prefix or there.prefix

    if isinstance(labels, LabelPoint):
        if labels.type != source:
            raise ValueError(f"{labels!r}: expected a label of type {source.name}")
        sample = _converted(conversion, source, target, exact, np.array(labels.sample, np.int32))
        return LabelPoint(target, int(sample), prefix)
    given = np.asarray(labels)
    if given.size == 0 or given.dtype.kind not in "SUO" or given.dtype == object and not isinstance(given.flat[0], str):
        return _converted(conversion, source, target, exact, _whole_numbers(labels, "samples"))
    texts = _texts(given)
    samples = _converted(conversion, source, target, exact, to_samples(source, texts))
    return to_text(target, samples, prefix=prefix, dtype=texts.dtype.kind)


def _converted(conversion: Any, source: LabelType, target: LabelType, exact: bool, samples: np.ndarray) -> np.ndarray:
    converted = np.empty(samples.shape, np.int32)
    for piece, to in _pieces([samples], [converted]):
        if (refused := _core.convert_samples(conversion, exact, piece, to)) >= 0:
            sample = int(piece[refused])
            where = f"samples{_first(samples == sample)}" if samples.ndim else "sample"
            raise ValueError(f"{where}: {sample} {_why(conversion, source, target, sample)}")
    return converted


def _why(conversion: Any, source: LabelType, target: LabelType, sample: int) -> str:
    """Return why a sample cannot be converted."""
    if not _core.has_label(source, sample):
        return _core.explain_missing(source, sample)
    if (answer := _core.convert_one(conversion, sample)) is None:
        return f"leads beyond the range of samples of {target.name}"
    found, before, after = answer
    if not _core.has_label(target, found):
        return f"becomes sample {found}, which {_core.explain_missing(target, found)}"
    return f"falls between samples {before} and {after} of {target.name}; expected a frame, since exact=True"
