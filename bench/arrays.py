#!/usr/bin/env python3
"""Measures the arrays of the Python module: arrays.py ARRAY-LOOPS-LIBRARY [COUNT]. See bench/README.md."""
from __future__ import annotations

import ctypes
import sys
import time
from concurrent.futures import ThreadPoolExecutor
from typing import Callable

import numpy as np

import labelsbase

REPETITIONS = 5
PART = 500_000  # labels measured at a time
FEW = 20_000    # of them for the loops in Python

Work = Callable[[slice], object]


def slices(count: int, parts: int) -> list[slice]:
    return [slice(count * i // parts, count * (i + 1) // parts) for i in range(parts)]


def seconds_of_each(works: list[Work], count: int, clock: Callable[[], float] = time.process_time) -> list[float]:
    """Return the time of each work, part by part and in turn, so that a change of the machine's speed meets them all.

    The fastest of some repetitions counts: of the processor, so that other programs matter little.
    """
    totals = [0.0] * len(works)
    for part in slices(count, max(1, count // PART)):
        fastest = [float("inf")] * len(works)
        for _ in range(REPETITIONS):
            for number, work in enumerate(works):
                start = clock()
                work(part)
                fastest[number] = min(fastest[number], clock() - start)
        totals = [total + least for total, least in zip(totals, fastest)]
    return totals


def python_texts(samples: list[int]) -> list[str]:
    """Write timecode of 25 frames as most pipelines do."""
    texts = []
    for sample in samples:
        rest, frames = divmod(sample, 25)
        rest, second = divmod(rest, 60)
        hours, minutes = divmod(rest, 60)
        texts.append(f"{hours:02}:{minutes:02}:{second:02}:{frames:02}")
    return texts


def python_samples(texts: list[str]) -> list[int]:
    samples = []
    for text in texts:
        hours, minutes, second, frames = text.split(":")
        samples.append(((int(hours) * 60 + int(minutes)) * 60 + int(second)) * 25 + int(frames))
    return samples


def on_threads(count: int, work: Work) -> Work:
    """Return the work in equal parts, one a thread."""
    def run(part: slice) -> None:
        inner = [slice(part.start + at.start, part.start + at.stop) for at in slices(part.stop - part.start, count)]
        with ThreadPoolExecutor(count) as threads:
            list(threads.map(work, inner))
    return run


def main() -> None:
    loops = ctypes.CDLL(sys.argv[1])
    count = int(sys.argv[2]) if len(sys.argv) > 2 else 10_000_000
    pointer, size = ctypes.c_void_p, ctypes.c_size_t
    loops.write_labels.argtypes = loops.read_labels.argtypes = [ctypes.c_int, pointer, pointer, size, size]
    samples = np.arange(count, dtype=np.int32) % 2_000_000
    back = np.zeros(count, np.int32)
    few = samples[:FEW].tolist()
    spelt = python_texts(few)

    print(f"{count} labels\n\n| work | ms | times C++ | times faster than Python | two threads, times faster |\n"
          "|---|---|---|---|---|")
    for name in ("25", "29.97df"):
        number = labelsbase.find_type(name).type
        in_bytes = np.zeros(count, "S11")
        in_text = np.zeros(count, "U11")

        def cpp_texts(at: slice) -> None:
            loops.write_labels(number, samples[at].ctypes.data, in_bytes[at].ctypes.data, 11, at.stop - at.start)

        def cpp_samples(at: slice) -> None:
            loops.read_labels(number, in_bytes[at].ctypes.data, back[at].ctypes.data, 11, at.stop - at.start)

        works: list[tuple[str, Work, Work, Work]] = []
        for kind, texts in (("bytes", in_bytes), ("str", in_text)):
            works += [
                (f"samples to {kind}", lambda at, texts=texts: labelsbase.to_text(name, samples[at], out=texts[at]),
                 cpp_texts, lambda at: python_texts(few)),
                (f"{kind} to samples", lambda at, texts=texts: labelsbase.to_samples(name, texts[at], out=back[at]),
                 cpp_samples, lambda at: python_samples(spelt)),
            ]
        for work, arrays, cpp, python in works:
            one, plain, slow = seconds_of_each([arrays, cpp, python], count)
            slow *= count / (FEW * max(1, count // PART))
            threads = seconds_of_each([on_threads(n, arrays) for n in (1, 2)], count, time.perf_counter)
            print(f"| {work}, {name} | {one * 1e3:.0f} | {one / plain:.2f} | {slow / one:.0f} | "
                  f"{threads[0] / threads[1]:.2f} |", flush=True)


if __name__ == "__main__":
    main()
