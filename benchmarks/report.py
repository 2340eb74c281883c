# SPDX-FileCopyrightText: 2026 The Ornevo developers
# SPDX-License-Identifier: MIT
"""Puts what scripts/measure found into docs/performance.md and draws the plot beside it.

    report.py FOLDER PAGE PLOT

FOLDER has times.json of ornevo_benchmarks, memory.txt of road_memory and first.txt of first_open. In PAGE everything
between the two "measured" marks is replaced.
"""

import json
import pathlib
import re
import statistics
import subprocess
import sys

import matplotlib

matplotlib.use("svg")
matplotlib.rcParams["svg.hashsalt"] = "ornevo"  # the same figures give the same file
import matplotlib.pyplot as plt

SIZES = (4, 12, 24, 64)


class Measurements:
    """Medians over the repetitions, by the name of the row and the size in megapixels."""

    def __init__(self, path):
        with open(path, encoding="utf-8") as file:
            everything = json.load(file)
        self.context = everything["context"]
        self.rows = {}
        for row in everything["benchmarks"]:
            if row.get("aggregate_name") == "median":
                name, size = row["run_name"].removesuffix("/process_time").rsplit("/", 1)
                self.rows[name, int(size)] = row
        self.repetitions = max(row["repetitions"] for row in everything["benchmarks"])

    def ms(self, name, size):
        """Time of the processor in all threads, in milliseconds."""
        return self.rows[name, size]["cpu_time"]

    def ns(self, name, size):
        """The same for a pixel, in nanoseconds."""
        return self.ms(name, size) * 1e6 / self.rows[name, size]["pixels"]

    def ratio(self, name, other):
        return [self.ms(name, size) / self.ms(other, size) for size in SIZES]


def memory_of(path):
    with open(path, encoding="utf-8") as file:
        found = re.findall(r"^([\d.]+) megapixels: peak ([\d.]+)", file.read(), re.MULTILINE)
    peaks = {round(float(size)): float(peak) for size, peak in found}
    return [peaks[size] for size in SIZES]


def first_opening(path):
    """Median milliseconds of the first photo after the start, by "decode" or "open" and the photo."""
    times = {}
    with open(path, encoding="utf-8") as file:
        for line in file:
            photo, work, _, milliseconds = line.split()
            times.setdefault((photo, work), []).append(float(milliseconds))
    return {key: statistics.median(values) for key, values in times.items()}


def beyond_decoding(first, photo):
    """What opening takes beyond decoding, as a part of the decoding."""
    return first[photo, "open"] / first[photo, "decode"] - 1


def rows_of_goals(measured, folder):
    """(work, figures at SIZES, bar, aim)"""
    first = first_opening(folder / "first.txt")
    opening = [(measured.ms("opening", s) - measured.ms("decoding", s)) / measured.ms("decoding", s) for s in SIZES]
    brush = [measured.ms("brushBatch", s) + measured.ms("brushUndo", s) for s in SIZES]
    shown = [measured.ms("brushBatchAndUndoShown", s) for s in SIZES]
    return [
        ("edge map / OpenCV's filters put together", measured.ratio("edgeMap/ours", "edgeMap/openCv"), 0.25, 0.15),
        ("`FrWatershed` / `cv::watershed` on the edge map",
         measured.ratio("twoRegions/ours", "twoRegions/openCvOnEdges"), 0.75, 0.5),
        ("`FrWatershed` / `cv::watershed` on the photo",
         measured.ratio("twoRegions/ours", "twoRegions/openCvOnPhoto"), 0.4, 0.25),
        ("`FrWatershedMany`, 8 regions / `cv::watershed` with 8 markers",
         measured.ratio("manyRegions/ours", "manyRegions/openCvOnEdges"), 0.75, 0.5),
        ("blur of a mask, size 5 / `cv::GaussianBlur` on four channels",
         measured.ratio("maskBlur/ours", "maskBlur/openCv"), 1.0, 0.3),
        ("Mask step until its overlay is shown / flooding alone", measured.ratio("maskStep", "flooding"), 1.3, 1.15),
        ("Preview step without the flooding, ns a pixel",
         [measured.ns("previewWithoutFlooding", s) for s in SIZES], 14, 8),
        ("brush batch of ten 20-pixel dabs and its undo, ms", brush, 4, 1),
        ("the same, both repainted in a window of 1280 x 900, ms", shown, 4, 1),
        ("opening beyond decoding by `QImage` / decoding, first photo", [beyond_decoding(first, str(s)) for s in SIZES], 0.6, 0.3),
        ("the same, one photo after the other", opening, 0.6, 0.3),
        ("peak memory from opening to export, bytes a pixel", memory_of(folder / "memory.txt"), 44, 32),
    ]


