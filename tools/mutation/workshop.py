"""The scratch copy in which mistakes are built and tried."""

import hashlib
import json
import os
import re
import resource
import signal
import subprocess
import sys
import time
from pathlib import Path

import report
from mutant import reason

CHOICE = "NORLAPLAN_MUTANT"
#: In front of a file with mistakes, so that the command that compiles every other file is that of a release build
#: and ccache has it.
CHOOSER = f"""#ifndef NORLAPLAN_MUTATION
#define NORLAPLAN_MUTATION
#include <cstdlib>
namespace mutation {{
inline const int chosen = std::getenv("{CHOICE}") != nullptr ? std::atoi(std::getenv("{CHOICE}")) : 0;
}}
#pragma GCC diagnostic warning "-Wunused-function"
#endif
"""
ROUNDS = 8
#: Seconds that a test takes of which nothing is known yet.
SLOW = 60.0


#: Whose tests see a folder's mistakes too, nearest first: those of the folders that use it.
USERS = {"numbers": ["state", "documents", "loaddist", "capacity", "catalogue", "search", "deflection", "fits", "help"],
         "state": ["documents", "loaddist", "capacity", "catalogue", "search", "deflection", "fits", "help"],
         "documents": ["catalogue", "search", "deflection", "fits"],
         "loaddist": ["capacity", "catalogue", "search", "deflection"],
         "capacity": ["catalogue", "search"],
         "catalogue": ["search", "deflection", "fits"]}


def stages_of(root, folder):
    """The tests that answer for a folder, nearest first. Each stage is built once the one before it has left something
    unnoticed; its programs are (target to build, command in the build folder)."""
    command_line = ("norlaplan-cli",
                    [sys.executable, "-m", "unittest", "discover", "--failfast", "-s", "../../tests/cli"])
    screens = [(f"test_screens_{path.stem}", [f"tests/test_screens_{path.stem}"])
               for path in sorted((root / "tests" / "screens").glob("*Test.cpp"))]
    if folder == "cli":
        return [[command_line]]
    if folder == "screens":
        return [screens]
    own, *users = [(f"test_{one}", [f"tests/test_{one}", "--gtest_fail_fast", "--gtest_brief=1"])
                   for one in [folder, *USERS.get(folder, [])]]
    return [[own], *([users] if users else []), screens if folder in ("paint", "help") else [command_line]]


class Workshop:
    def __init__(self, root, work, jobs, own_only, nearest):
        self.root, self.work, self.jobs, self.own_only, self.nearest = root, work, jobs, own_only, nearest
        self.tree = work / "tree"
        self.build = self.tree / "build" / "release"  # where a release build stands to its sources
        os.nice(5)
        for folder in (self.tree, self.build, work / "home"):
            folder.mkdir(parents=True, exist_ok=True)
        self.results_path = work / "results.json"
        self.results = json.loads(self.results_path.read_text()) if self.results_path.exists() else {}
        self.seconds = {}  # that each test program takes when nothing is wrong
        self.copy_tree()
        self.environment = {**os.environ, "CCACHE_BASEDIR": str(work.resolve()), "CCACHE_NOHASHDIR": "1"}
        self.call(["cmake", "-G", "Ninja", "-S", self.tree, "-B", self.build, "-DCMAKE_BUILD_TYPE=Release",
                   "-DCMAKE_CXX_COMPILER_LAUNCHER=ccache", "-DNORLAPLAN_BENCH=OFF",
                   "-DCMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE=PRE_TEST"], check=True)

    def call(self, command, check=False, **more):
        return subprocess.run([str(part) for part in command], stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                              text=True, errors="replace", check=check, **more)

    def copy_tree(self):
        """Brings the copy up to date, and touches no file that is already right."""
        listed = subprocess.run(["git", "-C", self.root, "ls-files", "-co", "--exclude-standard", "-z"],
                                stdout=subprocess.PIPE, text=True, check=True).stdout.split("\0")
        wanted = {name for name in listed if name and (self.root / name).is_file()}
        for name in wanted:
            self.write(name, (self.root / name).read_bytes())
        for path in [path for path in self.tree.rglob("*") if path.is_file() and self.build not in path.parents]:
            if str(path.relative_to(self.tree)) not in wanted:
                path.unlink()

    def write(self, name, content):
        """True when the file's content is another now."""
        target = self.tree / name
        if target.exists() and target.read_bytes() == content:
            return False
        target.parent.mkdir(parents=True, exist_ok=True)
        target.write_bytes(content)
        return True

    def make(self, targets, failures=1):
        """Builds, and stops after so many failures (0: never)."""
        return self.call(["ninja", "-C", self.build, "-k", failures, "-j", self.jobs, *targets], env=self.environment)

    def digest(self, folder):
        """Changes with what may notice a mistake of the folder."""
        found = hashlib.sha1(f"{self.nearest or ''}".encode() if folder == "screens" else b"")
        others = [] if self.own_only else [*USERS.get(folder, []), "cli"]
        for part in (folder, "support", *others):
            for path in sorted((self.tree / "tests" / part).rglob("*")):
                if path.suffix in (".cpp", ".h", ".py"):
                    found.update(path.read_bytes())
        return found.hexdigest()

    def try_all(self, folder, chosen, equivalent):
        stages = stages_of(self.root, folder)[: 1 if self.own_only else None]
        digest = self.digest(folder)
        todo, outcomes = [], {}
        for mutant in chosen:
            known = self.results.get(mutant.key())
            if reason(equivalent, mutant) is not None:
                outcomes[mutant] = (report.EQUIVALENT, "")
            elif known and (known[0] != report.SURVIVED or known[2] == digest):
                outcomes[mutant] = (known[0], known[1])
            else:
                todo.append(mutant)
        if todo:
            self.say(f"{folder}: building")
            bench = Bench(self, stages)
            for mutant, outcome, by in bench.try_each(todo):
                outcomes[mutant] = (outcome, by)
                self.results[mutant.key()] = (outcome, by, digest)
                self.results_path.write_text(json.dumps(self.results))
                self.say(f"{outcome}: {mutant.path}:{mutant.line}: {mutant.kind}")
            bench.check_again()
        return [(mutant, *outcomes[mutant]) for mutant in chosen]

    def say(self, what):
        print(f"{time.strftime('%H:%M:%S')} {what}", file=sys.stderr, flush=True)


