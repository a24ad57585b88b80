"""Labels in NumPy arrays.

Arrays may have any shape, stride and byte order, and may be read-only. The loops run without the interpreter's lock, so
threads scale over cores.
"""
from __future__ import annotations

from typing import Any, Iterator, Literal

import numpy as np

from . import _core
from ._points import _ILLEGAL, _STYLE, Illegal, LabelError, Style, choice, film_prefix
from ._types import TypeName, find_type

_INT32 = np.iinfo(np.int32)


def _pieces(inputs: list[np.ndarray], outputs: list[np.ndarray]) -> Iterator[tuple[np.ndarray, ...]]:
    """Yield the arrays as one-dimensional views of equal length, in the order of their memory."""
    flags: Any = [["readonly"]] * len(inputs) + [["writeonly"]] * len(outputs)
    with np.nditer(inputs + outputs, flags=["external_loop", "zerosize_ok"], op_flags=flags) as pieces:
        for piece in pieces:
            if piece[0].size:
                yield piece


def _whole_numbers(values: Any, name: str, dtype: type = np.int32) -> np.ndarray:
    """Return an array of whole numbers; raise TypeError or OverflowError for anything else."""
    array = np.asarray(values)
    if array.size == 0:
        return array.astype(dtype)
    if array.dtype == object:
        if not all(isinstance(value, (int, np.integer)) and not isinstance(value, bool) for value in array.flat):
            raise TypeError(f"{name} need to be whole numbers")
        array = _bounded(array, name)
    if array.dtype.kind not in "iu":
        raise TypeError(f"{name} need to be whole numbers, not {array.dtype}")
    return _bounded(array, name).astype(dtype, copy=False)


def _bounded(array: np.ndarray, name: str) -> np.ndarray:
    if array.dtype == np.int32:
        return array
    for value, at in ((array.min(), array.argmin()), (array.max(), array.argmax())):
        if not _INT32.min <= value <= _INT32.max:
            raise OverflowError(f"{name}{_index(at, array.shape)}: {value} is beyond 32 bits, {_INT32.min} to {_INT32.max}")
    return array.astype(np.int32) if array.dtype == object else array


def _texts(texts: Any) -> np.ndarray:
    """Return an array of bytes or text in the byte order of the machine; raise TypeError for anything else."""
    array = np.asarray(texts)
    if array.dtype == object:
        for position, text in enumerate(array.flat):
            if not isinstance(text, str):
                raise TypeError(f"texts{_index(position, array.shape)}: expected a label as str, not {text!r}; "
                                "fill or drop missing labels first")
        array = array.astype(str)
    if array.dtype.kind not in "SU" and array.size:
        raise TypeError(f"labels need to be str or bytes, not {array.dtype}")
    return array.astype(array.dtype.newbyteorder("=") if array.dtype.kind in "SU" else "U1", copy=False)


def _output(out: np.ndarray | None, shape: tuple, dtype: Any) -> np.ndarray:
    if out is None:
        return np.empty(shape, dtype)
    if not isinstance(out, np.ndarray):
        raise TypeError(f"out needs to be an array, not {out!r}")
    if out.shape != shape:
        raise ValueError(f"out has the shape {out.shape}; expected {shape}")
    if dtype is not None and out.dtype != dtype:
        raise TypeError(f"out has the type {out.dtype}; expected {np.dtype(dtype)}")
    return out


def _first(found: np.ndarray) -> list[int]:
    """Return the index of the first item that is true."""
    return _index(found.argmax(), found.shape)


def _index(position: Any, shape: tuple[int, ...]) -> list[int]:
    return [int(axis) for axis in np.unravel_index(int(position), shape)]


def to_text(type: TypeName, samples: Any, *, prefix: str = "", style: Style = "own", dtype: Any = "U",
            out: np.ndarray | None = None) -> np.ndarray:
    """Write samples as labels.

    `samples` are frames for timecode and film frames, perforations for other film. The result has their shape and the
    width of the longest label: text by default, bytes with dtype="S". `out` receives the labels if it is given.

    >>> to_text("29.97df", [0, 1799, 1800, 17982])
    array(['00:00:00;00', '00:00:59;29', '00:01:00;02', '00:10:00;00'],
          dtype='<U11')
    >>> to_text("35mm", [64, 127], prefix="KJ123456", dtype="S")
    array([b'KJ1234560001+00', b'KJ1234560001+15'], dtype='|S15')

    Raises ValueError for a sample without a label, TypeError for what is not a whole number, OverflowError beyond 32
    bits.
    """
    found = find_type(type).type
    spelling = choice(style, _STYLE, "style")
    numbers = _whole_numbers(samples, "samples")
    prefix = film_prefix(found, prefix)
    if out is None:
        kind = np.dtype(dtype).kind
        if kind not in "SU":
            raise TypeError(f"dtype={dtype!r}: expected 'S' or 'U'")
        out = np.empty(numbers.shape, f"{kind}{_width(found, numbers, prefix)}")
    elif not isinstance(out, np.ndarray) or out.dtype.kind not in "SU" or not out.dtype.isnative:
        raise TypeError("out needs to be an array of bytes or text in the byte order of the machine")
    else:
        out = _output(out, numbers.shape, None)
    for piece, texts in _pieces([numbers], [out]):
        if (refused := _core.write_texts(found, prefix, spelling, piece, texts)) >= 0:
            sample = int(piece[refused])
            label = _core.write_text(found, sample, prefix, spelling)
            why = f"is {label!r}, which out has no room for" if label else _core.explain_missing(found, sample)
            raise ValueError(f"samples{_first(numbers == sample)}: {sample} {why}")
    return out


