# SPDX-FileCopyrightText: 2026 The Ornevo developers
# SPDX-License-Identifier: MIT
"""The command behind scripts/mutate."""

import argparse
import collections
import concurrent.futures
import json
import pathlib
import random
import shutil
import sys
import threading
import time
import tomllib

import mutations
import recipes
import workshop

ROOT = pathlib.Path(__file__).resolve().parents[2]
FOLDERS = ("app", "canvas", "core", "cutout", "imaging", "segmentation")
ON_SCREEN = ("app", "canvas")
GOAL = 99.0  # per cent of the mutants noticed
LAST_SURVIVORS = ROOT / "build/mutate/build/survivors.json"


def options():
    parser = argparse.ArgumentParser(description="Tries small faults in the product's sources against its tests.")
    parser.add_argument("--seed", type=int, default=1, help="chooses the mutants; the same seed, the same mutants")
    parser.add_argument("--count", type=int, default=300, help="of mutants that compile (default: 300)")
    parser.add_argument("--jobs", type=int, default=2, help="processes at a time (default: 2)")
    parser.add_argument("--at", metavar="FILE:LINE", help="all mutants of one line instead")
    parser.add_argument("--again", action="store_true", help="the survivors of the last run instead")
    parser.add_argument("folders", nargs="*", metavar="FOLDER", help="of: " + ", ".join(FOLDERS))
    return parser.parse_args()


def found_mutations(folders):
    found = []
    for folder in folders:
        for file in sorted([*(ROOT / folder).rglob("*.cpp"), *(ROOT / folder).rglob("*.h")]):
            found += mutations.Source(str(file.relative_to(ROOT)), file.read_text()).mutations()
    return found


def in_random_order(found, seed):
    """One of a line's mutations in turn, so that a line of many numbers doesn't stand for more than another."""
    dice = random.Random(seed)
    by_line = collections.defaultdict(list)
    for mutation in found:
        by_line[mutation.file, mutation.line].append(mutation)
    for of_line in by_line.values():
        dice.shuffle(of_line)
    while by_line:
        lines = sorted(by_line)
        dice.shuffle(lines)
        for line in lines:
            yield by_line[line].pop()
            if not by_line[line]:
                del by_line[line]


def equivalents():
    entries = tomllib.loads((ROOT / "tests/mutation/equivalents.toml").read_text()).get("equivalent", [])
    return {(entry["file"], entry["line"], entry["becomes"]) for entry in entries}


class Clock:
    """Processor and wall time since the last look."""

    def __init__(self):
        self.look()

    def look(self):
        now = workshop.processor_seconds(), time.monotonic()
        passed = [after - before for before, after in zip(getattr(self, "last", now), now)]
        self.last = now
        return passed

    def text(self):
        processor, wall = self.look()
        return f"{processor / 60:.1f} processor minutes, {wall / 60:.1f} minutes"


