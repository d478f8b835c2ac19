"""Runs norlaplan-cli as a user's shell does. NORLAPLAN_CLI names it."""

import json
import os
import shutil
import subprocess
import tempfile
from contextlib import contextmanager
from pathlib import Path

CLI = os.environ["NORLAPLAN_CLI"]
PROGRAM_FOLDER = Path(CLI).parent
# The address sanitizer needs memory, files and stack of its own.
WITH_SANITIZERS = "NORLAPLAN_SANITIZE" in os.environ
WITH_PICTURES = (PROGRAM_FOLDER / "norlaplan-paint.so").exists()


def run(*words, **options):
    options = {"capture_output": True, "text": True, "check": False, "timeout": 600, **options}
    return subprocess.run([CLI, *words], **options)


def result(*words):
    """Exit status and JSON of a call."""
    done = run("--json", *words)
    return done.returncode, json.loads(done.stdout)


@contextmanager
def own_tables():
    """A program folder with tables that may be changed; the rest is the shipped one's."""
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        for entry in PROGRAM_FOLDER.iterdir():
            if entry.is_dir() and entry.name != "Data Tables":
                (folder / entry.name).symlink_to(entry)
        shutil.copytree(PROGRAM_FOLDER / "Data Tables", folder / "Data Tables")
        yield folder


def table(folder, name):
    """The path of a table, whatever the case of its name."""
    for entry in (folder / "Data Tables").iterdir():
        if entry.name.lower() == name.lower():
            return entry
    raise FileNotFoundError(name)
