"""norlaplan-cli as a user's shell sees it: results, messages, exit statuses, files."""

import csv
import os
import resource
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

from program import CLI, PROGRAM_FOLDER, WITH_PICTURES, own_tables, result, run, table


class Decode(unittest.TestCase):
    def test_repairs_small_letters_and_the_letter_o(self):
        status, bearing = result("decode", "k19o13xp0")
        self.assertEqual(status, 0)
        self.assertEqual(bearing["partNumber"], "K19013XP0")
        self.assertEqual(bearing["ballDiameter"], 0.25)
        self.assertEqual(bearing["raceRadius"], 0.1325)
        self.assertEqual(bearing["drawingScale"], 3.91)
        self.assertEqual(bearing["stockCode"], 2)
        self.assertEqual(bearing["warnings"], [])

    def test_prints_32_bit_fields_as_their_shortest_text(self):
        done = run("--json", "decode", "K19013XP0")
        # 190 / 25.4 = 7.48031496; the nearest 32-bit value is 7.48031473, and 7.480315 would read back as its neighbour
        self.assertIn('"bore": 7.4803147,', done.stdout)
        self.assertIn('"boreTolerance": -0.0012,', done.stdout)

    def test_refuses_each_bad_number_with_its_message_and_status_1(self):
        rows = (
            ("K19013XP", "Part Number too short", "Please verify Part Number and try again"),
            ("K19013XP0AA", "Part Number too long", "Please verify Part Number and try again"),
            ("Q19013XP0", "Material Q Not valid", "Unsupported Material Type"),
            ("K19014XP0", "Width of 14 Not Valid", "Unsupported Cross Section"),
            ("K19013OP0", "Type O not known", "Undefined Bearing Style"),
            ("K19013BR0", "Please supply internal fitup", "Missing Fit"),
            ("K19013XP0[", "Invalid character entry", "Fitup character must be a letter"),
            ("K19013XP3", "Precision class 3 not available", "Unsupported Precision Class"),
            ("KX9013XP0", "character must be numeric", "Error in position 2 of the part number"),
            ("K1X013XP0", "character must be numeric", "Error in position 3 of the part number"),
            ("K19X13XP0", "character must be numeric", "Error in position 4 of the part number"),
            ("K19113XP0", "Retry Data Entry", "Bore size not found"),
            ("K19013XZ0", "Missing Data", "Please specify which Z separator"),
            ("K19013XQ0", "WRONG SEPARATOR CODE", "SEPARATOR NOT PERMITTED FOR THIS BEARING"),
            ("K19013XP0@", "Please correct Part Number", "Unavailable fitup"),
        )
        for number, title, prompt in rows:
            with self.subTest(number):
                status, told = result("decode", number)
                self.assertEqual(status, 1)
                self.assertEqual(told["error"],
                                 {"kind": "message", "number": None, "title": title, "prompt": prompt})
                self.assertEqual(run("decode", number).stderr, f"{title}: {prompt}\n")

    def test_warns_of_a_field_that_is_no_number_also_in_a_batch(self):
        with own_tables() as folder:
            path = table(folder, "CLS0.csv")
            lines = path.read_text("ascii").splitlines()
            row = next(i for i, line in enumerate(lines) if line.startswith("190,"))
            lines[row] = lines[row].replace("190,-", "190,nan-", 1)
            path.write_text("\r\n".join(lines) + "\r\n", "ascii")
            told = f'Table CLS0.csv, row {row + 1}, column 2: "nan{lines[row].split(",")[1][3:]}" is not a number and ' \
                   "is read as 0."
            status, bearing = result("--program-folder", str(folder), "decode", "K19013XP0")
            self.assertEqual(status, 0)
            self.assertEqual(bearing["boreTolerance"], 0)
            self.assertEqual(bearing["warnings"], [{"title": "Catalog Tables", "prompt": told}])
            cases = folder / "cases.csv"
            cases.write_text("partNumber,radial\nK19013XP0,5\nK20013XP0,5\n", "ascii")
            self.assertEqual(run("--program-folder", str(folder), "batch", str(cases), "--output",
                                 str(folder / "out.csv")).returncode, 0)
            with open(folder / "out.csv", encoding="utf-8", newline="") as file:
                rows = list(csv.DictReader(file))
            self.assertIn("Catalog Tables: " + told, rows[0]["warnings"])
            self.assertNotIn("Catalog Tables", rows[1]["warnings"])

    def test_shows_control_characters_and_other_encodings_of_tables(self):
        with own_tables() as folder:
            path = table(folder, "XSEPARATOR.CSV")
            content = path.read_bytes()
            path.write_bytes(content.replace(b"P= Snapover Brass Ribbon", b"P= \x1b[31mK\xe4fig\x07\xc2\x9b2J\xc2\x9f\xc2\xa0x\x7f", 1))
            done = run("--program-folder", str(folder), "decode", "K19013XP0", text=False)
            self.assertEqual(done.returncode, 0)
            line = next(line for line in done.stdout.decode("utf-8").splitlines() if line.startswith("separatorText"))
            self.assertEqual(line.split(maxsplit=1)[1], "P= ^[[31mKäfig^G<9B>2J<9F>\u00a0x^?")
            text = result("--program-folder", str(folder), "decode", "K19013XP0")[1]["separatorText"]
            self.assertEqual(text, "P= \x1b[31mKäfig\x07\x9b2J\x9f\u00a0x\x7f")

    def test_keeps_overlays_in_their_folder(self):
        with own_tables() as folder:
            path = table(folder, "XSEPARATOR.CSV")
            path.write_bytes(path.read_bytes().replace(b",RIBBON", b",../RIBBON", 1))
            status, told = result("--program-folder", str(folder), "decode", "K19013XP0")
            self.assertEqual(status, 3)
            self.assertEqual(told["error"]["number"], 52)
            self.assertIn('the separator table names the overlay "../RIBBON"', told["error"]["prompt"])

    def test_tells_of_a_bore_that_the_precision_table_lacks(self):
        with own_tables() as folder:
            precision = table(folder, "CLS0.csv")
            lines = precision.read_text("ascii").splitlines(keepends=True)
            precision.write_text("".join(line for line in lines if not line.startswith("190,")), "ascii")
            status, told = result("--program-folder", str(folder), "decode", "K19013XP0")
        self.assertEqual(status, 1)
        self.assertEqual((told["error"]["title"], told["error"]["prompt"]),
                         ("Bore data not found", "Error in precision tables"))

    def test_tells_of_a_dropped_fit_code_also_before_an_error(self):
        done = run("decode", "K19013AP9K")
        self.assertEqual(done.returncode, 1)
        self.assertEqual(done.stderr, "Dropping fitup code: No fitup allowed\n"
                                      "Precision class 9 not available: Unsupported Precision Class\n")

    def test_warns_of_a_dropped_fit_code_and_goes_on(self):
        status, bearing = result("decode", "K19013AR0K")
        self.assertEqual(status, 0)
        self.assertEqual(bearing["partNumber"], "K19013AR0")
        self.assertEqual(bearing["warnings"], [{"title": "Dropping fitup code", "prompt": "No fitup allowed"}])

    def test_tells_of_a_missing_table_as_a_run_time_error(self):
        with tempfile.TemporaryDirectory() as folder:
            status, told = result("--program-folder", folder, "decode", "K19013XP0")
        self.assertEqual(status, 3)
        self.assertEqual(told["error"]["kind"], "runtime")
        self.assertEqual(told["error"]["number"], 53)
        self.assertEqual(told["error"]["title"], "Please recheck validity of part number")

    def test_takes_a_z_separator_only_for_a_z(self):
        self.assertEqual(result("decode", "K19013XZ0", "--z-separator", "T")[1]["separatorCode"], "ZT")
        self.assertEqual(result("decode", "K19013XP0", "--z-separator", "T")[1]["separatorCode"], "P")

    def test_decodes_every_preload_letter_of_a_pair(self):
        for letter in "KLMNOPQRSTUVWXY":
            for style in "BF":
                status, bearing = result("decode", f"K19013{style}R0{letter}")
                self.assertEqual(status, 0, letter)
                self.assertGreater(bearing["loadPercent"], 0)
                self.assertLess(bearing["meanClearance"], 0)

    def test_units_change_texts_and_not_values(self):
        us, metric = result("decode", "K19013XP0")[1], result("--units", "METRIC", "decode", "K19013XP0")[1]
        self.assertEqual(us["bore"], metric["bore"])
        self.assertEqual(us["crossSectionText"], "13 = .512 x .512 Cross Section")
        self.assertEqual(metric["crossSectionText"], "13 = 13 x 13 Cross Section")


