#!/usr/bin/env python3
"""Writes the type stubs of the enumerations, whose members come from the library: make_enum_stubs.py PACKAGE-FOLDER."""
import enum
import pathlib
import sys

folder = pathlib.Path(sys.argv[1])
sys.dont_write_bytecode = True
sys.path.insert(0, str(folder.parent))
from labelsbase import _enums  # noqa: E402

lines = ["from enum import IntEnum"]
for name, kind in vars(_enums).items():
    if isinstance(kind, type) and issubclass(kind, enum.IntEnum) and kind is not enum.IntEnum:
        lines += ["", f"class {name}(IntEnum):", *(f"    {member} = {number.value}"
                                                  for member, number in kind.__members__.items())]
(folder / "_enums.pyi").write_text("\n".join(lines) + "\n")
