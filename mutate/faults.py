"""Draws small faults in C++ sources: one change on one line each, as a slip of the hand would make it."""

import dataclasses
import hashlib
import re

TOKEN = re.compile(r"""
    (?P<comment>//[^\n]*|/\*.*?\*/)
  | (?P<directive>^[ \t]*\#(?:[^\n\\]|\\.|\\\n)*)
  | (?P<text>(?:u8|[uUL])?R"\((?:.|\n)*?\)"|"(?:[^"\\\n]|\\.)*")
  | (?P<character>'(?:[^'\\\n]|\\.)+')
  | (?P<number>(?:0[xX][0-9a-fA-F']+|\.?\d(?:[eE][+-]|[\w.]|'(?=\w))*))
  | (?P<word>[A-Za-z_]\w*)
  | (?P<operator><=>|<<=|>>=|\.\.\.|->|::|\+\+|--|&&|\|\||[-+*/%&|^=!<>]=|<<|>>|[-+*/%&|^=!<>~?:;,.(){}\[\]])
""", re.X | re.M | re.S)

OTHER = {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "==", "&&": "||", "||": "&&",
         "+": "-", "-": "+", "*": "/", "/": "*", "%": "/", "+=": "-=", "-=": "+=", "&": "|", "|": "&",
         "true": "false", "false": "true"}
ALSO_UNARY = {"+", "-", "*", "&", "&&"}  # of two operands only between blanks
DECLARES = {"static_assert", "using", "template", "friend", "typedef", "namespace", "enum", "concept", "requires",
            "operator", "extern", "noexcept", "alignas"}
# Tables, where names and formats are facts too.
TABLES = re.compile(r"(_rows|_facts|transfers|words|commands|label_choices)\.h$")


@dataclasses.dataclass(frozen=True)
class Token:
    kind: str
    text: str
    at: int

    @property
    def end(self):
        return self.at + len(self.text)


@dataclasses.dataclass(frozen=True)
class Fault:
    room: str
    file: str
    line: int
    kind: str
    old: str  # the line or lines as they stand
    new: str
    nth: int  # of the lines of the file that are the same

    @property
    def key(self):
        told = f"{self.file}\0{self.nth}\0{self.old}\0{self.new}"
        return hashlib.sha256(told.encode()).hexdigest()[:12]

    def planted_in(self, source):
        lines = source.split("\n")
        height = self.old.count("\n") + 1
        assert "\n".join(lines[self.line - 1:self.line - 1 + height]) == self.old, f"{self.file} has changed"
        lines[self.line - 1:self.line - 1 + height] = self.new.split("\n")
        return "\n".join(lines)

    def __str__(self):
        mark = lambda sign, text: "".join(f"{sign}{line}\n" for line in text.split("\n"))
        return f"{self.file}:{self.line} ({self.kind})\n{mark('-', self.old)}{mark('+', self.new)}"


def tokens_of(source):
    found = [Token(match.lastgroup, match[0], match.start()) for match in TOKEN.finditer(source)]
    return [token for token in found if token.kind not in ("comment", "directive")]


def closing(tokens, start):
    """Returns the index of the bracket that closes the one at `start`, or None."""
    depth = 0
    for index in range(start, len(tokens)):
        if tokens[index].kind == "operator":
            depth += (tokens[index].text in "([{") - (tokens[index].text in ")]}")
            if depth == 0:
                return index
    return None


def left_alone(tokens):
    """Returns the indices of tokens that only the compiler reads: declarations of names, assertions, attributes."""
    alone = set()
    for index, token in enumerate(tokens):
        if token.text in DECLARES:
            end = index
            while end < len(tokens) and tokens[end].text not in (";", "{"):
                end += 1
            alone.update(range(index, end))
        elif token.text == "[" and index + 1 < len(tokens) and tokens[index + 1].text == "[":
            alone.update(range(index, (closing(tokens, index) or index) + 1))
    return alone


def is_declared(words):
    """True if two names follow each other, as in a parameter or a definition of a variable."""
    if words[-1].text in ("*", "&", "&&"):
        return True
    return any(second.kind == "word" and (first.kind == "word" or first.text in ("&", "*", "&&", ">"))
               for first, second in zip(words, words[1:]) if first.text not in ("return", "new", "sizeof"))


def number_changes(text, in_table):
    """Off by one; in a table, another digit."""
    if re.fullmatch(r"[\d']+[uUlL]*", text):
        digits = re.match(r"[\d']+", text)[0]
        value = int(digits.replace("'", ""))
        yield "off by one", f"{value + 1}{text[len(digits):]}"
        if value > 0:
            yield "off by one", f"{value - 1}{text[len(digits):]}"
        if in_table and value > 9:
            for place in (0, len(digits) - 1):
                changed = str((int(digits[place]) + 1) % 10 or 1)
                yield "digit", digits[:place] + changed + text[place + 1:]
    elif re.fullmatch(r"\d+\.\d*", text) and text.strip("0.") != "":
        last = max(place for place, digit in enumerate(text) if digit.isdigit() and digit != "0")
        yield "digit", text[:last] + str((int(text[last]) + 1) % 10) + text[last + 1:]


