"""The kinds of mistakes that are made on purpose. Each gives (kind, start, end, replacement) of a source."""

import re

SWAPPED_SIGNS = {"+": "-", "-": "+", "*": "/", "/": "*", "%": "*", "+=": "-=", "-=": "+=", "*=": "/=",
                 "/=": "*=", "&&": "||", "||": "&&", "==": "!=", "!=": "=="}
BOUNDS = {"<": "<=", "<=": "<", ">": ">=", ">=": ">"}
TURNED = {"<": ">=", "<=": ">", ">": "<=", ">=": "<"}
TWINS = [("x", "y"), ("width", "height"), ("left", "right"), ("top", "bottom"), ("min", "max"), ("sin", "cos"),
         ("floor", "ceil"), ("begin", "end"), ("front", "back"), ("inner", "outer"), ("radial", "axial"),
         ("RadialLoad", "AxialLoad"), ("bore", "od"), ("HBox", "VBox"), ("first", "second")]
TWIN = {a: b for pair in TWINS for a, b in (pair, pair[::-1])}
NOTHING = "static_cast<void>(0)"
KEYWORDS = {"return", "throw", "using", "const", "auto", "static", "constexpr", "if", "for", "while", "do", "else",
            "switch", "case", "default", "try", "catch", "public", "private", "protected", "template", "typename",
            "namespace", "class", "struct", "enum", "inline", "explicit", "virtual", "friend", "goto", "delete",
            "static_assert", "operator", "typedef", "extern", "co_return"}


def signs(source):
    for i, token in enumerate(source.tokens):
        if token.kind != "sign":
            continue
        word = token.text
        if word in ("++", "--"):
            yield "step turned", token.start, token.end, "--" if word == "++" else "++"
        elif word == "!" and source.at(i - 1) in ("(", "&&", "||", "return", "=", ","):
            yield "not dropped", token.start, token.end, ""
        elif word == "-" and not source.spaced(i):
            yield "sign dropped", token.start, token.end, ""
        elif source.spaced(i):
            if word in SWAPPED_SIGNS:
                yield "operator", token.start, token.end, SWAPPED_SIGNS[word]
            if word in BOUNDS:
                yield "bound", token.start, token.end, BOUNDS[word]
                yield "comparison turned", token.start, token.end, TURNED[word]


def constants(source):
    for token in source.tokens:
        if token.kind == "number" and re.fullmatch(r"\d+", token.text):
            for step in (1, -1):
                if int(token.text) + step >= 0:
                    yield "constant", token.start, token.end, str(int(token.text) + step)
        elif token.kind == "number" and re.fullmatch(r"\d+\.\d+", token.text):
            whole, part = token.text.split(".")
            yield "constant", token.start, token.end, f"{int(whole) + 1}.{part}"
            yield "constant", token.start, token.end, f"{whole}.{part[:-1]}{(int(part[-1]) + 1) % 10}"
        elif token.text in ("true", "false"):
            yield "truth", token.start, token.end, "false" if token.text == "true" else "true"


def names(source):
    scoped = {}
    for i, token in enumerate(source.tokens):
        if token.text in TWIN:
            yield "name swapped", token.start, token.end, TWIN[token.text]
        holds_a_value = source.at(i + 1) not in ("&", "*", "(", "{", "::", ">") and source.at(i - 1) != "class"
        if token.text == "Single" and holds_a_value:
            yield "width", token.start, token.end, "double"
        ours = source.at(i - 1) == "::" and source.at(i - 2) not in ("std", "fs")
        if ours and source.at(i + 1) not in ("(", "::", "{", "<", "&"):
            scoped.setdefault(source.at(i - 2), []).append(token)
    for tokens in scoped.values():
        known = sorted({token.text for token in tokens})
        for token in tokens:
            if len(known) > 1:
                other = known[(known.index(token.text) + 1) % len(known)]
                yield "enumerator", token.start, token.end, other


def texts(source):
    for token in source.tokens:
        if token.kind != "text" or len(token.text) < 3 or "#include" in token.text:
            continue
        raw = re.match(r'R"([^(]*)\(', token.text)
        yield "text emptied", token.start, token.end, 'R"()"' if raw else '""'
        slash = r"\\" if raw else r"\\\\"
        for match in re.finditer(slash + r"(?:b|i|ul|cf\d+|fs\d+|q[rcl]|par|tab|line)(?![a-z0-9])", token.text):
            yield "RTF word dropped", token.start + match.start(), token.start + match.end(), ""