class Run:
    def __init__(self, shop, made, coverage, programs):
        self.shop, self.recipes, self.coverage = shop, made, coverage
        self.programs = {program.name: program for program in programs}
        self.verdicts = collections.defaultdict(collections.Counter)
        self.killers = collections.defaultdict(collections.Counter)  # by file
        self.survivors = []
        self.lock = threading.Lock()

    def in_order(self, mutation):
        """Those first that are quick, that go by little else, and that have killed others of the same file."""
        def effort(name):
            killed = self.killers[mutation.file][name]
            lines = sum(map(len, self.coverage.lines[name].values()))
            return (0.1 + self.coverage.alone[name].processor) * lines / (1 + 3 * killed)

        return sorted(self.coverage.reaching(mutation), key=effort)

    def note(self, mutation, verdict, by=""):
        with self.lock:
            self.verdicts[mutation.file.split("/")[0]][verdict] += 1
            print(f"{self.counted():4} {verdict:16} {mutation.file}:{mutation.line} {mutation.kind}: {mutation.before}  ->  "
                  f"{mutation.after}{'   [' + by + ']' if by else ''}", flush=True)
            if verdict == "survived":
                self.survivors.append(mutation)
                LAST_SURVIVORS.write_text(json.dumps([m.key() for m in self.survivors]))

    def counted(self):
        return sum(counts[verdict] for counts in self.verdicts.values() for verdict in ("killed", "survived"))

    def judge(self, mutation, number):
        """The verdict, and what it rests on."""
        if mutation.key() in self.equivalents:
            return "equivalent", "listed"
        names = self.in_order(mutation)
        if not names:
            return "survived", "no test comes by"
        folder = self.shop.tree / "build/programs" / str(number)
        try:
            mutant = recipes.Mutant(self.recipes, mutation, folder)
            if not mutant.libraries():
                return "does not compile", ""
            if not mutant.differs():
                return "equivalent", "same machine code"
            return self.test(mutation, mutant, names)
        except recipes.CompileError:  # where a test reads the header
            return "does not compile", ""
        finally:
            shutil.rmtree(folder, ignore_errors=True)

    def test(self, mutation, mutant, names):
        shown = mutation.file.split("/")[0] in ON_SCREEN
        runs = [(name, "offscreen") for name in names]
        runs += [(name, "xcb") for name in names if shown and self.programs[name].on_screen]  # what only a screen shows
        for name, platform in runs:
            alone = self.coverage.alone[name]
            outcome = self.shop.run(self.programs[name], 60 + 10 * alone.wall, 5 + 4 * alone.processor, platform, mutant)
            if not outcome.passed:
                self.killers[mutation.file][name] += 1
                return "killed", f"{name}: {outcome.by}{' in X' if platform == 'xcb' else ''}"
        return "survived", ", ".join(names)

    def go(self, chosen, count, jobs):
        """The first `count` of them that compile, `jobs` at a time."""
        self.equivalents = equivalents()
        shutil.rmtree(self.shop.tree / "build/programs", ignore_errors=True)
        pending = {}
        chosen = enumerate(chosen)
        with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
            while True:
                while len(pending) < min(jobs, count - self.counted()) and (following := next(chosen, None)):
                    number, mutation = following
                    pending[pool.submit(self.judge, mutation, number)] = mutation
                if not pending:
                    return
                for done in concurrent.futures.wait(pending, return_when=concurrent.futures.FIRST_COMPLETED).done:
                    self.note(pending.pop(done), *done.result())

    def table(self):
        columns = ("killed", "survived", "equivalent", "does not compile")
        print("\n| Folder | " + " | ".join(columns) + " | noticed |\n|---|" + "---:|" * 5)
        total = collections.Counter()
        for folder in sorted(self.verdicts):
            total.update(self.verdicts[folder])
            print(self.row(folder, self.verdicts[folder], columns))
        print(self.row("all", total, columns))
        return self.noticed(total)

    def row(self, name, counts, columns):
        return f"| {name} | " + " | ".join(str(counts[c]) for c in columns) + f" | {self.noticed(counts):.1f} % |"

    @staticmethod
    def noticed(counts):
        return 100 * counts["killed"] / max(1, counts["killed"] + counts["survived"])


def chosen_mutations(chosen):
    folders = chosen.folders or [folder for folder in FOLDERS if (ROOT / folder).is_dir()]
    if chosen.at:
        file, line = chosen.at.rsplit(":", 1)
        return [m for m in found_mutations([file.split("/")[0]]) if (m.file, m.line) == (file, int(line))]
    if chosen.again:
        keys = {tuple(key) for key in json.loads(LAST_SURVIVORS.read_text())}
        return [m for m in found_mutations(folders) if m.key() in keys]
    return in_random_order(found_mutations(folders), chosen.seed)


def main():
    chosen = options()
    report = lambda text: print("== " + text, flush=True)
    clock = Clock()
    shop = workshop.Workshop(ROOT, chosen.jobs)
    coverage = workshop.Coverage(shop)
    shop.copy_tree()
    for build, with_coverage in ((shop.build, False), (coverage.build, True)):
        shop.configure(build, with_coverage)
    report(f"building {shop.build.relative_to(ROOT)}")
    if not shop.ninja(shop.build):
        sys.exit(shop.last_output)
    made = recipes.Recipes(shop.tree, shop.build)
    report(f"building {coverage.build.relative_to(ROOT)}")
    if not shop.ninja(coverage.build, made.product()):
        sys.exit(shop.last_output)
    report("built: " + clock.text())
    programs = shop.programs(shop.build)
    coverage.collect(programs, made.product(), report)
    report("the tests without a mutation: " + clock.text())
    if failing := [name for name, outcome in coverage.alone.items() if not outcome.passed]:
        sys.exit("without any mutation these fail: " + ", ".join(failing))
    run = Run(shop, made, coverage, programs)
    run.go(chosen_mutations(chosen), sys.maxsize if chosen.at or chosen.again else chosen.count, chosen.jobs)
    noticed = run.table()
    report(f"{run.counted()} mutants: " + clock.text())
    return noticed < GOAL


if __name__ == "__main__":
    sys.exit(main())
