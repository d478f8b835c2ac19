"""norlaplan-cli batch: one life calculation for each row of a table."""

import csv
import json
import os
import pty
import random
import signal
import subprocess
import tempfile
import time
import unittest
from pathlib import Path

from program import CLI, own_tables, result, run

HEAD = "partNumber,radial,axial,moment,speed\n"
NUMBERS = ("K19013XP0", "K19013CP0", "K19013BP0R", "K19013FP0E", "K10008XP0", "k19013xp0a", "K19013XF0", "N19013BP0T")
# Where the program is built with the address sanitizer, that keeps what was freed to watch it.
FREED_AT_ONCE = {"ASAN_OPTIONS": "quarantine_size_mb=1"}
BAD_NUMBERS = ("K19113XP0", "K19013XQ0", "K19013TP0", "K19013XP")


def single_call(row, *options):
    """The call of `life` for the case."""
    words = ["life", row["partNumber"]]
    for load in ("radial", "axial", "moment", "speed"):
        if row[load]:
            words += [f"--{load}", row[load]]
    return run(*options, "--json", *words)


class Table(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.folder = Path(scratch.name)
        self.cases = self.folder / "cases.csv"
        self.results = self.folder / "results.csv"

    def batch(self, text, *options):
        self.cases.write_text(text, "utf-8")
        done = run(*options, "batch", str(self.cases), "--output", str(self.results))
        self.assertEqual((done.returncode, done.stderr), (0, ""), done.stdout)
        with open(self.results, newline="", encoding="utf-8") as file:
            return list(csv.DictReader(file))

    def files(self):
        return sorted(path.name for path in self.folder.iterdir())


class EqualToSingleCalls(Table):
    def compare(self, *options):
        chance = random.Random(5)
        lines = [HEAD.strip()]
        for _ in range(60):
            loads = [str(round(chance.uniform(-20, 1500), chance.choice((0, 2)))), chance.choice(("", "0", "-40", "150.5", "800")),
                     chance.choice(("", "0", "300", "-250")), chance.choice(("", "0", "200", "5000"))]
            lines.append(",".join([chance.choice(NUMBERS + BAD_NUMBERS), *loads]))
        rows = self.batch("\n".join(lines) + "\n", *options)
        cases = list(csv.DictReader(lines))
        self.assertEqual(len(rows), len(cases))
        failed = 0
        for row, case in zip(rows, cases):
            with self.subTest(case):
                done = single_call(case, *options)
                life = json.loads(done.stdout)
                self.assertEqual([row[load] for load in ("radial", "axial", "moment", "speed")],
                                 [case[load] for load in ("radial", "axial", "moment", "speed")])
                if done.returncode != 0:
                    failed += 1
                    error = life["error"]
                    self.assertEqual(row["error"], f"{error['title']}: {error['prompt']}".replace("\n", " "))
                    self.assertEqual(row["l10Revolutions"], "")
                    continue
                self.assertEqual(row["error"], "")
                self.assertEqual(row["warnings"], "; ".join(f"{w['title']}: {w['prompt']}" for w in life["warnings"]))
                for name, value in life.items():
                    if isinstance(value, (list, dict)):
                        continue
                    if value is None:
                        self.assertEqual(row[name], "", name)
                    elif isinstance(value, str):
                        self.assertEqual(row[name], value, name)
                    else:
                        self.assertEqual(float(row[name]), value, name)
                        self.assertIn(f'"{name}": {row[name]},', done.stdout)
        self.assertGreater(failed, 0)
        self.assertGreater(len(rows) - failed, 20)

    def test_in_every_number_and_message(self):
        self.compare()

    def test_in_metric_units(self):
        self.compare("--units", "METRIC")

    def test_whatever_stands_before_them_and_for_any_number_of_jobs(self):
        chance = random.Random(6)
        lines = [f"{chance.choice(NUMBERS)},{chance.randint(0, 900)},{chance.randint(0, 90)},{chance.randint(0, 300)},100"
                 for _ in range(5000)]
        texts = []
        for jobs in (1, 2, 7):
            self.cases.write_text(HEAD + "\n".join(lines), "utf-8")
            done = run("batch", str(self.cases), "--output", str(self.results), "--jobs", str(jobs))
            self.assertEqual(done.returncode, 0)
            texts.append(self.results.read_text("utf-8"))
        self.assertEqual(texts[0], texts[1])
        self.assertEqual(texts[0], texts[2])
        self.assertEqual(len(texts[0].splitlines()), 5001)
        forward = texts[0].splitlines()[1:]
        self.cases.write_text(HEAD + "\n".join(reversed(lines)), "utf-8")
        run("batch", str(self.cases), "--output", str(self.results))
        self.assertEqual(list(reversed(self.results.read_text("utf-8").splitlines()[1:])), forward)


class Cases(Table):
    def test_have_columns_in_any_order_and_loads_that_are_left_out_are_0(self):
        whole = self.batch(HEAD + "K19013XP0,500,0,0,0\n")[0]
        other = self.batch("\ufeffradial, partNumber\r\n500,K19013XP0\r\n\r\n")[0]
        self.assertEqual(other["l10Revolutions"], whole["l10Revolutions"])
        short = self.batch(HEAD + "K19013XP0,500\n")[0]
        self.assertEqual(short["l10Revolutions"], whole["l10Revolutions"])

    def test_may_stand_in_quotes(self):
        row = self.batch(HEAD + '"K19013XP0" , "500"\n')[0]
        self.assertEqual((row["partNumber"], row["error"]), ("K19013XP0", ""))

    def test_keep_the_blanks_of_a_quoted_number(self):
        """As they are read again: outside of quotes they would count for nothing."""
        for number in ("K19013\t", "\tK19013", " K19013", "K19013 "):
            self.assertEqual(self.batch(HEAD + f'"{number}",500\n')[0]["partNumber"], number)
            self.assertIn(f'"{number}",500', self.results.read_text("utf-8"))

    def test_that_cannot_be_read_tell_so_in_their_row(self):
        rows = self.batch(HEAD + "K19013XP0,many\nK19013XP0,1,2,3,4,5\n\"K19013XP0,1\nK19013XP0,500\n" + "x" * 50000 +
                          ",1\n,1\nK19013XP0,500\n")
        self.assertEqual([row["error"] for row in rows],
                         ['radial: "many" is not a number', "Row of the table: 6 fields where the head has 5",
                          "Row of the table: A quote isn't closed", "",
                          "Part Number too long: Please verify Part Number and try again",
                          "Part Number too short: Please verify Part Number and try again", ""])

    def test_are_read_up_to_their_ten_thousandth_character(self):
        blanks = " " * (10000 - len("K19013XP0,") - len("50"))
        row = self.batch(HEAD + f"K19013XP0,{blanks}507\n")[0]
        self.assertEqual((row["radial"], row["error"]), ("50", ""))

    def test_of_a_z_separator_take_the_option(self):
        row = self.batch(HEAD + "K19013XZ0,500\n")[0]
        self.assertIn("Please specify which Z separator", row["error"])
        self.cases.write_text(HEAD + "K19013XZ0,500\n", "ascii")
        self.assertEqual(run("batch", str(self.cases), "--output", str(self.results), "--z-separator", "T").returncode, 0)
        with open(self.results, newline="", encoding="utf-8") as file:
            self.assertEqual(next(csv.DictReader(file))["error"], "")

    def test_may_be_none(self):
        self.assertEqual(self.batch(HEAD), [])
        status, told = result("batch", str(self.cases), "--output", str(self.results))
        self.assertEqual((status, told["cases"], told["failed"]), (0, 0, 0))

    def test_are_counted_with_those_that_failed(self):
        self.cases.write_text(HEAD + "K19013XP0,500\nbad,1\n", "ascii")
        status, told = result("batch", str(self.cases), "--output", str(self.results))
        self.assertEqual(status, 0)
        self.assertEqual(told, {"cases": 2, "failed": 1, "file": str(self.results), "warnings": []})

    def test_need_a_head_row(self):
        for head, prompt in (("", "There is none"), ("partNumber,radail\n", 'No column is called "radail"'),
                             ("partNumber,partNumber\n", '"partNumber" stands there twice'),
                             ("radial\n", "It has no partNumber")):
            with self.subTest(head):
                self.cases.write_text(head, "ascii")
                status, told = result("batch", str(self.cases), "--output", str(self.results))
                self.assertEqual((status, told["error"]["title"]), (1, "Head row of the cases"))
                self.assertTrue(told["error"]["prompt"].startswith(prompt))
                self.assertFalse(self.results.exists())

    def test_that_are_missing_or_a_folder_or_fail_are_run_time_errors_that_name_the_file(self):
        # The first page of a process's memory is a plain file that can be opened and not be read.
        self.cases.write_text("", "ascii")
        for path, number, text in ((self.folder / "none.csv", 53, "File not found"),
                                   (self.cases / "under-a-file.csv", 53, "File not found"),
                                   (self.folder, 75, "Path/File access error"),
                                   (Path("/proc/self/mem"), 57, "Device I/O error"),
                                   (self.folder / ("x" * 256), 52, "Bad file name or number: the name is too long")):
            with self.subTest(text):
                status, told = result("batch", str(path), "--output", str(self.results))
                self.assertEqual((status, told["error"]["kind"], told["error"]["number"]), (3, "runtime", number))
                # Of a long path the middle is left out.
                self.assertTrue(told["error"]["prompt"].startswith(f"{text}: {str(path)[:120]}"))


class Results(Table):
    def test_replace_an_earlier_file_only_when_they_are_whole(self):
        self.results.write_text("earlier", "ascii")
        self.cases.write_text("wrong,head\n", "ascii")
        self.assertEqual(run("batch", str(self.cases), "--output", str(self.results)).returncode, 1)
        self.assertEqual(self.results.read_text("ascii"), "earlier")
        self.batch(HEAD + "K19013XP0,500\n")
        self.assertTrue(self.results.read_text("utf-8").startswith("partNumber,radial,"))
        self.assertEqual(self.files(), ["cases.csv", "results.csv"])

    def test_go_nowhere_but_into_a_folder_that_is_there(self):
        self.cases.write_text(HEAD, "ascii")
        status, told = result("batch", str(self.cases), "--output", str(self.folder / "none" / "r.csv"))
        self.assertEqual((status, told["error"]["number"]), (3, 75))

    def long_cases(self):
        with open(self.cases, "w", encoding="ascii") as file:
            file.write(HEAD)
            file.writelines(f"K19013XP0,{i % 900 + 1},{i % 70},{i % 300},100\n" for i in range(500000))

    def test_leave_no_half_file_on_ctrl_c(self):
        self.long_cases()
        self.results.write_text("earlier", "ascii")
        for number in (signal.SIGINT, signal.SIGTERM):
            child = subprocess.Popen([CLI, "batch", str(self.cases), "--output", str(self.results)],
                                     stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)
            while len(self.files()) < 3 and child.poll() is None:
                time.sleep(0.02)
            time.sleep(0.2)
            child.send_signal(number)
            _, told = child.communicate(timeout=60)
            self.assertEqual(child.returncode, -number, told)
            self.assertEqual(self.files(), ["cases.csv", "results.csv"])
            self.assertEqual(self.results.read_text("ascii"), "earlier")

    def waiting_to_be_read(self, ignored):
        """A call whose results are written, and whose count nobody reads yet: its process and the pipe's reading end."""
        self.cases.write_text(HEAD + "K19013XP0,500\n", "ascii")
        reading, writing = os.pipe()
        os.set_blocking(writing, False)
        try:
            while True:
                os.write(writing, bytes(4096))
        except BlockingIOError:
            os.set_blocking(writing, True)
        action = signal.SIG_IGN if ignored else signal.SIG_DFL
        child = subprocess.Popen([CLI, "batch", str(self.cases), "--output", str(self.results)], stdout=writing,
                                 stderr=subprocess.PIPE, preexec_fn=lambda: signal.signal(signal.SIGINT, action))
        os.close(writing)
        while not self.results.exists() and child.poll() is None:
            time.sleep(0.01)
        time.sleep(0.2)
        return child, reading

    def test_are_kept_on_ctrl_c_while_their_count_is_printed(self):
        for ignored in (False, True):
            self.results.unlink(missing_ok=True)
            child, reading = self.waiting_to_be_read(ignored)
            child.send_signal(signal.SIGINT)
            try:
                if ignored:  # as in the background of a shell
                    self.assertRaises(subprocess.TimeoutExpired, child.wait, 0.3)
                    with open(reading, "rb", closefd=False) as pipe:
                        self.assertTrue(pipe.read().endswith(b": 1 cases, 0 failed\n"))
                self.assertEqual(child.wait(timeout=20), 0 if ignored else -signal.SIGINT)
            finally:
                child.kill()
                child.communicate()
                os.close(reading)
            self.assertEqual(self.files(), ["cases.csv", "results.csv"])

    def drawn_on_a_terminal(self):
        leader, follower = pty.openpty()
        child = subprocess.Popen([CLI, "batch", str(self.cases), "--output", str(self.results)],
                                 stdout=subprocess.DEVNULL, stderr=follower)
        os.close(follower)
        drawn = b""
        try:
            while block := os.read(leader, 4096):
                drawn += block
        except OSError:
            pass  # the other end is closed
        os.close(leader)
        self.assertEqual(child.wait(timeout=60), 0)
        return drawn.decode("ascii")

    def test_draw_a_bar_on_a_terminal_only(self):
        row, count, at_a_time = "K19013XP0,500\n", 25000, 2048
        self.cases.write_text(HEAD + row * count, "ascii")
        done = run("batch", str(self.cases), "--output", str(self.results))
        self.assertEqual(done.stderr, "")
        drawn = self.drawn_on_a_terminal()
        self.assertTrue(drawn.endswith("\r\x1b[K"), drawn)
        bars = drawn.removesuffix("\r\x1b[K").split("\r")[1:]
        for bar in bars:
            cases = int(bar.split("%")[1].removesuffix(" cases").replace(",", ""))
            self.assertTrue(cases == count or cases % at_a_time == 0, bar)
            part = (len(HEAD) + cases * len(row)) / (len(HEAD) + count * len(row))
            full = int(part * 30)
            self.assertEqual(bar, f"[{'#' * full}{'.' * (30 - full)}] {int(part * 100):3d} %  {cases:,} cases")
        self.assertIn(f" {at_a_time:,} cases", bars[0])

    def test_work_with_as_many_threads_as_jobs(self):
        self.long_cases()
        for jobs in (1, 3):
            child = subprocess.Popen([CLI, "batch", str(self.cases), "--output", str(self.results), "--jobs", str(jobs)],
                                     stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            try:
                end, seen = time.monotonic() + 60.0, []
                while len(seen) < 200 and time.monotonic() < end and child.poll() is None:
                    if len(self.files()) > 1:  # the results have been begun
                        seen.append(len(os.listdir(f"/proc/{child.pid}/task")))
                    time.sleep(0.005)
            finally:
                child.kill()
                child.wait()
            self.assertEqual(max(seen), jobs)
            for name in self.files():
                if name != "cases.csv":
                    (self.folder / name).unlink()

    def test_take_no_more_memory_for_more_cases(self):
        peaks = []
        for cases in (4000, 40000):
            self.cases.write_text(HEAD + "K19013CP0,500\n" * cases, "ascii")
            child = subprocess.Popen([CLI, "batch", str(self.cases), "--output", str(self.results), "--jobs", "2"],
                                     stdout=subprocess.DEVNULL, env=os.environ | FREED_AT_ONCE)
            _, status, usage = os.wait4(child.pid, 0)
            child.returncode = status
            self.assertEqual(status, 0)
            peaks.append(usage.ru_maxrss)
        self.assertLess(peaks[1], peaks[0] * 1.3 + 2000)

    def test_of_tables_that_are_damaged_fail_alone(self):
        with own_tables() as folder:
            (folder / "Data Tables" / "13-X.csv").unlink(missing_ok=True)
            for table in (folder / "Data Tables").iterdir():
                if table.name.lower() == "13-x.csv":
                    table.unlink()
            rows = self.batch(HEAD + "K19013XP0,500\nK19013CP0,500\n", "--program-folder", str(folder))
        self.assertIn("Please recheck validity of part number", rows[0]["error"])
        self.assertEqual(rows[1]["error"], "")


class Wrong(unittest.TestCase):
    def test_usage_is_told(self):
        for words in (("batch",), ("batch", "a.csv"), ("batch", "a.csv", "--output", "b.csv", "--jobs", "0"),
                      ("batch", "a.csv", "--output", "b.csv", "--jobs", "many")):
            self.assertEqual(run(*words).returncode, 2)


if __name__ == "__main__":
    unittest.main()