def changes(source, tokens, is_table):
    """Yields the kind, the place and the new text of each fault that can be planted."""
    alone = left_alone(tokens)
    body = [index for index in range(len(tokens)) if index not in alone]
    for index in body:
        token = tokens[index]
        before = tokens[index - 1] if index else token
        blanks = source[token.at - 1:token.at] == source[token.end:token.end + 1] == " "
        if token.text in OTHER and (blanks or token.kind == "word" or token.text not in ALSO_UNARY | {"<", ">"}):
            if not (before.text in ("=", "(", ",", "return") and token.text in ALSO_UNARY):
                yield "operator", token.at, token.end, OTHER[token.text]
        elif token.kind == "number":
            for kind, changed in number_changes(token.text, is_table):
                yield kind, token.at, token.end, changed
        elif token.kind == "text" and is_table and re.fullmatch(r'"[^\\ ]{2,}"', token.text):
            place = len(token.text) // 2
            other = "x" if token.text[place] != "x" else "y"
            yield "text in a table", token.at, token.end, token.text[:place] + other + token.text[place + 1:]
        elif token.text == "if" and tokens[index + 1].text == "(":
            end = closing(tokens, index + 1)
            if end and not any(part.text in (";", "=") for part in tokens[index:end]):
                first, last = tokens[index + 1].end, tokens[end].at
                yield "negated condition", first, last, f"!({source[first:last]})"
        elif token.text in ("(", "{") and before.kind == "word" and before.text not in ("if", "while", "for", "switch"):
            yield from swapped_arguments(source, tokens, index)
        if token.text in (";", "{", "}", ")") and index + 1 < len(tokens) and index + 1 not in alone:
            yield from dropped_statement(source, tokens, index + 1)


def swapped_arguments(source, tokens, start):
    end = closing(tokens, start)
    if end is None or any(part.text in (";", "{") for part in tokens[start + 1:end]):
        return
    if any(part.text == "enum" for part in tokens[max(0, start - 6):start]):
        return
    parts, depth, first = [], 0, start + 1
    for index in range(start + 1, end + 1):
        text = tokens[index].text
        depth += (text in "([{") - (text in ")]}") if tokens[index].kind == "operator" else 0
        if (text == "," and depth == 0) or index == end:
            if index > first:
                parts.append((tokens[first].at, tokens[index - 1].end, tokens[first:index]))
            first = index + 1
    if len(parts) < 2 or any(is_declared(words) for _, _, words in parts):
        return
    for (at, end_of_one, _), (other, end_of_other, _) in zip(parts, parts[1:]):
        one, two = source[at:end_of_one], source[other:end_of_other]
        if one != two and "\n" not in source[at:end_of_other]:
            yield "swapped arguments", at, end_of_other, two + source[end_of_one:other] + one


def dropped_statement(source, tokens, start):
    first = tokens[start]
    if first.kind != "word" and first.text not in ("++", "--", "*"):
        return
    if first.text in ("return", "if", "for", "while", "switch", "case", "default", "else", "do", "public", "private",
                      "protected", "class", "struct", "const", "constexpr", "auto", "static", "inline", "throw", "goto"):
        return
    # Only where a line begins.
    if source[source.rfind("\n", 0, first.at) + 1:first.at].strip():
        return
    end, depth = start, 0
    while end < len(tokens) and not (tokens[end].text == ";" and depth == 0):
        depth += (tokens[end].text in "([{") - (tokens[end].text in ")]}") if tokens[end].kind == "operator" else 0
        if depth < 0:
            return
        end += 1
    statement = tokens[start:end]
    if statement[-1].kind == "word" and statement[-2:-1] and statement[-2].text in (">", "=", "&", "*"):
        return
    acts = any(token.text in ("(", "=", "+=", "-=", "++", "--", "*=", "/=") for token in statement)
    if end < len(tokens) and (acts or first.text in ("break", "continue")) and not is_declared(statement[:4]):
        yield "dropped statement", first.at, tokens[end].end, "{}"


def faults_of(room, file, source):
    """Returns all faults that can be planted in a file, in order."""
    is_table = bool(TABLES.search(file))
    found = []
    for kind, start, end, new in changes(source, tokens_of(source), is_table):
        first = source.rfind("\n", 0, start) + 1
        last = source.find("\n", end)
        old = source[first:last]
        changed = old[:start - first] + new + old[end - first:]
        nth = source.count(f"\n{old}\n", 0, first)
        found.append(Fault(room, file, source.count("\n", 0, first) + 1, kind, old, changed, nth))
    return sorted(set(found), key=lambda fault: (fault.line, fault.kind, fault.new))


def rank(*parts):
    """Returns a number from 0 to 1 by the parts alone, so that an edit elsewhere does not change what is drawn."""
    return int(hashlib.sha256("\0".join(map(str, parts)).encode()).hexdigest()[:13], 16) / 16**13


def draw(sources, count, seed):
    """Draws faults over the rooms by the number of their lines that can be faulty, one fault a line.

    `sources` maps the room and the name of each file to its text.
    """
    rooms = {}
    for (room, file), source in sources.items():
        for fault in faults_of(room, file, source):
            rooms.setdefault(room, {}).setdefault((file, fault.old, fault.nth), []).append(fault)
    total = sum(map(len, rooms.values()))
    drawn = []
    for room, lines in sorted(rooms.items()):
        share = max(2, round(count * len(lines) / total))
        order = lambda line: rank(seed, *line) / (2 if TABLES.search(line[0]) else 1)
        for line in sorted(lines, key=order)[:share]:
            drawn.append(min(lines[line], key=lambda fault: weight(fault, seed)))
    return drawn


def weight(fault, seed):
    """Orders the faults of a line: another figure in a table first; swapped arguments seldom, since most do not compile."""
    of_kind = rank(seed, fault.file, fault.old, fault.kind)
    if TABLES.search(fault.file) and fault.kind in ("digit", "text in a table"):
        of_kind -= 1
    elif fault.kind == "swapped arguments":
        of_kind += 0.5
    return of_kind, rank(seed, fault.key)
