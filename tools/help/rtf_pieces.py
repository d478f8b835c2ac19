"""The pieces of which the help documents are made: RTF as any word processor
reads it, in one look.

Lengths are twips, 1440 to the inch. Text may hold *words* between asterisks,
which are set bold.
"""

WIDTH = 9360
INDENT = 360

# A low line keeps what follows off a table.
AFTER_TABLE = "\\pard{\\f0\\fs12\\par}\r\n"

# Numbers of the colour table; 0 is the reader's own text colour.
COLOURS = {"title": (0, 40, 110), "quiet": (90, 96, 112),
           "code": (176, 24, 24), "head": (221, 228, 243),
           "stripe": (245, 247, 252), "note": (255, 247, 219),
           "line": (150, 156, 180)}
NUMBERS = {name: number for number, name in enumerate(COLOURS, start=1)}
FONTS = (r"{\f0\fswiss\fcharset0 Arial;}{\f1\froman\fcharset0 Times New Roman;}"
         r"{\f2\fmodern\fcharset0 Courier New;}"
         r"{\f3\froman\fcharset2 Symbol;}")


def escaped(text):
    """Plain text as RTF: cp1252 bytes as such, other characters by number."""
    out = []
    for character in text:
        if character in "\\{}":
            out.append("\\" + character)
        elif ord(character) < 128:
            out.append(character)
        else:
            try:
                out.append(f"\\'{character.encode('cp1252')[0]:02x}")
            except UnicodeEncodeError:
                out.append(f"\\u{ord(character)}?")
    return "".join(out)


def words(text):
    """Text with its *bold* words."""
    parts = escaped(text).split("*")
    if len(parts) % 2 == 0:
        raise ValueError(f"an asterisk without its pair: {text}")
    return "".join(f"{{\\b {part}}}" if number % 2 else part
                   for number, part in enumerate(parts))


def colour(name):
    return NUMBERS[name]


def line(layout, look, content):
    return f"\\pard{layout}{{{look} {content}}}\\par\r\n"


def title(text, under=None):
    """The document's name, with a quiet line under it."""
    made = line(r"\sa40", rf"\f0\fs40\b\cf{colour('title')}", escaped(text))
    if under is None:
        return made
    return made + line(r"\sa240", rf"\f1\fs24\i\cf{colour('quiet')}",
                       escaped(under))


def heading(text):
    return line(r"\keepn\sb300\sa100", rf"\f0\fs27\b\cf{colour('title')}",
                escaped(text))


def paragraph(text):
    return line(r"\sa140\sl264\slmult1", r"\f0\fs21", words(text))


def list_item(mark, look, text, is_last):
    """A line of a list; the last one keeps its distance from what follows."""
    after = r"\sa140" if is_last else r"\sa80"
    layout = rf"\fi-{INDENT}\li{INDENT}\tx{INDENT}{after}"
    return f"\\pard{mark}{look}{layout}{{\\f0\\fs21 {text}}}\\par\r\n"


def bullets(*texts):
    mark = r"{\pntext\f3\'b7\tab}"
    look = r"{\*\pn\pnlvlblt\pnf3\pnindent0{\pntxtb\'b7}}"
    return "".join(list_item(mark, look, words(text), number == len(texts))
                   for number, text in enumerate(texts, start=1))


def steps(*texts):
    """Numbered lines. The numbers are plain text: a word processor would
    count on from one list to the next."""
    return "".join(list_item("", "", rf"{number}.\tab " + words(text),
                             number == len(texts))
                   for number, text in enumerate(texts, start=1))


def formulas(*texts):
    """Formulas in words, on a ground of their own."""
    look = rf"\f0\fs20\cf{colour('title')}"
    return "".join(row((WIDTH,), [cell(text, look)], "stripe", r"\li200")
                   for text in texts) + AFTER_TABLE


def small(text):
    return line(r"\sb300", rf"\f0\fs17\cf{colour('quiet')}", words(text))


def code(text):
    """A code of a part number, inside a cell or a paragraph."""
    return rf"{{\f2\fs21\b\cf{colour('code')} {escaped(text)}}}"


def cell(text, look=r"\f0\fs20"):
    return f"{{{look} {words(text)}}}"


def row(widths, cells, fill=None, layout="", definition=""):
    """One row of finished cells, with thin lines on all sides."""
    sides = "".join(rf"\clbrdr{side}\brdrs\brdrw10\brdrcf{colour('line')}"
                    for side in "tlbr")
    ground = "" if fill is None else rf"\clcbpat{colour(fill)}"
    edge, ends = 0, []
    for width in widths:
        edge += width
        ends.append(f"{sides}{ground}\\cellx{edge}")
    body = "".join(rf"\pard\intbl{layout}\sb30\sa30" + content + "\\cell\r\n"
                   for content in cells)
    return (r"\trowd\trgaph80\trleft0" + definition + "".join(ends) + "\r\n"
            + body + "\\row\r\n")


def table(widths, head, rows, coded=True):
    """A table with a tinted head; its first column holds codes or texts."""
    look = rf"\f0\fs20\b\cf{colour('title')}"
    # A table that runs over a page's end repeats its head there.
    made = [row(widths, [cell(text, look) for text in head], "head",
                definition=r"\trhdr")]
    for number, (first, *others) in enumerate(rows):
        start = code(first) if coded else cell(first)
        made.append(row(widths, [start, *map(cell, others)],
                        "stripe" if number % 2 else None))
    return "".join(made) + AFTER_TABLE


def note(text):
    """A paragraph on a tinted ground, in a frame."""
    return row((WIDTH,), [cell(text)], "note") + AFTER_TABLE


def document(name, *parts):
    colours = "".join(rf"\red{red}\green{green}\blue{blue};"
                      for red, green, blue in COLOURS.values())
    return (r"{\rtf1\ansi\ansicpg1252\uc1\deff0\deflang1033" "\r\n"
            rf"{{\fonttbl{FONTS}}}" "\r\n"
            rf"{{\colortbl;{colours}}}" "\r\n"
            r"{\stylesheet{\s0\f0\fs21 Normal;}}" "\r\n"
            rf"{{\info{{\title {escaped(name)}}}{{\author Varden}}}}" "\r\n"
            r"\paperw12240\paperh15840\margl1440\margr1440\margt1080\margb1080"
            "\r\n" + "".join(parts) + "}\r\n")
