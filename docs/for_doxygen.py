#!/usr/bin/env python3
"""Copies headers and documents into a folder, in the form that doxygen reads.

usage: for_doxygen.py FOLDER FILE_OR_DIRECTORY...

In a header, the first comment describes the file, and a comment behind code describes that code. Any other comment
describes the declarations below it, up to the next blank line: it is repeated for each. Leaves out the private members
of classes, and headers whose first comment begins with "Private:".

In a document, gives every heading an anchor that is unique in the site, `host-linking` for "Linking" in host.md, and
turns links to headings, `[linking](#linking)` and `[linking](host.md#linking)`, into links to those. Pictures fill the
width of the page.
"""

import pathlib
import re
import shutil
import sys


def indent_of(line):
    return len(line) - len(line.lstrip())


def as_comment(lines):
    """Turns lines of plain comment into lines of doxygen's. Marks for tools and headings of tables describe nothing."""
    words = [line for line in lines if not re.match(" *// (clang-format|NOLINT)", line)]
    if all(re.match(" *// {12}", line) for line in words):
        return []
    return [re.sub(r"^( *)//", r"\1///", line) for line in words]


def end_of_declaration(lines, start):
    """Returns the index behind a declaration or definition, which may have blank lines within braces."""
    depth = 0
    for number in range(start, len(lines)):
        code = re.sub(r" *//.*", "", lines[number])
        depth += code.count("{") + code.count("(") - code.count("}") - code.count(")")
        if depth <= 0 and code.endswith((";", "}", ",", ":")):
            return number + 1
    return len(lines)


def with_remarks(lines):
    """Turns comments behind code, except behind a brace that closes a scope."""
    return [line if re.match(r" *}+ +//", line) else re.sub(r"([;,{}]) +// ", r"\1  ///< ", line) for line in lines]


def header(text):
    text = re.sub(r"#ifndef (\w+_H)\n#define \1\n(.*)#endif.*", r"\2", text, flags=re.DOTALL)  # no name of the interface
    lines = text.split("\n")
    if lines[0].startswith("// Private:"):
        return None
    out = ["/// \\file"]
    is_private = False
    comment = []  # what describes the declarations up to the next blank line
    indent = number = 0
    while number < len(lines):
        line = lines[number]
        is_private = line == " private:" or is_private and not line.startswith(("}", " protected:", " public:"))
        if is_private:
            number += 1
        elif line.lstrip().startswith("//"):
            end = next(i for i in range(number, len(lines)) if not lines[i].lstrip().startswith("//"))
            if not re.match(" *// NOLINT", line):
                comment, indent = as_comment(lines[number:end]), indent_of(line)
            if number == 0:
                out += comment
                comment = []
            number = end
        elif line.startswith("#define"):
            out += comment + [line]
            number += 1
        elif not line or line.startswith("#") or indent_of(line) != indent or not comment:
            if not line:
                comment = []
            out += with_remarks([line])
            number += 1
        elif line.lstrip()[0] in "}":
            out.append(line)
            number += 1
        else:
            head = next(i for i in range(number, len(lines)) if not lines[i].lstrip().startswith("template")) + 1
            is_scope = re.match(r" *(class|struct|enum|union|namespace)\b.*{$", lines[head - 1])
            end = head if is_scope else end_of_declaration(lines, head - 1)
            inner = " /** " + " ".join(part.strip(" /") for part in comment) + " */ "
            declaration = [line.replace("{ public: ", "{ public:" + inner) for line in lines[number:end]]
            out += comment + with_remarks(declaration)
            number = end
            if is_scope:
                comment = []
    return "\n".join(out)


def words_of_heading(heading):
    """Returns the anchor that forges give a heading."""
    return re.sub(r"[^\w -]", "", heading.lower()).strip().replace(" ", "-")


def anchor(document, words):
    """Returns the anchor of a heading in the site."""
    return f"{pathlib.Path(document).stem.lower()}-{words}"


def name_in_site(path):
    """Returns the path of a document in the site, where only one can be called README.md."""
    return re.sub(r"(\w+)/README\.md", r"\1/\1.md", str(path))


def markdown(text, name):
    out, is_code = [], False
    for line in text.split("\n"):
        is_code ^= line.startswith("```")
        heading = re.match(r"(##+) (.*)", line)
        if heading and not is_code:
            line += f" {{#{anchor(name, words_of_heading(heading[2]))}}}"
        elif not is_code:
            line = name_in_site(line)
            line = re.sub(r"\]\(([\w./]*)#([\w-]+)\)", lambda m: f"](#{anchor(m[1] or name, m[2])})", line)
        out.append(line)
    return "\n".join(out)


def main():
    if len(sys.argv) < 3:
        sys.exit(__doc__)
    folder = pathlib.Path(sys.argv[1])
    shutil.rmtree(folder, ignore_errors=True)
    for path in map(pathlib.Path, sys.argv[2:]):
        for source in sorted(path.rglob("*")) if path.is_dir() else [path]:
            if source.suffix == ".h" and "support" not in source.parts and not source.name.endswith("_rows.h"):
                text = header(source.read_text())
            elif source.suffix == ".md":
                text = markdown(source.read_text(), source.name)
            elif source.suffix == ".svg":  # without a size of its own, a picture takes the width of the page
                text = re.sub(r' width="[0-9]+" height="[0-9]+" viewBox', " viewBox", source.read_text(), count=1)
            else:
                continue
            if text is not None:
                target = folder / name_in_site(source)
                target.parent.mkdir(parents=True, exist_ok=True)
                target.write_text(text)


if __name__ == "__main__":
    main()
