#!/usr/bin/env python3
"""Measures `labels read` and `labels show` beside cat and beside a C program, and how the tool starts.

usage: tool.py PATH-OF-labels [LINES]

Each program stands in the same pipe, `cat input | PROGRAM | cat >/dev/null`. The table shows nanoseconds of processor
time for a line, the least of three runs, and the ratio to cat. A busy machine changes elapsed time, not the ratio.
"""

import os
import re
import subprocess
import sys
import tempfile

FAMILIES = {  # frames that have a label, options of the tool
    "25": (2160000, []),
    "29.97df": (2589408, []),
    "35mm": (160000, ["--prefix", "KJ123456"]),
    "ink35": (160000, ["--prefix", "AB12"]),
    "feet35": (160000, []),
}


def processor_time(command, source):
    """Runs the command in the pipe. Returns its seconds of processor time."""
    with open(source, "rb") as given, open(os.devnull, "wb") as nowhere:
        feed = subprocess.Popen(["cat"], stdin=given, stdout=subprocess.PIPE)
        work = subprocess.Popen(command, stdin=feed.stdout, stdout=subprocess.PIPE)
        feed.stdout.close()
        drain = subprocess.Popen(["cat"], stdin=work.stdout, stdout=nowhere)
        work.stdout.close()
        _, status, usage = os.wait4(work.pid, 0)
        work.returncode = status
        feed.wait()
        drain.wait()
    if status:
        sys.exit(f"{' '.join(command)}: status {status}")
    return usage.ru_utime + usage.ru_stime


def measure(lines, tool, peer, folder):
    print(f"{lines} lines; ns of processor time a line, and the ratio to cat\n")
    print("| | cat | C program | labels | labels / cat | C program / labels |")
    print("|---|---|---|---|---|---|")
    for name, (frames, options) in FAMILIES.items():
        numbers = os.path.join(folder, "numbers")
        labels = os.path.join(folder, "labels")
        with open(numbers, "w", encoding="ascii") as out:
            out.writelines(f"{i * 7919 % frames}\n" for i in range(lines))
        with open(numbers, "rb") as given, open(labels, "wb") as out:
            subprocess.run([tool, "show", name, *options], stdin=given, stdout=out, check=True)
        for verb, source in (("show", numbers), ("read", labels)):
            commands = {"cat": ["cat"], "C": [peer, verb, name], "labels": [tool, verb, name, *options]}
            least = {key: min(processor_time(command, source) for _ in range(3)) for key, command in commands.items()}
            ns = {key: seconds / lines * 1e9 for key, seconds in least.items()}
            print(f"| {verb} {name} | {ns['cat']:.0f} | {ns['C']:.0f} | {ns['labels']:.0f} | "
                  f"{ns['labels'] / ns['cat']:.1f} | {ns['C'] / ns['labels']:.1f} |",
                  flush=True)


def looked_up(command):
    """Returns how many symbols the loader looks up for a program, and how many more it finds in its cache."""
    debug = {**os.environ, "LD_BIND_NOW": "1", "LD_DEBUG": "statistics"}
    said = subprocess.run(command, capture_output=True, text=True, check=True, env=debug).stderr
    return [int(count) for count in re.findall(r"final number of relocations(?: from cache)?: (\d+)", said)]


def static_constructors(binary):
    """Returns how many a binary has, without the compiler's own."""
    sections = subprocess.run(["readelf", "-SW", binary], capture_output=True, text=True, check=True).stdout
    size = re.search(r"\.init_array\s+INIT_ARRAY\s+\S+\s+\S+\s+(\S+)", sections)[1]
    return int(size, 16) // 8 - 1


def own_symbols(library):
    """Returns how many relocations of a library name a symbol."""
    entries = subprocess.run(["readelf", "-rW", library], capture_output=True, text=True, check=True).stdout
    return len(re.findall(r"R_X86_64_(?:64|GLOB_DAT|JUMP_SLOT) ", entries))


def start_up(tool, folder):
    """Prints what programs do before their first line, if the loader binds all symbols at once."""
    empty = os.path.join(folder, "empty.c")
    with open(empty, "w", encoding="ascii") as out:
        out.write("int main(void) { return 0; }\n")
    programs = {"an empty C program": [os.path.join(folder, "empty_c")],
                "an empty C++ program": [os.path.join(folder, "empty_cpp")],
                "labels show 25 1": [tool, "show", "25", "1"]}
    subprocess.run(["cc", "-O2", empty, "-o", programs["an empty C program"][0]], check=True)
    subprocess.run(["c++", "-x", "c++", "-O2", empty, "-Wl,--no-as-needed", "-o", programs["an empty C++ program"][0]],
                   check=True)
    print("\n| start of | ms of processor time | symbols looked up | from the cache |\n|---|---|---|---|")
    for name, command in programs.items():
        seconds = []
        for _ in range(50):
            work = subprocess.Popen(command, stdout=subprocess.DEVNULL, env={**os.environ, "LD_BIND_NOW": "1"})
            _, work.returncode, usage = os.wait4(work.pid, 0)
            seconds.append(usage.ru_utime + usage.ru_stime)
        counts = " | ".join(map(str, looked_up(command)))
        print(f"| {name} | {sorted(seconds)[len(seconds) // 2] * 1000:.1f} | {counts} |")
    loaded = subprocess.run(["ldd", tool], capture_output=True, text=True, check=True).stdout
    library = re.search(r"liblabelsbase\S* => (\S+)", loaded)
    print(f"\nStatic constructors: {static_constructors(tool)} in the tool", end="")
    if library:
        print(f", {static_constructors(library[1])} in the library. "
              f"The library's relocations name {own_symbols(library[1])} symbols", end="")
    print(".")


def main():
    if len(sys.argv) not in (2, 3):
        sys.exit(__doc__)
    tool = sys.argv[1]
    with tempfile.TemporaryDirectory() as folder:
        peer = os.path.join(folder, "tool_peer")
        source = os.path.join(os.path.dirname(os.path.abspath(__file__)), "tool_peer.cpp")
        subprocess.run(["c++", "-std=c++20", "-O3", source, "-o", peer], check=True)
        measure(int(sys.argv[2]) if len(sys.argv) == 3 else 10_000_000, tool, peer, folder)
        start_up(tool, folder)


if __name__ == "__main__":
    main()