def conditions(source):
    for i, token in enumerate(source.tokens):
        if token.text == "if" and source.at(i + 1) == "(" and i + 1 in source.partner:
            first, last = i + 1, source.partner[i + 1]
            inner = [j for j in range(first + 1, last) if source.at(j) == ";"]
            start = source.tokens[inner[-1]].end if inner else source.tokens[first].end
            end = source.tokens[last].start
            yield "condition turned", start, end, f" !({source.text[start:end].strip()})"
        if token.text == "?" and source.spaced(i):
            yield from ternary(source, i)


def ternary(source, i):
    colon = j = i + 1
    depth = 0
    while j < len(source.tokens) and source.at(j) not in (";", ",", ")", "}", "]"):
        if source.at(j) in ("(", "[", "{"):
            j = source.partner.get(j, j)
        elif source.at(j) == "?":
            depth += 1
        elif source.at(j) == ":":
            if depth == 0 and colon > i + 1:
                break
            if depth == 0:
                colon = j
            depth -= depth > 0
        j += 1
    if colon > i + 1:
        start, end = source.tokens[i].end, source.tokens[j - 1].end
        left, right = source.text[start:source.tokens[colon].start].strip(), source.text[
            source.tokens[colon].end:end].strip()
        yield "choice swapped", start, end, f" {right} : {left}"


def statements(source):
    for i, token in enumerate(source.tokens):
        if source.at(i - 1) not in (";", "{", "}", ")", "else") or source.body_at(token.start) is None:
            continue
        if source.at(i - 1) == ")" and source.at(source.partner.get(i - 1, 0) - 1) not in ("if", "for", "while"):
            continue
        if token.text in ("break", "continue") or (token.text == "return" and source.at(i + 1) == ";"):
            yield "statement removed", token.start, token.end, NOTHING
        if (token.kind != "name" or token.text in KEYWORDS) and token.text not in ("++", "--", "*", "("):
            continue
        if token.kind == "name" and source.tokens[i + 1].kind == "name":
            continue  # a declaration
        j, called, assigned = i, False, False
        while j < len(source.tokens) and source.at(j) not in (";", "{", "}", ")"):
            called |= source.at(j) == "("
            assigned |= source.at(j).endswith("=") or source.at(j) in ("++", "--", "<<")
            if source.at(j) in ("(", "[", "{"):
                j = source.partner.get(j, j)
            j += 1
            if source.at(j) == "{" and source.at(j - 1) == "=":
                j = source.partner.get(j, j) + 1
        if source.at(j) == ";" and (called or assigned):
            yield "statement removed", token.start, source.tokens[j].start, NOTHING


def arguments(source):
    """Neighbours in a call or a list that look alike, swapped."""
    for i, token in enumerate(source.tokens):
        if token.text not in ("(", "{") or i not in source.partner:
            continue
        parts, first, j = [], i + 1, i + 1
        while j <= source.partner[i]:
            if j == source.partner[i] or source.at(j) == ",":
                parts.append((first, j - 1))
                first = j + 1
            elif source.at(j) in ("(", "[", "{"):
                j = source.partner.get(j, j)
            elif source.at(j) == ";":
                parts = []
                break
            j += 1
        for (a, b), (c, d) in zip(parts, parts[1:]):
            if b < a or d < c or source.tokens[a].kind != source.tokens[c].kind:
                continue
            left = source.text[source.tokens[a].start:source.tokens[b].end]
            between = source.text[source.tokens[b].end:source.tokens[c].start]
            right = source.text[source.tokens[c].start:source.tokens[d].end]
            if left == right or re.search(r"^const\b|[\w>&*] \w+$", left):
                continue
            kind = "texts reordered" if source.tokens[a].kind == "text" else "arguments swapped"
            yield kind, source.tokens[a].start, source.tokens[d].end, right + between + left


def all_mutants(source):
    for kind in (signs, constants, names, texts, conditions, statements, arguments):
        yield from kind(source)
