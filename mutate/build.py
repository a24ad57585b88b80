"""One build without a fault, and what a fault makes anew of it: objects, libraries and the programs that tests run."""

import hashlib
import json
import os
import re
import resource
import shlex
import shutil
import signal
import subprocess

OPTIONS = ["-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS_DEBUG=-O0 -w", "-DCMAKE_UNITY_BUILD=OFF",
           "-DCMAKE_CXX_COMPILER=g++"]
LIMITS = {resource.RLIMIT_AS: 6 << 30, resource.RLIMIT_FSIZE: 256 << 20, resource.RLIMIT_CORE: 0}


class DoesNotCompile(Exception):
    pass


def run(command, cpu_seconds, env=None, cwd=None):
    """Runs a command. Returns whether it succeeded, and what it printed.

    Stops a process that has taken `cpu_seconds` of processor time, and all of them after ten minutes.
    """
    def limit():
        for what, most in {**LIMITS, resource.RLIMIT_CPU: cpu_seconds}.items():
            resource.setrlimit(what, (most, most))

    process = subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                               start_new_session=True, preexec_fn=limit, env={**os.environ, **(env or {})}, cwd=cwd)
    try:
        output, _ = process.communicate(timeout=600)
    except subprocess.TimeoutExpired:
        os.killpg(process.pid, signal.SIGKILL)
        output, _ = process.communicate()
    return process.returncode == 0, output.decode(errors="replace")


def copy_sources(root, folder):
    """Makes `folder` the same as the sources. Leaves alone what is the same, for ninja."""
    listed = subprocess.run(["git", "-C", root, "ls-files", "--cached", "--others", "--exclude-standard"],
                            check=True, capture_output=True, text=True).stdout.split("\n")
    files = {file for file in listed if (root / file).is_file()}
    for old in [path for path in folder.rglob("*") if path.is_file() and str(path.relative_to(folder)) not in files]:
        old.unlink()
    for file in files:
        if not (folder / file).exists() or (folder / file).read_bytes() != (root / file).read_bytes():
            (folder / file).parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(root / file, folder / file)


def command_of(rule):
    """Returns the arguments of the one command of a rule that makes its output, without a compiler cache."""
    for command in rule["command"].split(" && "):
        arguments = shlex.split(command.replace(r"\$", "$"))
        if arguments[:2] == ["/usr/bin/ar", "qc"] or "-o" in arguments:
            return arguments[1:] if "cache" in arguments[0] else arguments
    return None


def flags_of(command):
    """Returns a command of the compiler without what differs from object to object."""
    rest, flags = iter(command), []
    for argument in rest:
        if argument in ("-MT", "-MF", "-o", "-c"):
            next(rest)
        elif argument != "-MD":
            flags.append(argument)
    return flags