class Life(unittest.TestCase):
    LOADS = ("--radial", "1200", "--axial", "300", "--moment", "900", "--speed", "400")

    def test_gives_the_loads_back_as_the_forces_of_the_balls(self):
        for number in ("K19013XP0", "K19013BR0A", "K19013FR0A"):
            with self.subTest(number):
                status, life = result("life", number, *self.LOADS)
                self.assertEqual(status, 0)
                self.assertAlmostEqual(life["solver"]["ForceRadialSum"], 1200, places=5)
                self.assertAlmostEqual(life["solver"]["ForceAxialSum"], 300, places=5)
                self.assertAlmostEqual(life["solver"]["MomentSum"], 900, places=4)
                self.assertEqual(len(life["balls"]), 2 * result("decode", number)[1]["ballCount"])

    def test_gives_hours_and_a_verdict_only_with_a_speed(self):
        life = result("life", "K19013CP0", "--radial", "500")[1]
        for name in ("l10Hours", "loadPercent", "speedFactor", "speedLimit", "speedVerdict", "speedVerdictColor"):
            self.assertIsNone(life[name])
        life = result("life", "K19013CP0", "--radial", "500", "--speed", "-100")[1]
        self.assertEqual(life["l10Hours"], int(life["l10Revolutions"] / 6000 * 10 + 0.5) / 10)
        self.assertIn("100 RPM", life["speedVerdict"])

    def test_drops_axial_load_and_moment_of_a_radial_bearing(self):
        self.assertEqual(result("life", "K19013CP0", "--radial", "500")[1]["l10Revolutions"],
                         result("life", "K19013CP0", "--radial", "500", "--axial", "9", "--moment", "9")[1]
                         ["l10Revolutions"])

    def test_refuses_as_the_screens_do(self):
        rows = ((("K19013XP0",), "Missing Loads", "At least one load must be entered!"),
                (("K19013AR0", "--radial", "5"), "Try another Bearing type", "Bearing type A Not allowed"),
                (("K19013AR0",), "Try another Bearing type", "Bearing type A Not allowed"))
        for words, title, prompt in rows:
            status, told = result("life", *words)
            self.assertEqual((status, told["error"]["title"], told["error"]["prompt"]), (1, title, prompt))

    def test_negative_axial_load_is_run_time_error_5_with_advice(self):
        status, told = result("life", "K19013XP0", "--axial", "-100")
        self.assertEqual((status, told["error"]["number"]), (3, 5))
        self.assertIn("positive", told["error"]["prompt"])

    def test_metric_loads_are_newtons(self):
        metric = result("--units", "METRIC", "life", "K19013XP0", "--radial", "1000")[1]
        # 1000 N are 224.8089 lbs
        pounds = result("life", "K19013XP0", "--radial", "224.8089")[1]
        self.assertAlmostEqual(metric["l10Revolutions"] / pounds["l10Revolutions"], 1, places=6)


