"""The training show: what a thin-section bearing is, how to choose one, and
how the program helps. Its numbers are those of norlaplan-cli."""

import math

from drawings import (BLUE, EDGE, GRAY, GREEN, PALE, RED, Chart, arrow, at,
                      face, ring_section, rose)
from flat_slides import HEIGHT, WIDTH, Show
from slide_layout import LEFT, framed, grid, points, remark

LOADS = "--radial 1200 --axial 300 --moment 900"
CASES = {
    "d": "decode K19013XP0",
    "d8": "decode K19008XP0",
    "d20": "decode K19020XP0",
    "l": f"life K19013XP0 {LOADS} --speed 400",
    "half": "life K19013XP0 --radial 600 --axial 150 --moment 450 --speed 400",
    "twice": "life K19013XP0 --radial 2400 --axial 600 --moment 1800 "
             "--speed 400",
    "b": f"life K19013BR0A {LOADS} --speed 400",
    "f": f"life K19013FR0A {LOADS} --speed 400",
    "p": "play K19013XP0",
    "t": "torque K19013XP0R",
    "r": "decode K19013XP0R",
    "s": "deflection K19013XP0 --preload .0008",
    "fits": 'fits K19013XP0 --high 250 --low -65 --shaft "6061 Aluminum" '
            '--housing "52100 Steel"',
    "find": 'search --style "4-POINT CONTACT" --min-bore 7 --max-od 9 '
            f"--min-height .4 --max-height .6 {LOADS} --speed 400",
}


def cover(show, n):
    slide = show.slide()
    slide.rect(0, 0, WIDTH, HEIGHT, fill=BLUE)
    slide.rect(0, 12.6, WIDTH, 0.12, fill=RED)
    face(slide, 18.3, 7.0, 5.4, 0.69, 81)
    slide.text(LEFT, 4.3, 11.5, 5.4, ["Thin-Section", "Ball Bearings"],
               size=40, bold=True, colour="#ffffff")
    slide.text(LEFT, 8.4, 11, 2, "What they are, how to choose one, and how "
               "NORLAPLAN-MM helps", size=18, colour="#dde4f3")
    slide.text(LEFT, 13.4, WIDTH - 2 * LEFT, 2, [
        "Varden Corporation, bearing training",
        f"The bearing on this page is K19013XP0, in proportion: bore "
        f"{n('d.bore * 25.4 ; 0')} mm, outside diameter "
        f"{n('d.outsideDiameter * 25.4 ; 0')} mm, {n('d.ballCount ; 0')} "
        "balls."], size=14, colour="#dde4f3", gap=0.2)


def what_it_is(show, n):
    slide = framed(show, "What a thin-section bearing is")
    scale = 3.3 / 145
    for x, outer, section, balls in ((5.6, 145, 50, 15), (13.9, 108, 13, 81)):
        face(slide, x, 7.6, outer * scale, section * scale, balls)
    slide.text(1.6, 11.3, 8, 1.6, ["An ordinary ball bearing",
                                   "190 \u00d7 290 \u00d7 46 mm"], size=14,
               align="center")
    slide.text(9.9, 11.3, 8, 1.6, [
        "Norlaring K19013XP0", f"{n('d.bore * 25.4 ; 0')} \u00d7 "
        f"{n('d.outsideDiameter * 25.4 ; 0')} \u00d7 "
        f"{n('d.height * 25.4 ; 0')} mm"], size=14, align="center")
    slide.text(18.2, 4.6, 5.8, 7, [
        "Same bore, same scale.",
        f"It weighs {n('d.mass * 0.4535924 ; 0.00')} kg.",
        "What would be a heavy ring is free for cables, light or a lighter "
        "machine."], size=16, gap=0.3)
    points(slide, LEFT, 13.4, WIDTH - 2 * LEFT,
           "The section stays the same while the bore grows.",
           "Many small balls share the load on a large circle.",
           "The rings are slender: they take the shape of their seats.",
           height=4)


