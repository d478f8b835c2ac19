"""One mistake, and the list of those that change nothing anyone could see."""

from dataclasses import dataclass


@dataclass(frozen=True)
class Mutant:
    path: str
    kind: str
    start: int
    end: int
    replacement: str
    text: str  # the whole file as it is
    body: tuple  # the offsets of the function body around it, or None

    @property
    def line(self):
        return self.text.count("\n", 0, self.start) + 1

    def mutated(self):
        return self.text[:self.start] + self.replacement + self.text[self.end:]

    def lines(self):
        """The lines that change, before and after, without their indent."""
        first = self.text.rfind("\n", 0, self.start) + 1
        last = self.text.find("\n", self.end)
        last = len(self.text) if last < 0 else last
        before = self.text[first:last]
        after = self.text[first:self.start] + self.replacement + self.text[self.end:last]
        return tuple(tuple(line.strip() for line in side.splitlines() if line.strip()) for side in (before, after))

    def difference(self):
        before, after = self.lines()
        return "\n".join([f"- {line}" for line in before] + [f"+ {line}" for line in after])

    def key(self):
        return f"{self.path}:{self.line}:{self.start}\n{self.difference()}"


def read_equivalent(path):
    """Reasons by (file, lines before, lines after). The list's entries are a file, the lines that go (-) and come (+),
    and the reason, with an empty line between entries."""
    reasons = {}
    if not path.exists():
        return reasons
    for entry in path.read_text(encoding="utf-8").split("\n\n"):
        lines = [line for line in entry.splitlines() if line.strip() and not line.startswith("#")]
        if lines:
            before = tuple(line[1:].strip() for line in lines[1:] if line.startswith("-"))
            after = tuple(line[1:].strip() for line in lines[1:] if line.startswith("+"))
            reasons[(lines[0].strip(), before, after)] = " ".join(
                line.strip() for line in lines[1:] if line[0] not in "+-")
    return reasons


def reason(equivalent, mutant):
    before, after = mutant.lines()
    return equivalent.get((mutant.path, before, after))