class Bench:
    """The test programs of one folder, stage by stage. A program is built when a mistake comes to it."""

    def __init__(self, workshop, stages):
        self.shop, self.stages = workshop, stages
        self.kills = dict.fromkeys((target for stage in stages for target, _ in stage), 0)
        self.built = set()  # from the sources as they now are
        forms = (workshop.root / "src" / "screens" / "FormRegistry.h").read_text()
        self.forms = {form: constant for constant, form in re.findall(r'FormName (k\w+)\{"(\w+)"\}', forms)}

    def build(self, stage, failures=1):
        targets = [target for target, _ in stage if target not in self.built]
        # Without the module beside it the command line's tests pass over its pictures.
        beside = ["norlaplan-paint"] if "norlaplan-cli" in targets else []
        built = self.shop.make([*targets, *beside, "program-folder"], failures) if targets else None
        if built is None or built.returncode == 0:
            self.built.update(targets)
        return built

    def check(self, program, complaint):
        """A run that notices nothing, and the time that it takes."""
        target, command = program
        before = resource.getrusage(resource.RUSAGE_CHILDREN)
        done = self.run(command, 0, 600)
        after = resource.getrusage(resource.RUSAGE_CHILDREN)
        if done.returncode != 0:
            sys.exit(f"{done.stdout[-4000:]}\n{target}: {complaint}")
        self.shop.seconds[target] = after.ru_utime - before.ru_utime + after.ru_stime - before.ru_stime

    def check_again(self):
        """What noticed mistakes finds nothing in the program without them."""
        used = [program for stage in self.stages for program in stage if self.kills[program[0]]]
        self.build(used)
        for program in used:
            self.check(program, "The unchanged program fails its tests after the mistakes: one spoilt a file.")

    def run(self, command, choice, seconds):
        def limits():
            resource.setrlimit(resource.RLIMIT_CPU, (int(seconds), int(seconds) + 5))
            resource.setrlimit(resource.RLIMIT_AS, (4 << 30, 4 << 30))
            resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
            # What a shell runs in the background ignores Ctrl-C, and a test of Ctrl-C would with it.
            signal.signal(signal.SIGINT, signal.SIG_DFL)

        environment = {**os.environ, CHOICE: str(choice), "QT_QPA_PLATFORM": "offscreen", "LC_ALL": "C.UTF-8",
                       "HOME": str(self.shop.work / "home"), "PYTHONDONTWRITEBYTECODE": "1",
                       "NORLAPLAN_CLI": str(self.shop.build / "bin" / "norlaplan-cli")}
        environment.pop("XDG_CONFIG_HOME", None)
        try:
            return self.shop.call(command, cwd=self.shop.build, env=environment, preexec_fn=limits, timeout=1200)
        except subprocess.TimeoutExpired as late:
            return subprocess.CompletedProcess(command, -signal.SIGXCPU, str(late.stdout or ""))

    def near(self, path):
        """What a test says that is about a file of the screens: the name of its form or of those that include it."""
        stem = Path(path).stem
        inside = f'"screens/{stem}.h"'
        stems = {stem.removesuffix("Layout")} | {
            user.stem for user in (self.shop.root / "src" / "screens").glob("*.[ch]*") if inside in user.read_text()}
        words = [f"{one}(?:Test)?" for one in stems]
        words += [f"forms::{self.forms[one]}" for one in stems if one in self.forms]
        return re.compile(rf"\b(?:{'|'.join(sorted(words))})\b")

    def order(self, stage, mutant):
        """The tests that speak of the mistake's file most often first, then those that noticed most; of the screens'
        only as many as are wanted."""
        if len(stage) == 1:
            return stage
        words = self.near(mutant.path)

        def nearness(program):
            source = self.shop.root / "tests" / "screens" / f"{program[0].removeprefix('test_screens_')}.cpp"
            return len(words.findall(source.read_text(encoding="utf-8"))) if source.exists() else 0

        found = sorted(stage, key=lambda program: (-nearness(program), -self.kills[program[0]],
                                                   self.shop.seconds.get(program[0], SLOW)))
        return found[: self.shop.nearest] if stage[0][0].startswith("test_screens_") else found

    def judge(self, stage, mutant, choice):
        """Whether a test of the stage notices: the outcome, and which one."""
        for program in self.order(stage, mutant):
            target, command = program
            built = self.build([program])
            if built and built.returncode != 0:
                return report.NO_BUILD, ""
            if choice and target not in self.shop.seconds:
                self.check(program, "The unchanged program fails its tests.")
            done = self.run(command, choice, 5 + 4 * self.shop.seconds.get(target, SLOW))
            if done.returncode in (-signal.SIGXCPU, -signal.SIGKILL):
                return report.TIMED_OUT, target
            if done.returncode != 0:
                self.kills[target] += 1
                return report.KILLED, self.failed_test(done.stdout) or target
        return report.SURVIVED, ""

    @staticmethod
    def failed_test(output):
        found = re.search(r"\[  FAILED  \] ([\w./]+)|^FAIL!\s*: (\S+)|^(?:FAIL|ERROR): (\w+)", output, re.MULTILINE)
        return next((name for name in found.groups() if name), "") if found else ""

    def try_each(self, mutants):
        left = {number: mutant for number, mutant in enumerate(mutants, 1) if mutant.body}
        alone = [mutant for mutant in mutants if not mutant.body]
        for stage in self.stages:
            if not left:
                break
            for mutant in self.build_together(stage, left, alone):
                yield mutant, report.NO_BUILD, ""
            for number, mutant in list(left.items()):
                outcome, by = self.judge(stage, mutant, number)
                if outcome != report.SURVIVED:
                    del left[number]
                    yield mutant, outcome, by
            self.restore(mutants)
        for mutant in left.values():
            yield mutant, report.SURVIVED, ""
        for mutant in alone:
            yield mutant, *self.judge_alone(mutant)

    def judge_alone(self, mutant):
        for stage in self.stages:
            self.write(mutant.path, mutant.mutated())
            outcome, by = self.judge(stage, mutant, 0)
            self.restore([mutant])
            if outcome != report.SURVIVED:
                break
        return outcome, by

    def build_together(self, stage, left, alone):
        """Builds the stage with the mistakes that are left; gives those that don't compile, and moves to `alone` the
        ones of files whose trouble nobody can name."""
        for _ in range(ROUNDS):
            spans = self.write_together(left)
            # All screens' tests stand on the same sources: one shows what compiles.
            built = self.build(stage[:1] if stage[0][0].startswith("test_screens_") else stage, 0)
            if built is None or built.returncode == 0:
                return
            blamed = self.blamed(built.stdout, spans)
            for number in [number for number, mutant in left.items() if mutant in blamed]:
                self.restore([left[number]])
                yield left.pop(number)
            if not blamed:
                (self.shop.work / "unexplained.log").write_text(built.stdout)
                paths = {path for path in spans if f"{path.removeprefix('src/')}:" in built.stdout} or set(spans)
                self.set_apart(left, alone, paths)
        self.set_apart(left, alone, {mutant.path for mutant in left.values()})

    def set_apart(self, left, alone, paths):
        for number in [number for number, mutant in left.items() if mutant.path in paths]:
            self.restore([left[number]])
            alone.append(left.pop(number))

    def restore(self, mutants):
        for mutant in mutants:
            self.write(mutant.path, mutant.text)

    def write(self, path, text):
        if self.shop.write(path, text.encode()):
            self.built.clear()

    def write_together(self, mutants):
        """Writes all mistakes of function bodies, each under its number, and tells the lines that each one has."""
        spans = {}
        for path in {mutant.path for mutant in mutants.values()}:
            mine = [(number, mutant) for number, mutant in mutants.items() if mutant.path == path]
            text, at, lines = CHOOSER, 0, []
            whole = mine[0][1].text
            for first, last in sorted({mutant.body for _, mutant in mine}):
                text += whole[at:first] + "{"
                for number, mutant in mine:
                    if mutant.body == (first, last):
                        text += f"if (mutation::chosen == {number}) "
                        start = text.count("\n") + 1
                        text += whole[first:mutant.start] + mutant.replacement + whole[mutant.end:last]
                        lines.append((start, text.count("\n") + 1, mutant))
                        text += "\nelse "
                text += whole[first:last] + "}"
                at = last
            self.write(path, text + whole[at:])
            spans[path] = lines
        return spans

    @staticmethod
    def blamed(output, spans):
        found = []
        for path, lines in spans.items():
            # A header is reached through its folder's include root.
            name = re.escape(path.removeprefix("src/"))
            for line in re.findall(r"\b" + name + r":(\d+):\d+: error", output):
                found += [mutant for first, last, mutant in lines if first <= int(line) <= last]
        return list(dict.fromkeys(found))
