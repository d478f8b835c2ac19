"""The help pages, made of their sources in `pages`.

The numbers of worked examples are kept in `pages/numbers.json`, so that the
pages can be made without the program; `--cli` calculates them anew.
"""

import json
from pathlib import Path

from examples import Cases
from page_source import marked, read_page
from rtf_pieces import (WIDTH, bullets, document, formulas, heading, note,
                        paragraph, small, steps, table, title)

FOLDER = Path(__file__).resolve().parent / "pages"
KEPT = FOLDER / "numbers.json"
MAKERS = {"paragraph": paragraph, "heading": heading, "note": note,
          "small": small, "bullet": bullets, "step": steps,
          "formula": formulas}


def pages():
    """Every page by the name of its document."""
    return {f"{path.stem}.RTF": read_page(path)
            for path in sorted(FOLDER.glob("*.txt"))}


def calculate(cli):
    """Calculates every number of every page and keeps it."""
    kept = {}
    for name, page in pages().items():
        cases = Cases(cli, page.cases)
        found = {mark: cases.text(mark) for mark in page.numbers()}
        if found:
            kept[name] = found
    KEPT.write_text(json.dumps(kept, indent=1, ensure_ascii=False) + "\n",
                    "utf-8")


def kept_numbers():
    return json.loads(KEPT.read_text("utf-8"))


def widths_of(shares):
    """Widths in twips that fill the line."""
    widths = [WIDTH * share // sum(shares) for share in shares]
    widths[-1] += WIDTH - sum(widths)
    return widths


def rtf_of(page, numbers):
    def text(source):
        return marked(source, numbers.__getitem__)

    parts = [title(page.title, page.under)]
    for block in page.blocks:
        if block.kind == "table":
            head, *rows = [[text(cell) for cell in row] for row in block.texts]
            parts.append(table(widths_of(block.shares), head, rows,
                               block.coded))
        else:
            parts.append(MAKERS[block.kind](*map(text, block.texts)))
    return document(page.title, *parts)


def documents():
    kept = kept_numbers()
    return {name: rtf_of(page, kept.get(name, {}))
            for name, page in pages().items()}
