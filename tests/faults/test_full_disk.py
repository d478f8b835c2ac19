"""Saves onto a disk that is full indeed: a small one in memory, mounted where nobody else sees it."""

import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

MOUNT = 'mount -t tmpfs -o size=16m tmpfs "$0" && "$@"'


def with_small_disk(folder, *words):
    """Runs the words where the folder is a disk of its own."""
    return subprocess.run(["unshare", "--map-root-user", "--mount", "sh", "-c", MOUNT, folder, *words],
                          env={**os.environ, "NORLAPLAN_SMALL_DISK": folder, "TMPDIR": folder}, capture_output=True,
                          text=True, check=False, cwd=Path(__file__).resolve().parent)


def why_not(folder):
    """Why no disk can be mounted here; empty when it can."""
    try:
        tried = with_small_disk(folder, "true")
    except FileNotFoundError as missing:
        return str(missing)
    return tried.stderr.strip() if tried.returncode != 0 else ""


class FullDisk(unittest.TestCase):
    def test_is_told_and_keeps_the_old_files(self):
        with tempfile.TemporaryDirectory() as folder:
            reason = why_not(folder)
            if reason:
                print(f"\nNo save was made onto a full disk, since none can be mounted here: {reason}")
                self.skipTest(reason)
            done = with_small_disk(folder, sys.executable, "-m", "unittest", "on_small_disk")
            self.assertEqual(done.returncode, 0, done.stdout + done.stderr)
            self.assertIn("Ran 1 test", done.stderr)
            self.assertEqual(os.listdir(folder), [], "something was written beside the disk")


if __name__ == "__main__":
    unittest.main()