class Search(unittest.TestCase):
    ENVELOPE = ("--min-bore", "5", "--max-od", "9", "--min-height", ".2", "--max-height", "1.2", "--radial", "500",
                "--axial", "50")

    def test_lists_every_style(self):
        for style in ("RADIAL CONTACT", "4-POINT CONTACT", "BACK-TO-BACK SET", "FACE-TO-FACE SET",
                      "BACK-TO-BACK SET WITH SPACERS", "FACE-TO-FACE SET WITH SPACERS"):
            status, found = result("search", "--style", style, *self.ENVELOPE)
            self.assertEqual(status, 0, style)
            self.assertGreater(found["hitCount"], 0)
            self.assertEqual(found["hitCount"], len(found["rows"]))
            for row in found["rows"]:
                self.assertTrue(row["line"].startswith(row["name"] + "    "))
                self.assertGreaterEqual(float(row["boreText"]), 5)

    def test_sorts(self):
        rows = result("search", "--style", "4-POINT CONTACT", *self.ENVELOPE, "--sort", "life", "--descending")[1]["rows"]
        lives = [float(row["l10Revolutions"]) for row in rows]
        self.assertEqual(lives, sorted(lives, reverse=True))

    def test_marks_the_rows_whose_life_is_not_to_be_trusted(self):
        words = ("search", "--style", "FACE-TO-FACE SET", "--min-bore", ".5", "--max-od", "3", "--min-height", ".1",
                 "--max-height", "1.6", "--radial", "1.5")
        status, found = result(*words)
        self.assertEqual(status, 0)
        marked = 0
        for row in found["rows"]:
            if row["l10Revolutions"] == "0":
                self.assertEqual(row["checks"], [], "given up, which is told")
                continue
            # The search takes the middle of fit B as clearance.
            alone = result("life", row["name"][:9] + "B", "--radial", "1.5")[1]
            names = []
            for warning in alone["warnings"]:
                self.assertEqual(warning["title"], "Load Life Calculation")
                if warning["prompt"] == "The ball loads do not balance the applied loads.":
                    names.append("unbalanced")
                elif warning["prompt"].startswith("Row 2 has the shorter life: "):
                    names.append("row 2 shorter")
            self.assertEqual(row["checks"], names, row["name"])
            marked += len(names)
        self.assertGreater(marked, 0)
        words = ("search", "--style", "FACE-TO-FACE SET WITH SPACERS", "--min-bore", ".5", "--max-od", "4", "--min-height",
                 ".1", "--max-height", "3", "--radial", "10")
        rows = result(*words)[1]["rows"]
        bearings = ", ".join(row["name"].split()[0] for row in rows if "unbalanced" in row["checks"])
        self.assertNotEqual(bearings, "")
        self.assertIn(f"The ball loads do not balance the applied loads. Bearings: {bearings}\n", run(*words).stdout)
        usual = result("search", "--style", "RADIAL CONTACT", *self.ENVELOPE[:8], "--radial", "500")[1]["rows"]
        self.assertEqual({tuple(row["checks"]) for row in usual}, {()})

    def test_warns_of_a_set_out_of_balance(self):
        status, life = result("life", "K02008FR0F", "--radial", "1.5")
        self.assertEqual(status, 0)
        self.assertIn({"title": "Load Life Calculation",
                       "prompt": "The ball loads do not balance the applied loads."}, life["warnings"])
        # No moment is applied, and that of the balls is far from none.
        self.assertGreater(abs(life["solver"]["MomentSum"]), 100)

    def test_warns_once_of_fields_that_are_no_numbers_and_leaves_out_wrong_names(self):
        words = ("search", "--style", "4-POINT CONTACT", *self.ENVELOPE)
        names = [row["name"] for row in result(*words)[1]["rows"]]
        with own_tables() as folder:
            path = table(folder, "13-X.csv")
            lines = path.read_text("ascii").splitlines()
            spoilt = next(i for i, line in enumerate(lines) if line.startswith("K19013"))
            wrong = next(i for i, line in enumerate(lines) if line.startswith("K20013"))
            lines[spoilt] = lines[spoilt].replace("K19013XP0,1", "K19013XP0,one").replace("K19013XP0,2", "K19013XP0,one")
            lines[wrong] = lines[wrong].replace("K20013X", "K20013C")
            path.write_text("\r\n".join(lines) + "\r\n", "ascii")
            status, found = result("--program-folder", str(folder), *words)
            self.assertEqual(status, 0)
            self.assertEqual([row["name"] for row in found["rows"]], [n for n in names if n != "K20013XP0"])
            told = (f'Table 13-X.CSV, row {spoilt + 1}, column 2: "one" is not a number and is read as 0.\n'
                    f'Table 13-X.CSV, row {wrong + 1}, column 1: "K20013CP0" names no bearing of this table and is '
                    "left out.")
            self.assertEqual(found["warnings"], [{"title": "Catalog Tables", "prompt": told}])
            done = run("--program-folder", str(folder), *words)
            self.assertEqual(done.stderr, f"Catalog Tables: {told}\n")

    def test_says_that_nothing_fits(self):
        status, told = result("search", "--style", "4-POINT CONTACT", "--min-bore", "1", "--max-od", "1.1",
                              "--min-height", "1", "--max-height", "2", "--radial", "5")
        self.assertEqual(status, 1)
        self.assertEqual(told["error"]["title"], "SEARCH PARAMETERS OUTSIDE OF SIZE RANGE")


    def test_reads_a_catalogue_with_quotes_blanks_and_broken_rows_as_the_tidy_one(self):
        words = ("search", "--style", "4-POINT CONTACT", *self.ENVELOPE)
        tidy = result(*words)[1]["rows"]
        with own_tables() as folder:
            for name in ("8-X.csv", "13-X.csv", "20-X.csv"):
                path = table(folder, name)
                head, second, *rows = path.read_text("ascii").splitlines()
                odd = []
                for row in rows:
                    fields = row.split(",")
                    odd.append(f'  "{fields[0]}" , {",  ".join(fields[1:5])}\n{",".join(fields[5:])}')
                path.write_text("\r\n".join([head, second, *odd]) + "\r\n", "ascii")
            self.assertEqual(result("--program-folder", str(folder), *words)[1]["rows"], tidy)

    def test_lists_a_bore_that_the_precision_table_lacks(self):
        words = ("search", "--style", "4-POINT CONTACT", *self.ENVELOPE)
        with own_tables() as folder:
            precision = table(folder, "CLS0.csv")
            lines = precision.read_text("ascii").splitlines(keepends=True)
            precision.write_text("".join(line for line in lines if not line.startswith("190,")), "ascii")
            status, found = result("--program-folder", str(folder), *words)
        self.assertEqual(status, 0)
        self.assertEqual([row["name"] for row in found["rows"]], [row["name"] for row in result(*words)[1]["rows"]])

    def test_warns_of_rows_that_were_given_up(self):
        sizes = ("--min-bore", "0", "--max-od", "4", "--min-height", "0", "--max-height", "1.2")
        for words in (("FACE-TO-FACE SET", *sizes, "--radial", "500"),
                      ("RADIAL CONTACT", *self.ENVELOPE[:8], "--radial", "1e12")):
            status, found = result("search", "--style", *words)
            self.assertEqual(status, 0, words)
            self.assertIn("0", [row["l10Revolutions"] for row in found["rows"]])
            self.assertEqual([warning["title"] for warning in found["warnings"]],
                             ["The calculation does not converge"])

    def test_tells_what_to_enter_instead_of_a_negative_axial_load(self):
        status, told = result("search", "--style", "4-POINT CONTACT", "--min-bore", "5", "--max-od", "9",
                              "--min-height", ".2", "--max-height", "1.2", "--axial", "-5")
        self.assertEqual((status, told["error"]["number"]), (3, 5))
        self.assertIn("positive", told["error"]["prompt"])


