#!/usr/bin/env python3
"""Compares the viewer with a bare program and with other viewers; run it by scripts/bench.

usage: compare.py BUILD-DIR PICTURE-DIR ROUNDS

Prints the tables of docs/performance.md as Markdown and writes performance.svg to the current
directory. Every comparison takes turns: one run of each program is a round, and a ratio is the
median over the rounds of the ratio within a round, with the smallest and the largest beside it.
"""
import json
import math
import os
import random
import shutil
import statistics
import subprocess
import sys
import tempfile

BUILD, PICTURES, ROUNDS = sys.argv[1], sys.argv[2], int(sys.argv[3])
PAGES = 8
STEPS = 50
COLORS = (255, 0, 0), (0, 255, 0), (0, 0, 255), (255, 255, 0), (255, 0, 255), (0, 255, 255)
OURS, BARE = "zanoview3", "bare"

# Name, key to page, key for a step of the view, command. "FILES" is replaced by the files of a directory.
VIEWERS = [
    (OURS, "space", "Right", [f"{BUILD}/zanoview3", "-reproduce-", "DIRECTORY"]),
    (BARE, "space", "space", [f"{BUILD}/bench/zv_bare", "FILES"]),
    ("feh", "space", "ctrl", ["feh", "-F", "DIRECTORY"]),
    ("nsxiv", "n", "ctrl", ["nsxiv", "-sf", "DIRECTORY"]),
    ("imv", "Right", "l", ["imv-x11", "DIRECTORY"]),
    ("qiv", "space", "ctrl", ["qiv", "-m", "FILES"]),
]


