"""Finds the small changes to C++ code that tools/mutate.py tries out: one operator, constant, condition
or call at a time. It reads words and signs, not the language: binary operators are told from the marks of
types by the blanks that clang-format leaves around them."""

import dataclasses
import itertools
import random
import re
from collections.abc import Iterable, Mapping

# Tables in which a change is a matter of taste (where a control stands) or of the language (a text).
TABLE_FILES = ("src/settings/cDefaultStrings.cpp", "src/base/TextIds.h")
TABLE_TYPES = {"ControlDesign", "FormDesign", "MenuDesign", "Point"}

# Between blanks on both sides.
BINARY = {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "==", "+": "-", "-": "+",
          "*": "/", "/": "*", "%": "*", "+=": "-=", "-=": "+=", "*=": "/=", "/=": "*=", "<<": ">>",
          ">>": "<<", "&": "|", "|": "&", "&&": "||", "||": "&&", "|=": "&=", "&=": "|="}
ANYWHERE = {"++": "--", "--": "++"}
WORDS = {"true": "false", "false": "true"}

TOKEN = re.compile(r"""
    (?P<blank>\s+|//[^\n]*|/\*.*?\*/)
  | (?P<text>(?:u8|[LuU])?R"(?P<mark>[^(]*)\(.*?\)(?P=mark)"
            |(?:u8|[LuU])?"(?:\\.|[^"\\\n])*"
            |'(?:\\.|[^'\\\n])+')
  | (?P<number>\.?\d(?:[eE][+-]|'\w|[\w.])*)
  | (?P<word>[A-Za-z_]\w*)
  | (?P<sign><=>|<<=|>>=|->|\+\+|--|<<|>>|<=|>=|==|!=|&&|\|\||[-+*/%&|^]=|::|\.\.\.|.)
""", re.X | re.S)
NUMBER = re.compile(r"(0[xX][0-9a-fA-F']+|[0-9']+)(.*)", re.S)

NO_CALL = {"return", "if", "else", "for", "while", "do", "switch", "case", "default", "throw", "delete",
           "new", "using", "goto", "break", "continue", "static_assert", "assert", "static_cast",
           "const_cast", "reinterpret_cast", "dynamic_cast", "co_return", "sizeof", "operator"}
BEFORE_A_BODY = {")", "const", "noexcept", "override", "final", "mutable"}


@dataclasses.dataclass(frozen=True)
class Token:
    kind: str  # text, number, word or sign
    text: str
    start: int
    end: int


@dataclasses.dataclass(frozen=True)
class Change:
    """`was` at this place of the file becomes `now`; `text` is the line, so that it can be found again."""
    file: str
    start: int
    line: int
    column: int
    was: str
    now: str
    text: str

    def applied_to(self, source: str) -> str:
        assert source.startswith(self.was, self.start)
        return source[:self.start] + self.now + source[self.start + len(self.was):]

    def told(self) -> str:
        was, now = (" ".join(part.split()) for part in (self.was, self.now))
        return f"{self.file}:{self.line}: {was} -> {now or '(nothing)'}   in: {self.text}"


def without_directives(source: str) -> str:
    """Lines for the preprocessor become blanks, and so does what lies behind an #else."""
    lines, other_branch, goes_on = [], False, False
    for line in source.split("\n"):
        directive = re.match(r"\s*#\s*(\w+)", line)
        if directive and directive[1] in ("else", "elif", "endif"):
            other_branch = directive[1] != "endif"
        hidden = directive or goes_on or other_branch
        goes_on = bool(directive or goes_on) and line.endswith("\\")
        lines.append(" " * len(line) if hidden else line)
    return "\n".join(lines)


def tokens_of(source: str) -> list[Token]:
    return [Token(found.lastgroup if found.lastgroup != "mark" else "text", found.group(), found.start(), found.end())
            for found in TOKEN.finditer(without_directives(source)) if found["blank"] is None]


def next_number(text: str) -> str:
    """0 -> 1, 0x0F -> 0x10, 2.5f -> 3.5f, 10u -> 11u."""
    whole, rest = NUMBER.fullmatch(text if text[0] != "." else "0" + text).groups()
    digits = whole.replace("'", "")
    if digits[:2].lower() == "0x":
        return f"0x{int(digits, 16) + 1:0{len(digits) - 2}X}{rest}"
    return f"{int(digits) + 1}{rest}"


