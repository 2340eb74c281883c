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
import tomllib

import mutations
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


class Run:
    def __init__(self, shop, coverage, programs):
        self.shop, self.coverage = shop, coverage
        self.programs = {program.name: program for program in programs}
        self.seconds, self.machine_code = {}, {}
        self.verdicts = collections.defaultdict(collections.Counter)
        self.survivors = []
        self.lock = threading.Lock()

    def try_the_tests(self, names):
        """The tests have to pass before a failure says something; how long they take says what is too long."""
        for name in names:
            passed, self.seconds[name] = self.shop.run(self.programs[name], 300)
            if not passed:
                sys.exit(f"{name} fails without any mutation")
            self.machine_code[name] = workshop.digest(self.programs[name].command[0])

    def limit(self, name):
        return 10 + 4 * self.seconds[name]

    def note(self, mutation, verdict, by=""):
        with self.lock:
            self.verdicts[mutation.file.split("/")[0]][verdict] += 1
            counted = sum(sum(c.values()) - c["does not compile"] for c in self.verdicts.values())
            print(f"{counted:4} {verdict:16} {mutation.file}:{mutation.line} {mutation.kind}: {mutation.before}  ->  "
                  f"{mutation.after}{'   [' + by + ']' if by else ''}", flush=True)
            if verdict == "survived":
                self.survivors.append(mutation)

    def counted(self):
        return sum(counts[verdict] for counts in self.verdicts.values() for verdict in ("killed", "survived"))

    def built(self, mutation, names, number):
        """A folder with the mutant's test programs, or None when there is nothing to test."""
        file = self.shop.tree / mutation.file
        text = file.read_text()
        file.write_text(mutation.apply(text))
        try:
            compiles = self.shop.ninja(self.shop.build, [self.programs[name].target for name in names])
            if not compiles:
                self.note(mutation, "does not compile")
                return None
            if all(workshop.digest(self.programs[name].command[0]) == self.machine_code[name] for name in names):
                self.note(mutation, "equivalent", "same machine code")
                return None
            folder = self.shop.tree / "build/programs" / str(number)
            folder.mkdir(parents=True)
            for name in names:
                moved = [self.programs[name].command[0]]
                if "ORNEVO_PROGRAM" in self.programs[name].environment:
                    moved.append(self.programs[name].environment["ORNEVO_PROGRAM"])
                for program in moved:
                    if not (folder / pathlib.Path(program).name).exists():
                        shutil.copy(program, folder)
            return folder
        finally:
            file.write_text(text)

    def test(self, mutation, names, folder):
        try:
            for name in names:
                if not self.shop.run(self.programs[name], self.limit(name), folder=folder)[0]:
                    return self.note(mutation, "killed", name)
            for name in names if mutation.file.split("/")[0] in ON_SCREEN else ():  # what only a real screen shows
                program = self.programs[name]
                if program.on_screen and not self.shop.run(program, 3 * self.limit(name), "xcb", folder)[0]:
                    return self.note(mutation, "killed", name + " in X")
            return self.note(mutation, "survived", ", ".join(names))
        finally:
            shutil.rmtree(folder, ignore_errors=True)

    def go(self, chosen, count, jobs):
        known = equivalents()
        shutil.rmtree(self.shop.tree / "build/programs", ignore_errors=True)
        slots = threading.Semaphore(jobs + 1)  # built and not yet tested
        with concurrent.futures.ThreadPoolExecutor(max(1, jobs - 1)) as pool:
            for number, mutation in enumerate(chosen):
                if self.counted() >= count:
                    break
                names = sorted(self.coverage.reaching(mutation), key=lambda name: self.seconds[name])
                if mutation.key() in known:
                    self.note(mutation, "equivalent", "listed")
                elif not names:
                    self.note(mutation, "survived", "no test comes by")
                elif folder := self.built(mutation, names, number):
                    if jobs == 1:
                        self.test(mutation, names, folder)
                        continue
                    slots.acquire()
                    pool.submit(self.test, mutation, names, folder).add_done_callback(lambda _: slots.release())

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
    shop = workshop.Workshop(ROOT, chosen.jobs)
    coverage = workshop.Coverage(shop)
    shop.copy_tree()
    for build, with_coverage in ((coverage.build, True), (shop.build, False)):
        report(f"building {build.relative_to(ROOT)}")
        shop.configure(build, with_coverage)
        if not shop.ninja(build):
            sys.exit(shop.last_output)
    coverage.collect(shop.programs(coverage.build), report)
    run = Run(shop, coverage, shop.programs(shop.build))
    report("the tests without a mutation")
    run.try_the_tests([name for name, lines in coverage.lines.items() if lines])
    run.go(chosen_mutations(chosen), sys.maxsize if chosen.at or chosen.again else chosen.count, chosen.jobs)
    if not chosen.at:
        LAST_SURVIVORS.write_text(json.dumps([m.key() for m in run.survivors]))
    return run.table() < GOAL


if __name__ == "__main__":
    sys.exit(main())