class Files(unittest.TestCase):
    def setUp(self):
        self.folder = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder)

    def test_writes_sheet_and_reports_as_rtf_with_balanced_groups(self):
        loads = ("--radial", "500", "--speed", "100")
        calls = (("datasheet", "K19013BR0N"), ("report", "life", "K19013XP0", *loads),
                 ("report", "search", "--style", "4-POINT CONTACT", *Search.ENVELOPE))
        for words in calls:
            with self.subTest(words[0:2]):
                target = self.folder / "out.rtf"
                status, told = result(*words, "--output", str(target))
                self.assertEqual((status, told["file"]), (0, str(target)))
                text = target.read_text("ascii")
                plain = text.replace("\\\\", "").replace("\\{", "").replace("\\}", "")
                depth = 0
                for character in plain.rstrip():
                    self.assertFalse(depth == 0 and character != "{", "nothing stands behind the document")
                    depth += {"{": 1, "}": -1}.get(character, 0)
                self.assertEqual(depth, 0)

    @unittest.skipUnless(WITH_PICTURES, "built without pictures")
    def test_writes_pictures(self):
        for name, beginning in (("a.pdf", b"%PDF"), ("a.png", b"\x89PNG"), ("a.bmp", b"BM")):
            target = self.folder / name
            done = run("datasheet", "K19013XP0", "--output", str(target))
            self.assertEqual(done.returncode, 0, done.stderr)
            self.assertTrue(target.read_bytes().startswith(beginning))

    def test_writes_nothing_into_the_program_folder(self):
        before = sorted(PROGRAM_FOLDER.rglob("*"))
        run("datasheet", "K19013XP0", "--output", str(self.folder / "a.rtf"))
        self.assertEqual(sorted(PROGRAM_FOLDER.rglob("*")), before)

    def test_a_full_disk_leaves_what_stood_there(self):
        def small_files():
            resource.setrlimit(resource.RLIMIT_FSIZE, (1000, resource.RLIM_INFINITY))

        names = ("a.rtf", "a.pdf", "a.png", "a.bmp") if WITH_PICTURES else ("a.rtf",)
        for name in names:
            with self.subTest(name):
                target = self.folder / name
                target.write_text("old", "ascii")
                done = run("datasheet", "K19013XP0", "--output", str(target), preexec_fn=small_files)
                self.assertEqual((done.returncode, done.stderr), (3, f"Run-time error '61': Disk full: {target}\n"))
                self.assertEqual(target.read_text("ascii"), "old")
                self.assertEqual([entry.name for entry in self.folder.iterdir() if entry.name not in names], [])

    def test_writes_through_a_pipe_and_keeps_it(self):
        pipe = self.folder / "sheet.rtf"
        os.mkfifo(pipe)
        with subprocess.Popen([CLI, "datasheet", "K19013XP0", "--output", str(pipe)], stdout=subprocess.DEVNULL):
            content = pipe.read_bytes()
        self.assertTrue(content.startswith(b"{\\rtf1"))
        self.assertTrue(content.rstrip().endswith(b"}"))
        self.assertTrue(pipe.is_fifo())

    @unittest.skipUnless(Path("/dev/full").exists(), "no full device here")
    def test_writes_through_a_device_and_keeps_it(self):
        link = self.folder / "sheet.rtf"
        link.symlink_to("/dev/full")
        done = run("datasheet", "K19013XP0", "--output", str(link))
        self.assertEqual((done.returncode, done.stderr), (3, f"Run-time error '61': Disk full: {link}\n"))
        self.assertTrue(link.is_symlink())
        self.assertTrue(Path("/dev/full").is_char_device())

    def test_says_which_name_is_too_long(self):
        done = run("datasheet", "K19013XP0", "--output", str(self.folder / ("n" * 300 + ".rtf")))
        self.assertEqual(done.returncode, 3)
        self.assertIn("Run-time error '52': Bad file name or number: the name is too long: ", done.stderr)

    def test_leaves_what_stood_there_when_the_folder_is_missing(self):
        done = run("datasheet", "K19013XP0", "--output", str(self.folder / "none" / "a.rtf"))
        self.assertEqual(done.returncode, 3)

    def test_writes_the_export_file(self):
        target = self.folder / "out.qlx"
        words = ("qlx", "K19013XP0", "--radial", "500", "--output", str(target))
        status, told = result(*words)
        self.assertEqual((status, told["file"], told["warnings"]), (0, str(target), []))
        lines = target.read_bytes().split(b"\r\n")
        self.assertEqual((len(lines), lines[7], lines[29], lines[72], lines[73]),
                         (74, b'"K19013XP0"', b"#True#", b'" 30 "', b""))
        # Without loads nothing is solved, and there is no contact angle yet.
        self.assertEqual(result("qlx", "K19013AP0", "--output", str(target))[0], 0)
        lines = target.read_bytes().split(b"\r\n")
        self.assertEqual((lines[16], lines[72]), (b"#True#", b'" 0 "'))
        status, told = result("--units", "METRIC", *words)
        self.assertEqual((status, [warning["title"] for warning in told["warnings"]]), (0, ["Create QLX file"]))
        self.assertEqual(target.read_bytes().count(b"\r\n"), 65)
        self.assertEqual(result("qlx", "X", "--output", str(target))[0], 1)
        self.assertEqual(result("qlx", "K19013XP0", "--output", str(self.folder / "none" / "a.qlx"))[0], 3)
        self.assertEqual(target.read_bytes().count(b"\r\n"), 65)

    def test_refuses_an_unknown_format_as_wrong_usage(self):
        status, told = result("datasheet", "K19013XP0", "--output", str(self.folder / "a.doc"))
        self.assertEqual((status, told["error"]["kind"]), (2, "usage"))
        self.assertEqual(list(self.folder.iterdir()), [])


if __name__ == "__main__":
    unittest.main()
