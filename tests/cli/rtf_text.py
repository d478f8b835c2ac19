"""What a reader of a rich text document sees: its paragraphs and cells."""

import re

TOKEN = re.compile(r"\\([a-z]+)(-?\d+)? ?|\\'([0-9a-f]{2})|\\([^a-z\r\n])|([{}])|([^\\{}\r\n]+)")
#: Groups that no reader sees.
HIDDEN = {"fonttbl", "colortbl", "stylesheet", "info", "pntext", "*"}
ENDS = {"par", "cell"}
SIGNS = {"tab": "\t"}


def paragraphs(rtf):
    """The texts of paragraphs and cells in order, without the empty ones."""
    hidden, found, text, skip = [False], [], "", 0
    for word, number, byte, symbol, brace, words in TOKEN.findall(rtf):
        if brace == "{":
            hidden.append(hidden[-1])
        elif brace == "}":
            hidden.pop()
        elif word in HIDDEN or symbol in HIDDEN:
            hidden[-1] = True
        elif hidden[-1]:
            continue
        elif word in ENDS:
            found.append(text)
            text = ""
        elif word == "u":
            text += chr(int(number))
            skip = 1  # the sign for readers that know no others
        elif word:
            text += SIGNS.get(word, "")
        else:
            text += (bytes.fromhex(byte).decode("cp1252") if byte else symbol + words)[skip:]
            skip = 0
    return [one.strip() for one in found if one.strip()]