def rows_of(width, height, seed, color):
    """Returns the RGB rows of noise over a gradient with a solid block in the middle."""
    noise = random.Random(seed)
    deviation = [round(8 * statistics.NormalDist().inv_cdf((n + 0.5) / 256)) for n in range(256)]
    tables = [bytes(min(max(gray + step, 0), 255) for step in deviation) for gray in range(256)]
    left, right = 3 * (width * 3 // 8), 3 * (width * 5 // 8)
    block = bytes(color) * ((right - left) // 3)
    for y in range(height):
        row = noise.randbytes(3 * width).translate(tables[51 + 153 * y // height])
        inside = height * 3 // 8 <= y < height * 5 // 8
        yield row[:left] + block + row[right:] if inside else row


def make_pictures(width, height, count=9):
    """Makes JPEGs whose middles have the colours that the meter expects. Returns the directory."""
    directory = os.path.join(PICTURES, f"{width}x{height}")
    os.makedirs(directory, exist_ok=True)
    for place in range(count):
        path = os.path.join(directory, f"{place:02}.jpg")
        if not os.path.exists(path):
            with subprocess.Popen(["cjpeg", "-quality", "90", "-sample", "2x2", "-outfile", path],
                                  stdin=subprocess.PIPE) as encoder:
                encoder.stdin.write(b"P6 %d %d 255\n" % (width, height))
                for row in rows_of(width, height, place, COLORS[place % 6]):
                    encoder.stdin.write(row)
    return directory


def run_meter(viewer, directory, pages=PAGES, steps=0):
    """Returns the values of one run by name; the pages as their median."""
    _, key, step_key, command = viewer
    files = sorted(os.path.join(directory, name) for name in os.listdir(directory))
    words = []
    for word in command:
        words += files if word == "FILES" else [directory if word == "DIRECTORY" else word]
    output = subprocess.run([f"{BUILD}/bench/zv_meter", key, str(pages), step_key, str(steps), *words],
                            stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True, check=True)
    values = {}
    for line in output.stdout.splitlines():
        name, value = line.split()
        values.setdefault(name, []).append(math.nan if value == "timeout" else float(value))
    medians = {name: statistics.median(numbers) for name, numbers in values.items()}
    if steps:
        medians["frames"] = 1000 / max(medians["step"], 0.01)
    return medians


def compare(width, height, viewers, what, pages=PAGES, steps=0):
    """Runs the viewers in turns and prints a row of each value of `what` for each viewer."""
    directory = make_pictures(width, height, pages + 1)
    rounds = [{viewer[0]: run_meter(viewer, directory, pages, steps) for viewer in viewers}
              for _ in range(ROUNDS)]
    print(f"\n{width} by {height} pixels, {ROUNDS} rounds:\n")
    print("| program | " + " | ".join(f"{text} | ratio" for text in what.values()) + " |")
    print("|---|" + "---|---|" * len(what))
    for name, *_ in viewers:
        cells = []
        for value in what:
            numbers = [result[name][value] for result in rounds]
            ratios = [result[OURS][value] / max(result[name][value], 0.01) for result in rounds]
            cells.append(f"{statistics.median(numbers):.4g}")
            cells.append("" if name == OURS else "{:.2f} ({:.2f} to {:.2f})".format(
                statistics.median(ratios), min(ratios), max(ratios)))
        print(f"| {name} | " + " | ".join(cells) + " |", flush=True)


def compare_libraries():
    """Prints our loading and upload beside the bare library calls: medians of interleaved repetitions."""
    pairs = [("JPEG", "load_jpeg", "bare_jpeg"), ("PNG", "load_png", "bare_png"),
             ("upload", "upload_record", "bare_calls")]
    rounds = []
    for _ in range(3):
        output = subprocess.run([f"{BUILD}/bench/zv_bench", "--benchmark_format=json",
                                 "--benchmark_enable_random_interleaving=true",
                                 "--benchmark_min_time=0.01", "--benchmark_repetitions=21",
                                 "--benchmark_filter=jpeg|png|upload_record|bare_calls"],
                                stdout=subprocess.PIPE, check=True)
        times = {}
        for run in json.loads(output.stdout)["benchmarks"]:
            if run["run_type"] == "iteration":
                times.setdefault(run["run_name"], []).append(run["real_time"])
        rounds.append({name.split("/")[0]: statistics.median(runs) for name, runs in times.items()})
    print("\n| 24 megapixels | ours, ms | bare calls, ms | ratio |\n|---|---|---|---|")
    for text, ours, bare in pairs:
        medians = [statistics.median(times[name] for times in rounds) for name in (ours, bare)]
        ratios = [times[ours] / times[bare] for times in rounds]
        print("| {} | {:.0f} | {:.0f} | {:.2f} ({:.2f} to {:.2f}) |".format(
            text, *medians, statistics.median(ratios), min(ratios), max(ratios)), flush=True)


def measure_scale():
    """Prints and returns first picture, page and memory by megapixels."""
    print("\n| megapixels | first picture, ms | page, ms | memory, MiB |\n|---|---|---|---|")
    rows = []
    for side in 1000, 2000, 3000, 5000, 7000, 10000:
        directory = make_pictures(side, side, 3)
        runs = [run_meter(VIEWERS[0], directory, 2) for _ in range(ROUNDS)]
        row = [side * side / 1e6] + [statistics.median(run[name] for run in runs)
                                     for name in ("first", "page", "memory")]
        rows.append(row)
        print("| {:.0f} | {:.0f} | {:.0f} | {:.0f} |".format(*row), flush=True)
    return rows


def measure_names():
    """Prints the time to open a directory of many names and to page there."""
    source = os.path.join(make_pictures(640, 480), "00.jpg")
    second = os.path.join(os.path.dirname(source), "01.jpg")
    print("\n| names in the directory | first picture, ms | page, ms |\n|---|---|---|")
    for count in 1000, 10000, 100000:
        with tempfile.TemporaryDirectory(dir=PICTURES) as directory:
            for number in range(count):
                os.symlink(second if number % 6 == 1 else source, f"{directory}/{number:06}.jpg")
            runs = [run_meter(VIEWERS[0], directory, 1) for _ in range(ROUNDS)]
        print("| {} | {:.0f} | {:.1f} |".format(count, *(statistics.median(run[name] for run in runs)
                                                       for name in ("first", "page"))), flush=True)


def plot(rows, path):
    """Writes page time and memory over megapixels, both axes logarithmic."""
    width, height, margin = 640, 400, 60

    def x_of(value):
        return margin + (width - 2 * margin) * math.log10(value) / 2

    def y_of(value):
        return height - margin - (height - 2 * margin) * math.log10(max(value, 1)) / 4

    parts = [f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {width} {height}" '
             'font-family="sans-serif" font-size="12">',
             f'<rect width="{width}" height="{height}" fill="white"/>']
    for value in 1, 10, 100:
        parts.append(f'<text x="{x_of(value):.0f}" y="{height - margin + 20}" text-anchor="middle">{value} MP</text>')
    for value in 1, 10, 100, 1000, 10000:
        y = y_of(value)
        parts.append(f'<line x1="{margin}" x2="{width - margin}" y1="{y:.0f}" y2="{y:.0f}" stroke="#ccc"/>')
        parts.append(f'<text x="{margin - 8}" y="{y + 4:.0f}" text-anchor="end">{value}</text>')
    for column, name, color in (1, "first picture, ms", "#06c"), (2, "page, ms", "#c30"), (3, "memory, MiB", "#393"):
        points = " ".join(f"{x_of(row[0]):.1f},{y_of(row[column]):.1f}" for row in rows)
        parts.append(f'<polyline points="{points}" fill="none" stroke="{color}" stroke-width="2"/>')
        parts.append(f'<text x="{margin + 10}" y="{margin + 16 * column}" fill="{color}">{name}</text>')
    with open(path, "w", encoding="utf-8") as out:
        out.write("\n".join(parts + ["</svg>", ""]))


def main():
    installed = [viewer for viewer in VIEWERS if "/" in viewer[3][0] or shutil.which(viewer[3][0])]
    speeds = {"first": "first picture, ms", "page": "page, ms", "memory": "memory, MiB", "cpu": "processor, ms"}
    print("## Beside other programs")
    compare(6000, 4000, installed, speeds)
    compare(640, 480, installed, speeds)
    print("\n## Beside bare library calls")
    compare_libraries()
    print("\n## Redraw")
    steps = [viewer for viewer in installed if viewer[0] in (OURS, "imv")]
    for side in (6000, 4000), (10000, 10000):
        compare(*side, steps, {"step": "processor time of a step, ms", "frames": "steps a second"}, 1, STEPS)
    print("\n## Scale")
    rows = measure_scale()
    measure_names()
    plot(rows, "performance.svg")


main()
