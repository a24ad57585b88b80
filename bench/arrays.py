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


def seconds(work: Callable[[], object], clock: Callable[[], float] = time.process_time) -> float:
    """Return the fastest of some repetitions: of the processor, so that other programs matter little."""
    times = []
    for _ in range(REPETITIONS):
        start = clock()
        work()
        times.append(clock() - start)
    return min(times)


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


def on_threads(count: int, work: Callable[[slice], object], size: int) -> Callable[[], object]:
    """Return a run of the work in equal parts, one a thread."""
    parts = [slice(size * i // count, size * (i + 1) // count) for i in range(count)]

    def run() -> None:
        with ThreadPoolExecutor(count) as threads:
            list(threads.map(work, parts))
    return run


def main() -> None:
    loops = ctypes.CDLL(sys.argv[1])
    count = int(sys.argv[2]) if len(sys.argv) > 2 else 10_000_000
    pointer, size = ctypes.c_void_p, ctypes.c_size_t
    loops.write_labels.argtypes = loops.read_labels.argtypes = [ctypes.c_int, pointer, pointer, size, size]

    print(f"{count} labels\n\n| work | ms | times C++ | times faster than Python | two threads, times faster |\n"
          "|---|---|---|---|---|")
    for name in ("25", "29.97df"):
        number = labelsbase.find_type(name).type
        samples = np.arange(count, dtype=np.int32) % 2_000_000
        texts = np.zeros(count, "S11")
        back = np.zeros(count, np.int32)
        few = samples[:200_000].tolist()
        spelt = python_texts(few)
        works = {
            "samples to texts": (
                lambda at: labelsbase.to_text(name, samples[at], out=texts[at]),
                lambda: loops.write_labels(number, samples.ctypes.data, texts.ctypes.data, 11, count),
                lambda: python_texts(few)),
            "texts to samples": (
                lambda at: labelsbase.to_samples(name, texts[at], out=back[at]),
                lambda: loops.read_labels(number, texts.ctypes.data, back.ctypes.data, 11, count),
                lambda: python_samples(spelt)),
        }
        for work, (arrays, cpp, python) in works.items():
            one = seconds(lambda: arrays(slice(None)))
            threads = [seconds(on_threads(n, arrays, count), time.perf_counter) for n in (1, 2)]
            plain = seconds(python) * count / len(few)
            print(f"| {work}, {name} | {one * 1e3:.0f} | {one / seconds(cpp):.2f} | {plain / one:.0f} | {threads[0] / threads[1]:.2f} |")


if __name__ == "__main__":
    main()