def sections(show, n):
    slide = framed(show, "Three sections, one idea")
    for x, side, ball in ((4.4, 8, 3.969), (10.4, 13, 6.35), (18.4, 20, 9.525)):
        ring_section(slide, x, 8.2, side * 0.13, ball * 0.13, ())
        slide.text(x - 3, 11.2, 6, 0.9, f"{side} \u00d7 {side} mm", size=16,
                   bold=True, align="center", colour=BLUE)
    rows = [("Bore 190 mm", "Balls", "Weight", "Dynamic radial", "Static moment")]
    for name, case in (("K19008XP0", "d8"), ("K19013XP0", "d"),
                       ("K19020XP0", "d20")):
        rows.append((name, n(f"{case}.ballCount ; 0"),
                     n(f"{case}.mass ; 0.000") + " lbs",
                     n(f"{case}.dynamicRadial ; #,##0") + " lbs",
                     n(f"{case}.staticMoment ; #,##0") + " in-lbs"))
    grid(slide, LEFT, 12.4, (4.6, 3, 4.2, 5.2, 5.2), rows)
    remark(slide, 16.5, "A larger section carries more; a smaller one turns "
           "easier and weighs less.", height=1.2)


def part_number(show, n):
    slide = framed(show, "How to read a part number")
    parts = (("K", "Material", "52100 steel"), ("190", "Bore", "190 mm"),
             ("13", "Section", "13 \u00d7 13 mm"), ("X", "Style", "four-point"),
             ("P", "Separator", "brass ribbon"), ("0", "Precision", "class 1"),
             ("R", "Fit", "preload"))
    width = (WIDTH - 2 * LEFT) / len(parts)
    for number, (sign, name, meaning) in enumerate(parts):
        x = LEFT + number * width
        slide.rect(x + 0.1, 4.2, width - 0.2, 2.6, fill=PALE, line=EDGE,
                   corner=0.2)
        slide.text(x, 4.2, width, 2.6, sign, size=36, bold=True, colour=RED,
                   align="center", middle=True)
        slide.text(x, 7.0, width, 1.8, [name, meaning], size=13,
                   align="center")
    grid(slide, LEFT, 9.6, (3.4, 18.8), [
        ("Position", "Codes"),
        ("1", "K 52100 steel, S 440C, N coated with Armorline"),
        ("7", "A, U angular; B, F, T pairs; C radial; X four-point"),
        ("8", "P, R brass ribbon; J phenolic; N nylon; M, W wire; S springs; "
              "F full; Z others"),
        ("9", "0, 1, 2 class 1; 4 class 4; 6 class 6"),
        ("10", "none standard; A to J clearance; K to Y preload; Z by "
               "agreement")], size=14)
    remark(slide, 15.9, f"Here R means a preload of {n('r.fitLow ; .0000')} "
           f"to {n('r.fitHigh ; .0000')} inches. Without it the clearance is "
           f"{n('d.stdClearanceLow ; .0000')} to "
           f"{n('d.stdClearanceHigh ; .0000')} inches.")


def contact(show, n):
    slide = framed(show, "Four ways for a ball to touch")
    for x, name, lines, angles in (
            (3.9, "Radial contact, C", ("straight outward", "radial loads"),
             (90,)),
            (9.4, "Angular contact, A", ("30 degrees", "thrust one way"),
             (60,)),
            (14.9, "Four-point, X", ("two lines a ball", "all directions"),
             (60, 120))):
        ring_section(slide, x, 7.2, 2.2, 1.07, angles)
        slide.text(x - 2.8, 11.0, 5.6, 2.4, [f"*{name}*", *lines], size=15,
                   align="center")
    for x, angle in ((19.7, 60), (22.08, 120)):
        ring_section(slide, x, 7.2, 2.2, 1.07, (angle,), height=0.54)
    slide.text(17.8, 11.0, 6.2, 2.4, ["*Pair, B*", "both ways, and",
                                     "moments"], size=15, align="center")
    points(slide, LEFT, 14.3, WIDTH - 2 * LEFT,
           "Back-to-back (B): the lines spread toward the shaft, a long arm, "
           "stiff.",
           "Face-to-face (F): they meet toward the shaft, a short arm, "
           "forgiving.",
           "Tandem (T): both rows lean the same way, twice the thrust.",
           size=17, height=4)


