"""The texts that the program's sources hold, as a reader of its screens meets
them: neighbouring literals joined, blanks made one, accelerators dropped."""

import re
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
LITERAL = r'(?:u8)?"((?:[^"\\\n]|\\.)*)"'
JOINED = re.compile(rf"{LITERAL}(?:\s*{LITERAL})*")


def unescaped(text):
    return re.sub(r"\\(.)", lambda sign: {"n": " ", "t": " "}.get(
        sign.group(1), sign.group(1)), text)


def tidy(text):
    return re.sub(r"\s+", " ", text).strip()


def without_comments(source):
    return re.sub(rf"({LITERAL})|//[^\n]*|/\*.*?\*/",
                  lambda found: found.group(1) or " ", source, flags=re.S)


def texts_of(source):
    """Every text of a C++ source, joined as its compiler joins them."""
    for joined in JOINED.finditer(without_comments(source)):
        parts = re.findall(LITERAL, joined.group(0))
        yield tidy(unescaped("".join(parts)))


def program_texts():
    found = set()
    for path in sorted((ROOT / "src").rglob("*")):
        if path.suffix in (".cpp", ".h"):
            found.update(texts_of(path.read_text("utf-8")))
    return found


def captions(texts):
    """The texts as captions: without the sign of the underlined letter."""
    return {tidy(text.replace("&", "")) for text in texts}
