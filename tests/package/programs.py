"""What the programs say of themselves. NORLAPLAN_BIN is the folder of their executables."""

import os
import re
import subprocess
from functools import lru_cache
from pathlib import Path

BIN = Path(os.environ["NORLAPLAN_BIN"])
SOURCE = Path(__file__).resolve().parents[2]
PACKAGING = SOURCE / "packaging"


@lru_cache(maxsize=None)
def help_of(program, *command):
    done = subprocess.run([BIN / program, *command, "--help"], capture_output=True, text=True, check=True, timeout=60)
    return done.stdout


def options_of(program, *command):
    """The options that --help lists for the program or one of its commands: their long and short names."""
    found = set()
    for line in help_of(program, *command).splitlines():
        names = re.match(r"\s+(-{1,2}[\w-]+(?:,\s*-{1,2}[\w-]+)*)", line)
        if names:
            found.update(re.split(r",\s*", names[1]))
    return found


def commands_of(program, *command):
    """The commands that --help lists under "Subcommands:"."""
    _, _, rest = help_of(program, *command).partition("Subcommands:\n")
    return re.findall(r"^ {2}(\w+)", rest, re.MULTILINE)


def every_command(program):
    """Each command with its words: (), ("life",), ("report", "life") ..."""
    yield ()
    for command in commands_of(program):
        yield (command,)
        for kind in commands_of(program, command):
            yield (command, kind)
