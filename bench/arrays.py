#!/usr/bin/env python3
"""Measures the arrays of the Python module: arrays.py ARRAY-LOOPS-LIBRARY [COUNT]. See bench/README.md."""
from __future__ import annotations

import ctypes
import sys
import time
from concurrent.futures import ThreadPoolExecutor
from typing import Any, Callable

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


# Timecode in plain Python, as pipelines write and read it: 25 frames a second, and drop-frame, which leaves out two
# labels at each minute but every tenth, 18 in ten minutes.

def python_texts(samples: list[int]) -> list[str]:
    texts = []
    for sample in samples:
        rest, frames = divmod(sample, 25)
        rest, seconds = divmod(rest, 60)
        hours, minutes = divmod(rest, 60)
        texts.append(f"{hours:02}:{minutes:02}:{seconds:02}:{frames:02}")
    return texts


def python_samples(texts: list[str]) -> list[int]:
    samples = []
    for text in texts:
        hours, minutes, seconds, frames = text.split(":")
        samples.append(((int(hours) * 60 + int(minutes)) * 60 + int(seconds)) * 25 + int(frames))
    return samples


def python_drop_texts(samples: list[int]) -> list[str]:
    texts = []
    for sample in samples:
        tens, in_ten_minutes = divmod(sample, 17982)
        sample += 18 * tens
        if in_ten_minutes > 1:
            sample += (in_ten_minutes - 2) // 1798 * 2
        rest, frames = divmod(sample, 30)
        rest, seconds = divmod(rest, 60)
        hours, minutes = divmod(rest, 60)
        texts.append(f"{hours:02}:{minutes:02}:{seconds:02};{frames:02}")
    return texts


def python_drop_samples(texts: list[str]) -> list[int]:
    samples = []
    for text in texts:
        hours, minutes, seconds, frames = text.replace(";", ":").split(":")
        all_minutes = int(hours) * 60 + int(minutes)
        left_out = (all_minutes - all_minutes // 10) * 2
        samples.append((all_minutes * 60 + int(seconds)) * 30 + int(frames) - left_out)
    return samples


def check_loops(name: str, write: Callable[[list[int]], list[str]], read: Callable[[list[str]], list[int]]) -> None:
    """Compare the loops in Python with the module, over labels of the whole day."""
    samples = np.arange(0, 2_000_000, 7, dtype=np.int32)
    texts = write(samples.tolist())
    if texts != labelsbase.to_text(name, samples, style="exchange").tolist() or read(texts) != samples.tolist():
        sys.exit(f"the loops in Python and the module differ in labels of {name}")


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
    for loop in (loops.write_bytes, loops.write_str, loops.read_bytes, loops.read_str):
        loop.argtypes = [ctypes.c_int, pointer, pointer, size, size]
    samples = np.arange(count, dtype=np.int32) % 2_000_000
    back = np.zeros(count, np.int32)
    few = slice(0, FEW)

    print(f"{count} labels\n\n| work | ms | times C++ | times faster than Python | two threads, times faster |\n"
          "|---|---|---|---|---|")
    for name, write_few, read_few in (("25", python_texts, python_samples),
                                      ("29.97df", python_drop_texts, python_drop_samples)):
        number = labelsbase.find_type(name).type
        check_loops(name, write_few, read_few)
        works: list[tuple[str, Work, Work, Work]] = []
        for kind, dtype in (("bytes", "S11"), ("str", "U11")):
            texts = np.zeros(count, dtype)

            def write(at: slice, texts: np.ndarray = texts) -> None:
                labelsbase.to_text(name, samples[at], style="exchange", out=texts[at])

            def read(at: slice, texts: np.ndarray = texts) -> None:
                labelsbase.to_samples(name, texts[at], out=back[at])

            def cpp_write(at: slice, texts: np.ndarray = texts, loop: Any = getattr(loops, f"write_{kind}")) -> None:
                loop(number, samples[at].ctypes.data, texts[at].ctypes.data, 11, at.stop - at.start)

            def cpp_read(at: slice, texts: np.ndarray = texts, loop: Any = getattr(loops, f"read_{kind}")) -> None:
                loop(number, texts[at].ctypes.data, back[at].ctypes.data, 11, at.stop - at.start)

            def python_write(_: slice, texts: np.ndarray = texts) -> None:
                texts[few] = write_few(samples[few].tolist())

            def python_read(_: slice, texts: np.ndarray = texts) -> None:
                back[few] = read_few(texts[few].astype(str).tolist())

            works += [(f"samples to {kind}", write, cpp_write, python_write),
                      (f"{kind} to samples", read, cpp_read, python_read)]
        for work, arrays, cpp, python in works:
            one, plain, slow = seconds_of_each([arrays, cpp, python], count)
            slow *= count / (FEW * max(1, count // PART))
            threads = seconds_of_each([on_threads(n, arrays) for n in (1, 2)], count, time.perf_counter)
            print(f"| {work}, {name} | {one * 1e3:.0f} | {one / plain:.2f} | {slow / one:.0f} | "
                  f"{threads[0] / threads[1]:.2f} |", flush=True)


if __name__ == "__main__":
    main()
