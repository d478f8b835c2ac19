"""The help documents are those that their script makes, and they are whole."""

import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tools" / "help"))

import make_help  # noqa: E402


class HelpDocuments(unittest.TestCase):
    def test_are_made_by_their_script(self):
        with tempfile.TemporaryDirectory() as folder:
            make_help.make(Path(folder))
            for made in Path(folder).iterdir():
                self.assertEqual(made.read_bytes(), (ROOT / "data" / "help" / made.name).read_bytes(), made.name)

    def test_close_every_group(self):
        for name, text in make_help.DOCUMENTS.items():
            plain = text().replace("\\{", "").replace("\\}", "").replace("\\\\", "")
            self.assertEqual(plain.count("{"), plain.count("}"), name)


if __name__ == "__main__":
    unittest.main()
