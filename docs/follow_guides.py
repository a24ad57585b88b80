#!/usr/bin/env python3
"""Follows the guides of ARCHITECTURE.md in a copy of the tree, so that they stay true.

usage: follow_guides.py WORK_DIRECTORY [DOCUMENT]

A guide is a section `### NAME` with a numbered list of steps. A step

- changes the file that it names first. In its block of diff, the lines with " " and "-" stand in the file one after the
  other, in one place, with any spacing; those with "-" give way to those with "+". A block of cpp is a new file.
- or links to another guide, whose steps it stands for: `[NAME](#...)`.
- ends with "Forgotten, `WHAT` ...: `MESSAGE`, `MESSAGE`." WHAT is a source to compile, a target to build, a test to run,
  or `cmake`. Without the step, it must fail and print every MESSAGE.

All steps of all guides are taken first. Everything is built, the tests must pass, and the blocks of console in the guides
must be true. Then each step is left out in turn.
"""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import textwrap

from check_examples import ROOT, blocks, check_console


class Edit:
    """One change of a file, which can be taken back."""

    def __init__(self, path, kind, block):
        self.path, self.kind, self.block = path, kind, block

    def apply(self):
        if self.kind == "cpp":
            self.before, self.after = None, "\n".join(self.block) + "\n"
            self.path.write_text(self.after)
            return
        text = self.path.read_text()
        kept = [line[1:] for line in self.block if line[0] in " -"]
        pattern = "\n".join(r"[ \t]*" + r"[ \t]+".join(map(re.escape, line.split())) for line in kept)
        found = list(re.finditer(f"^{pattern}$", text, re.MULTILINE))
        if len(found) != 1:
            sys.exit(f"{self.path}: {len(found)} places, not one, for\n" + "\n".join(self.block))
        lines = iter(found[0].group().split("\n"))
        after = [line[1:] if line[0] == "+" else (line[0], next(lines)) for line in self.block]
        self.before = found[0].group()
        self.after = "\n".join(line if isinstance(line, str) else line[1] for line in after if line[0] != "-")
        self.path.write_text(text[: found[0].start()] + self.after + text[found[0].end() :])

    def take_back(self):
        if self.before is None:
            self.path.unlink()
            return
        text = self.path.read_text()
        if text.count(self.after) != 1:
            sys.exit(f"{self.path}: another step changes these lines too:\n{self.after}")
        self.path.write_text(text.replace(self.after, self.before))


class Step:
    def __init__(self, guide, number, lines, tree):
        self.name = f"{guide}, step {number}"
        text = textwrap.dedent(" " * (len(number) + 2) + "\n".join(lines))
        body, _, forgotten = text.partition("Forgotten, ")
        link = re.search(r"\[([^]]+)\]\(#", body)
        self.other_guide = link.group(1) if link else None
        block = re.search(r"^```(diff|cpp)\n(.*?)\n```$", body, re.MULTILINE | re.DOTALL)
        self.edit = block and Edit(tree / re.search("`(.*?)`", body).group(1), block[1], block[2].split("\n"))
        self.is_test = forgotten.startswith("the test ")
        self.what, *self.messages = re.findall("`(.*?)`", " ".join(forgotten.split()))
        if not self.messages or bool(block) == bool(link):
            sys.exit(f"{self.name}: needs one block of diff or cpp, or a link, and what is printed if it is forgotten")


def read_guides(document, tree):
    """Returns the steps of every guide by its name."""
    guides = {}
    section = re.search(r"^## Guides\n(.*?)(?=^## |\Z)", document.read_text(), re.MULTILINE | re.DOTALL)
    for guide, body in re.findall(r"^### ([^\n]*)\n(.*?)(?=^### |\Z)", section[1] if section else "", re.M | re.S):
        steps = re.findall(r"^(\d+)\. (.*(?:\n(?: .*)?)*)", body, re.MULTILINE)
        guides[guide] = [Step(guide, number, text.split("\n"), tree) for number, text in steps]
    if not guides:
        sys.exit(f"{document}: no guides")
    return guides


def copy_tree(tree):
    shutil.rmtree(tree, ignore_errors=True)
    listed = subprocess.run(["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"], cwd=ROOT,
                            capture_output=True, text=True, check=True).stdout
    for name in filter(None, listed.split("\0")):
        if (ROOT / name).is_file():
            (tree / name).parent.mkdir(parents=True, exist_ok=True)
            shutil.copy2(ROOT / name, tree / name)


class Build:
    """A quick build of the copy: what it says is the same at every level of optimisation."""

    def __init__(self, tree):
        self.tree, self.dir = tree, tree / "build/dev"

    def run(self, *command):
        """Returns the exit code and the output."""
        done = subprocess.run(list(map(str, command)), cwd=self.tree, text=True, env=dict(os.environ, LC_ALL="C"),
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        return done.returncode, done.stdout

    def configure(self):
        return self.run("cmake", "--preset", "dev", "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS_DEBUG=-O0")

    def build(self, *targets):
        return self.run("ninja", "-C", self.dir, *targets)

    def test(self, *options):
        return self.run("ctest", "--test-dir", self.dir, "--output-on-failure", "--parallel", os.cpu_count(), *options)

    def demand(self, result):
        code, output = result
        if code != 0:
            sys.exit(output)

    def without(self, step):
        """Runs what must fail while a step is forgotten."""
        if step.is_test:
            self.demand(self.build())
            return self.test("-R", f"^{re.escape(step.what)}$")
        if step.what == "cmake":
            return self.configure()
        return self.build(f"{self.tree / step.what}^" if step.what.endswith(".cpp") else step.what)


def check_forgotten(step, edits, build):
    """Returns whether the build refuses the tree without the edits, and names what is missing."""
    times = {edit.path: edit.path.stat() for edit in edits}
    for edit in reversed(edits):
        edit.take_back()
    code, output = build.without(step)
    for edit in edits:
        edit.apply()
    if step.what.endswith(".cpp") or step.is_test:  # nothing was built, so nothing need be built again
        for path, was in times.items():
            os.utime(path, ns=(was.st_atime_ns, was.st_mtime_ns))

    missing = [message for message in step.messages if message not in output]
    if code == 0 or missing:
        print(f"{step.name} forgotten: " + (f"does not print {missing}" if code else "is accepted") + f"\n{output}")
        return False
    lines = re.sub(rf"{re.escape(str(build.tree))}/|(\.\./)+", "", output).split("\n")
    print(f"{step.name} forgotten:")
    for line in dict.fromkeys(next(line for line in lines if message in line) for message in step.messages):
        print(f"    {line.strip()}")
    return True


def main():
    if len(sys.argv) not in (2, 3):
        sys.exit(__doc__)
    tree = pathlib.Path(sys.argv[1]).resolve()
    document = pathlib.Path(sys.argv[2] if len(sys.argv) == 3 else ROOT / "ARCHITECTURE.md")
    guides = read_guides(document, tree)
    copy_tree(tree)
    for step in sum(guides.values(), []):
        if step.edit:
            step.edit.apply()

    build = Build(tree)
    build.demand(build.configure())
    build.demand(build.build())
    build.demand(build.test())
    good = check_console(document, build.dir, [block for block in blocks(document) if block[0] == "console"])
    print(", ".join(guides) + (": followed" if good else ": an example is not true"))

    for step in sum(guides.values(), []):
        edits = [step.edit] if step.edit else [other.edit for other in guides[step.other_guide]]
        good &= check_forgotten(step, edits, build)
    sys.exit(0 if good else 1)


if __name__ == "__main__":
    main()
