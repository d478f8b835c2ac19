#!/usr/bin/env python3
"""Makes the slide show and the workbook of data/training.

usage: make_training.py --cli NORLAPLAN_CLI [--flat] [FOLDER]

FOLDER is data/training of this tree unless it is named. LibreOffice writes
them in the formats that every office program of the last decades reads;
--flat leaves its input there instead.
"""

import argparse
import subprocess
import sys
import tempfile
from pathlib import Path

HERE = Path(__file__).resolve().parent
sys.path[:0] = [str(HERE), str(HERE.parent / "help")]

from examples import Cases  # noqa: E402
from slides import CASES, training_show  # noqa: E402
from workbook import metric_workbook  # noqa: E402

DEFAULT_FOLDER = HERE.parents[1] / "data" / "training"


def converted(source, target, wanted):
    """Has LibreOffice write `source` as `target`."""
    with tempfile.TemporaryDirectory() as profile:
        subprocess.run(["soffice", "--headless",
                        f"-env:UserInstallation=file://{profile}",
                        "--convert-to", wanted, "--outdir", target.parent,
                        source], check=True, stdout=subprocess.DEVNULL)
    if not target.exists():
        raise RuntimeError(f"{target} was not written")


def make(cli, folder, flat):
    folder.mkdir(parents=True, exist_ok=True)
    documents = (
        ("varden", ".fodp", ".pps", "pps:MS PowerPoint 97 AutoPlay",
         lambda: training_show(Cases(cli, CASES).text).xml()),
        ("Metric Bearings", ".fods", ".xls", "xls:MS Excel 97",
         lambda: metric_workbook(cli).xml()))
    with tempfile.TemporaryDirectory() as scratch:
        for name, source_type, target_type, wanted, text in documents:
            source = (folder if flat else Path(scratch)) / (name + source_type)
            source.write_text(text(), "utf-8")
            if not flat:
                converted(source, folder / (name + target_type), wanted)


if __name__ == "__main__":
    parser = argparse.ArgumentParser()
    parser.add_argument("--cli", required=True)
    parser.add_argument("--flat", action="store_true")
    parser.add_argument("folder", nargs="?", type=Path, default=DEFAULT_FOLDER)
    options = parser.parse_args()
    make(options.cli, options.folder, options.flat)