def which_load(show, n):
    slide = framed(show, "Which contact for which load")
    grid(slide, LEFT, 3.4, (7.4, 4.8, 5, 5), [
        ("Style", "Radial", "Axial", "Moment"),
        ("C, radial contact", "yes", "no", "no"),
        ("A, angular contact", "with axial load", "one way", "no"),
        ("T, tandem pair", "with axial load", "one way, heavy", "no"),
        ("X, four-point contact", "good", "both ways", "good"),
        ("B, back-to-back pair", "best", "both ways", "best"),
        ("F, face-to-face pair", "best", "both ways", "fair")])
    slide.text(LEFT, 10.6, WIDTH - 2 * LEFT, 0.9,
               "The same bore and section under 1200 lbs radial, 300 lbs "
               "axial, 900 in-lbs at 400 rpm:", size=15)
    rows = [("Bearing", "L10 life, hours", "Static safety", "Torque, in-lbs")]
    for name, case in (("K19013XP0", "l"), ("K19013BR0A", "b"),
                       ("K19013FR0A", "f")):
        rows.append((name, n(f"{case}.l10Hours ; #,##0.0"),
                     n(f"{case}.staticSafetyFactor ; 0.0"),
                     n(f"{case}.torqueDisplay ; 0.0")))
    grid(slide, LEFT, 11.6, (7.4, 4.8, 5, 5), rows)
    remark(slide, 15.9, "A pair needs twice the height. Four-point contact "
           "needs the least room and turns hardest.")


def loads(show, n):
    slide = framed(show, "Radial load, axial load, moment")
    for x, name, unit in ((4.8, "Radial", "lbs or N"),
                          (12.7, "Axial", "lbs or N"),
                          (20.6, "Moment", "in-lbs or N-m")):
        slide.line(x - 3.2, 8.2, x + 3.2, 8.2, line=GRAY, thick=0.04, dash=True)
        for side in (-1, 1):
            y = 8.2 + side * 2.4
            slide.rect(x - 0.6, y - 0.6, 1.2, 1.2, fill="#c9d4ea", line=EDGE)
            slide.circle(x, y, 0.29, fill="#f4f6fb", line=EDGE)
        slide.text(x - 3, 11.8, 6, 1.6, [f"*{name}*", unit], size=16,
                   align="center")
    arrow(slide, 4.8, 4.0, 4.8, 5.0)
    arrow(slide, 9.6, 8.2, 11.9, 8.2)
    turn = [at(20.6, 8.2, 1.5, angle) for angle in range(150, 20, -6)]
    slide.polyline(turn, line=GREEN, thick=0.14)
    arrow(slide, *turn[-2], *at(20.6, 8.2, 1.5, 8))
    points(slide, LEFT, 13.7, WIDTH - 2 * LEFT,
           "Radial: across the axis, through the middle of the bearing.",
           "Axial: along the axis. Moment: force times its arm, it tilts the "
           "rings.",
           "A weight of 1200 lbs, 0.75 inches off the middle: 900 in-lbs.",
           size=17, height=4)


