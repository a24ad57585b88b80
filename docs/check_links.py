#!/usr/bin/env python3
"""Follows every link of the documents, as a forge shows them, and of the pages that doxygen made of them.

usage: check_links.py PAGE_DIRECTORY DOCUMENT...

Fails on a link to a file, a heading or an anchor that does not exist. Links to other hosts are not followed.
"""

import html.parser
import pathlib
import re
import sys
import urllib.parse

from for_doxygen import words_of_heading


class Page(html.parser.HTMLParser):
    """The anchors of a page, and its links with their lines."""

    def __init__(self, path):
        super().__init__()
        self.anchors, self.links = set(), []
        self.feed(path.read_text())

    def handle_starttag(self, tag, attributes):
        for name, value in attributes:
            if name in ("id", "name"):
                self.anchors.add(value)
            elif name in ("href", "src", "data") and value:
                self.links.append((self.getpos()[0], value))


class Document:
    """The headings of a Markdown document by their anchors, and its links with their lines."""

    def __init__(self, path):
        self.anchors, self.links, is_code = set(), [], False
        for number, line in enumerate(path.read_text().splitlines(), 1):
            is_code ^= line.lstrip().startswith("```")
            if not is_code and line.startswith("#"):
                self.anchors.add(words_of_heading(line.lstrip("# ")))
            elif not is_code and not line.startswith("    "):
                found = re.findall(r"\]\(([^)\s]+)\)", re.sub(r"`[^`]*`", "", line))
                self.links += [(number, target) for target in found]


def broken_links(paths, read):
    """Yields a message for each link that leads nowhere."""
    known = {path.resolve(): read(path) for path in paths}
    for path, document in known.items():
        for number, link in document.links:
            address = urllib.parse.urlsplit(link)
            if address.scheme or address.netloc:
                continue
            target = (path.parent / urllib.parse.unquote(address.path)).resolve() if address.path else path
            anchor = urllib.parse.unquote(address.fragment)
            if not target.exists():
                yield f"{path}:{number}: no file {link}"
            elif anchor and target in known and anchor not in known[target].anchors:
                yield f"{path}:{number}: no anchor {link}"


def main():
    if len(sys.argv) < 3:
        sys.exit(__doc__)
    pages = sorted(pathlib.Path(sys.argv[1]).glob("**/*.html"))
    problems = list(broken_links(map(pathlib.Path, sys.argv[2:]), Document)) + list(broken_links(pages, Page))
    print("\n".join(problems) or f"{len(pages)} pages, {len(sys.argv) - 2} documents: every link leads somewhere")
    sys.exit(1 if problems or not pages else 0)


if __name__ == "__main__":
    main()