STEPS = [
    ("edgeMap/ours", "edge map"),
    ("edgeMap/openCv", "edge map, OpenCV"),
    ("twoRegions/ours", "FrWatershed"),
    ("twoRegions/openCvOnEdges", "cv::watershed, edge map"),
    ("twoRegions/openCvOnPhoto", "cv::watershed, photo"),
    ("manyRegions/ours", "FrWatershedMany, 8 regions"),
    ("manyRegions/openCvOnEdges", "cv::watershed, 8 markers"),
    ("maskBlur/ours", "mask blur"),
    ("maskBlur/openCv", "cv::GaussianBlur of the mask"),
    ("decoding", "decoding by QImage"),
    ("opening", "opening"),
    ("openingShown", "opening until shown"),
    ("maskStep", "Mask step until shown"),
    ("previewWithoutFlooding", "Preview without flooding"),
    ("waves", "FrWaveSegment"),
    ("feathering", "OvDoFeathering"),
]


def number(value):
    return f"{value:.2f}" if value < 10 else f"{value:.1f}"


def table(head, rows):
    lines = ["| " + " | ".join(head) + " |", "|" + "---|" * len(head)]
    return lines + ["| " + " | ".join(row) + " |" for row in rows]


def machine(measured):
    cpu = subprocess.run(["lscpu"], capture_output=True, text=True, check=True, env={"LC_ALL": "C"}).stdout
    model = re.search(r"Model name:\s*(.*)", cpu).group(1)
    caches = ", ".join(f"L{c['level']} {c['size'] // 1024} KiB"
                       for c in measured.context["caches"] if c["type"] != "Instruction")
    with open("/sys/kernel/mm/transparent_hugepage/enabled", encoding="ascii") as file:
        large_pages = re.search(r"\[(\w+)\]", file.read()).group(1)
    load = ", ".join(f"{value:.1f}" for value in measured.context["load_avg"])
    return (f"{measured.context['date'][:10]}, {model} with {measured.context['num_cpus']} cores at "
            f"{measured.context['mhz_per_cpu']} MHz ({caches}), Linux with large pages on \"{large_pages}\"; "
            f"load before the start {load}. Medians of {measured.repetitions} repetitions in random order.")


def text_of(measured, folder):
    sizes = [f"{size} MP" for size in SIZES]
    goals = [[work, *map(number, figures), number(bar), number(aim)]
             for work, figures, bar, aim in rows_of_goals(measured, folder)]
    steps = [[label, *(number(measured.ns(name, size)) for size in SIZES),
              number(measured.ns(name, 64) / measured.ns(name, 4))] for name, label in STEPS]
    first = first_opening(folder / "first.txt")
    photos = sorted({photo for photo, _ in first if not photo.isdigit()})
    opened = [[f"`{photo}`", number(first[photo, "decode"]), number(first[photo, "open"]),
               number(beyond_decoding(first, photo))] for photo in photos]
    return "\n".join([
        machine(measured), "",
        *table(["Work", *sizes, "bar", "aim"], goals), "",
        "Nanoseconds a pixel, and how much more a pixel takes at 64 megapixels than at 4 (bar 1.5, aim 1.2):", "",
        *table(["Step", *sizes, "growth"], steps), "",
        "Whole photographs, opened as the first after the start:", "",
        *table(["Photo", "decoding, ms", "opening, ms", "opening beyond decoding / decoding"], opened)])


def draw(measured, path):
    figure, axes = plt.subplots(figsize=(8, 6))
    pairs = [("edgeMap/ours", "edgeMap/openCv"), ("twoRegions/ours", "twoRegions/openCvOnEdges"),
             ("maskBlur/ours", "maskBlur/openCv"), ("opening", "decoding"), ("maskStep", None),
             ("previewWithoutFlooding", None), ("brushBatch", None)]
    labels = dict(STEPS, brushBatch="brush batch")
    for index, (ours, other) in enumerate(pairs):
        for name, style in ((ours, "o-"), (other, "o:")):
            if name is not None:
                axes.plot(SIZES, [measured.ms(name, size) for size in SIZES], style, color=f"C{index}",
                          markersize=3, label=labels[name])
    axes.set(xscale="log", yscale="log", xlabel="megapixels", ylabel="ms of one processor", xticks=SIZES,
             xticklabels=SIZES)
    axes.minorticks_off()
    axes.grid(alpha=0.3)
    axes.legend(fontsize=7, loc="center left", bbox_to_anchor=(1, 0.5))
    figure.savefig(path, bbox_inches="tight", metadata={"Date": None})


def main():
    folder = pathlib.Path(sys.argv[1])
    page, plot = sys.argv[2:]
    measured = Measurements(folder / "times.json")
    begin, end = "<!-- measured: begin -->\n", "\n<!-- measured: end -->"
    with open(page, encoding="utf-8") as file:
        before, rest = file.read().split(begin)
    after = rest.split(end)[1]
    with open(page, "w", encoding="utf-8") as file:
        file.write(before + begin + text_of(measured, folder) + end + after)
    draw(measured, plot)


if __name__ == "__main__":
    main()