def spread(show, n):
    slide = framed(show, "How a load spreads over the balls")
    balls = {row: [float(n(f"l.balls[{81 * (row - 1) + i}].BallLoad ; 0.000"))
                   for i in range(81)] for row in (1, 2)}
    for x, row, colour in ((5.8, 1, BLUE), (14.0, 2, RED)):
        rose(slide, x, 7.4, 2.9, balls[row],
             2.3 * max(balls[row]) / max(balls[1]), colour)
        loaded = sum(1 for load in balls[row] if load > 0)
        slide.text(x - 4, 13.2, 8, 1.8, [
            f"*Row {row}*", f"{loaded} of {len(balls[row])} balls loaded, at "
            f"most {max(balls[row]):.1f} lbs"], size=14, align="center")
    slide.text(19.3, 5.0, 5, 8, [
        "*K19013XP0*", "1200 lbs radial", "300 lbs axial", "900 in-lbs",
        "Each spike is a ball's load. The heaviest decides the static safety, "
        "all of them the life."], size=15, gap=0.25)
    points(slide, LEFT, 15.3, WIDTH - 2 * LEFT,
           "A four-point bearing works like two rows in one.",
           "A ball's force grows with its deflection to the power 3/2.",
           size=17, height=3)


def play(show, n):
    slide = framed(show, "Clearance gives play")
    chart = Chart(slide, 4.4, 4.6, 12.4, 8.2, 0.006, 0.008)
    low, high = n("p.clearanceLow ; 0.0000"), n("p.clearanceHigh ; 0.0000")
    chart.band(float(low), float(high))
    chart.grid([(step / 1000, f"{step / 1000:.3f}") for step in range(7)],
               [(step / 1000, f"{step / 1000:.3f}") for step in range(0, 9, 2)])
    rows = range(0, int(n("p.rowCount ; 0")), 4)
    chart.curve([(float(n(f"p.curve[{row}][0] ; 0.000000")),
                  float(n(f"p.curve[{row}][1] ; 0.000000")))
                 for row in rows], RED)
    chart.names("Diametral clearance, inches", "Axial play, inches")
    slide.text(17.6, 4.6, 6.4, 9, [
        "K19013XP0, standard clearance in gray:", f"{low} to {high} inches",
        f"gives {n('p.playAtLow ; 0.0000')} to {n('p.playAtHigh ; 0.0000')} "
        "inches of axial play",
        f"and {n('p.tiltAtLow ; 0.00000')} to {n('p.tiltAtHigh ; 0.00000')} "
        "radians of tilt."], size=16, gap=0.3)
    remark(slide, 15.6, "Fit letters A to J choose the clearance. Interference "
           "and temperature take some of it away.")


def preload(show, n):
    slide = framed(show, "Preload: stiff, and harder to turn")
    chart = Chart(slide, 4.4, 4.6, 12.4, 8.2, 0.005, 120)
    chart.band(float(n("r.fitLow ; 0.0000")), float(n("r.fitHigh ; 0.0000")))
    chart.grid([(step / 1000, f"{step / 1000:.3f}") for step in range(6)],
               [(step, str(step)) for step in range(0, 121, 20)])
    chart.curve([(0, 0)] + [(float(n(f"t.curve[{row}][0] ; 0.000000")),
                             float(n(f"t.curve[{row}][1] ; 0.000")))
                            for row in range(0, 50, 3)], RED)
    chart.names("Diametral preload, inches", "Starting torque, in-lbs")
    slide.text(17.6, 4.6, 6.4, 10, [
        "K19013XP0R, its fit in gray:",
        f"{n('t.curve[3][1] ; 0.0')} to {n('t.curve[7][1] ; 0.0')} in-lbs to "
        "start it",
        f"With .0008 inches: {n('s.radialSpringRate ; 0.00E+00')} lbs/inch "
        "radially,",
        f"up to {n('s.radialReliefLoad ; #,##0')} lbs radial or "
        f"{n('s.axialReliefLoad ; #,##0')} lbs axial."], size=16, gap=0.3)
    points(slide, LEFT, 14.9, WIDTH - 2 * LEFT,
           "Gains: no play, stiffness, quiet running.",
           "Costs: torque, heat, part of the life and of the speed limit.",
           size=17, height=3)


