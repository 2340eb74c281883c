# SPDX-FileCopyrightText: 2026 The Ornevo developers
# SPDX-License-Identifier: MIT
"""A copy of the source tree in which mutants are built and their tests run."""

import concurrent.futures
import dataclasses
import hashlib
import json
import math
import os
import pathlib
import re
import resource
import shutil
import signal
import subprocess
import tempfile
import threading
import time

from recipes import digest

NO_TESTS_OF_THE_PRODUCT = {"install_outside_program", "mutations"}
FAILED = re.compile(rb"FAIL!  : (\S+?)\(|\[  FAILED  \] (\S+)")  # as Qt's and Google's test libraries print it at once


@dataclasses.dataclass
class Program:
    """A test as ctest knows it."""

    name: str
    command: list
    environment: dict
    on_screen: bool  # whether CI also runs it in an X server



@dataclasses.dataclass
class Outcome:
    passed: bool
    by: str  # the test function that failed first, or what else ended the program
    processor: float  # seconds
    wall: float


def processor_seconds():
    """Of all that was started so far and has ended."""
    used = resource.getrusage(resource.RUSAGE_CHILDREN)
    return used.ru_utime + used.ru_stime


def call(command, **more):
    return subprocess.run(command, check=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, **more).stdout


class Workshop:
    """`root` is the project; the copy lies in its build/mutate."""

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
              "-DORNEVO_PYTHON=OFF",
              "-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=gold -Wl,--enable-new-dtags",
              "-DCMAKE_SHARED_LINKER_FLAGS=-fuse-ld=gold -Wl,--enable-new-dtags", "-DORNEVO_MUTATION_COVERAGE=" + ("ON" if coverage else "OFF"),
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

    def run(self, program, wall, processor, platform="offscreen", variant=None, more=None):
        """Runs it until it ends, a test function of it fails or one of the limits (in seconds) is reached: a machine that
        is busy with other things makes a program late, but it doesn't make it work longer."""
        environment = {**os.environ, "QT_QPA_PLATFORM": platform, "ORNEVO_PHOTOS": str(self.photos),
                       "GTEST_FAIL_FAST": "1", **program.environment, **(more or {})}
        environment["QT_QPA_PLATFORM"] = platform
        command = list(program.command)
        if variant:
            environment["LD_LIBRARY_PATH"] = variant.library_path
            command[0] = variant.program(command[0])
            if "ORNEVO_PROGRAM" in environment:
                environment["ORNEVO_PROGRAM"] = variant.program(environment["ORNEVO_PROGRAM"])
        if platform == "xcb":
            command = ["xvfb-run", "-a", "-s", "-screen 0 1600x1200x24", *command]
        begin = time.monotonic()
        with tempfile.TemporaryDirectory(prefix="ornevo-mutant-", ignore_cleanup_errors=True) as scratch:
            environment["TMPDIR"] = scratch
            running = subprocess.Popen(["prlimit", f"--cpu={math.ceil(processor)}", *command], cwd=scratch, env=environment,
                                       stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                                       start_new_session=True)
            late = threading.Timer(wall, end_group, [running.pid])
            late.start()
            failed = next(filter(None, map(FAILED.search, running.stdout)), None)
            if failed:
                end_group(running.pid)
            _, status, used = os.wait4(running.pid, 0)
            running.returncode = os.waitstatus_to_exitcode(status)
            late.cancel()
            end_group(running.pid)  # what the program may have started, too
            running.stdout.close()
        seconds = time.monotonic() - begin
        if failed:
            by = (failed[1] or failed[2]).decode()
        else:
            by = "too late" if seconds >= wall else f"exit code {running.returncode}"
        return Outcome(running.returncode == 0 and not failed, by, used.ru_utime + used.ru_stime, seconds)


def end_group(leader):
    try:
        os.killpg(leader, signal.SIGKILL)
    except ProcessLookupError:
        pass


class Coverage:
    """Which test program comes by which line, and how it does without a mutation: it has to pass before a failure says
    something, and how long it takes says what is too long. Kept as long as the program's file and the product are the
    same. The tests are those of the other build, run with libraries that count."""

    def __init__(self, workshop, limit=600):  # seconds of processor time
        self.workshop, self.limit = workshop, limit
        self.build = workshop.tree / "build/coverage"
        self.cache = workshop.tree / "build/coverage-of-programs"
        self.lines = {}  # program's name: {file: lines}
        self.alone = {}  # program's name: outcome

    def program(self, path):
        here = self.build / pathlib.Path(path).relative_to(self.workshop.build)
        return str(here) if here.exists() else path

    def collect(self, programs, product, report):
        """`product` is what was built here, by its paths within the build."""
        self.cache.mkdir(parents=True, exist_ok=True)
        self.library_path = ":".join(sorted({str((self.build / linked).parent) for linked in product}))
        state = hashlib.sha256("".join(digest(self.workshop.build / linked) for linked in product).encode()).hexdigest()
        with concurrent.futures.ThreadPoolExecutor(self.workshop.jobs) as pool:
            for program, kept in zip(programs, pool.map(lambda one: self._kept(one, state, report), programs)):
                self.alone[program.name] = Outcome(*kept["outcome"])
                self.lines[program.name] = {file: set(lines) for file, lines in kept["lines"].items()}

    def _kept(self, program, state, report):
        kept = self.cache / f"{program.name}-{digest(program.command[0])[:16]}{state[:16]}.json"
        if kept.exists():
            return json.loads(kept.read_text())
        for old in self.cache.glob(program.name + "-*.json"):
            old.unlink()
        outcome, lines = self._measure(program)
        report(f"{program.name}: {'passed' if outcome.passed else outcome.by}, {outcome.processor:.1f} s")
        measured = {"outcome": dataclasses.astuple(outcome), "lines": lines}
        if outcome.passed:
            kept.write_text(json.dumps(measured))
        return measured

    def _measure(self, program):
        with tempfile.TemporaryDirectory(prefix="ornevo-coverage-") as folder:
            counters = pathlib.Path(folder)
            outcome = self.workshop.run(program, 5 * self.limit, self.limit, variant=self, more={
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
            return outcome, found

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
