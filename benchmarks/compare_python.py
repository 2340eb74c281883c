# SPDX-FileCopyrightText: 2026 The Ornevo developers
# SPDX-License-Identifier: MIT
"""The Python module beside scikit-image, OpenCV and ITK, and beside its own functions without Python.

    compare_python.py PROGRAMS PHOTOS PAGE [REPETITIONS]

PROGRAMS is the folder of core_times and, where ITK was found, itk_times; PHOTOS one of photographs. Medians go into
PAGE. All of it runs on one thread, on the same mosaic of photographs, with the same two markers and the edge map given.
"""

import pathlib
import statistics
import subprocess
import sys
import tempfile
import time

import cv2
import numpy as np
import ornevo
import skimage
import skimage.segmentation
from PIL import Image

SIZES = [4, 24]
TILE = 512


def read_photo(path):
    """None for what is too small, or broken: some of the files are."""
    try:
        photo = np.asarray(Image.open(path).convert("RGB"))
    except OSError:
        return None
    return photo if min(photo.shape[:2]) >= TILE else None


def mosaic(megapixels, folder):
    """Squares of photographs side by side: as much detail at any size."""
    photos = [photo for photo in map(read_photo, sorted(folder.glob("*.jpg"))) if photo is not None]
    height = round((megapixels * 1e6 / 1.5) ** 0.5)
    picture = np.empty((height, height * 3 // 2, 3), np.uint8)
    random = np.random.default_rng(7)
    number = 0
    for top in range(0, picture.shape[0], TILE):
        for left in range(0, picture.shape[1], TILE):
            photo = photos[number % len(photos)]
            number += 1
            y, x = (random.integers(0, length - TILE + 1) for length in photo.shape[:2])
            place = picture[top : top + TILE, left : left + TILE]
            place[...] = photo[y : y + place.shape[0], x : x + place.shape[1]]
    return picture


def two_markers(shape):
    """A stroke across the middle, and one along the border."""
    markers = np.zeros(shape, np.int32)
    height, width = shape
    markers[height * 2 // 5 : height * 2 // 5 + 20, width // 3 : width * 2 // 3] = 1
    markers[20:40, 20:-20] = markers[-40:-20, 20:-20] = 2
    markers[20:-20, 20:40] = markers[20:-20, -40:-20] = 2
    return markers


def seconds(work):
    work()
    begin = time.process_time()
    work()
    return time.process_time() - begin


def ours(picture, markers, edges):
    keep, remove = markers == 1, markers == 2
    mask = ornevo.cut_out(picture, keep, remove, edges)
    return {
        "ornevo edge_map": lambda: ornevo.edge_map(picture),
        "ornevo cut_out": lambda: ornevo.cut_out(picture, keep, remove, edges),
        "ornevo watershed": lambda: ornevo.watershed(picture, markers, edges),
        "ornevo wave_segment": lambda: ornevo.wave_segment(picture, 200),
        "ornevo smooth": lambda: ornevo.smooth(picture, 5, 1.2),
        "ornevo feather": lambda: ornevo.feather(picture, mask, 3),
    }


def others(picture, markers, edges):
    three = cv2.merge([edges] * 3)
    return {
        "opencv photo": lambda: cv2.watershed(picture, markers.copy()),
        "opencv edges": lambda: cv2.watershed(three, markers.copy()),
        "skimage": lambda: skimage.segmentation.watershed(edges, markers, watershed_line=True),
    }


def printed_times(program, scene):
    lines = subprocess.run([program, *scene], capture_output=True, text=True, check=True).stdout.split("\n")
    return {name: float(value) for name, value in (line.split() for line in lines if line)}


def measure(megapixels, programs, photos, repetitions):
    picture = mosaic(megapixels, photos)
    markers = two_markers(picture.shape[:2])
    edges = ornevo.edge_map(picture)
    works = {**ours(picture, markers, edges), **others(picture, markers, edges)}
    times = {}
    with tempfile.TemporaryDirectory() as folder:
        for name, values in (("picture", np.dstack([picture[:, :, ::-1], edges])), ("edges", edges), ("markers", markers)):
            values.tofile(f"{folder}/{name}")
        scene = [folder, str(picture.shape[1]), str(picture.shape[0])]
        for _ in range(repetitions):
            measured = {name: seconds(work) for name, work in works.items()}
            measured |= {f"core {name}": value for name, value in printed_times(programs / "core_times", scene).items()}
            if (programs / "itk_times").exists():
                measured |= printed_times(programs / "itk_times", scene)
            for name, value in measured.items():
                times.setdefault(name, []).append(1000 * value)
    return {name: statistics.median(values) for name, values in times.items()}


def number(value):
    return f"{value:.2f}" if value < 10 else f"{value:.1f}" if value < 100 else f"{value:.0f}"


def table(head, rows):
    lines = ["| " + " | ".join(head) + " |", "|" + "---|" * len(head)]
    return lines + ["| " + " | ".join(row) + " |" for row in rows]


def text_of(results):
    sizes = [f"{size} MP" for size in SIZES]
    cells = lambda value: [number(value(results[size])) if value(results[size]) else "-" for size in SIZES]
    against = [
        ("`ornevo.cut_out`, ms", lambda of: of["ornevo cut_out"], ""),
        ("`cv2.watershed` of the photo, ms", lambda of: of["opencv photo"], ""),
        ("`cv2.watershed` of the edge map, ms", lambda of: of["opencv edges"], ""),
        ("ITK's `MorphologicalWatershedFromMarkers`, ms", lambda of: of.get("itk"), ""),
        ("`skimage.segmentation.watershed`, ms", lambda of: of["skimage"], ""),
        ("`cut_out` / OpenCV, photo", lambda of: of["ornevo cut_out"] / of["opencv photo"], "0.45"),
        ("`cut_out` / OpenCV, edge map", lambda of: of["ornevo cut_out"] / of["opencv edges"], ""),
        ("`cut_out` / ITK", lambda of: of.get("itk") and of["ornevo cut_out"] / of["itk"], "0.25"),
        ("`cut_out` / scikit-image", lambda of: of["ornevo cut_out"] / of["skimage"], "0.10"),
    ]
    rows = [[label, *cells(value), bar] for label, value, bar in against]
    functions = [name.split()[1] for name in results[SIZES[0]] if name.startswith("ornevo ")]
    overhead = [
        [f"`{name}`"]
        + [number(results[size][f"{kind} {name}"]) for size in SIZES for kind in ("ornevo", "core")]
        + [f"{100 * results[SIZES[0]][f'ornevo {name}'] / results[SIZES[0]][f'core {name}'] - 100:+.0f} %"]
        for name in functions
    ]
    versions = f"OpenCV {cv2.__version__}, scikit-image {skimage.__version__}"
    return "\n".join(
        [f"Milliseconds of one processor; {versions}.", "", *table(["Work", *sizes, "bar"], rows), ""]
        + ["The functions from Python, and the same work called from C++ (ms), on an RGB picture:", ""]
        + table(["Function", "4 MP", "C++", "24 MP", "C++", "more at 4 MP"], overhead)
    )


def main():
    programs, photos, page = map(pathlib.Path, sys.argv[1:4])
    repetitions = int(sys.argv[4]) if len(sys.argv) > 4 else 5
    cv2.setNumThreads(1)
    text = text_of({size: measure(size, programs, photos, repetitions) for size in SIZES})
    print(text)
    begin, end = "<!-- python: begin -->\n", "\n<!-- python: end -->"
    before, rest = page.read_text(encoding="utf-8").split(begin)
    page.write_text(before + begin + text + end + rest.split(end)[1], encoding="utf-8")


if __name__ == "__main__":
    main()
