"""The numbers of worked examples: norlaplan-cli calculates them, a picture of
the program shows them."""

import json
import keyword
import math
import shlex
import subprocess
from decimal import ROUND_HALF_UP, Decimal
from types import SimpleNamespace

FUNCTIONS = {"abs": abs, "min": min, "max": max, "sum": sum, "len": len,
             "floor": math.floor, "sqrt": math.sqrt, "sin": math.sin,
             "cos": math.cos, "pi": math.pi, "sorted": sorted,
             "float": float,
             "int": int}


def named(fields):
    """Fields as attributes; one that is a word of Python gets a line behind
    it, as in `film.lambda_`."""
    return SimpleNamespace(**{
        name + "_" * keyword.iskeyword(name): value
        for name, value in fields.items()})


def run(cli, words):
    """What a call gives as JSON, its names as attributes. A message counts as
    an error: an example is one that works."""
    done = subprocess.run([cli, "--json", *shlex.split(words)],
                          capture_output=True, text=True, check=False,
                          timeout=600)
    if done.returncode != 0:
        raise ValueError(f"{words}: {done.stdout}{done.stderr}")
    return json.loads(done.stdout, object_hook=named)


class Cases:
    """The results of a page's cases, each run once when it is needed."""

    def __init__(self, cli, words_by_name):
        self.cli, self.words, self.results = cli, words_by_name, {}

    def __getitem__(self, name):
        if name not in self.words:
            raise KeyError(name)
        if name not in self.results:
            self.results[name] = run(self.cli, self.words[name])
        return self.results[name]

    def value(self, expression):
        # The sources are ours; no name but those of cases and FUNCTIONS.
        return eval(expression, {"__builtins__": {}, **FUNCTIONS}, self)

    def text(self, mark):
        """The text of a number mark: an expression, perhaps with a picture."""
        expression, _, wanted = mark.partition(";")
        value = self.value(expression.strip())
        if wanted.strip():
            return picture(value, wanted.strip())
        if not isinstance(value, str):
            raise ValueError(f"{mark}: a number needs a picture")
        return value.strip()


def picture(value, wanted):
    """A number in a picture such as "#,##0.0" or "0.00E+00", rounded half
    away from zero."""
    number = Decimal(repr(value)) if isinstance(value, float) else \
        Decimal(value)
    if "E" in wanted:
        digits, _, exponent = wanted.partition("E")
        power = number.adjusted() if number else 0
        mantissa = fixed(number.scaleb(-power), digits)
        if mantissa.lstrip("-").startswith("10"):
            power += 1
            mantissa = fixed(number.scaleb(-power), digits)
        sign = "-" if power < 0 else "+" if exponent[0] == "+" else ""
        return f"{mantissa}E{sign}{abs(power):0{len(exponent) - 1}}"
    return fixed(number, wanted)


def fixed(number, wanted):
    whole, _, places = wanted.partition(".")
    rounded = abs(number).quantize(Decimal(1).scaleb(-len(places)),
                                   rounding=ROUND_HALF_UP)
    left, _, right = f"{rounded:f}".partition(".")
    least = whole.count("0")
    left = left.lstrip("0").rjust(least, "0")
    if "," in whole and left:
        left = f"{int(left):,}"
    shown = right[:places.count("0")] + right[places.count("0"):].rstrip("0")
    text = left + ("." + shown if places else "")
    return ("-" if number < 0 and rounded else "") + text
