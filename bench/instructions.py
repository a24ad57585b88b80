#!/usr/bin/env python3
"""Counts the instructions of a call for each work of the benchmarks, and compares them with those on record.

usage: instructions.py PROGRAM RECORD [--update]

PROGRAM is labels_instructions, RECORD the file of the table. --update writes the table. Fails if a work takes more than
5 % above its figure on record, or has none.
"""

import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

LABELS_PER_PASS = 4096
TOLERANCE = 1.05

# valgrind shows programs one and the same processor, wherever there is AVX2, but for RTM: functions of the C library have
# another form with it.
ENVIRONMENT = {"LC_ALL": "C", "GLIBC_TUNABLES": "glibc.cpu.hwcaps=-RTM"}


def measure(program):
    """Returns the instructions of a call by the name of the work, and of the work done the other way by "NAME|WAY"."""
    with tempfile.TemporaryDirectory() as directory:
        run = subprocess.run(
            [shutil.which("valgrind"), "--tool=callgrind", "--dump-line=no", "--callgrind-out-file=profile", program],
            cwd=directory, env=ENVIRONMENT, capture_output=True, text=True)
        if run.returncode != 0:
            sys.exit(f"{program} failed under valgrind:\n{run.stderr}")
        counts = {}
        for profile in pathlib.Path(directory).iterdir():
            text = profile.read_text()
            name = re.search(r"^desc: Trigger: Client Request: (.*)$", text, re.M)
            if name:
                counts[name[1]] = (int(profile.suffix[1:]), int(re.search(r"^summary: (\d+)", text, re.M)[1]))
    loop = counts.pop("loop")[1]
    in_order = sorted(counts, key=lambda name: counts[name][0])
    return {name: max(0, round((counts[name][1] - loop) / LABELS_PER_PASS)) for name in in_order}


def table(counts):
    lines = [f"{'instructions a call':<28}{'labelsbase':>12}{'beside':>10}{'':>9}{'times':>8}"]
    for name, own in counts.items():
        if "|" in name:
            continue
        line = f"{name:<28}{own:>12}"
        for other in counts:
            if other.startswith(name + "|"):
                line += f"{counts[other]:>10} {other.split('|')[1]:<8}{counts[other] / own:>8.1f}"
        lines.append(line)
    return "\n".join(lines) + "\n"


def read_record(record):
    rows = (line.split() for line in record.read_text().splitlines()[1:])
    return {row[0]: int(row[1]) for row in rows}


def compare(counts, recorded):
    """Returns what is wrong, a line each. Prints which works have become faster."""
    wrong = []
    for name, own in counts.items():
        if "|" in name:
            continue
        before = recorded.pop(name, None)
        if before is None:
            wrong.append(f"{name} is not on record")
        elif own > before * TOLERANCE:
            wrong.append(f"{name} takes {own} instructions, {100 * own / before - 100:.0f} % more than the {before} on record")
        elif own * TOLERANCE < before:
            print(f"{name} takes {own} instructions, {100 - 100 * own / before:.0f} % less than the {before} on record")
    return wrong + [f"{name} is on record, but was not measured" for name in recorded]


def main():
    arguments = sys.argv[1:]
    update = "--update" in arguments
    if update:
        arguments.remove("--update")
    if len(arguments) != 2:
        sys.exit(__doc__)
    program, record = (pathlib.Path(argument).resolve() for argument in arguments)
    counts = measure(program)
    print(table(counts))
    if update:
        record.write_text(table(counts))
        return
    wrong = compare(counts, read_record(record) if record.exists() else {})
    if wrong:
        sys.exit("\n".join(wrong) + "\nIf this is intended, record it: ./dev bench --instructions --update")


if __name__ == "__main__":
    main()
