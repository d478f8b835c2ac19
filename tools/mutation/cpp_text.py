"""Just enough of C++ to change it: tokens, brackets that belong together, and the bodies of functions."""

import re
from dataclasses import dataclass

TOKEN = re.compile(
    r"""(?P<space>\s+)
      | (?P<comment>//[^\n]*|/\*.*?\*/)
      | (?P<directive>\#(?:[^\n\\]|\\.|\\\n)*)
      | (?P<text>(?:u8|L)?R"(?P<mark>[^()\s"]*)\(.*?\)(?P=mark)"|(?:u8|L|u)?"(?:[^"\\\n]|\\.)*")
      | (?P<char>'(?:[^'\\\n]|\\.)+')
      | (?P<number>\.?\d(?:[eE][+-]|[\w.'])*)
      | (?P<name>[A-Za-z_]\w*)
      | (?P<sign>::|->\*?|<=>|<<=|>>=|\.\.\.|\+\+|--|&&|\|\||[-+*/%&|^!=<>]=|<<|.)""",
    re.VERBOSE | re.DOTALL)

OPENING = {"(": ")", "[": "]", "{": "}"}


@dataclass
class Token:
    kind: str
    text: str
    start: int

    @property
    def end(self):
        return self.start + len(self.text)


class Source:
    """The tokens of a file without blanks, comments and directives, and the partner of each bracket."""

    def __init__(self, text):
        self.text = text
        self.tokens = [Token(match.lastgroup if match.lastgroup != "mark" else "text", match.group(), match.start())
                       for match in TOKEN.finditer(text)]
        self.tokens = [token for token in self.tokens if token.kind not in ("space", "comment", "directive")]
        self.partner = {}
        waiting = []
        for i, token in enumerate(self.tokens):
            if token.kind != "sign":
                continue
            if token.text in OPENING:
                waiting.append(i)
            elif token.text in OPENING.values() and waiting:
                self.partner[waiting[-1]] = i
                self.partner[i] = waiting.pop()
        self.bodies = list(self._find_bodies())

    def at(self, i):
        return self.tokens[i].text if 0 <= i < len(self.tokens) else ""

    def spaced(self, i):
        """Whether blanks stand on both sides: an operator between two values, as the format has it."""
        token = self.tokens[i]
        return self.text[token.start - 1].isspace() and self.text[token.end:token.end + 1].isspace()

    def body_at(self, offset):
        """The function body (its braces' offsets) that holds an offset, or None."""
        for first, last in self.bodies:
            if first < offset < last:
                return first, last
        return None

    def _find_bodies(self):
        i = start = 0  # start: where the present declaration begins
        while i < len(self.tokens):
            word = self.at(i)
            if word in (";", "}"):
                start = i + 1
            elif word == ":" and self.at(i - 1) in ("public", "private", "protected"):
                start = i + 1
            elif word in ("(", "["):
                i = self.partner.get(i, i)
            elif word == "{":
                i, start = self._brace(i, start)
                if isinstance(start, tuple):
                    yield start[:2]
                    start = start[2]
            i += 1

    def _brace(self, i, start):
        """What a brace outside of any function opens: where to go on, and where the next declaration begins
        (with the body's offsets before it, if it was one that can be changed while the program runs)."""
        head = [token.text for token in self.tokens[start:i]]
        last = self.partner.get(i, len(self.tokens) - 1)
        if "namespace" in head[:2] or (head[:1] and head[0] in ("class", "struct", "union") and "(" not in head):
            return i, i + 1
        is_function = "(" in head and "=" not in head and "enum" not in head
        if is_function and self.tokens[i - 1].kind == "name" and ":" in head and self.at(i - 1) not in (
                "const", "noexcept", "override"):
            return last, start  # a member's initial value in front of a constructor's body
        if is_function and not {"constexpr", "consteval"} & set(head):
            return last, (self.tokens[i].start, self.tokens[last].end, last + 1)
        return last, (last + 1 if is_function else start)
