#!/usr/bin/env python3
"""Plants small faults in copies of the sources, one at a time, and says which test catches each.

usage: mutate.py [--count N] [--seed N] [--only PATH] [--workers N] [--again]

Draws N faults (250) over all rooms, or over the files whose path begins with PATH. Does not try those that
equivalent.txt explains. Works in build/mutate: faults.txt has each fault and its verdict. A run that was stopped goes on
where it was; it tries survivors again, and all faults with --again. Fails if a fault survives.
"""

import argparse
import collections
import concurrent.futures
import json
import os
import pathlib
import queue
import subprocess
import sys
import threading
import time

from build import Build, DoesNotCompile, Trial, copy_sources
from faults import draw
from tests import tests_of

ROOT = pathlib.Path(__file__).resolve().parents[1]
FOLDER = (ROOT / "build/mutate").resolve()
ROOMS = ("c", "cli", "host", "labelcheck", "labelconvert", "labelnames", "labelsbase", "lists", "python", "refhost")
PROGRAMS = ["-DLABELSBASE_TESTS=ON"]
MODULE = ["-DLABELSBASE_PYTHON=ON", "-DLABELSBASE_TOOL=OFF", "-DLABELSBASE_C=OFF", "-DPython_EXECUTABLE=/usr/bin/python3"]


def sources():
    """Returns the text of each file of the rooms by room and file."""
    listed = subprocess.run(["git", "-C", ROOT, "ls-files", "--", "*.h", "*.cpp"], check=True, capture_output=True, text=True)
    return {(os.path.dirname(file), file): (ROOT / file).read_text()
            for file in listed.stdout.split() if file.split("/")[0] in ROOMS}


def equivalents():
    """Reads equivalent.txt: the reason by file, old text and new text."""
    found = {}
    for entry in (pathlib.Path(__file__).parent / "equivalent.txt").read_text().split("\n\n"):
        lines = [line for line in entry.split("\n") if line.strip() and not line.startswith("#")]
        if lines:
            old, new = ("\n".join(line[1:].strip() for line in lines if line[0] == sign) for sign in "-+")
            found[lines[0], old, new] = " ".join(line.strip() for line in lines[1:] if line[0] not in "-+")
    return found


def bare(text):
    return "\n".join(line.strip() for line in text.split("\n"))


def own_rooms(room):
    top = room.split("/")[0]
    return ("labelsbase", "refhost") if top == "host" else (top,)


def expect_no_failure(build, folder, rooms):
    """Runs the tests without a fault; what fails then would be said to catch every fault."""
    marker = build.folder / "passed"
    if marker.exists() and marker.stat().st_mtime > (build.folder / ".ninja_log").stat().st_mtime:
        return
    with Trial(build, folder, None) as trial:
        tests = dict.fromkeys(test for room in rooms for test in tests_of(room))
        failed = {caught for test in tests if (caught := test.caught_by(trial))}
    if failed:
        sys.exit("without any fault: " + ", ".join(sorted(failed)))
    marker.touch()


def verdict(build, folder, fault):
    """Plants a fault, builds and tests. Returns what caught it, or "survived"."""
    with Trial(build, folder, fault) as trial:
        users = build.users.get(fault.file, [])
        own = [name for name in users if name.split("/")[0] in own_rooms(fault.room)] or users
        try:
            # What includes a header elsewhere is built only if the header's own room does not tell.
            for objects in [own] if own == users else [own, users]:
                trial.compile(objects)
                for test in tests_of(fault.room):
                    if caught := test.caught_by(trial):
                        return caught
        except DoesNotCompile:
            return "compiler"
    return "survived"


def try_all(faults, workers, write):
    """Tries the faults, each worker in a copy of its own, and hands each verdict to `write`."""
    of_module = [fault for fault in faults if fault.room == "python"]
    of_programs = [fault for fault in faults if fault.room != "python"]
    folders = [FOLDER / f"worker{number}" for number in range(workers)]
    for folder in folders:
        copy_sources(ROOT, folder / "source")
    if of_programs:
        build = Build(ROOT, FOLDER / "programs", PROGRAMS, ["all"])
        expect_no_failure(build, folders[0], ["labelsbase", "lists", "labelnames"])
        try_in(build, folders, of_programs, write)
    if of_module:
        build = Build(ROOT, FOLDER / "module", MODULE, ["labelsbase_python"])
        expect_no_failure(build, folders[0], ["python"])
        try_in(build, folders, of_module, write)


