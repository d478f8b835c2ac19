"""`--help` of every command: what it takes, what it needs, of which kind, with a word for each."""

import re
import unittest

from program import run

#: How an option shows the kind of value that it takes.
NUMBER, TEXT, FLAG = "FLOAT", "TEXT", ""
SEPARATOR = {"--z-separator": "TEXT:{P,V,S,T}"}
PART = {"PN": "TEXT REQUIRED", **SEPARATOR}
LOADS = {name: NUMBER for name in ("--radial", "--axial", "--moment", "--speed")}
LUBRICANT = {"--viscosity": NUMBER + " REQUIRED", "--viscosity-unit": "TEXT:{SSU,centistokes} REQUIRED",
             "--gravity": NUMBER + "=0.8608"}
ROW = {"--row": "INT:{1,2}=1"}
SEARCH = {"--style": TEXT + " REQUIRED", **{name: NUMBER + " REQUIRED" for name in (
    "--min-bore", "--max-od", "--min-height", "--max-height")}, "--sort": "TEXT:{bore,od,life,availability}",
    "--descending": FLAG}
DEFLECTION = {"--preload": NUMBER + " REQUIRED", "--max-radial": NUMBER, "--max-axial": NUMBER, "--max-moment": NUMBER}
GRAPH = {"--graph": "TEXT:{radial,axial,moment} REQUIRED"}
FITS = {"--high": NUMBER + " REQUIRED", "--low": NUMBER + " REQUIRED", "--shaft": TEXT + " REQUIRED",
        "--housing": TEXT + " REQUIRED"}
OUTPUT = {"--output": TEXT + " REQUIRED"}

COMMANDS = {
    "decode": PART,
    "life": PART | LOADS,
    "film": PART | LOADS | LUBRICANT,
    "contact": PART | LOADS | ROW,
    "search": SEARCH | LOADS,
    "batch": {"CASES": "TEXT REQUIRED", **OUTPUT, "--jobs": "INT:INT in [1 - 256]", **SEPARATOR},
    "deflection": PART | DEFLECTION,
    "torque": PART,
    "play": PART,
    "fits": PART | FITS,
    "qlx": PART | LOADS | OUTPUT,
    "datasheet": PART | OUTPUT,
}
REPORTS = {
    "life": PART | LOADS | OUTPUT,
    "search": SEARCH | LOADS | OUTPUT,
    "ballloads": PART | LOADS | OUTPUT,
    "contact": PART | LOADS | ROW | OUTPUT,
    "deflection": PART | DEFLECTION | GRAPH | OUTPUT,
    "torque": PART | OUTPUT,
    "play": PART | OUTPUT,
    "tilt": PART | OUTPUT,
    "fits": PART | FITS | OUTPUT,
}
#: A word that tells one option from the others, as the engineer knows it.
WORDS = {"PN": "K19013XP0", "CASES": "CSV", "--z-separator": '"Z"', "--radial": "Radial load", "--axial": "Axial load",
         "--moment": "Moment", "--speed": "rpm", "--viscosity": "viscosity", "--viscosity-unit": "Unit",
         "--gravity": "grams/cc", "--row": "Row", "--style": '"4-POINT CONTACT"', "--sort": "Sort",
         "--descending": "Largest first", "--preload": "preload", "--max-radial": "radial curve",
         "--max-axial": "axial curve", "--max-moment": "moment curve", "--graph": "curve", "--high": "Highest",
         "--low": "Lowest", "--shaft": "440C steel", "--housing": "440C steel", "--output": " to write",
         "--jobs": "Threads"}
#: A value in inches or millimetres, pounds or newtons ...; what is the same in both units doesn't speak of them.
IN_DISPLAY_UNITS = {"--radial", "--axial", "--moment", "--min-bore", "--max-od", "--min-height", "--max-height", "--preload",
                    "--max-radial", "--max-axial", "--max-moment", "--high", "--low"}


def entries(text):
    """What is listed below each caption: name (kind, explanation)."""
    found, caption, name = {}, None, None
    for line in text.splitlines()[2:]:
        if re.fullmatch(r"\w+:", line):
            caption = found.setdefault(line[:-1], {})
        elif line.startswith(" " * 30) and name:
            kind, told = caption[name]
            caption[name] = (kind, f"{told} {line.strip()}".strip())
        elif line.startswith("  "):
            words, told = line[2:30].rstrip(), line[30:].strip()
            if len(line) > 30 and line[29] != " ":
                words, told = line[2:].rstrip(), ""
            name, _, kind = words.partition(" ")
            caption[name] = (kind, told)
    return found


class Help(unittest.TestCase):
    def shown(self, *words):
        done = run(*words, "--help")
        self.assertEqual((done.returncode, done.stderr), (0, ""), words)
        return done.stdout.splitlines(), entries(done.stdout)

    def test_of_the_program_lists_every_command_and_what_holds_for_all(self):
        found = self.shown()[1]
        self.assertEqual(set(found["Subcommands"]), {*COMMANDS, "report"})
        self.assertEqual({name: kind for name, (kind, _) in found["Options"].items()},
                         {"-h,--help": FLAG, "--version": FLAG, "--program-folder": TEXT, "--units": "TEXT:{US,METRIC}",
                          "--json": FLAG})
        for name, word in (("--program-folder", "older"), ("--units", "Display units"), ("--json", "JSON")):
            self.assertIn(word, found["Options"][name][1])

    def test_of_every_command_lists_what_it_takes_and_no_more(self):
        calls = [((name,), options) for name, options in COMMANDS.items()]
        calls += [(("report", name), options) for name, options in REPORTS.items()]
        for words, options in calls:
            with self.subTest(words):
                lines, found = self.shown(*words)
                self.assertTrue(lines[1].startswith(f"Usage: norlaplan-cli {' '.join(words)} [OPTIONS]"))
                listed = found.get("Positionals", {}) | found["Options"]
                del listed["-h,--help"]
                # As many threads as the machine has processors.
                kinds = {name: re.sub(r"(?<=256\])=\d+$", "", kind) for name, (kind, _) in listed.items()}
                self.assertEqual(kinds, options)
                for name, (_, told) in listed.items():
                    self.assertIn(WORDS.get(name, ""), told, name)
                    self.assertNotEqual(told, "", name)
                    self.assertEqual("isplay units" in told, name in IN_DISPLAY_UNITS, name)

    def test_lists_the_reports_as_their_calculations_follow_each_other(self):
        self.assertEqual(list(self.shown("report")[1]["Subcommands"]), [
            "life", "search", "ballloads", "contact", "deflection", "torque", "play", "tilt", "fits"])

    def test_says_in_the_list_what_a_command_says_of_itself(self):
        for parent, names in (((), COMMANDS), (("report",), REPORTS)):
            listed = self.shown(*parent)[1]["Subcommands"]
            self.assertEqual(set(listed) - {"report"}, set(names))
            told = [listed[name][1] for name in names]
            self.assertEqual(told, [self.shown(*parent, name)[0][0] for name in names])
            self.assertNotIn("", told)
            self.assertEqual(len(set(told)), len(told), "each is another")


if __name__ == "__main__":
    unittest.main()
