#!/usr/bin/env python3
"""Runs the examples of the documents, so that they stay true.

usage: check_examples.py BUILD_DIRECTORY DOCUMENT_OR_HEADER...

In a document,

- a line `EXPRESSION;  // VALUE` in a block of C++ must have that value; a remark may follow after ": ". The blocks of a
  document are one program. Any other line is compiled as it is.
- a block of C++ after `<!-- file: NAME -->` is a file; the files of a document are one program. It is linked to refhost
  unless it defines a host of its own. Lines `// prints TEXT` say what it prints.
- a line `$ COMMAND` in a block of console is run in a shell that finds the tool `labels`; the lines that follow it are
  its output, standard error included.

In a header, the comments before the first include have examples. A line `EXPRESSION   // VALUE` must have that value; a
remark may follow after ": " or ", ". A line that ends in ";" is compiled as it is.
"""

import concurrent.futures
import os
import pathlib
import re
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
COMPILER = os.environ.get("CXX", "c++")

PRELUDE = """\
#include <concepts>
#include <cstdio>
#include <cstring>
#include <iostream>
#include <string_view>
%s
static int failures = 0;
template <class Actual, class Expected>
void check(int line, Actual const& actual, Expected const& expected) {
  bool same;
  if constexpr (std::convertible_to<Actual, std::string_view>)
    same = std::string_view{actual} == expected;
  else
    same = actual == static_cast<Actual>(expected);
  if (same) return;
  failures = 1;
  std::cerr << DOCUMENT << ":" << line << ": is ";
  if constexpr (requires { std::cerr << actual << expected; }) std::cerr << actual << ", not " << expected << "\\n";
  else std::cerr << "another value\\n";
}
int main() {
%s
  return failures;
}
"""


def blocks(document):
    """Yields (language, file name or None, number of the first line, lines) of every fenced block."""
    language, lines, first, name = None, [], 0, None
    for number, line in enumerate(document.read_text().splitlines(), 1):
        if line.startswith("```") and language is None:
            language, lines, first = line[3:].strip(), [], number + 1
        elif line == "```":
            yield language, name, first, lines
            language, name = None, None
        elif language is not None:
            lines.append(line)
        else:
            found = re.match(r"<!-- file: (\S+) -->", line)
            name = found.group(1) if found else (name if not line else None)


def build(build_dir, program, sources, *libraries):
    library_dir = build_dir / "labelsbase"
    subprocess.run(
        [COMPILER, "-std=c++20", "-Wall", "-Wextra", "-Wno-trigraphs", "-Wno-unused", "-I", ROOT, *sources]
        + ["-o", program, *(build_dir / f"{name}/lib{name}.a" for name in ("labelcheck", "labelconvert", "labelnames"))]
        + ["-L", library_dir, "-llabelsbase", *libraries]
        + [f"-Wl,-rpath,{library_dir}"],
        check=True,
    )


def run_statements(name, build_dir, folder, statements):
    """Runs statements: (line number, code) or (line number, expression, value)."""
    includes, body = [], []
    for number, code, *value in statements:
        if code.startswith("#include"):
            includes.append(code)
        elif value:
            body.append(f"  check({number}, ({code}), {value[0]});")
        else:
            body.append(f'#line {number} "{name}"\n{code}')
    source, program = folder / "examples.cpp", folder / "examples"
    text = PRELUDE % ("\n".join(includes), "\n".join(body))
    source.write_text(text.replace("DOCUMENT", f'"{name}"'))
    build(build_dir, program, [source], build_dir / "refhost/librefhost.a")
    return subprocess.run([program], stdout=subprocess.DEVNULL).returncode == 0


def statements_of_blocks(found):
    for _, _, first, lines in found:
        for number, line in enumerate(lines, first):
            example = re.match(r'^(\S.*);\s+// ("[^"]*"|[^":]+)(?:: .*)?$', line)
            yield (number, *example.groups()) if example else (number, line)


def statements_of_header(header):
    for name in ("labelsbase/labels.h", "refhost/refhost.h", header.resolve().relative_to(ROOT)):
        yield 0, f'#include "{name}"'
    yield 0, "#include <memory>"
    yield 0, "using namespace labelsbase;"
    for number, line in enumerate(header.read_text().splitlines(), 1):
        if line.startswith("#include"):
            return
        found = re.match(r"//   (\S.*?)(?: +// (.*))?$", line)
        code, remark = found.groups() if found else ("", None)
        if code.endswith(";"):
            yield number, code
        elif remark:
            value = re.match(r'"[^"]*"|\{[^}]*\}|(?:::|[^:,])+', remark).group()
            yield number, code, f"std::remove_cvref_t<decltype({code})>{value}" if value.startswith("{") else value


def check_files(document, build_dir, folder, found):
    sources, expected, libraries = [], "", [build_dir / "refhost/librefhost.a"]
    for _, name, _, lines in found:
        if any(line.startswith("Kiv::OperatingServices& OS()") for line in lines):
            libraries = []
        sources.append(folder / name)
        sources[-1].write_text("\n".join(lines) + "\n")
        expected += "".join(line.split("// prints ")[1] + "\n" for line in lines if "// prints " in line)
    program = folder / "program"
    build(build_dir, program, sources, *libraries)
    actual = subprocess.run([program], capture_output=True, text=True, check=True).stdout
    if actual != expected:
        print(f"{document}: prints\n{actual}not\n{expected}", file=sys.stderr)
    return actual == expected


def check_console(document, build_dir, found):
    environment = dict(os.environ, PATH=f"{build_dir / 'bin'}:{os.environ['PATH']}")
    good = True
    for _, _, first, lines in found:
        for number, line in enumerate(lines, first):
            if not line.startswith("$ "):
                continue
            rest = lines[number - first + 1 :]
            end = next((i for i, text in enumerate(rest) if text.startswith("$ ")), len(rest))
            command = line[2:].replace("./dev run", "labels")
            done = subprocess.run(command, shell=True, env=environment, text=True, cwd=ROOT,
                                  stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
            if done.stdout.splitlines() != rest[:end]:
                print(f"{document}:{number}: {command}\n{done.stdout}", file=sys.stderr)
                good = False
    return good


def check(path, build_dir):
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        if path.suffix == ".h":
            statements = list(statements_of_header(path))
            has_examples = any(len(statement) == 3 for statement in statements)
            return not has_examples or run_statements(path, build_dir, folder, statements)
        cpp = [block for block in blocks(path) if block[0] == "cpp"]
        files = [block for block in cpp if block[1]]
        rest = [block for block in cpp if not block[1]]
        good = check_console(path, build_dir, [block for block in blocks(path) if block[0] == "console"])
        if rest:
            good &= run_statements(path, build_dir, folder, statements_of_blocks(rest))
        if files:
            good &= check_files(path, build_dir, folder, files)
        return good


def main():
    if len(sys.argv) < 3:
        sys.exit(__doc__)
    build_dir = pathlib.Path(sys.argv[1]).resolve()

    def check_one(path):
        try:
            return check(path, build_dir)
        except subprocess.CalledProcessError as error:
            print(f"{path}: failed: {error.cmd[0]}", file=sys.stderr)
            return False

    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as workers:
        good = all(list(workers.map(check_one, map(pathlib.Path, sys.argv[2:]))))
    sys.exit(0 if good else 1)


if __name__ == "__main__":
    main()