def try_in(build, folders, faults, write):
    free = queue.SimpleQueue()
    for folder in folders:
        free.put(folder)

    def one(fault):
        folder, begun = free.get(), time.monotonic()
        try:
            write(fault, verdict(build, folder, fault), time.monotonic() - begun)
        finally:
            free.put(folder)

    with concurrent.futures.ThreadPoolExecutor(len(folders)) as pool:
        try:
            for done in concurrent.futures.as_completed([pool.submit(one, fault) for fault in faults]):
                done.result()
        except BaseException:
            pool.shutdown(cancel_futures=True)
            raise


def report(faults, verdicts, reasons):
    """Returns the table, and each fault with its verdict."""
    rooms, tests = collections.defaultdict(collections.Counter), collections.Counter()
    listed = []
    for fault in faults:
        said = verdicts.get(fault.key, "not tried")
        reason = reasons.get((fault.file, bare(fault.old), bare(fault.new)))
        if reason:
            said = f"equivalent: {reason}"
        column = said if said in ("compiler", "survived", "not tried") else said.split(":")[0]
        if column not in ("compiler", "survived", "not tried", "equivalent"):
            tests[said.split(" ")[0]] += 1
            column = "tests"
        rooms[fault.room][column] += 1
        listed.append((column != "survived", f"{fault}{said}\n"))
    table = f"{'room':<24}{'planted':>8}{'compiler':>10}{'tests':>7}{'equivalent':>12}{'survived':>10}\n"
    rooms["all"] = sum(rooms.values(), collections.Counter())
    for room, of in rooms.items():
        table += (f"{room:<24}{sum(of.values()):>8}{of['compiler']:>10}{of['tests']:>7}{of['equivalent']:>12}"
                  f"{of['survived']:>10}{'   not tried: %d' % of['not tried'] if of['not tried'] else ''}\n")
    table += "\ncaught by " + ", ".join(f"{name} {number}" for name, number in tests.most_common()) + "\n"
    return table, "\n".join(text for _, text in sorted(listed, key=lambda entry: entry[0])), rooms["all"]


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("--count", type=int, default=250, metavar="N", help="how many faults to plant (250)")
    parser.add_argument("--seed", type=int, default=1, metavar="N", help="another seed draws other faults (1)")
    parser.add_argument("--only", default="", metavar="PATH", help="only files whose path begins with PATH")
    parser.add_argument("--workers", type=int, default=os.cpu_count(), metavar="N", help="faults tried at a time (one a core)")
    parser.add_argument("--again", action="store_true", help="try all faults anew, not only survivors")
    given = parser.parse_args()

    texts = {where: text for where, text in sources().items() if where[1].startswith(given.only)}
    if not texts:
        sys.exit(f"no source file's path begins with {given.only}")
    faults = draw(texts, given.count, given.seed)
    FOLDER.mkdir(parents=True, exist_ok=True)
    kept = FOLDER / "verdicts.jsonl"
    if given.again:
        kept.unlink(missing_ok=True)
    verdicts = dict(json.loads(line) for line in kept.read_text().splitlines()) if kept.exists() else {}
    reasons = equivalents()
    for file, old, _ in reasons:
        if old not in bare((ROOT / file).read_text()):
            sys.exit(f"equivalent.txt explains a fault of a line that {file} does not have: {old}")
    todo = [fault for fault in faults
            if verdicts.get(fault.key, "survived") == "survived" and (fault.file, bare(fault.old), bare(fault.new)) not in reasons]
    lock = threading.Lock()
    begun, tried = time.monotonic(), []

    def write(fault, said, seconds):
        with lock:
            tried.append(fault)
            verdicts[fault.key] = said
            with kept.open("a") as out:
                print(json.dumps([fault.key, said]), file=out)
            print(f"{len(tried):4} {seconds:5.0f} s  {fault.file}:{fault.line}: {fault.kind}: {said}", flush=True)

    stopped = False
    try:
        try_all(todo, given.workers, write)
    except KeyboardInterrupt:
        stopped = True
    table, listed, total = report(faults, verdicts, reasons)
    (FOLDER / "faults.txt").write_text(f"{table}\n{listed}")
    print(f"\n{table}{len(tried)} tried in {(time.monotonic() - begun) / 60:.0f} minutes; each in {FOLDER}/faults.txt")
    sys.exit(130 if stopped else 1 if total["survived"] else 0)


if __name__ == "__main__":
    main()
