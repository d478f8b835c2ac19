"""The two ways to a save: the command line, and the forms in a program that saves as often as it is asked."""

import ctypes
import os
import random
import resource
import shutil
import subprocess
import sys
import tempfile
from collections import namedtuple
from pathlib import Path

from folders import Places

CLI = os.environ["NORLAPLAN_CLI"]
SAVER = os.environ["NORLAPLAN_SAVER"]
# With a seed of its own for each run Qt numbers the objects of a PDF anew.
ENVIRONMENT = {**os.environ, "LD_PRELOAD": os.environ["NORLAPLAN_FAILING_CALLS"], "QT_HASH_SEED": "0"}

# reached: the fault was met; told: every message; sound: the program went on, or its exit status fits what it said;
# killed: it was ended from outside.
Outcome = namedtuple("Outcome", "reached told sound killed")
# Units write three files one after the other; a sheet that was saved may stay in the program's folder too.
ONE_BY_ONE = ("units", "sheet")
OLD = b"what stood there before"
LIFE = ("report", "life", "K19013XP0", "--radial", "100")
CASES = "partNumber,radial,axial,moment,speed\n" + "K19013XP0,100,,,\n" * 40


def as_any_user():
    """In a new process: whoever runs it, rights hold for the program that it starts."""
    may_pass_rights, may_pass_reading, may_change_any = 1, 2, 3
    drop = 24
    if os.geteuid() == 0:
        for power in (may_pass_rights, may_pass_reading, may_change_any):
            ctypes.CDLL(None).prctl(drop, power, 0, 0, 0)


def rights_hold():
    """Whether they do here: the administrator of a closed machine may be unable to give up what he may."""
    with tempfile.TemporaryDirectory() as folder:
        os.chmod(folder, 0o500)
        write = "import sys; open(sys.argv[1] + '/file', 'w')"
        done = subprocess.run([sys.executable, "-c", write, folder], capture_output=True, preexec_fn=as_any_user,
                              check=False)
        return done.returncode != 0


class CommandLine:
    """norlaplan-cli with the file that it writes."""

    # The picture is drawn in a process of its own.
    WAYS = {
        "datasheet.rtf": ("datasheet", "K19013XP0"),
        "datasheet.pdf": ("datasheet", "K19013XP0"),
        "life.rtf": LIFE,
        "life.png": LIFE,
        "torque.bmp": ("report", "torque", "K19013BP0T"),
        "export.qlx": ("qlx", "K19013XP0"),
        "results.csv": None,
    }

    def __init__(self, name, cleanup):
        self.folder = Path(tempfile.mkdtemp())
        cleanup(shutil.rmtree, self.folder, True)
        self.log = self.folder / "log"
        self.out = self.folder / "out"
        self.name = name
        self.target = self.out / name
        self.out.mkdir()
        cases = self.folder / "cases.csv"
        cases.write_text(CASES)
        words = self.WAYS[name] or ("batch", str(cases))
        self.words = (CLI, "--json", *words, "--output", str(self.target))
        self.places = Places(self.out, {name: OLD})
        self.save()
        self.changed = self.places.remember()

    def save(self, kind="none", at=0, folder=None, limit=None):
        """One save with the fault of that kind at that operation."""
        self.log.unlink(missing_ok=True)
        environment = {**ENVIRONMENT, "NORLAPLAN_FAULT_FOLDER": str(folder or self.out),
                       "NORLAPLAN_FAULT_KIND": kind, "NORLAPLAN_FAULT_AT": str(at),
                       "NORLAPLAN_FAULT_LOG": str(self.log)}

        def begin():
            as_any_user()
            if limit is not None:
                resource.setrlimit(resource.RLIMIT_FSIZE, (limit, limit))

        done = subprocess.run(self.words, env=environment, capture_output=True, text=True, timeout=120, check=False,
                              preexec_fn=begin)
        reached = self.log.exists() and " fault" in self.log.read_text()
        # Where a process of its own is killed, the program tells it.
        killed = done.returncode < 0 or (kind.startswith("kill") and done.returncode == 3)
        fits = (done.returncode == 0) == ('"error"' not in done.stdout) and done.returncode in (0, 3)
        return Outcome(reached, done.stderr, killed or fits, killed)

    def whole(self):
        """A save without a fault."""
        return self.save().told

    def go_on(self):
        """The next call is a program of its own."""
        return True

    def close(self):
        pass


