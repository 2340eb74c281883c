# SPDX-FileCopyrightText: 2026 The Ornevo developers
# SPDX-License-Identifier: MIT
"""A copy of the source tree in which mutants are built and their tests run."""

import dataclasses
import hashlib
import json
import os
import pathlib
import shutil
import signal
import subprocess
import tempfile
import time

NO_TESTS_OF_THE_PRODUCT = {"install_outside_program", "mutations"}


@dataclasses.dataclass
class Program:
    """A test as ctest knows it."""

    name: str
    command: list
    environment: dict
    on_screen: bool  # whether CI also runs it in an X server

    @property
    def target(self):
        return pathlib.Path(self.command[0]).name


def call(command, **more):
    return subprocess.run(command, check=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, **more).stdout


def digest(path):
    return hashlib.sha256(pathlib.Path(path).read_bytes()).hexdigest()


class Workshop:
    """`root` is the project; the copy lies in build/mutate, its build folder where a preset's would, so that the
    objects of the tests come out of ccache."""

    def __init__(self, root, jobs):
        self.root, self.jobs = root, jobs
        self.tree = root / "build/mutate"
        self.build = self.tree / "build/mutants"
        self.photos = root / "build/photos"

    def copy_tree(self):
        files = call(["git", "ls-files", "--cached", "--others", "--exclude-standard"], cwd=self.root).splitlines()
        files = [file for file in files if (self.root / file).is_file()]
        for file in files:
            here, there = self.root / file, self.tree / file
            if not there.exists() or there.read_bytes() != here.read_bytes():
                there.parent.mkdir(parents=True, exist_ok=True)
                shutil.copy(here, there)  # with the time of now: what was mutated is newer than its object otherwise
        known = set(files)
        for path in self.tree.rglob("*"):
            relative = path.relative_to(self.tree)
            if relative.parts[0] != "build" and path.is_file() and str(relative) not in known:
                path.unlink()

    def configure(self, build, coverage):
        call(["cmake", "-G", "Ninja", "-S", self.tree, "-B", build, "-DCMAKE_BUILD_TYPE=Release", "-DORNEVO_WERROR=OFF",
              "-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=gold", "-DORNEVO_MUTATION_COVERAGE=" + ("ON" if coverage else "OFF"),
              f"-DCMAKE_PROJECT_Ornevo_INCLUDE={self.tree}/tests/mutation/product-flags.cmake"])

    def ninja(self, build, targets=()):
        """Whether it built."""
        command = ["ninja", "-C", str(build), f"-j{self.jobs}", *targets]
        made = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
        self.last_output = made.stdout
        return made.returncode == 0

    def programs(self, build):
        listed = json.loads(call(["ctest", "--show-only=json-v1"], cwd=build))["tests"]
        programs = []
        for test in listed:
            properties = {entry["name"]: entry["value"] for entry in test.get("properties", [])}
            environment = dict(entry.split("=", 1) for entry in properties.get("ENVIRONMENT", []))
            if test["name"] not in NO_TESTS_OF_THE_PRODUCT and "command" in test:  # none where it isn't built
                programs.append(Program(test["name"], test["command"], environment, "screen" in properties.get("LABELS", [])))
        return programs

    def run(self, program, limit, platform="offscreen", folder=None, more=None):
        """True when it passed, False when it failed or took longer than `limit` seconds; and how long it took.
        `folder` holds programs that were moved out of the build folder."""
        command = list(program.command)
        environment = {**os.environ, "QT_QPA_PLATFORM": platform, "ORNEVO_PHOTOS": str(self.photos), **program.environment,
                       **(more or {})}
        if platform == "xcb":
            environment["QT_QPA_PLATFORM"] = "xcb"
            command = ["xvfb-run", "-a", "-s", "-screen 0 1600x1200x24", *command]
        if folder:
            command = [str(folder / pathlib.Path(part).name) if part == program.command[0] else part for part in command]
            environment |= {key: str(folder / pathlib.Path(value).name) for key, value in program.environment.items()
                            if key == "ORNEVO_PROGRAM"}
        begin = time.monotonic()
        with tempfile.TemporaryDirectory(prefix="ornevo-mutant-", ignore_cleanup_errors=True) as scratch:
            environment["TMPDIR"] = scratch
            running = subprocess.Popen(command, cwd=scratch, env=environment, stdin=subprocess.DEVNULL,
                                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, start_new_session=True)
            try:
                passed = running.wait(limit) == 0
            except subprocess.TimeoutExpired:
                passed = False
            finally:
                try:
                    os.killpg(running.pid, signal.SIGKILL)  # what the program may have started, too
                except ProcessLookupError:
                    pass
                running.wait()
        return passed, time.monotonic() - begin


class Coverage:
    """Which test program comes by which line. Kept as long as the program's file is the same."""

    def __init__(self, workshop, limit=600):
        self.workshop, self.limit = workshop, limit
        self.build = workshop.tree / "build/coverage"
        self.cache = workshop.tree / "build/coverage-of-programs"
        self.lines = {}  # program's name: {file: lines}

    def collect(self, programs, report):
        self.cache.mkdir(parents=True, exist_ok=True)
        for program in programs:
            kept = self.cache / (program.name + "-" + digest(program.command[0])[:24] + ".json")
            if not kept.exists():
                report(f"coverage of {program.name}")
                for old in self.cache.glob(program.name + "-*.json"):
                    old.unlink()
                kept.write_text(json.dumps(self._measure(program)))
            self.lines[program.name] = {file: set(lines) for file, lines in json.loads(kept.read_text()).items()}

    def _measure(self, program):
        with tempfile.TemporaryDirectory(prefix="ornevo-coverage-") as folder:
            counters = pathlib.Path(folder)
            self.workshop.run(program, self.limit, more={
                "GCOV_PREFIX": folder, "GCOV_PREFIX_STRIP": str(len(self.build.parts) - 1)})
            data = sorted(counters.rglob("*.gcda"))
            for file in data:
                notes = file.relative_to(counters).with_suffix(".gcno")
                (counters / notes).symlink_to(self.build / notes)
            found = {}
            if data:
                text = subprocess.run(["gcov", "--json-format", "--stdout", *map(str, data)], cwd=self.build, check=True,
                                      stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True).stdout
                for unit in map(json.loads, text.splitlines()):
                    for source in unit["files"]:
                        self._add(found, source)
            return found

    def _add(self, found, source):
        path = (self.build / source["file"]).resolve()
        if path.is_relative_to(self.workshop.tree) and not path.is_relative_to(self.workshop.tree / "build"):
            hit = {line["line_number"] for line in source["lines"] if line["count"]}
            if hit:
                name = str(path.relative_to(self.workshop.tree))
                found[name] = sorted(set(found.get(name, ())) | hit)

    def reaching(self, mutation):
        """Names of the programs that come by the mutation. A constant has no code of its own: whoever comes by its
        file counts. A statement over several lines is noted at its first."""
        by_file = {name: lines[mutation.file] for name, lines in self.lines.items() if mutation.file in lines}
        with_code = set().union(*by_file.values()) if by_file else set()
        for line in range(mutation.line, max(mutation.line - 4, 0), -1):
            if line in with_code:
                return {name for name, lines in by_file.items() if line in lines}
        return set(by_file)
