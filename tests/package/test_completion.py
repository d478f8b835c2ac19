"""Completions and manual pages name every command and option that --help names, and no other."""

import re
import shutil
import subprocess
import unittest

from programs import PACKAGING, commands_of, every_command, options_of

CLI = "norlaplan-cli"
PROGRAMS = ("norlaplan", CLI)


def bash_offers(program, *words):
    """What pressing Tab after the words offers."""
    script = (f'source "{PACKAGING}/bash/{program}"\n'
              f'COMP_WORDS=({program} "$@"); COMP_CWORD=$(($#))\n'
              f'{"_" + program.replace("-", "_")}\nprintf "%s\\n" "${{COMPREPLY[@]}}"\n')
    # A completion function asks for file names by "compopt", which only an interactive shell has.
    done = subprocess.run(["bash", "-c", "compopt() { :; }\n" + script, "bash", *words], capture_output=True, text=True,
                          check=True, timeout=60)
    return {line for line in done.stdout.splitlines() if line}


def man_text(program):
    page = (PACKAGING / "man" / f"{program}.1").read_text(encoding="utf-8")
    return re.sub(r"\\([-&e ])", lambda m: {"-": "-", "&": "", "e": "\\", " ": " "}[m[1]], page)


class Bash(unittest.TestCase):
    def test_offers_the_commands(self):
        self.assertEqual(bash_offers(CLI, ""), set(commands_of(CLI)))
        self.assertEqual(bash_offers(CLI, "report", ""), set(commands_of(CLI, "report")))

    def test_offers_the_options_of_every_command_and_no_other(self):
        for program in PROGRAMS:
            for command in every_command(program):
                with self.subTest(program=program, command=command):
                    wanted = {name for name in options_of(program, *command) if name.startswith("--")}
                    offered = {name for name in bash_offers(program, *command, "-") if name.startswith("--")}
                    self.assertEqual(offered, wanted)

    def test_global_options_and_what_they_take_lead_to_the_command_behind_them(self):
        self.assertIn("--radial", bash_offers(CLI, "--units", "METRIC", "--json", "life", "K19013XP0", "--r"))

    def test_offers_what_an_option_takes(self):
        self.assertEqual(bash_offers(CLI, "--units", ""), {"US", "METRIC"})
        self.assertEqual(bash_offers(CLI, "report", "deflection", "--graph", "m"), {"moment"})
        self.assertEqual({"4-POINT CONTACT"}, bash_offers(CLI, "search", "--style", "4"))

    def test_a_word_that_begins_a_command_is_completed(self):
        self.assertEqual(bash_offers(CLI, "dec"), {"decode"})


class Zsh(unittest.TestCase):
    def text(self, program):
        return (PACKAGING / "zsh" / f"_{program}").read_text(encoding="utf-8")

    def test_names_every_command(self):
        for command in every_command(CLI):
            if command:
                with self.subTest(command=command):
                    self.assertRegex(self.text(CLI), rf"'{command[-1]}:")

    def test_names_every_option_and_no_other(self):
        for program in PROGRAMS:
            with self.subTest(program=program):
                wanted = set().union(*(options_of(program, *command) for command in every_command(program)))
                named = set(re.findall(r"(?<![\w-])--?[a-z][\w-]*(?=[\[,}])", self.text(program)))
                self.assertEqual(named, wanted)

    @unittest.skipUnless(shutil.which("zsh"), "zsh isn't there")
    def test_is_sound(self):
        for program in PROGRAMS:
            subprocess.run(["zsh", "-n", PACKAGING / "zsh" / f"_{program}"], check=True, timeout=60)


class ManualPages(unittest.TestCase):
    def test_name_every_option(self):
        for program in PROGRAMS:
            text = man_text(program)
            for command in every_command(program):
                for option in options_of(program, *command):
                    with self.subTest(program=program, option=option):
                        self.assertRegex(text, rf"(?<![\w-]){option}(?![\w-])")

    def test_name_every_command(self):
        for command in every_command(CLI):
            if command:
                with self.subTest(command=command):
                    self.assertRegex(man_text(CLI), rf"\b{command[-1]}\b")

    def test_name_no_option_that_there_is_not(self):
        for program in PROGRAMS:
            known = set().union(*(options_of(program, *command) for command in every_command(program)))
            for option in re.findall(r"(?<![\w-])--[a-z][\w-]+", man_text(program)):
                with self.subTest(program=program, option=option):
                    self.assertIn(option, known)

    @unittest.skipUnless(shutil.which("man") and shutil.which("groff"), "man isn't there")
    def test_are_set_without_a_warning(self):
        for program in PROGRAMS:
            done = subprocess.run(["man", "--warnings", "-l", PACKAGING / "man" / f"{program}.1"], capture_output=True,
                                  text=True, check=True, timeout=60)
            self.assertEqual(done.stderr, "")


if __name__ == "__main__":
    unittest.main()