def seats(show, n):
    slide = framed(show, "Fits: the bearing takes the shape of its seat")
    slide.circle(5.4, 7.8, 3.4, line=GRAY, thick=0.03, dash=True)
    slide.polygon([at(5.4, 7.8, 3.4 + 0.4 * math.cos(math.radians(3 * angle)),
                      angle) for angle in range(0, 360, 4)],
                  line=RED, thick=0.14)
    slide.text(1.6, 11.9, 7.6, 1.6, ["A three-jaw chuck leaves a seat",
                                     "like this (exaggerated)"], size=14,
               align="center")
    points(slide, 10.6, 3.4, 13.4,
           "Roundness of the seats comes first: it shows in torque, noise "
           "and life.",
           f"Shaft for K19013XP0, first column: {n('d.fitShaft1 ; 0.0000')} "
           f"to {n('d.fitShaft2 ; 0.0000')} inches.",
           f"Housing: {n('d.fitHousing1 ; 0.0000')} to "
           f"{n('d.fitHousing2 ; 0.0000')} inches.",
           "Preloaded bearings get loose fits on both sides: the factory has "
           "set the preload.", size=17)
    slide.text(10.6, 11.2, 13.4, 0.9, "*Temperature*", size=17, colour=BLUE)
    points(slide, 10.6, 12.2, 13.4,
           "Aluminum grows about twice as much as steel.",
           f"From \u221265 to 250 \u00b0F on an aluminum shaft: make it "
           f"{n('fits.shaftSize ; 0.0000')} inches at 68 \u00b0F.", size=17,
           height=4)
    remark(slide, 16.0, "Clamp the rings by their faces, evenly. Never press "
           "a bearing on through its balls.")


def life(show, n):
    slide = framed(show, "L10 life")
    slide.text(LEFT, 3.3, WIDTH - 2 * LEFT, 2.2, [
        "The number of revolutions that nine of ten bearings reach. With "
        "a speed, hours = revolutions \u00f7 (60 \u00d7 rpm)."], size=18)
    rows = [("K19013XP0 at 400 rpm", "Revolutions", "Hours", "Heaviest ball")]
    for name, case in (("half the loads", "half"),
                       ("1200 lbs, 300 lbs, 900 in-lbs", "l"),
                       ("twice the loads", "twice")):
        rows.append((name, n(f"{case}.l10Revolutions ; #,##0"),
                     n(f"{case}.l10Hours ; #,##0.0"),
                     n(f"{case}.solver.MaxBallLoad ; 0.0") + " lbs"))
    grid(slide, LEFT, 5.6, (8.2, 5.2, 4.4, 4.4), rows)
    longer = n("half.l10Revolutions / l.l10Revolutions ; 0.0")
    points(slide, LEFT, 10.4, WIDTH - 2 * LEFT,
           f"Half the load lives {longer} times as long: life goes with "
           "about the third power of the load.",
           "Use the average load of a working cycle.",
           "Clean oil of the right viscosity is part of the promise; dirt "
           "and a thin film are not.",
           "Rigid, round seats are assumed.", size=17, height=6)
    remark(slide, 16.0, "The program adds up every ball's share, so moments "
           "and clearance count, not only the sum of the loads.")


