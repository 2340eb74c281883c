# SPDX-FileCopyrightText: 2026 The Ornevo developers
# SPDX-License-Identifier: MIT
"""Puts what scripts/measure found into docs/performance.md and draws the plot beside it.

    report.py FOLDER PAGE [PLOT]

FOLDER has times.json and inuse.json of ornevo_benchmarks, memory.txt of pipeline_memory and first.txt of first_open.
In PAGE everything between the two "measured" comments is replaced by what times.json and the texts hold, and everything
between the two "in use" comments by what inuse.json and the texts hold; a part whose file is missing stays as it is.
Fails when a row was measured that no table shows, and when a table wants a row that was not measured.
"""

import json
import pathlib
import re
import statistics
import subprocess
import sys

SIZES = ()  # in megapixels, those of times.json


class Measurements:
    """Medians over the repetitions, or what was measured once, by the name of the row and its size in megapixels."""

    def __init__(self, path):
        with open(path, encoding="utf-8") as file:
            everything = json.load(file)
        self.context = everything["context"]
        self.rows = {}
        self.shown = set()
        for row in everything["benchmarks"]:
            if row.get("aggregate_name", "median") == "median":
                self.rows[self.key_of(row["run_name"])] = row
        self.repetitions = max(row["repetitions"] for row in everything["benchmarks"])
        self.sizes = sorted({size for _, size in self.rows})

    @staticmethod
    def key_of(run_name):
        """("markerDab/5000", 24) of "markerDab/24/5000/process_time"."""
        parts = run_name.removesuffix("/process_time").split("/")
        size = next(index for index, part in enumerate(parts) if part.isdigit())
        return "/".join(parts[:size] + parts[size + 1:]), int(parts[size])

    def ms(self, name, size):
        """Time of the processor in all threads, in milliseconds."""
        self.shown.add(name)
        return self.rows[name, size]["cpu_time"]

    def ns(self, name, size):
        """The same for a pixel, in nanoseconds."""
        return self.ms(name, size) * 1e6 / self.rows[name, size]["pixels"]

    def ratio(self, name, other):
        return [self.ms(name, size) / self.ms(other, size) for size in self.sizes]

    def forgotten(self):
        """Names of rows that were measured for nobody."""
        return sorted({name for name, _ in self.rows} - self.shown)


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
        ("the same without a window", memory_of(folder / "memory-without-window.txt"), None, None),
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
    if value is None:
        return ""
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
        huge_pages = re.search(r"\[(\w+)\]", file.read()).group(1)
    load = ", ".join(f"{value:.1f}" for value in measured.context["load_avg"])
    return (f"{measured.context['date'][:10]}, {model} with {measured.context['num_cpus']} cores at "
            f"{measured.context['mhz_per_cpu']} MHz ({caches}), Linux with huge pages on \"{huge_pages}\"; "
            f"load before the start {load}. Medians of {measured.repetitions} repetitions in random order.")


def rows_in_use(measured, folder):
    """(work, figures at the sizes, bar); a figure for the size None is the same for all."""
    sizes = measured.sizes

    def ms(name):
        return [measured.ms(name, size) for size in sizes]

    def beyond(work, alone):
        return [measured.ms(work, size) / measured.ms(alone, size) - 1 for size in sizes]

    start = statistics.median(first_times(folder / "start.txt"))
    return [
        ("marker dab with 10 dabs laid, ms", ms("markerDab/10"), 4),
        ("marker dab with 5,000 dabs laid, ms", ms("markerDab/5000"), 4),
        ("eraser dab with 10 dabs laid, ms", ms("eraserDab/10"), 4),
        ("eraser dab with 5,000 dabs laid, ms", ms("eraserDab/5000"), 4),
        ("Keep brush, batch at the undo limit, ms", ms("brushAtTheUndoLimit/keep"), 4),
        ("Remove brush, batch at the undo limit, ms", ms("brushAtTheUndoLimit/remove"), 4),
        ("step of the hand tool, ms", ms("handStep"), 10),
        ("zoom step of the preview, ms", ms("zoomStep"), 40),
        ("another background colour, ns a pixel", [measured.ns("backgroundColour", size) for size in sizes], 8),
        ("another background picture, ns a pixel", [measured.ns("backgroundPicture", size) for size in sizes], 8),
        ("export as PNG beyond encoding and writing / these", beyond("exportFile/png", "encode/png"), 0.5),
        ("export as JPEG beyond encoding and writing / these", beyond("exportFile/jpg", "encode/jpg"), 0.5),
        ("from the start to an open window, without a photo, ms", [start] * len(sizes), 200),
    ]


def first_times(path):
    """What `first_open start` printed, in milliseconds."""
    with open(path, encoding="utf-8") as file:
        return [float(line.split()[-1]) for line in file]


def text_in_use(measured, folder):
    rows = [[work, *map(number, figures), number(bar)] for work, figures, bar in rows_in_use(measured, folder)]
    return "\n".join([machine(measured), "",
                      *table(["Until the screen is right", *(f"{size} MP" for size in measured.sizes), "bar"], rows)])


def text_of(measured, folder):
    sizes = [f"{size} MP" for size in SIZES]
    goals = [[work, *map(number, figures), number(bar), number(aim)]
             for work, figures, bar, aim in rows_of_goals(measured, folder)]
    steps = [[label, *(number(measured.ns(name, size)) for size in SIZES),
              number(measured.ns(name, SIZES[-1]) / measured.ns(name, SIZES[0]))] for name, label in STEPS]
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
    import matplotlib

    matplotlib.use("svg")
    matplotlib.rcParams["svg.hashsalt"] = "ornevo"  # the same figures give the same file
    import matplotlib.pyplot as plt

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


def put_in(page, mark, text):
    begin, end = f"<!-- {mark}: begin -->\n", f"<!-- {mark}: end -->"
    before, rest = page.read_text(encoding="utf-8").split(begin)
    page.write_text(before + begin + text + "\n" + end + rest.split(end)[1], encoding="utf-8")


def main():
    global SIZES
    folder, page = map(pathlib.Path, sys.argv[1:3])
    done = []
    if (folder / "times.json").exists():
        measured = Measurements(folder / "times.json")
        SIZES = measured.sizes
        put_in(page, "measured", text_of(measured, folder))
        if len(sys.argv) > 3:
            draw(measured, sys.argv[3])
        done.append(measured)
    if (folder / "inuse.json").exists():
        measured = Measurements(folder / "inuse.json")
        put_in(page, "in use", text_in_use(measured, folder))
        done.append(measured)
    for measured in done:
        if measured.forgotten():
            sys.exit("no table shows " + ", ".join(measured.forgotten()))


if __name__ == "__main__":
    main()