def pairs_of(tokens: list[Token]) -> dict[int, int]:
    """Where each (, [ and { ends, and where each ), ] and } begins."""
    found: dict[int, int] = {}
    waiting: list[int] = []
    for at, token in enumerate(tokens):
        if token.kind != "sign":
            continue
        if token.text in "([{":
            waiting.append(at)
        elif token.text in ")]}" and waiting:
            found[at] = waiting.pop()
            found[found[at]] = at
    return found


@dataclasses.dataclass
class Scope:
    kind: str           # "code", "values" (an initialiser) or "names" (a namespace or a type)
    head: int           # where the statement or declaration begins that is being read
    returns_bool: bool = False
    is_table: bool = False


class Reader:
    """Walks over the tokens of a file and notes the changes."""

    def __init__(self, file: str, source: str) -> None:
        self.file, self.source = file, source
        self.tokens = tokens_of(source)
        self.pairs = pairs_of(self.tokens)
        self.scopes = [Scope("names", 0)]
        self.found: list[Change] = []
        self.has_design = any(token.text in TABLE_TYPES for token in self.tokens)

    def changes(self) -> list[Change]:
        at = 0
        while at < len(self.tokens):
            token = self.tokens[at]
            if token.text == "static_assert":
                at = self.pairs[at + 1]
            elif token.text == "{" and token.kind == "sign":
                self.open_scope(at)
            elif token.text == "}" and token.kind == "sign":
                closed = self.scopes.pop()
                if closed.kind != "values":
                    self.scopes[-1].head = at + 1
            elif not (self.scopes[-1].is_table or self.is_measure()):
                self.look_at(at)
            if token.text == ";" and not self.in_parentheses(at):
                self.scopes[-1].head = at + 1
            at += 1
        return self.found

    def text(self, at: int) -> str:
        return self.tokens[at].text if 0 <= at < len(self.tokens) else ""

    def in_parentheses(self, at: int) -> bool:
        """Of the statement that is being read: the two parts of "for (;;)"."""
        return any(self.text(i) == "(" and self.pairs.get(i, 0) > at for i in range(self.scopes[-1].head, at))

    def is_measure(self) -> bool:
        """constexpr Twips kEdge = 120; in a file with a design belongs to the design."""
        head = self.scopes[-1].head
        return self.has_design and self.text(head) == "constexpr" and self.text(head + 1) == "Twips"

    def open_scope(self, at: int) -> None:
        outer = self.scopes[-1]
        head = [token.text for token in self.tokens[outer.head:at]]
        if "template" in head[:1]:
            head = head[head.index(">") + 1:] if ">" in head else head
        before = self.text(at - 1)
        owner = self.text(self.pairs.get(at - 1, 0) - 1) if before == ")" else ""
        arrow = "->" in head and ")" in head and before != ")" and head[-1] != "="
        scope = Scope("values", at + 1, outer.returns_bool)
        if owner == "]" or before == "]":
            scope.kind, scope.returns_bool = "code", False  # a lambda that does not say what it returns
        elif outer.kind == "names" and {"namespace", "class", "struct", "union", "enum"} & set(head) and (
                ")" not in head):
            scope.kind = "names"
        elif outer.kind == "code" and (before in ";{}:)" or before in ("else", "do", "try", "mutable")):
            scope.kind = "code"
        elif outer.kind == "code" and {"class", "struct", "union", "enum"} & set(head[:1]):
            scope.kind = "names"
        elif arrow and "]" in head:
            scope.kind, scope.returns_bool = "code", head[-2:] == ["->", "bool"]
        elif outer.kind == "names" and ")" in head and (before in BEFORE_A_BODY or before == "}" or arrow):
            scope.kind, scope.returns_bool = "code", self.returns_bool(head)
        scope.is_table = outer.is_table or (scope.kind == "values" and bool(TABLE_TYPES & set(head)))
        self.scopes.append(scope)

    @staticmethod
    def returns_bool(head: list[str]) -> bool:
        words = [word for word in head if word not in (
            "static", "inline", "constexpr", "virtual", "explicit", "[", "]", "nodiscard", "public",
            "private", "protected", ":", "friend")]
        return words[:1] == ["bool"] or words[:2] == ["operator", "bool"]

    def note(self, start: int, was: str, now: str) -> None:
        line_start = self.source.rfind("\n", 0, start) + 1
        text = self.source[line_start:].split("\n", 1)[0].strip()
        self.found.append(Change(self.file, start, self.source.count("\n", 0, start) + 1,
                                 start - line_start + 1, was, now, text))

    def note_range(self, first: int, last: int, now: str) -> None:
        """The tokens from first to last, both included."""
        start, end = self.tokens[first].start, self.tokens[last].end
        self.note(start, self.source[start:end], now)

    def is_binary(self, token: Token) -> bool:
        return token.text in BINARY and self.source[token.start - 1].isspace() and (
            self.source[token.end:token.end + 1].isspace())

    def look_at(self, at: int) -> None:
        token = self.tokens[at]
        before = self.text(at - 1)
        if token.kind == "text" or before == "operator":
            return
        if token.kind == "number":
            pure = before == "=" and self.text(at - 2) in BEFORE_A_BODY
            if not pure:
                self.note(token.start, token.text, next_number(token.text))
        elif token.text in WORDS:
            self.note(token.start, token.text, WORDS[token.text])
        elif self.is_binary(token):
            self.note(token.start, token.text, BINARY[token.text])
        elif token.text in ANYWHERE:
            self.note(token.start, token.text, ANYWHERE[token.text])
        elif token.text == "!":
            self.note(token.start, token.text, "")
        elif token.text in ("if", "while") and self.text(at + 1) == "(":
            self.look_at_condition(at)
        elif token.text == "return" and self.scopes[-1].returns_bool:
            self.look_at_return(at)
        elif token.kind == "word" and self.scopes[-1].kind == "code":
            self.look_at_call(at)

    def look_at_condition(self, at: int) -> None:
        """if (CONDITION) or if (DECLARATION; CONDITION), but not if (DECLARATION)."""
        first, last = at + 2, self.pairs[at + 1] - 1
        for i in range(first, last):
            if self.text(i) == ";":
                first = i + 1
        if first > last or any(self.text(i) == "=" for i in range(first, last)):
            return
        self.note_range(first, last, "false")
        if self.text(at) == "if":
            self.note_range(first, last, "true")

    def look_at_return(self, at: int) -> None:
        end = self.end_of_statement(at)
        if end > at + 1 and self.text(at + 1) not in WORDS:
            start, stop = self.tokens[at + 1].start, self.tokens[end - 1].end
            was = self.source[start:stop]
            self.note(start, was, f"!({was})")

    def end_of_statement(self, at: int) -> int:
        while at < len(self.tokens) and self.text(at) != ";":
            at = self.pairs[at] if self.text(at) in ("(", "[", "{") else at
            at += 1
        return at

    def look_at_call(self, at: int) -> None:
        """A statement that is one call, such as list.Add(row); or Form().Show();"""
        before = self.text(at - 1)
        control = before == ")" and self.text(self.pairs.get(at - 1, 0) - 1) in ("if", "for", "while")
        if self.text(at) in NO_CALL or not (before in (";", "{", "}", "else") or control):
            return
        i, last = at + 1, ""
        while self.text(i) in ("::", ".", "->", "(", "["):
            last = self.text(i)
            if last in ("(", "["):
                i = self.pairs[i] + 1
            elif i + 1 < len(self.tokens) and self.tokens[i + 1].kind == "word":
                i += 2
            else:
                return
        if last == "(" and self.text(i) == ";" and not self.in_parentheses(at):
            self.note_range(at, i - 1, "")


