"""What the slides of the show have in common: heading and foot, lists, remarks
and tables."""

from drawings import BLUE, GRAY, NOTE, PALE, RED
from flat_slides import HEIGHT, WIDTH

LEFT = 1.6


def framed(show, heading):
    """A slide with its heading and the maker's foot."""
    slide = show.slide()
    slide.rect(0, 0, WIDTH, 2.3, fill=BLUE)
    slide.rect(0, 2.3, WIDTH, 0.12, fill=RED)
    slide.text(LEFT, 0.45, WIDTH - 2 * LEFT, 1.5, heading, size=28, bold=True,
               colour="#ffffff", middle=True)
    slide.text(LEFT, HEIGHT - 0.95, 12, 0.6, "Varden Corporation, Norlaring "
               "bearings", size=10, colour=GRAY)
    slide.text(WIDTH - LEFT - 3, HEIGHT - 0.95, 3, 0.6,
               str(len(show.slides)), size=10, colour=GRAY, align="end")
    return slide


def points(slide, left, top, width, *lines, size=18, height=10):
    # A bullet and a blank are as wide as the lines below are set in.
    slide.text(left, top, width, height, ["\u2022 " + line for line in lines],
               size=size, gap=0.28, hang=0.0223 * size)


def remark(slide, top, text, left=LEFT, width=WIDTH - 2 * LEFT, height=1.6):
    slide.rect(left, top, width, height, fill=NOTE, line="#d9c98a",
               thick=0.03)
    slide.text(left + 0.4, top, width - 0.8, height, text, size=16,
               middle=True)


def grid(slide, left, top, widths, rows, height=0.95, size=15):
    """A table; its first row is the head."""
    for number, row in enumerate(rows):
        x, y = left, top + number * height
        fill = "#dde4f3" if number == 0 else PALE if number % 2 else "#ffffff"
        for width, cell in zip(widths, row):
            slide.rect(x, y, width, height, fill=fill, line="#969cb4",
                       thick=0.02)
            slide.text(x + 0.2, y, width - 0.4, height, cell, size=size,
                       bold=number == 0, middle=True,
                       colour=BLUE if number == 0 else "#1a2240")
            x += width