class Forms:
    """The saves of the forms. Each is made in a process that leaves the one that was asked."""

    # These have no name to be asked for.
    INTO_PROGRAM_FOLDER = {"settings": {"SETTINGS.INI": OLD}, "number": {}, "units": {"SETTINGS.INI": OLD}}
    WAYS = {
        "settings": None, "number": None, "units": None,
        "sheet": ".rtf", "bitmap": ".bmp", "preview": ".pdf", "life": ".rtf", "list": ".rtf", "graph": ".bmp",
        "application": ".rtf", "export": ".qlx",
    }

    def __init__(self, name, cleanup):
        self.name = name
        self.process = subprocess.Popen([SAVER, name], stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True,
                                        env=ENVIRONMENT, stderr=subprocess.DEVNULL, preexec_fn=as_any_user)
        cleanup(self.close)
        self.folder = Path(self.read("folder"))
        self.ask("open")
        extension = self.WAYS[name]
        old = {entry.name: entry.read_bytes() for entry in self.folder.iterdir() if entry.is_file()}
        if extension is None:
            self.out = self.folder
            self.target = self.folder / ("DATA.RTF" if name == "number" else "SETTINGS.INI")
            old.update(self.INTO_PROGRAM_FOLDER[name])
        else:
            self.out = self.folder / "out"
            self.target = self.out / f"first{extension}"
            old[f"out/{self.target.name}"] = OLD
            if name == "application":
                old["out/first..KDN"] = OLD
        self.places = Places(self.folder, old)
        self.whole()
        self.changed = self.places.remember()

    def read(self, word):
        line = self.process.stdout.readline().strip()
        if not line.startswith(word + " "):
            raise AssertionError(f"{self.name}: {line} instead of {word}")
        return line[len(word) + 1:]

    def ask(self, line):
        """Starts a save. Gives what it shows before it waits, and whether its process has ended."""
        print(line, file=self.process.stdin, flush=True)
        return self.listen()

    def listen(self):
        told = []
        for line in self.process.stdout:
            told.append(line)
            if line.startswith(("saved", "end")):
                return told
        raise AssertionError(f"{self.name}: the saver has ended\n" + "".join(told))

    def save(self, kind="none", at=0, folder=None, limit=None):
        line = f"limit {limit}" if limit is not None else f"fault {kind} {at} {folder or self.folder}"
        told = self.ask(line)
        killed = told[-1].startswith("end")
        messages = "".join(word for word in told if word.startswith("message"))
        counts = [int(word.split()[1]) for word in told if word.startswith("operations")]
        return Outcome(killed or at <= counts[0], messages, not killed or kind.startswith("kill"), killed)

    def go_on(self):
        """Lets the process that has saved save under another name. Gives whether it was as ever."""
        print("", file=self.process.stdin, flush=True)
        told = self.listen()
        alive = "alive\n" in told and told[-1] == "end 0\n"
        for file in self.out.glob("second*"):
            file.unlink()
        return alive

    def whole(self):
        outcome = self.save()
        if not self.go_on():
            raise AssertionError(f"{self.name} fails without a fault")
        return outcome.told

    def close(self):
        self.process.stdin.close()
        self.process.stdout.close()
        self.process.wait(60)


# A long run takes every save in every test; the usual one takes those that write in ways of their own: a file, one
# from a process of its own, one that grows, a pair.
LONG = "NORLAPLAN_FAULT_KILLS" in os.environ
ALL = (*CommandLine.WAYS, *Forms.WAYS)
FEW = ALL if LONG else ("life.rtf", "datasheet.pdf", "results.csv", "application")


def every_save(cleanup, names):
    """Each way to a file of these names in turn."""
    for kind in (CommandLine, Forms):
        for name in kind.WAYS:
            if name in names:
                way = kind(name, cleanup)
                yield way
                way.close()


def some_time():
    """Microseconds: a save takes from tens of them to some thousands."""
    return int(10 ** random.uniform(0.5, 3.5))
