"""Finds the small faults that can be made in a C++ source: one Change each."""

import dataclasses
import re

# What becomes of an operator. Spaces on both sides tell a comparison from a template's brackets.
SWAPS = {
    " == ": [" != "],
    " != ": [" == "],
    " < ": [" <= ", " >= "],
    " <= ": [" < ", " > "],
    " > ": [" >= ", " <= "],
    " >= ": [" > ", " < "],
    " && ": [" || "],
    " || ": [" && "],
    " + ": [" - "],
    " - ": [" + "],
    "true": ["false"],
    "false": ["true"],
}
OPERATOR = re.compile(r" (?:==|!=|<=|>=|<|>|&&|\|\||\+|-) (?=\S)|\b(?:true|false)\b")
NOT = re.compile(r"!(?=[\w(*])")
NUMBER = re.compile(r"(?<![\w.'])(?:0x[0-9A-Fa-f]+|[0-9][0-9']*)(?:[uUlL]*)(?![\w.'])")
HIDDEN = re.compile(r"//[^\n]*|^[ \t]*#[^\n]*|\"(?:\\.|[^\"\\\n])*\"|(?<!\d)'(?:\\.|[^'\\\n])'", re.MULTILINE)
CONDITION = re.compile(r"\b(?:if|while) \(")
CALL = re.compile(r"(?<=[;{}\n])[ \t]*\n([ \t]+)((?:[A-Za-z_]\w*(?:::|\.|->))*[A-Za-z_]\w*\()")
COMPARED = re.compile(r" (?:==|!=|<=|>=|<|>) |^\(!")
JOINED = re.compile(r" (?:&&|\|\|) ")
FUNCTION = re.compile(r"^[A-Za-z].*?([\w:~]+)\(", re.MULTILINE)
KEYWORDS = {"if", "while", "for", "switch", "return", "catch", "sizeof"}


@dataclasses.dataclass(frozen=True)
class Change:
    """One fault in one place of a file."""

    path: str
    line: int
    source: str  # the whole file with the fault
    function: str
    was: str  # the source line, with single blanks
    becomes: str

    def key(self):
        """What names it although the lines around it come and go."""
        return (self.path, self.function, self.was, self.becomes)

    def __str__(self):
        return f"{self.path}:{self.line}: {self.was}  ->  {self.becomes}"


def masked(source):
    """The source with comments, directives and literals of text blanked, at the same places."""
    return HIDDEN.sub(lambda match: re.sub(r"[^\n]", " ", match.group()), source)


def closing(code, opened):
    """The place behind the bracket that closes the one at `opened`."""
    depth = 0
    for place in range(opened, len(code)):
        depth += (code[place] in "([{") - (code[place] in ")]}")
        if depth == 0:
            return place + 1
    raise ValueError(f"unbalanced bracket at {opened}")


def numbers_near(literal):
    """The literal's neighbours; 0 and 1 become each other as well as 2."""
    digits = re.match(r"0x[0-9A-Fa-f]+|[0-9']+", literal).group()
    suffix = literal[len(digits):]
    value = int(digits.replace("'", ""), 16 if digits.startswith("0x") else 10)
    return [f"{near}{suffix}" for near in (value + 1, value - 1) if near >= 0]


def edits(source, code):
    """Every (begin, end, text) that is one fault; `code` is the source, masked."""
    for match in OPERATOR.finditer(code):
        if '"' in source[match.start() - 1] + source[match.end()]:
            continue  # texts are joined, not added
        for text in SWAPS[match.group()]:
            yield match.start(), match.end(), text
    for match in NOT.finditer(code):
        yield match.start(), match.end(), ""
    for match in NUMBER.finditer(code):
        for text in numbers_near(match.group()):
            yield match.start(), match.end(), text
    for match in CONDITION.finditer(code):
        opened = match.end() - 1
        end = closing(code, opened)
        condition = source[opened:end]
        # A single comparison is turned round by its operator already.
        if JOINED.search(condition) or not COMPARED.search(condition):
            yield opened, end, f"(!{condition})"
    for match in CALL.finditer(code):
        name = match.group(2)[:-1]
        end = closing(code, match.end() - 1)
        if name not in KEYWORDS and code[end:end + 1] == ";":
            yield match.start(2), end, ""


def one_line(text):
    return " ".join(text.split())


def function_at(code, place):
    """The name of the function around `place`; empty outside of functions."""
    begun = list(FUNCTION.finditer(code, 0, place))
    ended = code.rfind("\n}", 0, place)
    return begun[-1].group(1) if begun and begun[-1].start() > ended else ""


def changes_of(path, source):
    """All changes of one file, in their order."""
    code = masked(source)
    found = []
    for begin, end, text in sorted(edits(source, code)):
        first = source.rfind("\n", 0, begin) + 1
        last = source.find("\n", end)
        changed = source[first:begin] + text + source[end:last]
        found.append(Change(path, source.count("\n", 0, begin) + 1, source[:begin] + text + source[end:],
                            function_at(code, begin), one_line(source[first:last]), one_line(changed)))
    return found
