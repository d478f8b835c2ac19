"""The build refuses flags under which the compiler fuses products and sums."""

import platform
import re
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

SOURCE = Path(__file__).resolve().parents[2]
FMA = "-march=x86-64-v3"


def configure(flags, options):
    """Configures a project of the check alone; gives whether it was accepted, and what was told."""
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        shutil.copytree(SOURCE / "cmake", folder / "cmake")
        (folder / "CMakeLists.txt").write_text(
            "cmake_minimum_required(VERSION 3.25)\nproject(check LANGUAGES CXX)\n"
            f"add_compile_options({options})\ninclude(cmake/Contraction.cmake)\nnorlaplan_refuse_contraction()\n", "ascii")
        done = subprocess.run(
            ["cmake", "-S", name, "-B", f"{name}/build", "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Release",
             "-DCMAKE_CXX_COMPILER=g++", f"-DCMAKE_CXX_FLAGS={flags}"], capture_output=True, text=True, check=False)
        return done.returncode == 0, " ".join(done.stderr.split())


@unittest.skipUnless(shutil.which("g++") and platform.machine() == "x86_64", "needs g++ for x86-64")
class Contraction(unittest.TestCase):
    def test_is_refused_where_it_is_asked_for(self):
        accepted, told = configure(FMA, "-ffp-contract=fast")
        self.assertFalse(accepted)
        self.assertIn("Results are reproduced to the last bit, so this build is refused", told)

    def test_is_refused_where_the_compiler_does_it_unasked(self):
        probe = SOURCE / "cmake" / "contraction_probe.cpp"
        made = subprocess.run(["g++", "-O3", FMA, "-ffp-contract=off", "-S", "-o", "-", str(probe)],
                              capture_output=True, text=True, check=True).stdout
        fuses = re.search(r"\bvfn?m(add|sub)", made) is not None
        self.assertEqual(configure(FMA, "-ffp-contract=off")[0], not fuses)

    def test_does_not_refuse_the_flags_of_the_presets(self):
        for flags in ("", "-fsanitize=address,undefined -fno-omit-frame-pointer", "-march=x86-64-v2", "-flto"):
            self.assertEqual(configure(flags, "-ffp-contract=off"), (True, ""), flags)


if __name__ == "__main__":
    unittest.main()
