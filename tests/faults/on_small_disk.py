"""Run by test_full_disk.py in a process in which the folder NORLAPLAN_SMALL_DISK is a disk of its own, that of all
temporary files."""

import os
import unittest
from pathlib import Path

from saving import FEW, ONE_BY_ONE, every_save

DISK = Path(os.environ["NORLAPLAN_SMALL_DISK"])
# Bytes that are left: for no content at all, for the beginning of a document, for a sheet and no picture of it.
ROOMS = (0, 8192, 1 << 20)


class FullDisk(unittest.TestCase):
    filler = DISK / "filler"

    def fill(self, room):
        """Leaves so many bytes on the disk."""
        with open(self.filler, "wb", buffering=0) as file:
            while True:
                try:
                    file.write(bytes(4096))
                except OSError:
                    break
            file.truncate(file.tell() - room)

    def test_is_told_and_keeps_the_old_files(self):
        for way in every_save(self.addCleanup, (*FEW, "settings", "bitmap")):
            for room in ROOMS:
                where = f"{way.name} with {room} bytes left"
                way.places.reset()
                self.fill(room)
                outcome = way.save()
                self.filler.unlink()
                self.assertTrue(outcome.sound, f"{where}: {outcome}")
                self.assertEqual(way.places.left(), [], where)
                if way.places.is_new():
                    self.assertTrue(room > 0 and outcome.told == "", f"{where}: {outcome}")
                else:
                    self.assertEqual(way.places.complaint(way.name not in ONE_BY_ONE), "", where)
                    # A form's save may find no room for the sheet of the bearing that it begins with.
                    self.assertIn(f"Disk full: {DISK}", outcome.told, where)
                self.assertTrue(way.go_on(), f"{where}: the program isn't alive")


if __name__ == "__main__":
    unittest.main()