def safety_and_speed(show, n):
    slide = framed(show, "Static safety and speed")
    chart = Chart(slide, 3.8, 4.6, 11, 7.6, 200, 1)
    chart.grid([(step, f"{step} %") for step in range(0, 201, 50)],
               [(step / 5, f"{step / 5:.1f}") for step in range(6)])
    chart.curve([(0, 1), (20, 1), (20, 0.98), (150, 0.2), (200, 0.2)], BLUE)
    percent, factor = n("l.loadPercent ; 0.0"), n("l.speedFactor ; 0.00")
    x, y = chart.point(float(percent), float(factor))
    slide.circle(x, y, 0.18, fill=RED)
    chart.names("Load, percent of the dynamic rating", "Speed factor")
    slide.text(15.8, 4.4, 8.2, 9, [
        "*Speed*", f"K19013XP0 stands {n('d.limitSpeedGrease ; 0')} rpm with "
        f"grease. At {percent} percent load the factor is {factor}: "
        f"{n('l.speedLimit ; 0')} rpm.", "*Static safety*",
        f"Heaviest ball {n('l.solver.MaxBallLoad ; 0.0')} lbs; "
        f"{n('l.solver.InnerStaticCapacity ; 0.0')} lbs would leave a mark: "
        f"a factor of {n('l.staticSafetyFactor ; 0.0')}."], size=16, gap=0.3)
    points(slide, LEFT, 14.4, WIDTH - 2 * LEFT,
           "Below 1: not allowed. 1 to 2 for slow, known loads; 2 to 4 usual; "
           "more for shock and precision.",
           "Oil stands higher speeds than grease.", size=17, height=4)


def program(show, n):
    slide = framed(show, "The two ways through NORLAPLAN-MM")
    for x, head, steps in (
            (LEFT, "You know the part number",
             ("Enter Model Number", "Data Sheet", "Load Input",
              "Static + Dynamic Life", "Deflection, Torque, Play")),
            (13.2, "You look for a bearing",
             ("Set Style", "Set Sizes", "Load Input", "Search Results",
              "Choose a bearing and go on left"))):
        slide.text(x, 3.2, 10.6, 1, head, size=20, bold=True, colour=BLUE)
        for number, step in enumerate(steps):
            y = 4.5 + number * 2.05
            slide.rect(x, y, 10.6, 1.35, fill=PALE, line=EDGE, corner=0.2)
            slide.text(x + 0.4, y, 9.8, 1.35, f"{number + 1}. {step}",
                       size=17, middle=True)
            if number:
                arrow(slide, x + 5.3, y - 0.68, x + 5.3, y - 0.06, GRAY)
    remark(slide, 15.4, "F1 on any screen opens its help page. Every result "
           "can be printed, saved and mailed.")


def from_start_to_end(show, n):
    slide = framed(show, "One bearing from start to end")
    grid(slide, LEFT, 3.3, (9.2, 13), [
        ("Step", "Result"),
        ("Search: 7 to 9 by .4 to .6 inches",
         f"{n('find.hitCount ; 0')} bearings, among them "
         f"{n('find.rows[1].name')}"),
        ("Loads", "1200 lbs, 300 lbs, 900 in-lbs, 400 rpm"),
        ("L10 life", f"{n('l.l10Hours ; #,##0.0')} hours"),
        ("Static safety factor", n("l.staticSafetyFactor ; 0.0")),
        ("Starting torque", n("l.torqueDisplay ; 0.0") + " in-lbs"),
        ("Speed", f"400 rpm, limit {n('l.speedLimit ; 0')} rpm"),
        ("Axial play", f"{n('p.playAtLow ; 0.0000')} to "
                       f"{n('p.playAtHigh ; 0.0000')} inches"),
        ("With fit letter R", f"no play, {n('t.curve[3][1] ; 0.0')} to "
                              f"{n('t.curve[7][1] ; 0.0')} in-lbs to start"),
    ], height=1.15)
    remark(slide, 15.0, ["Save the data sheet and the load-life report "
                         "together: they say what was assumed.",
                         "Questions? Varden Engineering, 1-800-555-0142"],
           height=2.2)


SLIDES = (cover, what_it_is, sections, part_number, contact, which_load, loads,
          spread, play, preload, seats, life, safety_and_speed, program,
          from_start_to_end)


def training_show(number):
    """The show; `number` gives the text of a number of CASES."""
    show = Show()
    for make in SLIDES:
        make(show, number)
    return show