def _width(type: int, samples: np.ndarray, prefix: str) -> int:
    """Return the characters of the longest label of some samples."""
    ends = {0, int(samples.min(initial=0)), int(samples.max(initial=0))}
    return max(len(_core.write_text(type, sample, prefix, _core.Style.own)) for sample in ends) or 1


def to_samples(type: TypeName, texts: Any, *, illegal: Illegal = "refuse",
               errors: Literal["raise", "mask"] = "raise", out: np.ndarray | None = None) -> Any:
    """Read labels as samples.

    `texts` is an array or list of text or bytes, filled up with NULs as NumPy does. `illegal` is that of parse. With
    errors="mask", returns the samples and a mask that is true where a label was refused; the sample there is
    INVALID_SAMPLE. `out`, an array of int32, receives the samples if it is given.

    >>> to_samples("29.97df", ["00:00:00;00", "00:01:00;02"])
    array([   0, 1800], dtype=int32)
    >>> to_samples("25", ["00:00:01.00", "bad"], errors="mask")
    (array([        25, -100000000], dtype=int32), array([False,  True]))

    Raises LabelError for the first label that is refused.
    """
    found = find_type(type).type
    mode = choice(illegal, _ILLEGAL, "illegal")
    stop = choice(errors, {"raise": True, "mask": False}, "errors")
    labels = _texts(texts)
    samples = _output(out, labels.shape, np.int32)
    masks = [] if stop else [np.empty(labels.shape, np.bool_)]
    for piece, numbers, *refused in _pieces([labels], [samples, *masks]):
        if (first := _core.read_texts(found, mode, piece, numbers, refused[0] if refused else None)) >= 0:
            text = piece[first]
            spelling = text if isinstance(text, str) else text.decode("latin-1")
            field, position, nearest, reason = _core.read_text(found, spelling, mode)
            raise LabelError(spelling, field, reason, position, nearest, tuple(_first(labels == text)))
    return samples if stop else (samples, *masks)


def is_valid(type: TypeName, texts: Any) -> np.ndarray:
    """Return whether each text is a label of the type, as an array of truths.

    >>> is_valid("29.97df", ["00:01:00;02", "00:01:00;00"])
    array([ True, False])
    """
    return ~to_samples(type, texts, errors="mask")[1]


def add(type: TypeName, samples: Any, frames: Any) -> np.ndarray:
    """Add frames to samples, as labels count: timecode wraps at the end of the day.

    >>> add("35mm", [0, 4], 1)
    array([4, 8], dtype=int32)

    Raises ValueError for a sum beyond 32 bits, and where the keys of the film do not go on.
    """
    found = find_type(type).type
    numbers, counts = np.broadcast_arrays(_whole_numbers(samples, "samples"),
                                          _whole_numbers(frames, "frames", np.int64))
    counts = counts * _core.facts_of(found)["samples_per_frame"]
    sums = np.empty(numbers.shape, np.int32)
    for piece, by, to in _pieces([numbers, counts], [sums]):
        if (refused := _core.add_counts(found, piece, by, to)) >= 0:
            why = _core.add_samples(found, int(piece[refused]), "", int(by[refused]))
            at = _first((numbers == piece[refused]) & (counts == by[refused]))
            raise ValueError(f"samples{at}: the sum of {piece[refused]} and {by[refused]} samples {why}")
    return sums


def diff(type: TypeName, samples: Any, from_samples: Any) -> np.ndarray:
    """Return the samples from one position to another, as labels count: never negative for timecode, key numbers and
    ink numbers, since they wrap.

    >>> diff("25", 100, 75)
    array(25, dtype=int32)

    Raises ValueError for a difference beyond 32 bits.
    """
    found = find_type(type).type
    numbers, others = np.broadcast_arrays(_whole_numbers(samples, "samples"),
                                          _whole_numbers(from_samples, "from_samples"))
    differences = np.empty(numbers.shape, np.int32)
    for piece, less, to in _pieces([numbers, others], [differences]):
        if (refused := _core.subtract(found, piece, less, to)) >= 0:
            at = _first((numbers == piece[refused]) & (others == less[refused]))
            raise ValueError(f"samples{at}: the difference of {piece[refused]} and {less[refused]} is beyond 32 bits")
    return differences
