"""README shows the pictures that are made for it from the program, and its links lead somewhere."""

import os
import re
import subprocess
import unittest
from pathlib import Path

from programs import SOURCE

MAKER = os.environ["NORLAPLAN_README_PICTURES"]
IMAGES = SOURCE / "docs" / "images"
PAGES = [SOURCE / "README.md", SOURCE / "CONTRIBUTING.md", *sorted((SOURCE / "docs").glob("*.md"))]


def links_of(page):
    return [link for link in re.findall(r"\]\(([^)]+)\)", page.read_text(encoding="utf-8")) if "://" not in link]


def anchors_of(page):
    heads = re.findall(r"^#+ (.+)$", page.read_text(encoding="utf-8"), re.MULTILINE)
    return {re.sub(r"[^\w\- ]", "", head.lower()).strip().replace(" ", "-") for head in heads}


class Readme(unittest.TestCase):
    @unittest.skipUnless(MAKER, "this build makes no pictures for it")
    def test_shows_the_pictures_that_are_made_and_no_other(self):
        made = subprocess.run([MAKER, "--list"], capture_output=True, text=True, check=True, timeout=60).stdout.split()
        shown = [Path(link).name for link in links_of(SOURCE / "README.md") if link.endswith(".png")]
        self.assertEqual(sorted(shown), sorted(made))
        self.assertEqual(sorted(path.name for path in IMAGES.iterdir()), sorted(made))

    def test_every_link_leads_to_a_file_and_a_heading_of_it(self):
        for page in PAGES:
            for link in links_of(page):
                with self.subTest(page=page.name, link=link):
                    file, _, anchor = link.partition("#")
                    target = page.parent / file if file else page
                    self.assertTrue(target.exists())
                    if anchor:
                        self.assertIn(anchor, anchors_of(target))


if __name__ == "__main__":
    unittest.main()