def changes_in(file: str, source: str) -> list[Change]:
    """All changes that can be tried in a file, in the order of its lines."""
    if file in TABLE_FILES:
        return []
    return Reader(file, source).changes()


def lines_of_code(source: str) -> int:
    return len({source.count("\n", 0, token.start) for token in tokens_of(source)})


def shares(sizes: Mapping[str, int], count: int) -> dict[str, int]:
    """Divides a count by size; the largest remainders get what is left."""
    whole = sum(sizes.values())
    exact = {name: count * size / whole for name, size in sizes.items()}
    result = {name: int(share) for name, share in exact.items()}
    by_remainder = sorted(exact, key=lambda name: (result[name] - exact[name], name))
    for name in itertools.islice(itertools.cycle(by_remainder), count - sum(result.values())):
        result[name] += 1
    return result


def in_drawn_order(changes: Iterable[Change], seed: str) -> list[Change]:
    """Shuffled, always alike for one seed; second changes of a line come after all first ones."""
    drawn = sorted(changes, key=lambda change: (change.file, change.start, change.now))
    random.Random(seed).shuffle(drawn)
    seen: set[tuple[str, int]] = set()
    first, more = [], []
    for change in drawn:
        place = (change.file, change.line)
        (more if place in seen else first).append(change)
        seen.add(place)
    return first + more
