"""The tests that a fault must fail, those of its own room first."""

import re
import shutil
import sys

from build import run


def fixed_environment(trial):
    return {"LABELS_TOOL": str(trial.program("bin/labels")), "LD_LIBRARY_PATH": trial.libraries(), "LC_ALL": "C.UTF-8"}


def first_failure(output):
    """Returns the test that failed, or was running when the program died."""
    for pattern in (r"^\[  FAILED  \] ([\w./]+)", r"^\[ RUN      \] (\S+)$", r"^FAILED (\S+)", r"^(ERROR \S+)"):
        found = re.findall(pattern, output, re.M)
        if found:
            return found[0] if "FAILED" in pattern or "ERROR" in pattern else found[-1]
    return ""


class Program:
    """A program of tests, and what it is run with."""

    def __init__(self, name, *arguments, seconds=10):
        self.name, self.arguments, self.seconds = name, arguments, seconds

    def caught_by(self, trial):
        command = [trial.program(f"bin/{self.name}"), *self.arguments]
        passed, output = run(command, self.seconds, fixed_environment(trial), trial.folder)
        return None if passed else f"{self.name} {first_failure(output)}".strip()


def is_akin(word, command):
    return word[:4] == command[:4] and len(command) > 2


class Tool(Program):
    """The tests of the tool: first those whose lines use commands that the file is named after, else the examples."""

    def caught_by(self, trial):
        words = re.split(r"[_./]", trial.fault.file) if trial.fault else []
        likely = []
        for source in sorted((trial.build.source / "tests").glob("cli_*.cpp")):
            for suite, name, body in re.findall(r"^TEST_F\((\w+), (\w+)\)(.*?)^}", source.read_text(), re.M | re.S):
                if any(is_akin(word, command) for command in re.findall(r"labels (\w+)", body) for word in words):
                    likely.append(f"{suite}.{name}")
        likely = ":".join(likely) or "*Examples*"
        return (Program(self.name, *self.arguments, f"--gtest_filter={likely}", seconds=self.seconds).caught_by(trial) or
                Program(self.name, *self.arguments, f"--gtest_filter=-{likely}", seconds=self.seconds).caught_by(trial))


class Replay(Program):
    """The seeds of a fuzz target, and inputs drawn at random."""

    def caught_by(self, trial):
        corpus = trial.build.source / "fuzz/corpus" / self.name
        return Program(f"{self.name}_replay", corpus, seconds=self.seconds).caught_by(trial)


class Script:
    """A test that looks at a program or library from outside."""

    def __init__(self, file, about, interpreter=(), seconds=10):
        self.file, self.about, self.interpreter, self.seconds = file, about, interpreter, seconds

    def caught_by(self, trial):
        command = [*self.interpreter, trial.build.source / "tests" / self.file, trial.program(trial.build.full_name(self.about))]
        passed, _ = run(command, self.seconds, fixed_environment(trial), trial.folder)
        return None if passed else self.file


class Python:
    """The tests of the Python module."""

    def caught_by(self, trial):
        package = trial.folder / "made/python/labelsbase"
        shutil.copytree(trial.build.folder / "python/labelsbase", package, symlinks=True, dirs_exist_ok=True,
                        ignore=lambda _, names: [name for name in names if name.startswith("_core.c") and name.endswith(".so")])
        core = trial.program(trial.build.full_name("python/labelsbase/_core"))
        if core.parent != package:
            shutil.copy(core, package)
        source = trial.build.source
        command = ["/usr/bin/python3", "-m", "pytest", "-x", "-q", "-rfE", "--tb=line", "-p", "no:cacheprovider",
                   "--doctest-modules", "--doctest-glob=*.md", source / "tests/python", source / "README.md",
                   source / "docs/python.md", package]
        environment = {"PYTHONPATH": str(package.parent), "PYTHONDONTWRITEBYTECODE": "1"}
        passed, output = run(command, 120, environment, trial.folder)
        return None if passed else f"pytest {first_failure(output).split('/')[-1]}".strip()


def replays(*names):
    return [Replay(name, seconds=60) for name in names]


def gtest(name, seconds=10):
    return Program(name, "--gtest_break_on_failure", seconds=seconds)


UNIT = [gtest("labels_tests"), gtest("poor_host_test"), gtest("failing_host_test")]
C = [Program("c_interface_test"), Script("c/from_python.py", "c/liblabels_c.so", [sys.executable])]
TOOL = [Tool("cli_tests", "--gtest_break_on_failure", seconds=5), Script("schemas.py", "bin/labels", [sys.executable])]
ALL = [*UNIT, *replays("frame_counts", "keep_string", "label_check", "label_text", "number", "roll_text", "template"), *C,
       *TOOL]

# Only those that the room is linked into. Those that take long come last.
OF_ROOMS = {
    "c": C,
    "cli": TOOL,
    "labelcheck": [*UNIT, *replays("label_check"), *C, *TOOL],
    "labelconvert": [*UNIT, *C, *TOOL],
    "labelnames": [*UNIT, *C, *TOOL, *replays("names")],
    "labelsbase": [*ALL, *replays("host_converter"), Script("memory_of_host.sh", "labelsbase/liblabelsbase.so"),
                   gtest("labels_sweeps", seconds=120), Program("labels_sweep", "--thin", seconds=300)],
    "lists": [*UNIT, *replays("lists"), *TOOL],
    "python": [Python()],
}


def tests_of(room):
    return OF_ROOMS.get(room.split("/")[0], ALL)