class Build:
    """The sources as they stand, copied and built. Nothing in it changes while faults are tried."""

    def __init__(self, root, folder, options, targets):
        self.source, self.folder = folder / "source", folder / "build"
        copy_sources(root, self.source)
        self.folder.mkdir(parents=True, exist_ok=True)
        if not (self.folder / "build.ninja").exists():
            subprocess.run(["cmake", "-S", self.source, "-B", self.folder, *OPTIONS, *options],
                           check=True, stdout=subprocess.DEVNULL)
        subprocess.run(["ninja", "-C", self.folder, *targets], check=True)
        rules = [rule for rule in json.loads(self._ask("compdb")) if rule["command"]]
        self.commands = {rule["output"]: command for rule in rules if (command := command_of(rule))}
        self.users = {}  # of a file: the objects that include it
        for name, files in re.findall(r"^(\S+\.o): #deps.*\n((?:    .*\n)*)", self._ask("deps"), re.M):
            for file in files.split("\n"):
                path = os.path.normpath(self.folder / file.strip())
                if name in self.commands and path.startswith(f"{self.source}/"):
                    self.users.setdefault(os.path.relpath(path, self.source), []).append(name)
        self._precompile()
        self._put_wrapper()

    def _ask(self, tool):
        return subprocess.run(["ninja", "-C", self.folder, "-t", tool], check=True, capture_output=True, text=True).stdout

    def full_name(self, name):
        """Returns the name of a file that is made, by its name without a version."""
        return next(made for made in self.commands if made == name or made.startswith(name + "."))

    def header(self, name):
        """Returns the header whose precompiled form an object uses: one for all objects of the same flags."""
        flags = repr(flags_of(self.commands[name]))
        return self.folder / f"standard_{hashlib.sha256(flags.encode()).hexdigest()[:12]}.h"

    def _precompile(self):
        """Precompiles the headers of the system, which are most of what an object takes to compile."""
        header_of = {name: self.header(name) for name in self.commands if name.endswith(".cpp.o")}
        named = {header: set() for header in header_of.values() if not header.exists()}
        for file, users in self.users.items():
            found = re.findall(r"^#include (<.*>)", (self.source / file).read_text(), re.M)
            for header in {header_of.get(user) for user in users} & named.keys():
                named[header].update(found)
        for name, header in header_of.items():
            if header in named and not header.exists():
                header.write_text("".join(f"#include {include}\n" for include in sorted(named[header])))
                flags = flags_of(self.commands[name])
                if not run([*flags, "-x", "c++-header", header, "-o", f"{header}.gch"], 300, cwd=self.folder)[0]:
                    header.write_text("")

    def _put_wrapper(self):
        """Puts a script in the tool's place, so that tests run the one with the fault."""
        tool = self.folder / "bin/labels"
        if tool.exists() and tool.read_bytes()[:4] == b"\x7fELF":
            tool.rename(tool.with_name("labels_itself"))
            tool.write_text('#!/bin/sh\nexec "$LABELS_TOOL" "$@"\n')
            tool.chmod(0o755)


class Trial:
    """One fault in a copy of the sources, or none, and what was made anew because of it."""

    def __init__(self, build, folder, fault):
        self.build, self.folder, self.fault = build, folder, fault
        self.source = folder / "source"
        self.made = {}  # the path of each file that was made anew, by its name in the build
        shutil.rmtree(folder / "made", ignore_errors=True)
        (folder / "made").mkdir(parents=True)
        if fault:
            file = self.source / fault.file
            file.write_text(fault.planted_in(file.read_text()))

    def __enter__(self):
        return self

    def __exit__(self, *_):
        if self.fault:
            shutil.copy(self.build.source / self.fault.file, self.source / self.fault.file)

    def compile(self, objects):
        for name in objects:
            if name in self.made:
                continue
            command = self.build.commands[name]
            flags = flags_of(command)
            standard = ["-include", self.build.header(name)] if name.endswith(".cpp.o") else []
            here = [argument.replace(str(self.build.source), str(self.source)) for argument in (*flags, *command[-2:])]
            self._make(name, [here[0], *standard, *here[1:], "-o", self._place(name)])

    def program(self, name):
        """Returns the program or library of this name, linked anew if something in it was made anew."""
        if name in self.made:
            return self.made[name]
        command = list(self.build.commands[name])
        for argument in command:
            if argument.endswith(".a") and argument != name and argument in self.build.commands:
                self.program(argument)
        if not any(argument in self.made for argument in command if not re.search(r"\.so\.[\d.]+$", argument)):
            itself = self.build.folder / (name + "_itself")
            return itself if itself.exists() else self.build.folder / name
        place = self._place(name)
        self._make(name, [place if argument == name else self.made.get(argument, argument) for argument in command])
        return place

    def libraries(self):
        """Returns the folder of shared libraries for the loader, with the one that was made anew before the others."""
        folders = []
        for name in ("labelsbase/liblabelsbase.so", "c/liblabels_c.so"):
            path = self.program(self.build.full_name(name))
            short = path.with_name(re.sub(r"(\.so\.\d+)\..*", r"\1", path.name))
            if not short.exists():
                short.symlink_to(path.name)
            folders.append(str(path.parent))
        return ":".join(folders)

    def _place(self, name):
        place = self.folder / "made" / name
        place.parent.mkdir(parents=True, exist_ok=True)
        return place

    def _make(self, name, command):
        done, output = run(command, 120, cwd=self.build.folder)
        if not done:
            raise DoesNotCompile(output)
        self.made[name] = self.folder / "made" / name
