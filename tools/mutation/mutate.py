#!/usr/bin/env python3
"""Makes small mistakes in the sources on purpose and sees whether the tests notice.

    tools/mutation/mutate.py --seed 7 --count 300              all folders
    tools/mutation/mutate.py --seed 7 --count 25 --folder state --folder search
    tools/mutation/mutate.py --seed 7 --count 25 --list        only say which mistakes these are

The checkout (with what isn't committed yet) is copied to a scratch folder and built there, so the tree it is run in
stays untouched. Each folder's mistakes are built into its test programs together, and an environment variable chooses
one of them; those outside of functions (tables, constants) are built one by one. A run that was stopped goes on where
it was; mistakes that survived are tried again once the tests have changed. What changes nothing that anyone could
see is listed, with the reason, in equivalent.txt."""

import argparse
import random
import sys
import tempfile
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent))

import kinds  # noqa: E402
import report  # noqa: E402
from cpp_text import Source  # noqa: E402
from mutant import Mutant, read_equivalent  # noqa: E402
from workshop import Workshop  # noqa: E402

ROOT = Path(__file__).resolve().parents[2]
FOLDERS = ("numbers", "state", "documents", "loaddist", "capacity", "catalogue", "search", "deflection", "fits", "help",
           "paint", "screens", "cli")


def mutants_of(folder):
    found = []
    for path in sorted((ROOT / "src" / folder).rglob("*")):
        if path.suffix not in (".cpp", ".h"):
            continue
        text = path.read_text(encoding="utf-8")
        source = Source(text)
        for kind, start, end, replacement in kinds.all_mutants(source):
            found.append(Mutant(str(path.relative_to(ROOT)), kind, start, end, replacement, text,
                                source.body_at(start)))
    return found


def choose(folder, seed, count):
    """A kind by chance, then one of its mistakes: a folder full of numbers isn't all constants. Two mistakes never
    change the same place, and at most one in five lies outside of functions, where it needs a build of its own."""
    chance = random.Random(f"{seed} {folder}")
    by_kind = {}
    for mutant in mutants_of(folder):
        by_kind.setdefault(mutant.kind, []).append(mutant)
    chosen, places = [], set()
    while by_kind and len(chosen) < count:
        kind = chance.choice(sorted(by_kind))
        mutant = by_kind[kind].pop(chance.randrange(len(by_kind[kind])))
        if not by_kind[kind]:
            del by_kind[kind]
        outside = sum(not other.body for other in chosen)
        if (mutant.path, mutant.start) not in places and (mutant.body or 5 * outside < count):
            places.add((mutant.path, mutant.start))
            chosen.append(mutant)
    return chosen


def arguments():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--count", type=int, default=300, help="mistakes in all, shared by the folders (300)")
    parser.add_argument("--folder", action="append", choices=FOLDERS, help="only this folder of src (repeatable)")
    parser.add_argument("--own", action="store_true",
                        help="judge by the folder's own tests alone, which is quicker and stricter")
    parser.add_argument("--nearest", type=int, metavar="N",
                        help="of the screens' tests, only the N that speak of a mistake's form most often (all)")
    parser.add_argument("--list", action="store_true", help="list the chosen mistakes and build nothing")
    parser.add_argument("--work", type=Path, default=Path(tempfile.gettempdir()) / "norlaplan-mutation",
                        help="scratch folder (the system's temporary folder)")
    parser.add_argument("--jobs", type=int, default=1, help="compilers at once (1)")
    return parser.parse_args()


def main():
    options = arguments()
    folders = [folder for folder in options.folder or FOLDERS if (ROOT / "src" / folder).is_dir()]
    equivalent = read_equivalent(Path(__file__).with_name("equivalent.txt"))
    share, rest = divmod(options.count, len(folders))
    workshop = None if options.list else Workshop(ROOT, options.work, options.jobs, options.own, options.nearest)
    outcomes = {}
    for i, folder in enumerate(folders):
        chosen = choose(folder, options.seed, share + (i < rest))
        if options.list:
            for mutant in chosen:
                print(f"{mutant.path}:{mutant.line}: {mutant.kind}\n{mutant.difference()}\n")
            continue
        outcomes[folder] = workshop.try_all(folder, chosen, equivalent)
        print(report.line(folder, outcomes[folder]), flush=True)
    if not options.list:
        path = options.work / "report.md"
        path.write_text(report.whole(outcomes, equivalent, options.seed), encoding="utf-8")
        print(f"the survivors are in {path}")


if __name__ == "__main__":
    main()
