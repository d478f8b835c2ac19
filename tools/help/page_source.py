"""Reads the source of a help page: plain text with a few marks.

    title: Axial Play           under: What clearance does to a bearing
    case play = play K19013XP0E             a run of norlaplan-cli, by name
    holds play.playAtLow < play.playAtHigh  what the page claims of its cases

    = Heading
    A paragraph. It runs on until an empty line or a line with a mark, as
    do the other texts.
    - bullet        + numbered step     > note in a frame
    ~ formula       . small print
    |# 2 3 5        a table: the columns' shares (# when the first holds codes)
    | head | head
    | cell | cell

Inside a text, *words* are bold, [words] are a caption of the program, "words"
are a text of the program, and {play.playAtLow ; 0.0000} is a number of a case
in a picture of the program; without a picture the case's own text.
"""

import re
from dataclasses import dataclass, field

MARKS = {"= ": "heading", "- ": "bullet", "+ ": "step", "> ": "note",
         "~ ": "formula", ". ": "small"}
LISTS = ("bullet", "step", "formula")
NUMBER = re.compile(r"\{([^{}]+)\}")
CAPTION = re.compile(r"\[([^\]]+)\]")
QUOTED = re.compile(r'"([^"]+)"')


@dataclass
class Block:
    kind: str
    texts: list
    shares: list = field(default_factory=list)
    coded: bool = False


@dataclass
class Page:
    name: str
    title: str = ""
    under: str = ""
    cases: dict = field(default_factory=dict)
    claims: list = field(default_factory=list)
    blocks: list = field(default_factory=list)

    def texts(self):
        """Every text of the page, cells included, in order."""
        yield self.title
        yield self.under
        for block in self.blocks:
            for text in block.texts:
                if isinstance(text, list):
                    yield from text
                else:
                    yield text

    def numbers(self):
        """The marks of all numbers, as they stand between the braces."""
        return [mark for text in self.texts() for mark in NUMBER.findall(text)]


def read_page(path):
    page = Page(path.stem)
    open_block = None
    for number, line in enumerate(path.read_text("utf-8").splitlines(), 1):
        try:
            open_block = take(page, line, open_block)
        except ValueError as error:
            raise ValueError(f"{path.name}, line {number}: {error}") from error
    if not page.title or not page.under:
        raise ValueError(f"{path.name}: no title or no line under it")
    return page


def take(page, line, open_block):
    """Takes a line; gives the block that the next line may go on with."""
    if not line.strip():
        return None
    if open_block is None and take_head(page, line):
        return None
    if line.startswith("|"):
        return take_row(page, line, open_block)
    kind = MARKS.get(line[:2])
    if kind is None and open_block is not None:
        if open_block.kind == "table":
            raise ValueError("a table is followed by an empty line")
        open_block.texts[-1] += " " + line.strip()
        return open_block
    text = line[2:].strip() if kind else line.strip()
    kind = kind or "paragraph"
    if kind in LISTS and open_block is not None and open_block.kind == kind:
        open_block.texts.append(text)
        return open_block
    page.blocks.append(Block(kind, [text]))
    return None if kind == "heading" else page.blocks[-1]


def take_head(page, line):
    word, _, rest = line.partition(" ")
    if word in ("title:", "under:"):
        setattr(page, word[:-1], rest.strip())
    elif word == "case":
        name, _, words = rest.partition("=")
        page.cases[name.strip()] = words.strip()
    elif word == "holds":
        page.claims.append(rest.strip())
    else:
        return False
    return True


def take_row(page, line, open_block):
    if line[1] in ":#":
        shares = [int(share) for share in line[2:].split()]
        page.blocks.append(Block("table", [], shares, line[1] == "#"))
        return page.blocks[-1]
    if open_block is None or open_block.kind != "table":
        raise ValueError("a row without the shares of its columns")
    cells = [cell.strip() for cell in line[1:].split("|")]
    if len(cells) != len(open_block.shares):
        raise ValueError(f"{len(cells)} cells for {len(open_block.shares)}")
    open_block.texts.append(cells)
    return open_block


def pieces(text):
    """The text in turn as words and as the mark of a number."""
    for number, piece in enumerate(NUMBER.split(text)):
        yield number % 2 == 1, piece


def plain(text, value_of):
    """The text as a reader sees it; `value_of` gives the text of a number."""
    return "".join(value_of(piece) if is_number else
                   CAPTION.sub(r"\1", piece).replace("*", "")
                   for is_number, piece in pieces(text))


def words_of(text):
    """The text without its numbers."""
    return " ".join(piece for is_number, piece in pieces(text)
                    if not is_number)


def marked(text, value_of):
    """The text with *bold* words as its only marks."""
    return "".join(value_of(piece) if is_number else
                   CAPTION.sub(r"*\1*", piece)
                   for is_number, piece in pieces(text))
