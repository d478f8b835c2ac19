#!/usr/bin/env python3
"""Makes the drawing overlays of the data sheet as HP-GL plots.

usage: make_overlays.py [FOLDER]     default: data/overlays of this tree
"""

import sys
from pathlib import Path

import dimensions
import section
import separators
from plot import Plot

DEFAULT_FOLDER = Path(__file__).resolve().parents[2] / "data" / "overlays"
STYLES = "ABCFTUX"
# The suffix tells for which styles a separator's drawing is: four-point and radial, universal, other angular contact.
SUFFIXES = ("XC", "U", "A")


def style_overlay(style):
    plot = Plot()
    shape = section.draw_section(plot, style)
    dimensions.draw_dimensions(plot, shape)
    return plot.text()


def separator_overlay(name):
    plot = Plot()
    separators.draw_separator(plot, name)
    return plot.text()


def make(folder):
    folder.mkdir(parents=True, exist_ok=True)
    for style in STYLES:
        (folder / f"{style}.ovl").write_bytes(style_overlay(style).encode("ascii"))
    for name in separators.SEPARATORS:
        for suffix in SUFFIXES:
            (folder / f"{name}{suffix}.sep").write_bytes(separator_overlay(name).encode("ascii"))


if __name__ == "__main__":
    make(Path(sys.argv[1]) if len(sys.argv) > 1 else DEFAULT_FOLDER)
