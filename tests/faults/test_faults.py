"""Whatever happens to its files, a save leaves the old one or the new one, says what it could not do, and the program
goes on. NORLAPLAN_FAULT_KILLS is the number of programs that are killed while they save."""

import fcntl
import os
import unittest
from pathlib import Path

from saving import ALL, FEW, LONG, ONE_BY_ONE, CommandLine, every_save, rights_hold, some_time

KILLS = int(os.environ.get("NORLAPLAN_FAULT_KILLS", "36"))
# For the tests that take more of them than the few.
MORE = ALL if LONG else (*CommandLine.WAYS, "settings", "preview", "application")
FASTEST = ALL if LONG else ("life.rtf", "datasheet.pdf", "results.csv")
# No save takes as many file operations; one that does never ends.
MOST_OPERATIONS = 60


class Faults(unittest.TestCase):
    figures = {"operations": 0, "faults": 0, "kills": 0}

    @classmethod
    def tearDownClass(cls):
        if cls.figures["faults"] or cls.figures["kills"]:
            print("\n" + ", ".join(f"{count} {name}" for name, count in cls.figures.items()))

    def check(self, way, outcome, where, told=True, together=True):
        """What holds after every save, whatever has happened to it. `told`: a save that failed names its file.
        `together`: the files of one save are all old or all new."""
        self.assertEqual(way.places.complaint(together and way.name not in ONE_BY_ONE), "", where)
        self.assertTrue(outcome.sound, f"{where}: {outcome}")
        self.assertNotIn("terminate", outcome.told, where)
        if told and not self.is_saved(way):
            self.assert_named(way, outcome, where)

    @staticmethod
    def is_saved(way):
        """Whether what was to be saved is there. The sheet of the program's folder is moved, and may stay there too."""
        only = [str(way.target.relative_to(way.places.folder))] if way.name == "sheet" else None
        return way.places.is_new(only)

    def assert_named(self, way, outcome, where):
        """The message has words, and the name of a file that was to be written."""
        names = [Path(name).name for name in way.changed]
        self.assertTrue(any(name in outcome.told for name in names), f"{where} told '{outcome.told}'")

    def next_save_clears(self, way, where):
        """A save without a fault takes away what one before has left."""
        way.whole()
        self.assertEqual(way.places.left(), [], where)
        self.assertTrue(way.places.is_new(), where)

    def sweep(self, kind, names):
        """Fails the first, second, third operation of each save, until one goes through."""
        for way in every_save(self.addCleanup, names):
            for at in range(1, MOST_OPERATIONS):
                where = f"{way.name}, {kind} at operation {at}"
                way.places.reset()
                outcome = way.save(kind, at)
                # Where nothing can be changed any more, nothing can be put back.
                self.check(way, outcome, where, kind != "kill", kind in ("once", "full"))
                if kind in ("once", "full") and outcome.told:
                    self.assertEqual(way.places.left(), [], where)
                if not outcome.killed:
                    self.assertTrue(way.go_on(), f"{where}: the program isn't alive")
                if not outcome.reached:
                    self.assertEqual(outcome.told, "", where)
                    break
                self.figures["faults"] += 1
                if way.places.left():
                    self.next_save_clears(way, where)
            else:
                self.fail(f"{way.name} never ends")
            self.assertGreater(at, 1, f"{way.name} writes without being seen")
            self.figures["operations"] += at - 1 if kind == "once" else 0

    def test_an_operation_that_fails(self):
        self.sweep("once", MORE)

    def test_a_disk_that_is_full_from_an_operation_on(self):
        self.sweep("full", FASTEST)

    def test_a_folder_that_can_only_be_read_from_an_operation_on(self):
        self.sweep("readonly", FASTEST)

    def test_a_program_that_is_killed_at_an_operation(self):
        self.sweep("kill", FASTEST)

    def test_a_folder_that_vanishes_in_the_middle_of_a_save(self):
        for way in every_save(self.addCleanup, (*FEW, "settings")):
            gone = way.out.with_name(way.out.name + ".gone")
            for at in range(1, MOST_OPERATIONS):
                where = f"{way.name}, its folder vanishes at operation {at}"
                way.places.reset()
                beside = set(os.listdir(way.folder))
                outcome = way.save("vanish", at, way.out)
                if not outcome.reached:
                    self.assertEqual(outcome.told, "", where)
                    self.assertTrue(way.places.is_new() and way.go_on(), where)
                    break
                self.figures["faults"] += 1
                self.assertFalse(way.out.exists(), f"{where}: made anew")
                gone.rename(way.out)
                if way.out != way.folder:
                    self.assertEqual(set(os.listdir(way.folder)) - beside - {"log"}, set(), where)
                # What was put in place first can't be taken back where there is nothing any more.
                self.check(way, outcome, where, True, False)
                self.assertTrue(way.go_on(), f"{where}: the program isn't alive")
                if way.places.left():
                    self.next_save_clears(way, where)
            else:
                self.fail(f"{way.name} never ends")
            self.assertGreater(at, 1, f"{way.name} writes without being seen")

    def refused(self, way, where, **fault):
        """A save that can't be made is told, names the file, leaves nothing and doesn't end the program."""
        outcome = way.save(**fault)
        self.assert_named(way, outcome, where)
        self.assertTrue(outcome.sound, f"{where}: {outcome}")
        self.assertEqual(way.places.left(), [], where)
        return outcome

    def test_a_limit_on_the_size_of_files_is_a_full_disk(self):
        for way in every_save(self.addCleanup, FEW):
            way.places.reset()
            # Some files have a few lines.
            limit = min(500, *(len(way.places.new[name]) - 1 for name in way.changed if name in way.places.new))
            outcome = self.refused(way, f"{way.name} under a limit of {limit} bytes", limit=limit)
            self.assertIn("Disk full", outcome.told)
            self.assertEqual(way.places.complaint(way.name not in ONE_BY_ONE), "")
            self.assertFalse(way.places.is_new())
            self.assertTrue(way.go_on(), way.name)

    @unittest.skipUnless(rights_hold(), "rights don't hold for whoever runs this")
    def test_a_folder_that_may_only_be_read_is_told_and_keeps_the_old_file(self):
        for way in every_save(self.addCleanup, MORE):
            self.refused_by_rights(way, way.out, 0o500)

    @unittest.skipUnless(rights_hold(), "rights don't hold for whoever runs this")
    def test_a_file_that_may_only_be_read_is_told_and_kept(self):
        for way in every_save(self.addCleanup, (*FEW, "settings", "sheet")):
            self.refused_by_rights(way, way.target, 0o400)

    def refused_by_rights(self, way, place, rights):
        way.places.reset()
        before = place.stat().st_mode
        place.chmod(rights)
        outcome = self.refused(way, f"{way.name} where {place} may only be read")
        place.chmod(before)
        self.assertIn("Permission denied", outcome.told)
        self.assertEqual(way.places.complaint(way.name not in ONE_BY_ONE), "", way.name)
        self.assertFalse(way.places.is_new(), way.name)
        self.assertTrue(way.go_on(), way.name)

    def test_a_target_that_is_a_folder_stays_one(self):
        for way in every_save(self.addCleanup, FEW):
            way.places.reset()
            way.target.unlink(missing_ok=True)
            way.target.mkdir()
            self.refused(way, f"{way.name} onto a folder")
            self.assertTrue(way.target.is_dir(), way.name)
            way.target.rmdir()
            self.assertTrue(way.go_on(), way.name)

    def test_a_folder_that_has_vanished_is_told_and_not_made_anew(self):
        for way in every_save(self.addCleanup, [*CommandLine.WAYS, "application", "life", "graph"]):
            way.places.reset()
            gone = way.out.with_name("gone")
            way.out.rename(gone)
            where = f"{way.name} into a folder that has vanished"
            outcome = way.save()
            self.assert_named(way, outcome, where)
            self.assertTrue(outcome.sound, f"{where}: {outcome}")
            self.assertFalse(way.out.exists(), where)
            gone.rename(way.out)
            self.assertEqual(way.places.complaint(), "", where)
            self.assertTrue(way.go_on(), way.name)

    def test_a_target_that_another_program_has_open_is_replaced_and_stays_whole_for_it(self):
        for way in every_save(self.addCleanup, FEW):
            way.places.reset()
            before = way.target.read_bytes() if way.target.exists() else None
            if before is None:
                continue
            with open(way.target, "rb") as reader:
                fcntl.flock(reader, fcntl.LOCK_EX)
                outcome = way.save()
                self.assertEqual(outcome.told, "", way.name)
                self.assertEqual(reader.read(), before, way.name)
            self.assertTrue(way.places.is_new(), way.name)
            self.assertTrue(way.go_on(), way.name)

    def test_programs_that_are_killed_while_they_save(self):
        for way in every_save(self.addCleanup, FEW):
            wanted, killed = -(-KILLS // len(FEW)), 0
            # Some programs have ended before their time has come: others take their turn.
            for _ in range(4 * wanted):
                if killed == wanted:
                    break
                way.places.reset()
                at = some_time()
                where = f"{way.name}, killed {at} microseconds after its first file operation"
                outcome = way.save("killafter", at)
                self.check(way, outcome, where, False, False)
                if outcome.killed:
                    killed += 1
                else:
                    self.assertTrue(way.go_on(), where)
                self.next_save_clears(way, where)
            self.assertGreater(killed, 0, way.name)
            self.figures["kills"] += killed


if __name__ == "__main__":
    unittest.main()
